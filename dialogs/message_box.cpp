// Message boxes: the icon and button arguments as platform styles and the
// platform's answer as the macro's value.
#include "dialogs/dialogs.h"

namespace mx {

namespace {
// The platform's style bits and answers (the same numbers on every build,
// so that the native answers mirror them).
enum : uint32_t {
    kStyleOk = 0x0, kStyleOkCancel = 0x1, kStyleYesNoCancel = 0x3, kStyleYesNo = 0x4,
    kStyleStop = 0x10, kStyleQuestion = 0x20, kStyleExclamation = 0x30, kStyleInformation = 0x40,
    kStyleSystemModal = 0x1000, kStyleTaskModal = 0x2000,
};
enum : int32_t { kIdOk = 1, kIdCancel = 2, kIdYes = 6, kIdNo = 7 };
}  // namespace

uint32_t dlgMessageStyle(int32_t icon, int32_t buttons, bool systemModal) {
    uint32_t style = systemModal ? kStyleSystemModal : kStyleTaskModal;
    switch (icon) {
        case 33: style |= kStyleExclamation; break;
        case 63: style |= kStyleQuestion; break;
        case 73: style |= kStyleInformation; break;
        case 83: style |= kStyleStop; break;
        default: break;
    }
    switch (buttons) {
        case kAnswerOk + kAnswerCancel: style |= kStyleOkCancel; break;
        case kAnswerYes + kAnswerNo: style |= kStyleYesNo; break;
        case kAnswerYes + kAnswerNo + kAnswerCancel: style |= kStyleYesNoCancel; break;
        default: style |= kStyleOk; break;
    }
    return style;
}

int32_t dlgButtonValue(int32_t pressed) {
    switch (pressed) {
        case kIdOk: return kAnswerOk;
        case kIdCancel: return kAnswerCancel;
        case kIdYes: return kAnswerYes;
        case kIdNo: return kAnswerNo;
        default: return 0;
    }
}

int32_t dlgShowMessage(const char16_t *title, const char16_t *text, int32_t icon, int32_t buttons,
                       bool systemModal) {
    return dlgButtonValue(dlgShowBox(title ? title : u"", text ? text : u"",
                                     dlgMessageStyle(icon, buttons, systemModal)));
}

}  // namespace mx
