// mxbench: times the interpreter on the loop workloads and prints
// "NAME ns-per-turn" for each.
//   int      while (i < n) begin s = s + i; i = i + 1; end
//   float    the same with doubles
//   text     append the decimal of i to a text, emptied at 1 000 characters
//   call     a loop that calls a host function (through the callback) each turn
//   builtin  a loop that adds StrLen of a text each turn
// Usage: mxbench [N [WORKLOAD]]   (default 1 000 000 turns, every workload)
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

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

double nsPerTurn(const Workload &w, long n) {
    std::string body = std::string(w.declarations) + " while (i < " + std::to_string(n) + ") begin " + w.body +
                       (std::strcmp(w.name, "float") == 0 ? " i = i + 1.0; end" : " i = i + 1; end");
    std::u16string text(body.begin(), body.end());
    auto start = std::chrono::steady_clock::now();
    LONG r = Run_MemMacro(nullptr, nullptr, text.c_str(), kHost, nop, nullptr, 0, 1, 0);
    auto end = std::chrono::steady_clock::now();
    if (r != 0) std::fprintf(stderr, "mxbench: the %s macro failed\n", w.name);
    return std::chrono::duration<double, std::nano>(end - start).count() / double(n);
}

}  // namespace

int main(int argc, char **argv) {
    long n = argc > 1 ? std::atol(argv[1]) : 1000000;
    const char *only = argc > 2 ? argv[2] : nullptr;
    for (const Workload &w : kWorkloads)
        if (!only || std::strcmp(only, w.name) == 0) std::printf("%s %.1f\n", w.name, nsPerTurn(w, n));
    return 0;
}
