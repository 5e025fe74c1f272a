// The entry points of the form module as the form dialog calls them. Texts
// are UTF-16, numbers 32-bit; stdcall on 32-bit Windows.
#pragma once
#include <cstdint>

#include "base/handles.h"

namespace mx::form {

using Open = void *(MX_CALLCONV *)(WindowHandle parent, const char16_t *form, int32_t a,
                                   const char16_t *profile);
using MakeUntitled = int32_t(MX_CALLCONV *)(void *form);
using SetWorkModeExt = int32_t(MX_CALLCONV *)(void *form, int32_t mode, int32_t bits);
using PerformBeginMacro = int32_t(MX_CALLCONV *)(void *form);
using SetHwndNotify = int32_t(MX_CALLCONV *)(void *form, WindowHandle notify);
using SetChangeFlag = int32_t(MX_CALLCONV *)(void *form, int32_t changed);
using LoadFromProfileExtended = int32_t(MX_CALLCONV *)(void *form, const char16_t *file,
                                                       const char16_t *representation, int32_t bits,
                                                       int32_t a);
using SaveToProfileExtended = int32_t(MX_CALLCONV *)(void *form, const char16_t *file,
                                                     const char16_t *representation, int32_t bits,
                                                     int32_t a);
using DataAccess = int32_t(MX_CALLCONV *)(void *form, int32_t what, const char16_t *file, int32_t a);

}  // namespace mx::form
