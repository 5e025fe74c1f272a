// Paths and module information: the host's module name, the standard
// directories, short names, file versions and the 8-bit (ANSI) form of
// path texts. Every function states its result and its side effects.
//
// On Linux: module names come from the running executable; the directory
// that stands in for the Windows directory is $MORVIX_WINDOWS_DIR, else
// $XDG_CONFIG_HOME/morvix, else $HOME/.config/morvix (created on demand);
// the temporary directory is $TMPDIR, else /tmp; short names are the paths
// themselves; files have no version resources; the ANSI code page is
// ISO-8859-1.
#pragma once
#include <cstdint>
#include <string>

#include "base/handles.h"

namespace mx {

// The full file name of module (absent: the running executable), cut to
// capacity - 1 units and terminated. Returns its length (0: unknown, empty).
int32_t mxp_ModuleFileName(ModuleHandle module, char16_t *buf, int32_t capacity);

// The Windows directory (on Linux its stand-in), cut to the capacity and
// terminated. Returns its length. No side effects.
int32_t mxp_WindowsDirectory(char16_t *buf, int32_t capacity);

// The current directory. Returns its length when it fits the capacity
// (stored, terminated), else the size needed including the terminator
// (buf untouched); 0 on failure.
int32_t mxp_CurrentDirectory(char16_t *buf, int32_t capacity);

// The short form of an existing path; the same answers as
// mxp_CurrentDirectory, 0 when the path does not exist.
int32_t mxp_ShortPathName(const char16_t *path, char16_t *buf, int32_t capacity);

// The directory for temporary files, without a trailing separator, cut to
// the capacity. Returns its length.
int32_t mxp_TempDirectory(char16_t *buf, int32_t capacity);

// The absolute form of a path (relative ones against the current directory;
// empty: the current directory). No side effects.
std::u16string mxp_FullPath(const char16_t *path);

// The four numbers of the file version of a file's version resource (most
// significant first). False when the file has none or it is malformed.
bool mxp_FileVersion(const char16_t *path, uint16_t version[4]);

// A file name character as the platform's file names compare it: upper
// case on Windows (names compare without case), unchanged on Linux.
char16_t mxp_NameFold(char16_t c);

// The platform's directory separator.
char16_t mxp_PathSeparator();

// A text in the ANSI code page; units it cannot hold become '?'.
std::string mxp_ToAnsi(const char16_t *text);
// An ANSI text as UTF-16.
std::u16string mxp_FromAnsi(const char *text);

}  // namespace mx
