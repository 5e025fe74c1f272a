// Helper library: the parameters of posted DDE messages. A posted
// WM_DDE_ACK, WM_DDE_DATA or WM_DDE_POKE carries two values that together may
// not fit one message parameter, so they travel packed the way the platform's
// DDE rules demand (its message marshalling between processes reads them in
// that form). Only the Windows build has DDE; the native build defines none
// of these.
#pragma once
#include <cstdint>

namespace mx {

// The message parameter to post for message with the two values low and
// high. May allocate a packing record that the receiver releases with
// FreeLparamForDDE.
intptr_t PackLparamForDDE(uint32_t message, uintptr_t low, uintptr_t high);

// Splits a received parameter of message into low and high (both optional).
// Returns 1, or 0 when the parameter cannot be read (both outputs are 0).
int32_t UnpackLparamForDDE(uint32_t message, intptr_t lparam, uintptr_t *low, uintptr_t *high);

// Releases what PackLparamForDDE allocated for a received parameter, once
// it has been unpacked. Returns 1, or 0 when nothing could be released.
int32_t FreeLparamForDDE(uint32_t message, intptr_t lparam);

}  // namespace mx
