// File streams of the C runtime kind, with sharing modes: the macro loader,
// the trace file, OpenFile/ReadFile/WriteFile and the XML writer use them.
#pragma once
#include <cstddef>
#include <cstdint>

namespace mx {

struct MxpFile;  // an open stream

// Why an open failed.
enum class OpenError { kNone, kNotFound, kAccessDenied, kExists, kTooManyOpen, kOther };

// How others may share a file while it is open.
enum class Share { kDenyNone, kDenyWrite, kDenyReadWrite };

// Opens path with a C runtime mode text ("rt", "wt", "rb", "a+t, ccs=UTF-8", ...)
// and the given sharing. Returns the stream, or absent with *why set.
MxpFile *mxp_FileOpen(const char16_t *path, const char16_t *mode, Share share, OpenError *why);

// Closes the stream; absent is harmless.
void mxp_FileClose(MxpFile *file);

// Length of the open file in bytes, or -1.
int64_t mxp_FileLength(MxpFile *file);

// Reads the next character as the stream's mode translates it (text mode: one
// byte per character, CR LF arriving as LF, Ctrl-Z ending the text).
// Returns the code unit, or -1 at the end or on error.
int32_t mxp_FileGetChar(MxpFile *file);

// Writes a text as the stream's mode translates it. Returns 0, or -1 when the
// text could not be written completely.
int32_t mxp_FilePutText(MxpFile *file, const char16_t *text);

// Flushes buffered output; -1 on failure.
int32_t mxp_FileFlush(MxpFile *file);

// Reads up to size bytes; returns the number read (0 at the end), -1 on error.
int64_t mxp_FileReadBytes(MxpFile *file, void *buf, size_t size);

// Writes size bytes; returns 0, or -1 when they could not all be written.
int32_t mxp_FileWriteBytes(MxpFile *file, const void *buf, size_t size);

}  // namespace mx
