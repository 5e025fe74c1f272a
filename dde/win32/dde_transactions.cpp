// The three transactions on an open channel (Win32): execute, poke and
// request. Each posts its message to the server, waits for the answer and
// releases every atom and block it made, whatever the outcome.
#include <dde.h>

#include <cstring>

#include "dde/dde_functions.h"
#include "dde/win32/dde_wait.h"
#include "dde/win32/dde_window.h"
#include "helperlib/kelvane_dde.h"

namespace mx {

namespace {

const uint16_t kAckPositive = 0x8000;
const uint16_t kDataRelease = 0x2000;
const uint16_t kDataAckRequested = 0x8000;

const wchar_t *w(const char16_t *s) { return reinterpret_cast<const wchar_t *>(s); }

size_t textLength(const char16_t *s) {
    size_t n = 0;
    while (s[n]) ++n;
    return n;
}

// The live server of channel, or null when channel is no live conversation.
HWND serverOf(HWND channel) { return ddeLiveServer(ddeStateOf(channel)); }

WPARAM from(HWND channel) { return reinterpret_cast<WPARAM>(channel); }

// The status word of a received acknowledgement; releases its parameter.
uint16_t takeAck(const MSG &ack, uintptr_t &high) {
    uintptr_t status = 0;
    UnpackLparamForDDE(WM_DDE_ACK, ack.lParam, &status, &high);
    FreeLparamForDDE(WM_DDE_ACK, ack.lParam);
    return static_cast<uint16_t>(status);
}

// A shareable global block holding the 16-bit flags word 0, the 16-bit
// format word and text with its terminator; null when it cannot be made.
HGLOBAL pokeBlock(const char16_t *text, uint16_t format) {
    size_t n = textLength(text);
    HGLOBAL block = GlobalAlloc(GMEM_DDESHARE | GMEM_MOVEABLE | GMEM_ZEROINIT, 2 * n + 6);
    if (!block) return nullptr;
    auto *p = static_cast<uint16_t *>(GlobalLock(block));
    if (!p) {
        GlobalFree(block);
        return nullptr;
    }
    p[1] = format;
    std::memcpy(p + 2, text, 2 * n);
    GlobalUnlock(block);
    return block;
}

}  // namespace

int32_t ddeExecute(int32_t channelNumber, const char16_t *commands, int32_t waitMs) {
    HWND channel = ddeWindowOf(channelNumber);
    HWND server = serverOf(channel);
    if (!server) return -1;
    size_t bytes = 2 * textLength(commands) + 2;
    HGLOBAL block = GlobalAlloc(GMEM_DDESHARE | GMEM_FIXED, bytes);
    if (!block) return -1;
    void *p = GlobalLock(block);
    if (!p) {
        GlobalFree(block);
        return -1;
    }
    std::memcpy(p, commands, bytes);
    GlobalUnlock(block);
    PostMessageW(server, WM_DDE_EXECUTE, from(channel), reinterpret_cast<LPARAM>(block));
    MSG ack;
    bool answered = ddeAwait(channel, static_cast<uint32_t>(waitMs), WM_DDE_ACK, WM_DDE_ACK, ack);
    uint16_t status = 0;
    if (answered) {
        uintptr_t returned = 0;
        status = takeAck(ack, returned);
    }
    // The server hands the command block back in its acknowledgement; the
    // block freed is always the one made here, so a server that answers
    // with another handle cannot make the library free foreign memory.
    GlobalFree(block);
    return answered && (status & kAckPositive) ? 0 : -1;
}

int32_t ddePoke(int32_t channelNumber, const char16_t *item, const char16_t *data, int32_t waitMs) {
    HWND channel = ddeWindowOf(channelNumber);
    HWND server = serverOf(channel);
    if (!server) return -1;
    HGLOBAL block = pokeBlock(data, CF_TEXT);
    if (!block) return -1;
    ATOM atom = GlobalAddAtomW(w(item));
    if (!atom) {
        GlobalFree(block);
        return -1;
    }
    LPARAM packed = PackLparamForDDE(WM_DDE_POKE, reinterpret_cast<uintptr_t>(block), atom);
    PostMessageW(server, WM_DDE_POKE, from(channel), packed);
    MSG ack;
    bool answered = ddeAwait(channel, static_cast<uint32_t>(waitMs), WM_DDE_ACK, WM_DDE_ACK, ack);
    uint16_t status = 0;
    if (answered) {
        uintptr_t returnedAtom = 0;
        status = takeAck(ack, returnedAtom);
        atom = static_cast<ATOM>(returnedAtom);
    }
    GlobalDeleteAtom(atom);
    // The release bit is clear, so the block stays the library's to free.
    GlobalFree(block);
    return answered && (status & kAckPositive) ? 0 : -1;
}

namespace {

bool isPicture(int32_t format) { return format == CF_BITMAP || format == CF_METAFILEPICT || format == CF_DIB; }

// Copies the text value of a data block of size bytes into out, never
// reading past the block nor writing past capacity.
void copyValue(const uint8_t *block, size_t size, char16_t *out, int32_t capacity) {
    if (!out || capacity < 1) return;
    size_t units = size > 4 ? (size - 4) / 2 : 0;
    size_t n = 0;
    for (; n < units && n + 1 < static_cast<size_t>(capacity); ++n) {
        char16_t c;
        std::memcpy(&c, block + 4 + 2 * n, 2);
        if (!c) break;
        out[n] = c;
    }
    out[n] = 0;
    out[capacity - 1] = 0;
}

// Releases the picture whose handle stands at the start of the value.
void releasePicture(const uint8_t *block, size_t size, int32_t format) {
    HANDLE handle;
    if (size < 4 + sizeof handle) return;
    std::memcpy(&handle, block + 4, sizeof handle);
    if (format == CF_METAFILEPICT)
        DeleteMetaFile(static_cast<HMETAFILE>(handle));
    else if (format == CF_BITMAP)
        DeleteObject(static_cast<HGDIOBJ>(handle));
    else if (format == CF_DIB)
        GlobalFree(handle);
}

// Takes in the data of an answered request: copies it, releases it as its
// flags say and acknowledges it when asked to. 0, or -1 when the data block
// cannot be read.
int32_t takeData(HWND channel, HWND server, HGLOBAL data, const char16_t *item, int32_t format,
                 char16_t *out, int32_t capacity) {
    auto *p = static_cast<const uint8_t *>(data ? GlobalLock(data) : nullptr);
    if (!p) {
        if (data) GlobalFree(data);
        return -1;
    }
    size_t size = GlobalSize(data);
    uint16_t flags = 0;
    if (size >= 2) std::memcpy(&flags, p, 2);
    if (!isPicture(format)) copyValue(p, size, out, capacity);
    if (flags & kDataRelease) {
        if (isPicture(format)) releasePicture(p, size, format);
        GlobalUnlock(data);
        GlobalFree(data);
    } else {
        GlobalUnlock(data);
    }
    if (flags & kDataAckRequested) {
        ATOM atom = GlobalAddAtomW(w(item));
        PostMessageW(server, WM_DDE_ACK, from(channel), PackLparamForDDE(WM_DDE_ACK, kAckPositive, atom));
    }
    return 0;
}

}  // namespace

int32_t ddeRequest(int32_t channelNumber, const char16_t *item, int32_t format, char16_t *out,
                   int32_t capacity, int32_t waitMs) {
    if (out && capacity > 0) out[0] = 0;
    HWND channel = ddeWindowOf(channelNumber);
    HWND server = serverOf(channel);
    if (!server) return -1;
    ATOM atom = GlobalAddAtomW(w(item));
    if (!atom) return -1;
    PostMessageW(server, WM_DDE_REQUEST, from(channel), MAKELPARAM(format, atom));
    MSG answer;
    if (!ddeAwait(channel, static_cast<uint32_t>(waitMs), WM_DDE_DATA, WM_DDE_ACK, answer)) {
        GlobalDeleteAtom(atom);
        return -1;
    }
    uintptr_t low = 0, high = 0;
    UnpackLparamForDDE(answer.message, answer.lParam, &low, &high);
    FreeLparamForDDE(answer.message, answer.lParam);
    GlobalDeleteAtom(static_cast<ATOM>(high));
    if (answer.message == WM_DDE_ACK) return -1;
    return takeData(channel, reinterpret_cast<HWND>(answer.wParam), reinterpret_cast<HGLOBAL>(low), item,
                    format, out, capacity);
}

}  // namespace mx
