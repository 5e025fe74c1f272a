// Text search at growing lengths: StrStr and ReplaceString on the texts that
// make a naive search slow ("aaa...a" searched for "aa...ab" of a tenth of
// its length). Prints nanoseconds per text unit for 10^3, 10^4 and 10^5
// units; a linear search keeps the figure flat as the length grows.
#include <chrono>
#include <cstdio>
#include <string>

#include "builtins/text/search.h"
#include "helperlib/kelvane_strings.h"

namespace {

double nsPerUnit(int32_t n, bool replace) {
    std::u16string text(size_t(n), u'a');
    std::u16string find(size_t(n / 10), u'a');
    find.back() = u'b';
    auto start = std::chrono::steady_clock::now();
    int32_t rounds = 0, sink = 0;
    do {
        if (replace) {
            std::u16string work = text;
            sink += mx::Kelvane_ReplaceStringW(work.data(), n + 1, find.c_str(), u"x", mx::kReplaceAll);
        } else {
            sink += mx::txtStrStr(mx::TextIn(text), mx::TextIn(find));
        }
        ++rounds;
    } while (std::chrono::steady_clock::now() - start < std::chrono::milliseconds(200));
    double ns = std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count();
    if (sink == 42) std::puts("");
    return ns / rounds / n;
}

}  // namespace

int main() {
    std::printf("%-14s %10s %10s %10s   (ns per text unit)\n", "search", "10^3", "10^4", "10^5");
    for (bool replace : {false, true}) {
        std::printf("%-14s", replace ? "ReplaceString" : "StrStr");
        for (int32_t n : {1000, 10000, 100000}) std::printf(" %10.2f", nsPerUnit(n, replace));
        std::printf("\n");
    }
    return 0;
}
