// mxbench: times the interpreter on three loops and prints "NAME ns-per-turn".
//   int    while (i < n) begin s = s + i; i = i + 1; end
//   float  the same with doubles
//   call   a loop that calls a host function each turn
// Usage: mxbench [N]
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "morvix.h"

namespace {

LONG CALLBACK nop(LONG, MX_VALUE **args, LONG, LONG_PTR) { return *static_cast<LONG *>(args[0]->data); }

const MX_FUNCTION_ROW kHost[] = {{u"Nop", 1, u"L", u"Value"}, {nullptr, 0, nullptr, nullptr}};

double nsPerTurn(const std::string &body, long n) {
    std::u16string text(body.begin(), body.end());
    auto start = std::chrono::steady_clock::now();
    LONG r = Run_MemMacro(nullptr, nullptr, text.c_str(), kHost, nop, nullptr, 0, 1, 0);
    auto end = std::chrono::steady_clock::now();
    if (r != 0) std::fprintf(stderr, "mxbench: the macro failed\n");
    return std::chrono::duration<double, std::nano>(end - start).count() / double(n);
}

}  // namespace

int main(int argc, char **argv) {
    long n = argc > 1 ? std::atol(argv[1]) : 1000000;
    std::string count = std::to_string(n);
    std::printf("int %.1f\n", nsPerTurn("int i; int s; while (i < " + count +
                                         ") begin s = s + i; i = i + 1; end", n));
    std::printf("float %.1f\n", nsPerTurn("float i; float s; while (i < " + count +
                                           ") begin s = s + i; i = i + 1.0; end", n));
    std::printf("call %.1f\n", nsPerTurn("int i; int s; while (i < " + count +
                                          ") begin s = s + Nop(i); i = i + 1; end", n));
    return 0;
}
