#include "answered_run.h"

#include <gtest/gtest.h>

#include "host_common.h"
#include "unattended.h"
#include "win_harness.h"

namespace {

std::string captured;
DialogLook inspect;

LONG CALLBACK print(LONG number, MX_VALUE **args, LONG count, LONG_PTR) {
    if (number == 1 && count == 1) captured += hostFormatValue(args[0]) + "\n";
    return 0;
}

void note(const std::string &line) { captured += line; }

}  // namespace

HWND answeredHost() {
    static HWND w = CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50, 300, 200,
                                    nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    return w;
}

std::string runAnswered(const std::string &answers, const std::string &macro, DialogLook look, HWND window) {
    std::string error;
    EXPECT_TRUE(answersParse(answers, error)) << error;
    captured.clear();
    inspect = std::move(look);
    answersSetReport(note);
    unattendedStop();  // the answer hook alone answers these runs
    answerHookStart(note, [](HWND w, mx::DialogKind kind) {
        if (inspect) inspect(w, kind);
    });
    LONG r = dll().runMemMacroExt(GetModuleHandleW(nullptr), window,
                                  reinterpret_cast<const WCHAR *>(utf16(macro).c_str()), nullptr, kHostTable, print,
                                  nullptr, 0, 1, 0);
    answerHookStop();
    answersSetReport(nullptr);
    inspect = nullptr;
    EXPECT_EQ(answersLeft(), 0u) << "every answer is used";
    return captured + "result: " + std::to_string(r) + "\n";
}
