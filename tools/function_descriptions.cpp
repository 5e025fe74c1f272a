// One line per built-in function number and per named constant, in the
// words of the function reference. Entries are in ascending order of number
// (the static_asserts below keep them so, and unique).
#include "tools/function_descriptions.h"

#include <iterator>
#include <string_view>

namespace mxdoc {

namespace {

struct FunctionText {
    uint32_t number;
    const char *text;
};

constexpr FunctionText kFunctions[] = {
    {1, "copies a file byte for byte; 0, or 1 on failure"},
    {2, "opens a file stream in the first free of five slots with the given mode; the handle, or 0 after an error box"},
    {3, "closes a file stream and frees its slot; 0, or -1 for handle 0"},
    {4, "reads the next line (or as much as fits) into Buffer; 0, or 1 at end of file or on error"},
    {5, "writes Buffer's text without adding a line break; 0, or -1 on error"},
    {6, "renames or moves a file; 0, or 1 on failure"},
    {7, "deletes a file; 0"},
    {8, "plays the system sound for a message icon; 0"},
    {9, "creates a directory and its missing parents; the helper's result"},
    {10, "formats a long in decimal, padded on the left to Digits characters with LeadingZero; 0"},
    {11, "reads a decimal text as a long; the long"},
    {12, "formats a double with FractDigits decimals, the run's decimal separator and a thousands separator; 0, or -1 when too long"},
    {14, "reads a number with the run's decimal separator into a double variable; 0"},
    {15, "copies the first Chars characters of Source into Destination; 0"},
    {16, "copies the last Chars characters of Source into Destination; 0"},
    {17, "copies Chars characters of Source from the 1-based position Pos into Destination; 0"},
    {18, "pads a text on the left with Char to Lng characters (a longer text keeps its last Lng); 0"},
    {19, "pads a text on the right with Char to Lng characters (a longer text is cut); 0"},
    {20, "appends AppendString to String, cut to String's capacity; 1 if at least one character fitted, else 0"},
    {21, "compares two texts ordinally by UTF-16 units; -1, 0 or 1"},
    {22, "finds the first occurrence of a text; its 0-based index, or -1"},
    {23, "converts a text to upper case in place; 0"},
    {24, "converts a text to lower case in place; 0"},
    {25, "the length of a text in UTF-16 units"},
    {26, "the upper-case form of one character code"},
    {27, "the lower-case form of one character code"},
    {28, "the highest valid index of a variable (element count - 1); 0 for a scalar"},
    {30, "removes trailing characters with codes 0 to 31; 0"},
    {31, "1 if a static variable of that name exists, else 0 (locals are not looked at)"},
    {32, "runs a nested macro (file and parameters) with a copy of the run context; 0, or -1 when it failed"},
    {33, "copies word n of the macro command (0 is the macro's path) into ResultText; 0, or 1 when there is no such word"},
    {40, "the platform's letter test on a character code; 1 or 0"},
    {41, "the platform's letter-or-digit test on a character code; 1 or 0"},
    {42, "shows a task-modal message box with title, icon and buttons; the pressed button's value"},
    {43, "asks the user for a whole number in the input dialog; 1 after OK, 2 when cancelled"},
    {44, "asks the user for a text in the input dialog; 1 after OK, 2 when cancelled"},
    {45, "lets the user choose a file name in the file dialog; 1 when chosen, 2 when cancelled"},
    {46, "joins a path, a name and an extension into a file name; 0, or -1 when too long"},
    {47, "cuts a path at its last dot; 0"},
    {48, "keeps only the part of a path after the last backslash, slash or colon; 0"},
    {49, "keeps only the directory part of a path; 0"},
    {50, "the active MDI child window, 0 if none"},
    {51, "makes a window the active MDI child; 0"},
    {52, "activates the next MDI child; 0"},
    {53, "restores the active MDI child; 0"},
    {54, "maximizes the active MDI child; 0"},
    {55, "1 if the active MDI child is maximized, else 0"},
    {56, "copies a window's title into Buffer; the title's length"},
    {57, "reads a value from a profile (INI) file; 0"},
    {58, "writes a value to a profile (INI) file; 0"},
    {59, "the full file name of the host's module; 0"},
    {60, "the platform's Windows directory; 0"},
    {61, "bounded copy of Source into Destination, characters unchanged; 1"},
    {62, "bounded copy of Quelle into Ziel, characters unchanged; 1"},
    {63, "shows a task-modal message box without title; the pressed button's value"},
    {64, "shows a window maximized; 0"},
    {65, "shows a window minimized; 0"},
    {66, "restores a window; 0"},
    {67, "activates a window and gives it the focus; the window that had the focus, 0 if refused"},
    {68, "the active window of the calling thread"},
    {69, "shows a system-modal message box with title, icon and buttons; the pressed button's value"},
    {70, "splits a text at the first Delimiter character; 1 found, 0 not found, -1 when Delimiter is 0"},
    {71, "copies the clipboard's text into Destination; 0, or 1 when there is no text"},
    {72, "puts a text on the clipboard; 0, or 1 on failure"},
    {73, "writes the names of the files matching a wildcard into a file; 0, or 1 on failure"},
    {74, "starts a program; 0"},
    {75, "finds a top-level window (and optionally a child) by title pattern; the window, or 0"},
    {76, "shows the list box dialog of a list file; the chosen entry's position, 0 when cancelled"},
    {78, "sets where the run's input dialogs appear (-1 centres them); 0"},
    {79, "copies an environment variable's value into Parameter; 0, or -1 when it is not set"},
    {80, "the directory of the host's module; 1"},
    {81, "sends (Wait not 0) or posts a window message; the window's answer or the posting's success"},
    {82, "sets the run's escape character of text constants; the previous one's code"},
    {83, "spells out the digits of a number's integer part, joined by Separator; 0"},
    {84, "the remainder of an integer division, with the sign of Base"},
    {85, "today's date in the default format; 0"},
    {86, "rewrites a date text in another format; 0, or -1 when it is no date"},
    {87, "removes trailing Zeichen characters in place; 0"},
    {88, "opens a DDE conversation with a program about a topic; the channel, or 0"},
    {89, "ends a DDE conversation; 0"},
    {90, "sends commands over a DDE channel; 0 on a positive acknowledgement, else -1"},
    {91, "sends data for an item over a DDE channel; 0 on a positive acknowledgement, else -1"},
    {92, "requests an item's data over a DDE channel; 0 when data arrived, else -1"},
    {93, "removes leading Zeichen characters in place; 0"},
    {94, "rich-text dialog; has no implementation and yields 0"},
    {95, "today's date in a given format; 0"},
    {96, "switches trace message boxes for function calls and assignments on (1) or off; 0"},
    {97, "switches the trace of function calls to the trace file on (1) or off; 0"},
    {98, "switches the trace of assignments to the trace file on (1) or off; 0"},
    {99, "opens a new trace file, closing the one before; 1 if opened, else 0"},
    {101, "converts Deutsche Mark to Euro (rate 1.95583); 0"},
    {102, "converts Euro to Deutsche Mark (rate 1.95583); 0"},
    {103, "the day number of a date text; 0 when it is no date"},
    {104, "the date of a day number in the default format; 0"},
    {105, "reads a text value from the registry, or Default; 0"},
    {106, "writes a text value to the registry; 0"},
    {109, "looks a text up in a transform file; 0 when found, else -1"},
    {110, "splits a date text into day, month and year; 0, or -1 when it is no date"},
    {111, "builds a date text from day, month and year; 0"},
    {112, "writes the names of matching files of a directory tree into a file; the count the helper sets"},
    {113, "the screen height in pixels"},
    {114, "the screen width in pixels"},
    {115, "shows the list-view dialog of a file with a header; 1 after OK, 2 otherwise"},
    {119, "sets the size of the run's input dialogs; 0"},
    {120, "formats Pattern with one text parameter into Result; characters written, or -1"},
    {121, "formats Pattern with two text parameters into Result; characters written, or -1"},
    {122, "formats Pattern with three text parameters into Result; characters written, or -1"},
    {123, "a new temporary file name with the prefix \"MX\"; the helper's result"},
    {124, "1 if every character is a digit (also for the empty text), else 0"},
    {125, "formats Pattern with four text parameters into Result; characters written, or -1"},
    {126, "formats Pattern with five text parameters into Result; characters written, or -1"},
    {127, "prints a report through the report engine; 1 when the engine was called, else 2"},
    {128, "previews a report through the report engine; 1 when the engine was called, else 2"},
    {129, "puts a character before and after a text; 0"},
    {130, "rewrites a date text as an SQL date constant; 0, or -1 when it is no date"},
    {131, "runs a form of the form module as a dialog; 1 after OK, else 2"},
    {132, "the weekday number of a date text; -1 when it is no date"},
    {133, "copies the Index-th TAB-separated field (0-based) of List into Result; 0"},
    {134, "the date of Easter Sunday of a year; 0"},
    {135, "prints a report with printer, output file, document name, pages and copies; 1 or 2"},
    {136, "reads a long value from the registry, or Default; the value"},
    {137, "writes a long value to the registry; 0"},
    {138, "starts a process without waiting; 0, or -1 when it could not be started"},
    {139, "the program the shell associates with a file; 0, or -1 if none"},
    {140, "lets the shell perform an action (open, print, ...) on a file; 0, or -1 on failure"},
    {141, "the current directory; its length, 0 on failure"},
    {142, "today's year, month and day; 0"},
    {143, "the time of day as hour, minute and second; 0"},
    {144, "replaces texts in place through the helper library; 0"},
    {145, "lets the user choose a directory; 1 when chosen, 2 when cancelled"},
    {146, "1 if every character has a code from 1 to 32 (also for the empty text), else 0"},
    {147, "the file version of a module in a given format; 1, or 2 on failure"},
    {148, "formats Pattern with one long into Result; characters written, or -1"},
    {149, "decodes a text in place through the helper library; the helper's result"},
    {150, "scans a file for a regular expression; has no implementation and yields 0"},
    {151, "scans a buffer for a regular expression; has no implementation and yields 0"},
    {152, "loads a file's text into Buffer; the helper's result"},
    {153, "asks the host to append a button to its button bar; 0 when done, else -1"},
    {154, "asks the host to delete a button; 0 when done, else -1"},
    {155, "asks the host to delete all buttons; 0 when done, else -1"},
    {156, "asks the host to set a button's action; 0 when done, else -1"},
    {157, "asks the host to set a button's bitmap file; 0 when done, else -1"},
    {158, "asks the host to set a button's macro file; 0 when done, else -1"},
    {159, "asks the host to set a button's signum; 0 when done, else -1"},
    {160, "loads buttons from a profile; has no implementation and yields 0"},
    {161, "saves buttons to a profile; has no implementation and yields 0"},
    {162, "reads a packed colour from the registry (the variables hold the default); the packed colour"},
    {163, "writes a packed colour to the registry; 0"},
    {164, "the client area's height and width of a window in pixels; 0"},
    {165, "the number of the host's command-line parameters, as the host answers"},
    {166, "copies the host's command-line parameter Nr into Value; 0 when done, else -1"},
    {167, "deletes an entry of a profile file; non-zero on success"},
    {168, "deletes a whole section of a profile file; non-zero on success"},
    {169, "deletes a value of a registry key; 0, or -1 on failure"},
    {170, "deletes a registry key; 0"},
    {171, "a hash number of a text below UpperBound, from the helper library"},
    {172, "sends a mail through the helper library; the helper's result"},
    {173, "asks the host to set a button's popup text; 0 when done, else -1"},
    {174, "removes the first Chars characters of a text; 0"},
    {175, "removes Chars characters from the 1-based position Pos; 0"},
    {176, "removes the last Chars characters of a text; 0"},
    {177, "finds the first occurrence of a text; its 1-based position, or 0"},
    {178, "reads a colour written as \"#\" and six hexadecimal digits; 0, or -1"},
    {179, "writes a colour as \"#\" and six hexadecimal digits; 0"},
    {180, "puts a country prefix before a phone number; 0"},
    {181, "the MD5 digest text of a text, from the helper library; 0"},
    {182, "the weekday number of a date given as year, month and day"},
    {183, "the number of days of a month"},
    {184, "whether a date is a Sunday, as the helper answers"},
    {185, "whether a date is a holiday, as the helper answers"},
    {186, "whether a date is a school holiday in a country and state, as the helper answers"},
    {187, "the platform's short form of a path; its length, 0 on failure"},
    {188, "opens a URL in the standard browser; the helper's result"},
    {189, "shows a system-modal information box with OK; 1"},
    {190, "keeps only the characters \"0\" to \"9\" of a text; 0"},
    {191, "starts a program and waits for its end, giving its exit code; 0, else the platform's error number"},
    {192, "runs a nested macro with up to five quoted parameters; 0, or -1 when it failed"},
    {193, "splits a date text of the form \"%Y2-%M2-%D2\" into day, month and year; 0, or -1"},
    {194, "the long (mode not 0) or short name of a weekday 0 to 6; 0, or -1"},
    {200, "opens or reuses an ODBC connection; the handle 1 to 10, or 0"},
    {201, "closes an ODBC connection; 0"},
    {202, "executes an SQL statement; 0, or -1"},
    {203, "copies the first line of a query's result into DestBuff; 0, or -1"},
    {204, "writes a query's result into a file; 0, or -1"},
    {205, "counts the records of a table that match a where clause; the count, or -1"},
    {206, "adds up a field over the matching records into Result; the helper's result, or -1"},
    {207, "the maximum of a field over the matching records into Result; the helper's result, or -1"},
    {208, "writes a date as an SQL date constant of the connection; 0, or -1"},
    {301, "creates an XML document with a root element and an encoding; the document handle, 0 or -1 when memory runs out"},
    {302, "releases an XML document; 1"},
    {303, "the root element's node handle, 0 when there is none"},
    {304, "appends a child element with text content; its node handle, 0 on failure"},
    {305, "sets an attribute of an element; 1 on success, 2 on failure"},
    {306, "writes an XML document to a file; 1 on success, 2 on failure"},
    {9000, "shows the list box dialog of a list file, sorted when Sort is not 0; the chosen entry's position, 0 when cancelled"},
    {9001, "shows the list box dialog of an 8-bit list file, sorted when Sort is not 0; the chosen entry's position, 0 when cancelled"},
};

struct ConstantText {
    const char16_t *name;
    const char *text;
};

constexpr ConstantText kConstants[] = {
    {u"OK", "OK button of the message dialogs, and the answer OK"},
    {u"ABORT", "Cancel button of the message dialogs, and the answer Cancel"},
    {u"ABBRUCH", "Cancel button of the message dialogs, and the answer Cancel"},
    {u"YES", "Yes button of the message dialogs, and the answer Yes"},
    {u"JA", "Yes button of the message dialogs, and the answer Yes"},
    {u"NO", "No button of the message dialogs, and the answer No"},
    {u"NEIN", "No button of the message dialogs, and the answer No"},
    {u"EXCL", "exclamation icon of the message dialogs (the character \"!\")"},
    {u"EXCLAIM", "exclamation icon of the message dialogs (the character \"!\")"},
    {u"AUSRUF", "exclamation icon of the message dialogs (the character \"!\")"},
    {u"QUEST", "question icon of the message dialogs (the character \"?\")"},
    {u"FRAGE", "question icon of the message dialogs (the character \"?\")"},
    {u"INFO", "information icon of the message dialogs (the character \"I\")"},
    {u"STOP", "stop icon of the message dialogs (the character \"S\")"},
    {u"HKCU", "registry root: the current user"},
    {u"HKEY_CURRENT_USER", "registry root: the current user"},
    {u"HKLM", "registry root: the local machine"},
    {u"HKEY_LOCAL_MACHINE", "registry root: the local machine"},
    {u"SORT", "list dialog flag: sort the entries"},
    {u"MULTI", "list dialog flag: allow multiple selection"},
    {u"LVD_GRID", "list-view dialog flag: grid lines"},
    {u"LVD_FULL", "list-view dialog flag: whole-row selection"},
    {u"BUTTSTAT_NEWLINE", "button state: the button starts a new line of the host's button bar"},
    {u"BUTTSTAT_NEWGROUP", "button state: the button starts a new group of the host's button bar"},
    {u"READ", "file dialog mode: choose a file to open"},
    {u"LESEN", "file dialog mode: choose a file to open"},
    {u"WRITE", "file dialog mode: choose a file to save"},
    {u"SCHREIBEN", "file dialog mode: choose a file to save"},
    {u"ASCII", "the value 4 (ASCII)"},
    {u"REGEXP_DOTALL", "the value 1, a flag of the regular expression scans (which have no implementation)"},
    {u"DOUBLEQUOTE", "character code of the double quote"},
    {u"SINGLEQUOTE", "character code of the single quote"},
};

constexpr bool docAscending() {
    for (size_t i = 1; i < std::size(kFunctions); ++i)
        if (kFunctions[i - 1].number >= kFunctions[i].number) return false;
    return true;
}

static_assert(docAscending(), "function descriptions must be unique and in ascending order");
static_assert(std::size(kFunctions) == 196, "one description per built-in function number");
static_assert(std::size(kConstants) == 32, "one description per named constant");

}  // namespace

const char *docFunctionDescription(uint32_t number) {
    for (const FunctionText &f : kFunctions)
        if (f.number == number) return f.text;
    return nullptr;
}

const char *docConstantDescription(const char16_t *name) {
    for (const ConstantText &c : kConstants)
        if (std::u16string_view(c.name) == name) return c.text;
    return nullptr;
}

int32_t docFunctionDescriptionCount() { return int32_t(std::size(kFunctions)); }
int32_t docConstantDescriptionCount() { return int32_t(std::size(kConstants)); }

}  // namespace mxdoc
