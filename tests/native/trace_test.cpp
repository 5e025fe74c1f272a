// Trace line formats of values, assignments and calls (the trace file, the
// boxes and their switches are cases in tests/cases/language.cases).
#include <gtest/gtest.h>

#include "engine/trace.h"
#include "base/utf8.h"
#include "engine/value.h"
#include "macro_harness.h"

namespace {

std::string formatted(const mx::Value &v) {
    char16_t buf[mx::kTraceValueCapacity];
    mx::trFormatValue(&v, buf, mx::kTraceValueCapacity);
    return mx::toUtf8(buf);
}
}  // namespace

TEST(TraceFormat, Values) {
    char16_t text[] = u"a\tb\nc\rd%d";
    int32_t l = -5;
    double d = 2.5;
    char16_t c = u'Q';
    int32_t lv[3] = {};
    double dv[2] = {};
    EXPECT_EQ(formatted({mx::kOwning, mx::kChar, text, 11, nullptr, 0, 0}), "\"a\\tb\\nc\\rd%d\"");
    EXPECT_EQ(formatted({mx::kOwning, mx::kLong, &l, 0, nullptr, 0, 0}), "-5");
    EXPECT_EQ(formatted({mx::kOwning, mx::kDouble, &d, 0, nullptr, 0, 0}), "2.500000");
    EXPECT_EQ(formatted({mx::kOwning, mx::kChar, &c, 0, nullptr, 0, 0}), "Q");
    EXPECT_EQ(formatted({mx::kOwning, mx::kLong, lv, 3, nullptr, 0, 0}), "Long [3]");
    EXPECT_EQ(formatted({mx::kOwning, mx::kDouble, dv, 2, nullptr, 0, 0}), "Double [2]");
    std::u16string longText(300, u'x');
    EXPECT_EQ(formatted({mx::kOwning, mx::kChar, longText.data(), 301, nullptr, 0, 0}),
              "\"" + std::string(197, 'x') + "\"");
    double huge = 1e300;
    EXPECT_EQ(formatted({mx::kOwning, mx::kDouble, &huge, 0, nullptr, 0, 0}).size(), 308u);
}

TEST(TraceFormat, AssignmentTargets) {
    int32_t v[4] = {0, 0, 7, 0};
    char16_t buf[mx::kTraceLineCapacity];
    mx::Value element{mx::kReference, mx::kLong, &v[2], 0, u"v", 4, 2};
    mx::trFormatAssignment(13, &element, buf, mx::kTraceLineCapacity);
    EXPECT_EQ(mx::toUtf8(buf), "Zeile 13    Zuweisung    v[2]=7");
    mx::Value whole{mx::kReference, mx::kLong, v, 4, u"v", 4, 0};
    mx::trFormatAssignment(1, &whole, buf, mx::kTraceLineCapacity);
    EXPECT_EQ(mx::toUtf8(buf), "Zeile 1    Zuweisung    v=Long [4]");
    mx::Value unnamed{mx::kReference, mx::kLong, v, 0, nullptr, 0, 0};
    mx::trFormatAssignment(1, &unnamed, buf, mx::kTraceLineCapacity);
    EXPECT_EQ(mx::toUtf8(buf), "Zeile 1    Zuweisung    ?\?\?=0");
    std::u16string longName(60, u'n');
    mx::Value named{mx::kReference, mx::kLong, v, 0, longName.c_str(), 0, 0};
    mx::trFormatAssignment(1, &named, buf, mx::kTraceLineCapacity);
    EXPECT_EQ(mx::toUtf8(buf), "Zeile 1    Zuweisung    " + std::string(39, 'n') + "=0");
}

TEST(TraceFormat, CallLinesAreCutAt999) {
    std::u16string t(300, u'y');
    mx::Value arg{mx::kOwning, mx::kChar, t.data(), 301, nullptr, 0, 0};
    mx::Value *args[10];
    for (auto &a : args) a = &arg;
    char16_t buf[mx::kTraceLineCapacity];
    EXPECT_EQ(mx::trFormatCall(2, u"F", args, 10, 0, buf, mx::kTraceLineCapacity), 999);
    int32_t one = 1;
    mx::Value small{mx::kOwning, mx::kLong, &one, 0, nullptr, 0, 0};
    mx::Value *two[2] = {&small, &small};
    mx::trFormatCall(12, u"StrLen", two, 2, 3, buf, mx::kTraceLineCapacity);
    EXPECT_EQ(mx::toUtf8(buf), "Zeile 12    Funktionsaufruf    StrLen (1, 1)    Funktionswert: 3");
}
