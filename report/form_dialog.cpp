#include "report/form_dialog.h"

#include <new>

#include "base/u16.h"

#include "engine/errors.h"
#include "helperlib/kelvane_modules.h"
#include "report/module_binding.h"

namespace mx {

namespace {

constexpr const char16_t *kModuleName = u"MSKDLG32.DLL";
constexpr uint32_t kMsgNoMemory = 153;
constexpr int32_t kFormBits = 0x610E0;

// The nine entry points in the order they are looked up.
constexpr int32_t kEntryCount = 9;
const char16_t *const kEntryNames[kEntryCount] = {
    u"Form_Open",          u"Form_MakeUntitled",          u"Form_SetWorkModeExt",
    u"Form_PerformBeginMacro", u"Form_SetHwndNotify",     u"Form_SetChangeFlag",
    u"Form_SaveToProfileExtended", u"Form_LoadFromProfileExtended", u"Form_DataAccess"};

void takeEntries(FormState *s, void *const *e) {
    s->open = reinterpret_cast<form::Open>(e[0]);
    s->makeUntitled = reinterpret_cast<form::MakeUntitled>(e[1]);
    s->setWorkModeExt = reinterpret_cast<form::SetWorkModeExt>(e[2]);
    s->performBeginMacro = reinterpret_cast<form::PerformBeginMacro>(e[3]);
    s->setHwndNotify = reinterpret_cast<form::SetHwndNotify>(e[4]);
    s->setChangeFlag = reinterpret_cast<form::SetChangeFlag>(e[5]);
    s->saveToProfileExtended = reinterpret_cast<form::SaveToProfileExtended>(e[6]);
    s->loadFromProfileExtended = reinterpret_cast<form::LoadFromProfileExtended>(e[7]);
    s->dataAccess = reinterpret_cast<form::DataAccess>(e[8]);
}

}  // namespace

int32_t reportFormDialog(const char16_t *form, const char16_t *destFile, const char16_t *title,
                   int32_t height, int32_t width, int32_t mode, int32_t flags) {
    if (!form || !*form) return 2;
    FormState *state = new (std::nothrow) FormState{};
    if (!state) {
        errShowSystemError(kMsgNoMemory);
        return 2;
    }
    *state = FormState{form, destFile ? destFile : u"", title ? title : u"", height, width, mode,
                       flags};
    state->module = bindLoadModule(kModuleName);
    void *entries[kEntryCount];
    if (!state->module || !bindEntryPoints(state->module, kModuleName, kEntryNames, entries, kEntryCount)) {
        delete state;
        return 2;
    }
    takeEntries(state, entries);
    int32_t ended = formRunDialog(state);
    Kelvane_FreeDynamicLibrary(state->module);
    delete state;
    return ended == 1 ? 1 : 2;
}

bool formOpen(FormState *s) {
    s->formHandle = s->open(s->frame, s->form, 99, u"formdia.ini");
    return s->formHandle != nullptr;
}

void formPrepare(FormState *s) {
    s->makeUntitled(s->formHandle);
    s->setWorkModeExt(s->formHandle, 1, 0x1400);
    if (!u16IsWhiteText(s->destFile))
        s->loadFromProfileExtended(s->formHandle, s->destFile, u"Formatted", kFormBits, 0);
    s->performBeginMacro(s->formHandle);
    s->setHwndNotify(s->formHandle, s->dialog);
    s->setChangeFlag(s->formHandle, 0);
}

void formSave(FormState *s) {
    if (u16IsWhiteText(s->destFile)) return;
    s->saveToProfileExtended(s->formHandle, s->destFile, u"Formatted", kFormBits, 2);
    s->saveToProfileExtended(s->formHandle, s->destFile, u"Neutral", kFormBits, 1);
    s->dataAccess(s->formHandle, 0x321, s->destFile, 0);
}

}  // namespace mx
