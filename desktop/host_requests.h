// The host's button bar and command line. The library keeps neither: each
// request is one synchronous message (the registered "KELVANE-MORVIX-MSG")
// to the host window, the operation in wParam and the address of a request
// record in lParam. The record lives on the caller's stack and is valid only
// during the send. The host answers 4711 when it carried a request out.
#pragma once
#include <cstdint>

#include "base/handles.h"

namespace mx {

// Operation codes (wParam).
enum : uint32_t {
    kHostAppendButton = 1,
    kHostDeleteButton = 2,
    kHostDeleteAllButtons = 3,
    kHostSetButtonProperty = 4,
    kHostCountParams = 6,
    kHostGetParam = 7,
};

// Property kinds of kHostSetButtonProperty.
enum : int32_t {
    kButtonBitmapFile = 1,
    kButtonMacroFile = 2,
    kButtonSignum = 3,
    kButtonAction = 4,
    kButtonPopupText = 7,
};

constexpr intptr_t kHostDone = 4711;

// A button request; the fields an operation does not name stay zero. Same
// layout as MX_BUTTON_REQUEST of the public header.
struct ButtonRequest {
    int32_t mode = 0;     // 1 for append
    int32_t height = 0;
    int32_t width = 0;
    int32_t command = 0;  // the button's command number
    int32_t state = 0;    // BUTTSTAT_NEWLINE, BUTTSTAT_NEWGROUP
    int32_t kind = 0;     // property kind
    const char16_t *text = nullptr;
    int32_t reserved = 0;
};

// A command-line parameter request (MX_COMMANDLINE_REQUEST).
struct CommandLineRequest {
    int32_t number = 0;
    int32_t capacity = 0;  // of buffer, in UTF-16 units, terminator included
    char16_t *buffer = nullptr;
};

// Each sends one request to host (0: no window, which answers 0) and returns
// 0 when the host answered 4711, else -1.
int32_t dskAppendButton(WindowHandle host, int32_t command, int32_t height, int32_t width,
                         int32_t state);
int32_t dskDeleteButton(WindowHandle host, int32_t command);
int32_t dskDeleteAllButtons(WindowHandle host);
int32_t dskSetButtonProperty(WindowHandle host, int32_t command, int32_t kind, const char16_t *text);
int32_t dskGetCommandLineParam(WindowHandle host, int32_t number, char16_t *buffer, int32_t capacity);

// The host's answer to the count request, as it stands (0 from a host that
// does not know the message).
int32_t dskGetCommandLineCount(WindowHandle host);

}  // namespace mx
