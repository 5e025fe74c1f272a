// File streams of the C runtime kind, with sharing modes, and the few file
// system operations the built-ins need. The macro loader, the trace file,
// OpenFile/ReadFile/WriteFile, CopyFile, the profile and registry stores and
// the XML writer use them.
//
// Mode texts are the C runtime's: a first letter r, w or a (blanks before it
// are skipped, upper case is accepted), then any of '+', 't' (text, the
// default), 'b' (binary) and further letters, which are ignored; then
// optionally ", ccs=UTF-8", ", ccs=UTF-16LE" or ", ccs=UNICODE" (blanks
// allowed around the words and the '=', the encoding name in any case).
// Anything else is an invalid mode and the open fails with kOther.
//
// How the modes translate:
// - text: bytes are code units 0-255; CR LF reads as LF, a Ctrl-Z ends the
//   text; LF is written as CR LF; a unit above 255 cannot be written.
// - binary: wide texts are UTF-16LE units as they are (an odd last byte is
//   dropped); bytes are bytes.
// - ccs: the text translations on UTF-8 or UTF-16LE data. A file that is
//   created, emptied or found empty gets the byte-order mark of the encoding
//   (UTF-16LE for UNICODE); an existing file's mark decides the encoding, and
//   without a mark UTF-8 and UTF-16LE keep theirs while UNICODE reads and
//   writes 8-bit text.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace mx {

struct MxpFile;  // an open stream

// Why an open failed.
enum class OpenError { kNone, kNotFound, kAccessDenied, kExists, kTooManyOpen, kOther };

// How others may share a file while it is open. Like the Windows sharing
// modes: an open fails with kAccessDenied when it wants an access an earlier
// open denies, or denies an access an earlier open holds. On Linux this holds
// within the process and between processes that use these streams (advisory
// locks); other programs are not held back.
enum class Share { kDenyNone, kDenyWrite, kDenyReadWrite };

// Opens path with a mode text and the given sharing. Only regular files open:
// a directory, FIFO, device or socket fails with kAccessDenied (without
// waiting for a FIFO's peer and before anything is truncated). A "w" mode empties the
// file only after the sharing check has passed. Returns the stream, or absent
// with *why set (an invalid mode or an empty path: kOther and kNotFound).
MxpFile *mxp_FileOpen(const char16_t *path, const char16_t *mode, Share share, OpenError *why);

// Flushes and closes the stream. Returns 0, or -1 when a write, the flush or
// the close failed at any time since the open (a full disk shows here even
// when the single writes only queued their bytes); absent gives 0.
int32_t mxp_FileClose(MxpFile *file);

// Length of the open file in bytes, or -1.
int64_t mxp_FileLength(MxpFile *file);

// Reads the next character as the stream's mode translates it (text mode: one
// byte per character, CR LF arriving as LF, Ctrl-Z ending the text; binary:
// one byte). Returns the code unit, or -1 at the end or on error.
int32_t mxp_FileGetChar(MxpFile *file);

// The C runtime's wide line reading: stores the units up to and including the
// line break, or capacity - 1 units when the line is longer, and terminates.
// Returns the number of units stored, -1 when nothing could be read (end of
// file, a stream not open for reading, capacity below 2); buf is then empty.
int32_t mxp_FileReadLine(MxpFile *file, char16_t *buf, int32_t capacity);

// The C runtime's wide text writing in the stream's mode, no line break
// added. Returns 0, or -1 when a unit could not be written (the units before
// it are written).
int32_t mxp_FilePutText(MxpFile *file, const char16_t *text);

// Flushes buffered output; -1 on failure.
int32_t mxp_FileFlush(MxpFile *file);

// Reads up to size bytes; returns the number read (0 at the end), -1 on error.
int64_t mxp_FileReadBytes(MxpFile *file, void *buf, size_t size);

// Writes size bytes; returns 0, or -1 when they could not all be written.
int32_t mxp_FileWriteBytes(MxpFile *file, const void *buf, size_t size);

// ---- the file system --------------------------------------------------------

// Renames or moves a file, also to another directory or volume. Fails (-1)
// when newPath exists, when the file is open through a stream, or when it
// cannot be moved; 0 on success.
int32_t mxp_FileRename(const char16_t *oldPath, const char16_t *newPath);

// Deletes a file; 0, or -1 when it is missing, open through a stream or
// cannot be deleted.
int32_t mxp_FileRemove(const char16_t *path);

// Creates one directory; 0 when it was created or already is a directory,
// -1 otherwise.
int32_t mxp_MakeDirectory(const char16_t *path);

// What a path names.
enum class PathKind { kMissing, kFile, kDirectory };
PathKind mxp_PathKind(const char16_t *path);

// One entry of a directory ("." and ".." are never listed).
struct MxpDirEntry {
    std::u16string name;
    bool directory;  // a real directory, not a link to one
};

// Lists the entries of dir (empty: the current directory) into out, sorted
// ordinally by name. Returns false when the directory cannot be read.
bool mxp_ListDirectory(const char16_t *dir, std::vector<MxpDirEntry> &out);

// Creates a new empty file in dir whose name starts with prefix and that did
// not exist before, and stores its full name in buf within capacity. Returns
// the name's length, or -1 (nothing created) when no file could be created or
// its name does not fit.
int32_t mxp_CreateUniqueFile(const char16_t *dir, const char16_t *prefix, char16_t *buf,
                             int32_t capacity);

// Replaces path by a new file holding size bytes of data, atomically: the
// data goes to a temporary file beside it that is then renamed over path, so
// readers see either the old or the new file. Returns false on failure
// (path unchanged). Fails while path is open through a stream that denies
// writing. A symbolic link is followed and its target replaced (the link
// stays); a dangling link, a device, a FIFO or a directory is refused.
bool mxp_FileReplace(const char16_t *path, const void *data, size_t size);

}  // namespace mx
