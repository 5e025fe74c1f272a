#include "base/u16.h"
#include "helperlib/kelvane_xml.h"
#include "platform/platform.h"

namespace mx {

namespace {

constexpr int32_t kBoxCapacity = 1024;

struct XmlErrorText {
    int32_t code;
    const char16_t *text;
};

// Texts of the engine result codes.
constexpr XmlErrorText kTexts[] = {
    {-2, u"Nicht genügend Speicher, oder ein Text lässt sich nicht umwandeln."},
    {-10, u"Die Datei kann nicht geöffnet werden."},
    {-11, u"Die Datei existiert bereits."},
    {-12, u"Die Datei oder ihr Verzeichnis existiert nicht."},
    {-13, u"Kein Zugriff auf die Datei."},
    {-14, u"Zu viele offene Dateien."},
    {-15, u"Die Datei konnte nicht vollständig gelesen werden."},
    {-20, u"Die XML-Deklaration \"<?xml ... ?>\" fehlt."},
    {-21, u"Nach dem Wurzelelement folgt noch Text."},
    {-22, u"Das Zeichen '<' wurde erwartet."},
    {-23, u"Das Zeichen '>' wurde erwartet."},
    {-24, u"Das Ende-Tag \"</\" wurde erwartet."},
    {-25, u"Das Ende-Tag passt nicht zum Start-Tag."},
    {-26, u"Der Elementname fehlt."},
    {-28, u"Das Zeichen '=' wurde erwartet."},
    {-29, u"Ein doppeltes Anführungszeichen wurde erwartet."},
    {-31, u"Der Kommentar wird nicht mit \"-->\" beendet."},
};

const char16_t *textOf(int32_t code) {
    for (const XmlErrorText &t : kTexts)
        if (t.code == code) return t.text;
    return u"Unbekannter Fehler.";
}

}  // namespace

int32_t Kelvane_XmlCtlErrorBoxW(int32_t, int32_t code, const char16_t *text, int32_t, int32_t) {
    char16_t number[16];
    u16FromLong(number, 16, code);
    char16_t message[kBoxCapacity] = u"XML-Fehler ";
    u16Append(message, kBoxCapacity, number);
    u16Append(message, kBoxCapacity, u": ");
    u16Append(message, kBoxCapacity, textOf(code));
    if (text && *text) {
        u16Append(message, kBoxCapacity, u"\n\n");
        u16Append(message, kBoxCapacity, text);
    }
    return mxp_MessageBox(nullptr, message, u"XML-Fehler", kBoxOk | kBoxIconError);
}

}  // namespace mx
