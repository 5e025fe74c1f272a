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
#include <cwchar>
#include <string>

namespace {

struct Options {
    std::wstring app = L"MxDdeTest", topic = L"MxTopic", log, ready, data = L"ABCDEFG";
    bool refuse = false, quitOnTransaction = false, release = false, ackRequest = false, dib = false,
         stay = false;
    DWORD late = 0, lifetime = 20000;
} opt;

HWND client = nullptr;

void record(const std::wstring &line) {
    if (opt.log.empty()) return;
    FILE *f = _wfopen(opt.log.c_str(), L"ab");
    if (!f) return;
    std::string utf8(WideCharToMultiByte(CP_UTF8, 0, line.c_str(), -1, nullptr, 0, nullptr, nullptr), '\0');
    WideCharToMultiByte(CP_UTF8, 0, line.c_str(), -1, utf8.data(), int(utf8.size()), nullptr, nullptr);
    utf8.back() = '\n';
    fwrite(utf8.data(), 1, utf8.size(), f);
    fclose(f);
}

std::wstring atomName(ATOM atom) {
    if (!atom) return L"";
    wchar_t name[256] = L"";
    GlobalGetAtomNameW(atom, name, 256);
    return name;
}

std::wstring hex(unsigned v) {
    wchar_t b[16];
    swprintf(b, 16, L"0x%04x", v);
    return b;
}

bool matches(ATOM atom, const std::wstring &name) {
    return !atom || _wcsicmp(atomName(atom).c_str(), name.c_str()) == 0;
}

// Whether to answer a transaction at all; --quit-on-transaction ends the
// conversation instead.
bool answering(HWND self, HWND from) {
    if (opt.late) Sleep(opt.late);
    if (!opt.quitOnTransaction) return true;
    record(L"quit");
    PostMessageW(from, WM_DDE_TERMINATE, (WPARAM)self, 0);
    return false;
}

UINT_PTR status() { return opt.refuse ? 0 : 0x8000; }

void onInitiate(HWND self, HWND from, LPARAM lp) {
    ATOM app = LOWORD(lp), topic = HIWORD(lp);
    if (from == self || !matches(app, opt.app) || !matches(topic, opt.topic)) return;
    record(L"initiate " + atomName(app) + L" " + atomName(topic));
    client = from;
    SendMessageW(from, WM_DDE_ACK, (WPARAM)self,
                 MAKELPARAM(GlobalAddAtomW(opt.app.c_str()), GlobalAddAtomW(opt.topic.c_str())));
}

void onExecute(HWND self, HWND from, LPARAM lp) {
    HGLOBAL commands = (HGLOBAL)lp;
    const wchar_t *text = (const wchar_t *)GlobalLock(commands);
    std::wstring got = text ? text : L"";
    if (text) GlobalUnlock(commands);
    record(L"execute " + std::to_wstring(got.size()) + L" " + got.substr(0, 40));
    if (!answering(self, from)) return;
    PostMessageW(from, WM_DDE_ACK, (WPARAM)self, PackDDElParam(WM_DDE_ACK, status(), (UINT_PTR)commands));
}

void onPoke(HWND self, HWND from, LPARAM lp) {
    UINT_PTR block = 0, item = 0;
    UnpackDDElParam(WM_DDE_POKE, lp, &block, &item);
    FreeDDElParam(WM_DDE_POKE, lp);
    const WORD *p = (const WORD *)GlobalLock((HGLOBAL)block);
    std::wstring line = L"poke " + atomName(ATOM(item));
    if (p) {
        line += L" flags=" + hex(p[0]) + L" format=" + std::to_wstring(p[1]) + L" " + (const wchar_t *)(p + 2);
        GlobalUnlock((HGLOBAL)block);
    }
    record(line);
    // The client kept the block (release bit clear); this copy is ours.
    GlobalFree((HGLOBAL)block);
    if (!answering(self, from)) {
        GlobalDeleteAtom(ATOM(item));
        return;
    }
    PostMessageW(from, WM_DDE_ACK, (WPARAM)self, PackDDElParam(WM_DDE_ACK, status(), item));
}

HGLOBAL smallDib() {
    HGLOBAL dib = GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE | GMEM_ZEROINIT, sizeof(BITMAPINFOHEADER) + 4);
    if (auto *h = (BITMAPINFOHEADER *)GlobalLock(dib)) {
        h->biSize = sizeof *h;
        h->biWidth = h->biHeight = 1;
        h->biPlanes = 1;
        h->biBitCount = 32;
        GlobalUnlock(dib);
    }
    return dib;
}

