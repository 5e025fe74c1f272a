// The DDE client: conversations in which the library is the client. A
// channel is the handle of a hidden conversation window, kept by the macro as
// a long. Every transaction is synchronous: it posts its request and waits
// for the server's answer on the channel window, up to WaitMilliSecs (read as
// unsigned, so a negative wait is a very long one). No function shows a box
// or sets an error code; failures show only in the result. The native build
// has no DDE: DDEInitiate answers 0 and every transaction -1.
#pragma once
#include <cstdint>

namespace mx {

// Opens a conversation with the server of application prg on topic: asks
// window (or, when 0, every top-level window). When nobody answers, window
// is 0 and start is non-zero, starts "prg topic" as a program and asks once
// more. Returns the channel, or 0 when no server answered (no window is left
// behind).
int32_t ddeInitiate(const char16_t *prg, const char16_t *topic, int32_t window, int32_t start);

// Ends the conversation: destroys the channel window, which tells a server
// still present. Returns 0, also for a channel that is not one.
int32_t ddeTerminate(int32_t channel);

// Sends a command text. 0 when the server acknowledged it positively, -1 on
// refusal, time-out or a channel without a live server.
int32_t ddeExecute(int32_t channel, const char16_t *commands, int32_t waitMs);

// Sends data as text for item. Results as ddeExecute.
int32_t ddePoke(int32_t channel, const char16_t *item, const char16_t *data, int32_t waitMs);

// Asks for item in clipboard format. The received text is written into out
// (capacity units, terminator included, always terminated; empty for the
// picture formats 2, 3 and 8). 0 when data arrived, -1 otherwise (out is
// then empty).
int32_t ddeRequest(int32_t channel, const char16_t *item, int32_t format, char16_t *out,
                   int32_t capacity, int32_t waitMs);

}  // namespace mx
