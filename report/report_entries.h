// The entry points of the report engine module as the binding calls them.
// Texts are UTF-16; numbers 32-bit; a property value is pointer-sized since
// it may carry a device context or a device mode block. Calling convention:
// stdcall on 32-bit Windows.
#pragma once
#include <cstdint>

#include "base/handles.h"

namespace mx::report {

using PreviewFile = int32_t(MX_CALLCONV *)(WindowHandle owner, const char16_t *report,
                                           const char16_t *source, const char16_t *profile,
                                           int32_t flags);
using PrintFile = int32_t(MX_CALLCONV *)(WindowHandle owner, const char16_t *report,
                                         const char16_t *source, int32_t a, int32_t b, int32_t c,
                                         int32_t d, int32_t e, int32_t flags);
using OpenExpanded = void *(MX_CALLCONV *)(WindowHandle owner, const char16_t *report, int32_t a,
                                           int32_t b, int32_t flags);
using SetProperty = int32_t(MX_CALLCONV *)(void *report, int32_t property, intptr_t value,
                                           int32_t reserved);
using DeclarePrinterOutput = int32_t(MX_CALLCONV *)(void *report, const char16_t *text, int32_t kind);
using PrintReport = int32_t(MX_CALLCONV *)(void *report, const char16_t *source);
using Close = int32_t(MX_CALLCONV *)(void *report);

}  // namespace mx::report
