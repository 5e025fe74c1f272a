// ddeserver: a DDE server for the tests of the DDE client.
//
//   ddeserver [TOPIC] [--log FILE] [--ready EVENT] [--refuse] [--late MS]
//             [--quit-on-transaction] [--release] [--ack-request] [--dib] [--stay]
//
// It answers an initiate for "MxDdeTest" and its topic (default "MxTopic";
// an empty atom matches anything), then executes, pokes and requests:
// positively, or negatively with --refuse, after MS milliseconds with
// --late, or not at all with --quit-on-transaction (it ends the
// conversation instead). A request gets "ABCDEFG" in the requested format,
// with the release and acknowledgement-request bits as asked; with --dib a
// format 8 request gets the handle of a small device-independent bitmap.
// Every message is recorded as one line in the log file (default: the
// variable MX_DDESERVER_LOG). It quits when the client ends the
// conversation (unless --stay) or after 20 s, so that no test leaves it
// running. The named event is set once the server's window exists.
#include <windows.h>
#include <dde.h>
#include <shellapi.h>

#include <cstdio>
#include <string>

namespace {

struct Options {
    std::wstring topic = L"MxTopic", log, ready;
    bool refuse = false, quitOnTransaction = false, release = false, ackRequest = false, dib = false, stay = false;
    DWORD late = 0;
} opt;

const wchar_t kApp[] = L"MxDdeTest", kData[] = L"ABCDEFG";

void record(const std::wstring &line) {
    FILE *f = opt.log.empty() ? nullptr : _wfopen(opt.log.c_str(), L"ab");
    if (!f) return;
    std::string utf8(WideCharToMultiByte(CP_UTF8, 0, line.c_str(), -1, nullptr, 0, nullptr, nullptr), '\0');
    WideCharToMultiByte(CP_UTF8, 0, line.c_str(), -1, utf8.data(), int(utf8.size()), nullptr, nullptr);
    utf8.back() = '\n';
    fwrite(utf8.data(), 1, utf8.size(), f);
    fclose(f);
}

std::wstring atomName(UINT_PTR atom) {
    wchar_t name[256] = L"";
    if (atom) GlobalGetAtomNameW(ATOM(atom), name, 256);
    return name;
}

std::wstring hex(unsigned v) {
    wchar_t b[16];
    swprintf(b, 16, L"0x%04x", v);
    return b;
}

bool matches(ATOM atom, const std::wstring &name) { return !atom || _wcsicmp(atomName(atom).c_str(), name.c_str()) == 0; }

// Whether to answer a transaction at all; --quit-on-transaction ends the
// conversation instead (and the item atom is the server's to delete).
bool answering(HWND self, HWND from, UINT_PTR item) {
    if (opt.late) Sleep(opt.late);
    if (!opt.quitOnTransaction) return true;
    record(L"quit");
    PostMessageW(from, WM_DDE_TERMINATE, WPARAM(self), 0);
    if (item) GlobalDeleteAtom(ATOM(item));
    return false;
}

void ack(HWND self, HWND from, UINT_PTR status, UINT_PTR value) {
    PostMessageW(from, WM_DDE_ACK, WPARAM(self), PackDDElParam(WM_DDE_ACK, status, value));
}

void onExecute(HWND self, HWND from, LPARAM lp) {
    const wchar_t *text = static_cast<const wchar_t *>(GlobalLock(HGLOBAL(lp)));
    std::wstring got = text ? text : L"";
    if (text) GlobalUnlock(HGLOBAL(lp));
    record(L"execute " + std::to_wstring(got.size()) + L" " + got.substr(0, 40));
    if (answering(self, from, 0)) ack(self, from, opt.refuse ? 0 : 0x8000, UINT_PTR(lp));
}

void onPoke(HWND self, HWND from, LPARAM lp) {
    UINT_PTR block = 0, item = 0;
    UnpackDDElParam(WM_DDE_POKE, lp, &block, &item);
    FreeDDElParam(WM_DDE_POKE, lp);
    std::wstring line = L"poke " + atomName(item);
    if (const WORD *p = static_cast<const WORD *>(GlobalLock(HGLOBAL(block)))) {
        line += L" flags=" + hex(p[0]) + L" format=" + std::to_wstring(p[1]) + L" " + reinterpret_cast<const wchar_t *>(p + 2);
        GlobalUnlock(HGLOBAL(block));
    }
    record(line);
    GlobalFree(HGLOBAL(block));  // the client kept the block (release bit clear); this copy is ours
    if (answering(self, from, item)) ack(self, from, opt.refuse ? 0 : 0x8000, item);
}

// A data block for format: the text, or with --dib for format 8 the handle
// of a 1x1 device-independent bitmap.
HGLOBAL dataBlock(WORD format) {
    bool dib = opt.dib && format == CF_DIB;
    SIZE_T value = dib ? sizeof(HGLOBAL) : sizeof kData;
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE | GMEM_ZEROINIT, 4 + value);
    BYTE *p = static_cast<BYTE *>(GlobalLock(block));
    WORD flags = 0x1000 | (opt.release ? 0x2000 : 0) | (opt.ackRequest ? 0x8000 : 0);
    memcpy(p, &flags, 2);
    memcpy(p + 2, &format, 2);
    if (dib) {
        HGLOBAL picture = GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE | GMEM_ZEROINIT, sizeof(BITMAPINFOHEADER) + 4);
        auto *h = static_cast<BITMAPINFOHEADER *>(GlobalLock(picture));
        *h = {sizeof *h, 1, 1, 1, 32};
        GlobalUnlock(picture);
        memcpy(p + 4, &picture, sizeof picture);
        record(L"dib");
    } else {
        memcpy(p + 4, kData, value);
    }
    GlobalUnlock(block);
    return block;
}

