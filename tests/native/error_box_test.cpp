// The macro error box: the frame, the first "%s" filled in when it fits, the
// line number and the macro title.
#include <gtest/gtest.h>

#include "engine/errors.h"
#include "base/utf8.h"
#include "macro_harness.h"

TEST(ErrorBox, NamesLineMacroAndMessage) {
    std::string dir = scratchDir();
    writeFile(dir + "/a.mac", "Macro \"A\" begin\n\n\n\n\n\nzahl1 = 3;\nend\n");
    MacroRun r = runFile(u16(dir + "/a.mac 1 2"));
    EXPECT_EQ(r.result, -1);
    EXPECT_EQ(r.output, "Makrofehler: Fehler in Zeile 7 des Makros " + dir +
                            "/a.mac 1 2\n\nVariable 'zahl1' ist nicht deklariert\n\n");
    writeFile(dir + "/b.mac", "macro \"B\" begin end");
    EXPECT_EQ(runFile(u16(dir + "/b.mac")).output,
              "Makrofehler: Fehler in Zeile 1 des Makros " + dir + "/b.mac\n\nSchlüsselwort 'Macro' fehlt\n\n");
}

TEST(ErrorBox, MemoryMacrosShowTheirTitleOrNothing) {
    EXPECT_EQ(runMemory(u"x = 1;", 1, u"Startup").output,
              "Makrofehler: Fehler in Zeile 1 des Makros Startup\n\nVariable 'x' ist nicht deklariert\n\n");
    EXPECT_EQ(runMemory(u"int x;\nx = 1 / 0;").output,
              "Makrofehler: Fehler in Zeile 2 des Makros \n\nDivision durch Null\n\n");
}
