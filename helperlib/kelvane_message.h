// Helper library: message boxes and translation.
#pragma once
#include <cstdint>

#include "base/handles.h"

namespace mx {

// The record Kelvane_Message_BoxW shows: the title and text are string
// resources of module; each "%s" of the text takes the next of args in turn
// (absent ones as empty texts).
struct KelvaneMessage {
    ModuleHandle module;
    uint32_t titleId;
    uint32_t textId;
    const char16_t *tlxModule;  // translation module name
    const char16_t *args[3];
    int32_t style;              // 1: an error box with one OK button
    uint32_t messageNumber;     // identifies the message for translations
    WindowHandle owner;         // absent: no owner
};

// Loads, translates and fills in the texts and shows the box modally.
// Returns the button pressed, 0 when no box could be shown.
int32_t Kelvane_Message_BoxW(const KelvaneMessage *message);

// A pair of a string number and the message number it maps to; a table of
// them ends with a zero number.
struct KelvaneTranslatePair {
    uint32_t stringNumber;
    uint32_t messageNumber;
};

// Looks number up in table; returns its message number, or fallback when the
// table does not hold it. The two reserved arguments are ignored.
uint32_t Kelvane_Translate(uint32_t number, const KelvaneTranslatePair *table, int32_t reserved1,
                           uint32_t fallback, int32_t reserved2);

// Translates text in place for the translation module; keeps it when no
// translation exists. Returns the text's length.
int32_t TLX_TranslateStringW(const char16_t *module, int32_t reserved, char16_t *text,
                             int32_t capacity);

}  // namespace mx