void onRequest(HWND self, HWND from, LPARAM lp) {
    WORD format = LOWORD(lp);
    ATOM item = HIWORD(lp);
    record(L"request " + atomName(item) + L" format=" + std::to_wstring(format));
    if (!answering(self, from, item)) return;
    if (opt.refuse) return ack(self, from, 0, item);
    PostMessageW(from, WM_DDE_DATA, WPARAM(self), PackDDElParam(WM_DDE_DATA, UINT_PTR(dataBlock(format)), item));
}

LRESULT CALLBACK serverProc(HWND self, UINT msg, WPARAM wp, LPARAM lp) {
    HWND from = HWND(wp);
    UINT_PTR status = 0, item = 0;
    switch (msg) {
    case WM_DDE_INITIATE:
        if (from == self || !matches(LOWORD(lp), kApp) || !matches(HIWORD(lp), opt.topic)) return 0;
        record(L"initiate " + atomName(LOWORD(lp)) + L" " + atomName(HIWORD(lp)));
        SendMessageW(from, WM_DDE_ACK, WPARAM(self), MAKELPARAM(GlobalAddAtomW(kApp), GlobalAddAtomW(opt.topic.c_str())));
        return 0;
    case WM_DDE_EXECUTE: onExecute(self, from, lp); return 0;
    case WM_DDE_POKE: onPoke(self, from, lp); return 0;
    case WM_DDE_REQUEST: onRequest(self, from, lp); return 0;
    case WM_DDE_ACK:
        UnpackDDElParam(WM_DDE_ACK, lp, &status, &item);
        FreeDDElParam(WM_DDE_ACK, lp);
        record(L"ack " + hex(unsigned(status)) + L" " + atomName(item));
        GlobalDeleteAtom(ATOM(item));
        return 0;
    case WM_DDE_TERMINATE:
        record(L"terminate");
        // Answer a client's terminate unless this server ended the
        // conversation itself (then the client's terminate is the answer).
        if (!opt.quitOnTransaction) PostMessageW(from, WM_DDE_TERMINATE, WPARAM(self), 0);
        if (!opt.stay) PostQuitMessage(0);
        return 0;
    case WM_TIMER: PostQuitMessage(0); return 0;
    }
    return DefWindowProcW(self, msg, wp, lp);
}

void parse(int argc, wchar_t **argv) {
    if (const wchar_t *log = _wgetenv(L"MX_DDESERVER_LOG")) opt.log = log;
    for (int i = 1; i < argc; ++i) {
        std::wstring a = argv[i], next = i + 1 < argc ? argv[i + 1] : L"";
        if (a == L"--log") opt.log = next, ++i;
        else if (a == L"--ready") opt.ready = next, ++i;
        else if (a == L"--late") opt.late = wcstoul(next.c_str(), nullptr, 10), ++i;
        else if (a == L"--refuse") opt.refuse = true;
        else if (a == L"--quit-on-transaction") opt.quitOnTransaction = true;
        else if (a == L"--release") opt.release = true;
        else if (a == L"--ack-request") opt.ackRequest = true;
        else if (a == L"--dib") opt.dib = true;
        else if (a == L"--stay") opt.stay = true;
        else opt.topic = a;
    }
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR, int) {
    int argc = 0;
    wchar_t **argv = CommandLineToArgvW(GetCommandLineW(), &argc);
    parse(argc, argv);
    record(L"started " + std::to_wstring(GetCurrentProcessId()) + L" " + opt.topic);
    WNDCLASSW wc = {};
    wc.lpfnWndProc = serverProc;
    wc.hInstance = instance;
    wc.lpszClassName = L"MxDdeTestServer";
    RegisterClassW(&wc);
    HWND self = CreateWindowExW(0, wc.lpszClassName, L"", 0, 0, 0, 10, 10, nullptr, nullptr, instance, nullptr);
    SetTimer(self, 1, 20000, nullptr);
    if (HANDLE ready = opt.ready.empty() ? nullptr : OpenEventW(EVENT_MODIFY_STATE, FALSE, opt.ready.c_str())) {
        SetEvent(ready);
        CloseHandle(ready);
    }
    MSG msg;
    while (GetMessageW(&msg, nullptr, 0, 0) > 0) DispatchMessageW(&msg);
    DestroyWindow(self);
    return 0;
}
