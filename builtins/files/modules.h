// Module and directory names and file versions.
#pragma once
#include <cstdint>

#include "engine/types.h"

namespace mx {

// buf = the full file name of the host's module, cut to capacity. Returns 0.
int32_t mdGetAppName(ModuleHandle host, char16_t *buf, int32_t capacity);
// buf = the directory of the host's module (StripFilename's rule). Returns 1.
int32_t mdGetProgPath(ModuleHandle host, char16_t *buf, int32_t capacity);
// buf = the Windows directory (on Linux its stand-in), cut to capacity. Returns 0.
int32_t mdGetUserPath(char16_t *buf, int32_t capacity);
// buf = the current directory. Returns its length, the size needed when the
// capacity is too small (buf unchanged), 0 on failure.
int32_t mdGetCurrentPath(char16_t *buf, int32_t capacity);
// buf = the platform's short form of an existing path; the same answers as
// mdGetCurrentPath (0 for a missing path).
int32_t mdLongToShortFilename(const char16_t *path, char16_t *buf, int32_t capacity);
// buf = the file version of module formatted with format ("%d.%d.%d.%d" when
// it is empty or white). Returns 1, or 2 with buf empty when the file has no
// version resource.
int32_t mdGetModuleVersion(const char16_t *module, char16_t *buf, int32_t capacity, const char16_t *format);

}  // namespace mx