HGLOBAL dataBlock(WORD format) {
    bool dib = opt.dib && format == CF_DIB;
    SIZE_T value = dib ? sizeof(HGLOBAL) : 2 * (opt.data.size() + 1);
    HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE | GMEM_DDESHARE | GMEM_ZEROINIT, 4 + value);
    auto *p = (BYTE *)GlobalLock(block);
    if (!p) return block;
    WORD flags = 0x1000 | (opt.release ? 0x2000 : 0) | (opt.ackRequest ? 0x8000 : 0);
    memcpy(p, &flags, 2);
    memcpy(p + 2, &format, 2);
    if (dib) {
        HGLOBAL picture = smallDib();
        memcpy(p + 4, &picture, sizeof picture);
        record(L"dib");
    } else {
        memcpy(p + 4, opt.data.c_str(), value);
    }
    GlobalUnlock(block);
    return block;
}

void onRequest(HWND self, HWND from, LPARAM lp) {
    WORD format = LOWORD(lp);
    ATOM item = HIWORD(lp);
    record(L"request " + atomName(item) + L" format=" + std::to_wstring(format));
    if (!answering(self, from)) {
        GlobalDeleteAtom(item);
        return;
    }
    if (opt.refuse) {
        PostMessageW(from, WM_DDE_ACK, (WPARAM)self, PackDDElParam(WM_DDE_ACK, 0, item));
        return;
    }
    PostMessageW(from, WM_DDE_DATA, (WPARAM)self, PackDDElParam(WM_DDE_DATA, (UINT_PTR)dataBlock(format), item));
}

void onAck(LPARAM lp) {
    UINT_PTR st = 0, item = 0;
    UnpackDDElParam(WM_DDE_ACK, lp, &st, &item);
    FreeDDElParam(WM_DDE_ACK, lp);
    record(L"ack " + hex(unsigned(st)) + L" " + atomName(ATOM(item)));
    GlobalDeleteAtom(ATOM(item));
}

void onTerminate(HWND self, HWND from) {
    record(L"terminate");
    // Answer a client's terminate unless this server ended the conversation
    // itself (then the client's terminate is the answer).
    if (!opt.quitOnTransaction) PostMessageW(from, WM_DDE_TERMINATE, (WPARAM)self, 0);
    if (!opt.stay) PostQuitMessage(0);
}

LRESULT CALLBACK serverProc(HWND self, UINT msg, WPARAM wp, LPARAM lp) {
    HWND from = (HWND)wp;
    switch (msg) {
    case WM_DDE_INITIATE: onInitiate(self, from, lp); return 0;
    case WM_DDE_EXECUTE: onExecute(self, from, lp); return 0;
    case WM_DDE_POKE: onPoke(self, from, lp); return 0;
    case WM_DDE_REQUEST: onRequest(self, from, lp); return 0;
    case WM_DDE_ACK: onAck(lp); return 0;
    case WM_DDE_TERMINATE: onTerminate(self, from); return 0;
    case WM_TIMER: PostQuitMessage(0); return 0;
    }
    return DefWindowProcW(self, msg, wp, lp);
}

void parse(int argc, wchar_t **argv) {
    if (const wchar_t *log = _wgetenv(L"MX_DDESERVER_LOG")) opt.log = log;
    for (int i = 1; i < argc; ++i) {
        std::wstring a = argv[i];
        auto next = [&] { return i + 1 < argc ? std::wstring(argv[++i]) : std::wstring(); };
        if (a == L"--log") opt.log = next();
        else if (a == L"--ready") opt.ready = next();
        else if (a == L"--refuse") opt.refuse = true;
        else if (a == L"--late") opt.late = wcstoul(next().c_str(), nullptr, 10);
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
    SetTimer(self, 1, opt.lifetime, nullptr);
    if (!opt.ready.empty())
        if (HANDLE ready = OpenEventW(EVENT_MODIFY_STATE, FALSE, opt.ready.c_str())) {
            SetEvent(ready);
            CloseHandle(ready);
        }
    MSG msg;
    while (GetMessageW(&msg, nullptr, 0, 0) > 0) DispatchMessageW(&msg);
    DestroyWindow(self);
    return 0;
}
