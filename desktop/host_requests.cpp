#include "desktop/host_requests.h"

#include "desktop/windows.h"
#include "engine/process_state.h"

namespace mx {

namespace {

intptr_t send(WindowHandle host, uint32_t op, const void *record) {
    if (!host) return 0;  // no window: the answer of a host that knows nothing
    return dskSendMessage(host, gProcess.morvixMessage, op, reinterpret_cast<intptr_t>(record), true);
}

int32_t done(intptr_t reply) { return reply == kHostDone ? 0 : -1; }

}  // namespace

int32_t dskAppendButton(WindowHandle host, int32_t command, int32_t height, int32_t width,
                         int32_t state) {
    ButtonRequest r;
    r.mode = 1;
    r.height = height;
    r.width = width;
    r.command = command;
    r.state = state;
    return done(send(host, kHostAppendButton, &r));
}

int32_t dskDeleteButton(WindowHandle host, int32_t command) {
    ButtonRequest r;
    r.command = command;
    return done(send(host, kHostDeleteButton, &r));
}

int32_t dskDeleteAllButtons(WindowHandle host) { return done(send(host, kHostDeleteAllButtons, nullptr)); }

int32_t dskSetButtonProperty(WindowHandle host, int32_t command, int32_t kind, const char16_t *text) {
    ButtonRequest r;
    r.command = command;
    r.kind = kind;
    r.text = text;
    return done(send(host, kHostSetButtonProperty, &r));
}

int32_t dskGetCommandLineParam(WindowHandle host, int32_t number, char16_t *buffer, int32_t capacity) {
    CommandLineRequest r;
    r.number = number;
    r.capacity = capacity;
    r.buffer = buffer;
    return done(send(host, kHostGetParam, &r));
}

int32_t dskGetCommandLineCount(WindowHandle host) { return int32_t(send(host, kHostCountParams, nullptr)); }

}  // namespace mx
