#include "test_desktop.h"

#include <cstdio>

namespace {

UINT morvixMessage = 0;
LRESULT reply = MX_HOST_DONE;
std::vector<std::wstring> params;
std::vector<HostRequest> requests;

LRESULT answer(WPARAM op, LPARAM lParam) {
    HostRequest r{};
    r.op = op;
    r.hasRecord = lParam != 0;
    if (lParam && op == MX_HOST_GET_PARAM) {
        r.param = *reinterpret_cast<const MX_COMMANDLINE_REQUEST *>(lParam);
    } else if (lParam) {
        r.button = *reinterpret_cast<const MX_BUTTON_REQUEST *>(lParam);
        if (r.button.text) r.text = r.button.text;
    }
    requests.push_back(r);
    if (reply != MX_HOST_DONE) return reply;
    if (op == MX_HOST_COUNT_PARAMS) return LRESULT(params.size());
    if (op != MX_HOST_GET_PARAM) return MX_HOST_DONE;
    const MX_COMMANDLINE_REQUEST &p = r.param;
    if (!lParam || p.number < 1 || size_t(p.number) > params.size() || p.capacity < 1 || !p.buffer) return 0;
    lstrcpynW(p.buffer, params[size_t(p.number) - 1].c_str(), p.capacity);
    return MX_HOST_DONE;
}

LRESULT CALLBACK frameProc(HWND w, UINT msg, WPARAM wp, LPARAM lp) {
    if (msg == morvixMessage && morvixMessage) return answer(wp, lp);
    HWND client = FindWindowExW(w, nullptr, L"MDICLIENT", nullptr);
    return DefFrameProcW(w, client, msg, wp, lp);
}

LRESULT CALLBACK docProc(HWND w, UINT msg, WPARAM wp, LPARAM lp) { return DefMDIChildProcW(w, msg, wp, lp); }

HWND make(const wchar_t *cls, const wchar_t *title, DWORD style, HWND parent, int x = 10, int y = 10) {
    return CreateWindowExW(0, cls, title, style, x, y, 300, 200, parent, nullptr, GetModuleHandleW(nullptr), nullptr);
}

void registerClass(const wchar_t *name, WNDPROC proc) {
    WNDCLASSW c{};
    c.lpfnWndProc = proc;
    c.hInstance = GetModuleHandleW(nullptr);
    c.lpszClassName = name;
    c.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    c.hCursor = LoadCursor(nullptr, IDC_ARROW);
    RegisterClassW(&c);
}

TestDesktop create() {
    morvixMessage = RegisterWindowMessageW(TEXT(MX_HOST_MESSAGE_NAME));
    registerClass(L"MorvixTestTop", DefWindowProcW);
    registerClass(L"MorvixTestFrame", frameProc);
    registerClass(L"MorvixTestDoc", docProc);
    TestDesktop d{};
    const DWORD top = WS_OVERLAPPEDWINDOW | WS_VISIBLE, child = WS_CHILD | WS_VISIBLE;
    d.editorA = make(L"MorvixTestTop", L"Editor - a.txt", top, nullptr);
    d.editor = make(L"MorvixTestTop", L"Editor", top, nullptr, 40, 40);
    d.editorChild = make(L"MorvixTestTop", L"Document", child, d.editor);
    d.editorGrandchild = make(L"MorvixTestTop", L"Deep Child", child, d.editorChild);
    d.disabled = make(L"MorvixTestTop", L"Disabled Window", top, nullptr, 80, 80);
    for (int i = 0; i < 2; ++i)
        d.disabledChildren[i] = make(L"MorvixTestTop", i ? L"Disabled Child 2" : L"Disabled Child 1", child, d.disabled);
    EnableWindow(d.disabled, FALSE);
    d.frame = make(L"MorvixTestFrame", L"Morvix Test Frame", top | WS_CLIPCHILDREN, nullptr, 120, 120);
    SetWindowPos(d.frame, nullptr, 0, 0, 640, 480, SWP_NOMOVE | SWP_NOZORDER);
    CLIENTCREATESTRUCT ccs{};
    ccs.idFirstChild = 5000;
    d.mdiClient = CreateWindowExW(0, L"MDICLIENT", nullptr, WS_CHILD | WS_CLIPCHILDREN | WS_VISIBLE, 0, 0, 600, 400,
                                  d.frame, nullptr, GetModuleHandleW(nullptr), &ccs);
    for (int i = 0; i < 3; ++i) {
        wchar_t title[16];
        swprintf(title, 16, L"Doc %d", i + 1);
        MDICREATESTRUCTW mcs{};
        mcs.szClass = L"MorvixTestDoc";
        mcs.szTitle = title;
        mcs.hOwner = GetModuleHandleW(nullptr);
        mcs.x = mcs.y = mcs.cx = mcs.cy = CW_USEDEFAULT;
        d.docs[i] = reinterpret_cast<HWND>(SendMessageW(d.mdiClient, WM_MDICREATE, 0, reinterpret_cast<LPARAM>(&mcs)));
    }
    pumpMessages();
    return d;
}

}  // namespace

const TestDesktop &testDesktop() {
    static TestDesktop d = create();
    return d;
}

const std::vector<HostRequest> &hostRequests() { return requests; }

void hostReset(LRESULT r, const std::vector<std::wstring> &p) {
    reply = r;
    params = p;
    requests.clear();
}

void pumpMessages() {
    MSG m;
    while (PeekMessageW(&m, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&m);
        DispatchMessageW(&m);
    }
}
