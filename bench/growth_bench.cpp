// Growth of the costs a big job (or a hostile macro) can drive: n
// declarations, n StrCat appends to one text, n children added to one XML
// node, and a registry key path of n characters written and read back on the
// Linux store. Prints nanoseconds per unit for n = 10^3, 10^4 and 10^5; a
// linear cost keeps the figure flat as n grows, a quadratic one grows it
// tenfold per column. Usage: growth_bench [LARGEST_N [WORKLOAD]]
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "morvix.h"
#ifndef _WIN32
#include "platform/registry.h"
#endif

namespace {

using Clock = std::chrono::steady_clock;

double nsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

// Runs the macro once; the time of the run in ns (negative: it failed).
double runMacro(const std::string &macro) {
    std::u16string text(macro.begin(), macro.end());
    auto start = Clock::now();
    LONG r = Run_MemMacro(nullptr, nullptr, text.c_str(), nullptr, nullptr, nullptr, 0, 1, 0);
    return r == 0 ? nsSince(start) : -1;
}

std::string loop(int32_t n, const std::string &body) {
    return "int i; while (i < " + std::to_string(n) + ") begin " + body + " i = i + 1; end";
}

double declarations(int32_t n) {
    std::string macro;
    for (int32_t k = 0; k < n; ++k) macro += "int v" + std::to_string(k) + "; ";
    return runMacro(macro + "v0 = 1;");
}

double strCatAppends(int32_t n) {
    return runMacro("char t[" + std::to_string(n + 1) + "]; " + loop(n, "StrCat(t, \"x\");"));
}

double xmlChildren(int32_t n) {
    return runMacro("int d; int r; d = XMLCreate(\"r\", \"UTF-8\"); r = XMLGetRoot(d); " +
                    loop(n, "XMLAddChild(r, \"c\", \"\");") + " XMLDelete(d);");
}

#ifndef _WIN32
// A path "k\k\...\k" of n characters written and read back.
double registryPath(int32_t n) {
    std::u16string path;
    while (int32_t(path.size()) + 2 <= n) path += path.empty() ? u"k" : u"\\k";
    auto start = Clock::now();
    std::u16string back;
    bool ok = mx::mxp_RegWriteString(mx::RegRoot::kCurrentUser, path.c_str(), u"v", u"x") &&
              mx::mxp_RegReadString(mx::RegRoot::kCurrentUser, path.c_str(), u"v", &back) && back == u"x";
    double ns = ok ? nsSince(start) : -1;
    mx::mxp_RegDeleteKey(mx::RegRoot::kCurrentUser, path.c_str());
    return ns;
}
#endif

struct Workload {
    const char *name;
    double (*run)(int32_t n);
};

const Workload kWorkloads[] = {
    {"declarations", declarations},
    {"StrCat", strCatAppends},
    {"XMLAddChild", xmlChildren},
#ifndef _WIN32
    {"registry path", registryPath},
#endif
};

}  // namespace

int main(int argc, char **argv) {
    int32_t largest = argc > 1 ? std::atoi(argv[1]) : 100000;
#ifndef _WIN32
    char dir[] = "/tmp/growth_bench.XXXXXX";
    if (!mkdtemp(dir)) return 1;
    setenv("MORVIX_REGISTRY_DIR", dir, 1);
#endif
    std::printf("%-14s %10s %10s %10s   (ns per unit)\n", "growth", "10^3", "10^4", "10^5");
    for (const Workload &w : kWorkloads) {
        if (argc > 2 && std::strcmp(argv[2], w.name) != 0) continue;
        std::printf("%-14s", w.name);
        for (int32_t n : {1000, 10000, 100000}) {
            double ns = n <= largest ? w.run(n) : 0;
            if (n > largest) std::printf(" %10s", "-");
            else if (ns < 0) std::printf(" %10s", "failed");
            else std::printf(" %10.1f", ns / n);
            std::fflush(stdout);
        }
        std::printf("\n");
    }
#ifndef _WIN32
    std::system((std::string("rm -rf ") + dir).c_str());
#endif
    return 0;
}
