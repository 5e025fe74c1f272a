// Exhausted memory never takes the host down: a representative macro is run
// again and again with its first, second, third ... allocation failing (the
// interpreter's heap blocks and every operator new of the process), until a
// run needs no more allocations than were allowed. Every run must end with 0
// or -1 (error shown), nothing may crash, and nothing may leak.
#include <gtest/gtest.h>

#include <sanitizer/lsan_interface.h>

#include <cstdio>
#include <cstdlib>
#include <new>

#include "base/heap.h"
#include "interface/attach.h"
#include "macro_harness.h"
#include "platform/platform.h"

// Every operator new of the test program asks the injection counter first.
void *operator new(std::size_t n) {
    void *p = mx::heapMayAllocate() ? std::malloc(n ? n : 1) : nullptr;
    if (!p) throw std::bad_alloc();
    return p;
}
void *operator new[](std::size_t n) { return ::operator new(n); }
void *operator new(std::size_t n, const std::nothrow_t &) noexcept {
    return mx::heapMayAllocate() ? std::malloc(n ? n : 1) : nullptr;
}
void *operator new[](std::size_t n, const std::nothrow_t &t) noexcept { return ::operator new(n, t); }
void operator delete(void *p) noexcept { std::free(p); }
void operator delete[](void *p) noexcept { std::free(p); }
void operator delete(void *p, std::size_t) noexcept { std::free(p); }
void operator delete[](void *p, std::size_t) noexcept { std::free(p); }

namespace {

int gBoxes = 0;
void countBox(const char16_t *, const char16_t *) { ++gBoxes; }

std::string representativeMacro(const std::string &dir) {
    return "int i; int d; float f; char s[40]; char t[200];"
           " while (i < 3) begin StrCat(t, \"ab\"); MakeText1(s, \"x%sy\", t); ReplaceString(t, \"a\", \"zz\", 0);"
           " f = f + 1.5; IntToString(i, s, '0', '.'); i = i + 1; end"
           " FloatToString(f, s, '.', '_'); FormatDate(s, \"%d.%m.%Y\");"
           " d = XMLCreate(\"root\", \"utf8\"); XMLAddChild(XMLGetRoot(d), \"a\", t);"
           " XMLSetAttr(XMLGetRoot(d), \"k\", s); XMLWriteFile(d, \"" + dir + "/a.xml\", 4); XMLDelete(d);"
           " WriteProfile(\"" + dir + "/a.ini\", \"sec\", \"key\", t); ReadProfile(\"" + dir +
           "/a.ini\", \"sec\", \"key\", s);"
           " TraceFile(\"" + dir + "/trace.txt\"); TraceFunction(1); StrLen(s); TraceFunction(0);"
           " Call(\"" + dir + "/sub.mac p1\"); if (IsDeclared(\"allocCounter\") == 0) static int allocCounter; allocCounter = allocCounter + 1;";
}

}  // namespace

TEST(AllocationFailure, EveryAllocationOfARepresentativeMacroMayFail) {
    std::string dir = scratchDir();
    writeFile(dir + "/sub.mac", "Macro \"Sub\" begin char p[10]; GetMacroParameter(1, p); StrCat(p, \"x\"); end");
    std::u16string text = u16(representativeMacro(dir));
    mx::mxp_SetBoxSink(countBox);
    ASSERT_EQ(Run_MemMacroExt(nullptr, nullptr, text.c_str(), nullptr, nullptr, nullptr, nullptr, 0, 1, 0), 0);
    ASSERT_EQ(gBoxes, 0);
    int64_t n = 0, failedRuns = 0;
    for (;; ++n) {
        mx::heapFailAfter(n);
        LONG r = Run_MemMacroExt(nullptr, nullptr, text.c_str(), nullptr, nullptr, nullptr, nullptr, 0, 1, 0);
        bool injected = mx::heapInjectedFailures() > 0;
        mx::heapFailAfter(-1);
        ASSERT_TRUE(r == 0 || r == -1) << "allocation " << n;
        failedRuns += r != 0;
        if (!injected) {
            EXPECT_EQ(r, 0);
            break;
        }
        ASSERT_LT(n, 100000);
    }
    mx::mxp_SetBoxSink(nullptr);
    std::printf("%lld allocations failed one at a time, %lld runs ended with an error\n", (long long)n,
                (long long)failedRuns);
    mx::processDetach();
    mx::processAttach(nullptr);
    EXPECT_GT(n, 100);  // the macro really allocates
    EXPECT_GT(failedRuns, 0);
    EXPECT_EQ(__lsan_do_recoverable_leak_check(), 0);
}
