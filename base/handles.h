// Opaque handles of the operating system as the portable code passes them
// around: a module instance and a window. Only the platform layer and the
// Win32 subsystems look inside.
#pragma once

namespace mx {

using ModuleHandle = void *;
using WindowHandle = void *;

// The calling convention of callbacks the host supplies: stdcall on 32-bit
// Windows, the platform's default everywhere else.
#if defined(_WIN32) && !defined(_WIN64)
#define MX_CALLCONV __stdcall
#else
#define MX_CALLCONV
#endif

}  // namespace mx
