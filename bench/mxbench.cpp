// mxbench: times the interpreter on the loop workloads and prints
// "NAME ns-per-turn" for each.
//   int      while (i < n) begin s = s + i; i = i + 1; end
//   float    the same with doubles
//   text     append the decimal of i to a text, emptied at 1 000 characters
//   call     a loop that calls a host function (through the callback) each turn
//   builtin  a loop that adds StrLen of a text each turn
// Usage: mxbench [N [WORKLOAD]]   (default 1 000 000 turns, every workload)
//        mxbench curve            (the cost curve and the cache's memory:
//   "loop-T ns" per turn of the int loop for T turns, "lines-L later first":
//   ns per statement of a loop whose body is L lines, in a later turn and in
//   the first, "cache-L bytes entries" for the statement cache of that macro)
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "engine/statement_cache.h"
#include "morvix.h"

namespace {

LONG CALLBACK nop(LONG, MX_VALUE **args, LONG, LONG_PTR) { return *static_cast<LONG *>(args[0]->data); }

const MX_FUNCTION_ROW kHost[] = {{u"Nop", 1, u"L", u"Value"}, {nullptr, 0, nullptr, nullptr}};

struct Workload {
    const char *name;
    const char *declarations;
    const char *body;
};

// Every workload is a loop "while (i < N) begin BODY i = i + 1; end".
const Workload kWorkloads[] = {
    {"int", "int i; int s;", "s = s + i;"},
    {"float", "float i; float s;", "s = s + i;"},
    {"text", "int i; char t[1024]; char d[16];",
     "IntToString(i, d, 0, 0); StrCat(t, d); if (StrLen(t) >= 1000) t = \"\";"},
    {"call", "int i; int s;", "s = s + Nop(i);"},
    {"builtin", "int i; int s; char t[16]; t = \"hello world\";", "s = s + StrLen(t);"},
};

// Runs the macro text; returns the wall time in nanoseconds.
double runNs(const std::string &macro) {
    std::u16string text(macro.begin(), macro.end());
    auto start = std::chrono::steady_clock::now();
    LONG r = Run_MemMacro(nullptr, nullptr, text.c_str(), kHost, nop, nullptr, 0, 1, 0);
    auto end = std::chrono::steady_clock::now();
    if (r != 0) std::fprintf(stderr, "mxbench: a macro failed\n");
    return std::chrono::duration<double, std::nano>(end - start).count();
}

// A loop of turns turns whose body is lines statements, one per line.
std::string linesMacro(long lines, long turns) {
    std::string m = "int i; int s; while (i < " + std::to_string(turns) + ") begin\n";
    for (long k = 0; k < lines; ++k) m += "s = s + i;\n";
    return m + "i = i + 1; end\n";
}

// The fastest of k runs of the macro, in nanoseconds.
double bestNs(const std::string &macro, int k) {
    double best = runNs(macro);
    for (int i = 1; i < k; ++i) best = std::min(best, runNs(macro));
    return best;
}

void curve() {
    runNs("int i;");  // the library's first use drops out
    for (long t : {1000L, 100000L, 10000000L})
        std::printf("loop-%ld %.1f\n", t,
                    runNs("int i; int s; while (i < " + std::to_string(t) + ") begin s = s + i; i = i + 1; end") /
                        double(t));
    // Per statement of a later turn: the time of 2T turns less that of T
    // turns, over T turns. The first turn (reading the text and recording the
    // formulas) is one turn's time less a later turn's.
    for (long lines : {1000L, 100000L}) {
        long turns = 2000000 / lines, statements = lines + 1;
        double once = runNs(linesMacro(lines, turns));
        mx::CacheSize size = mx::scLastDestroyed();
        double twice = runNs(linesMacro(lines, 2 * turns));
        double later = (twice - once) / double(turns * statements);
        double first = bestNs(linesMacro(lines, 1), 3) / double(statements) - later;
        std::printf("lines-%ld %.1f %.1f\n", lines, later, first);
        std::printf("cache-%ld %zu %zu\n", lines, size.bytes, size.entries);
    }
}

double nsPerTurn(const Workload &w, long n) {
    std::string body = std::string(w.declarations) + " while (i < " + std::to_string(n) + ") begin " + w.body +
                       (std::strcmp(w.name, "float") == 0 ? " i = i + 1.0; end" : " i = i + 1; end");
    return runNs(body) / double(n);
}

}  // namespace

int main(int argc, char **argv) {
    if (argc > 1 && std::strcmp(argv[1], "curve") == 0) {
        curve();
        return 0;
    }
    long n = argc > 1 ? std::atol(argv[1]) : 1000000;
    const char *only = argc > 2 ? argv[2] : nullptr;
    for (const Workload &w : kWorkloads)
        if (!only || std::strcmp(only, w.name) == 0) std::printf("%s %.1f\n", w.name, nsPerTurn(w, n));
    return 0;
}
