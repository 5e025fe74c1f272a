// xml_bench: builds, writes and loads XML documents of N and 2N elements
// (flat: N children of the root; deep: a chain N levels deep) and prints
// "SHAPE STEP N ns-per-element" lines and the growth from N to 2N, which
// stays near 1 when no step takes quadratic time. The file goes to /tmp
// and is removed at the end.
// Usage: xml_bench [N]   (default 100000)
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "base/utf8.h"
#include "xml/xml_model.h"
#include "xml/xml_parser.h"
#include "xml/xml_writer.h"

using namespace mx::xml;

namespace {

using Clock = std::chrono::steady_clock;

struct Times {
    double build, write, load;  // ns per element
};

double nsSince(Clock::time_point start, long n) {
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count() / double(n);
}

XmlDocument *build(long n, bool deep) {
    XmlDocument *d = CreateDocument();
    SetName(d->root, u"root");
    XmlNode *parent = d->root;
    for (long i = 0; i < n; ++i) {
        XmlNode *c;
        AddChild(parent, u"item", &c);
        SetText(c, u"some text & more");
        SetAttribute(c, u"id", u"4711");
        if (deep) parent = c;
    }
    return d;
}

Times measure(long n, bool deep, const std::u16string &path) {
    Times t{};
    auto start = Clock::now();
    XmlDocument *d = build(n, deep);
    t.build = nsSince(start, n);
    start = Clock::now();
    // indentation of a deep chain grows with the square of its depth: only
    // the flat shape is indented
    int32_t flags = deep ? 0 : XMLWF_INDENT;
    if (WriteDocument(d, path.c_str(), flags) != 0) std::fprintf(stderr, "xml_bench: write failed\n");
    t.write = nsSince(start, n);
    DestroyDocument(d);
    XmlDocument *back = CreateDocument();
    int32_t line, column;
    start = Clock::now();
    if (LoadDocument(back, path.c_str(), &line, &column) != 0) std::fprintf(stderr, "xml_bench: load failed\n");
    t.load = nsSince(start, n);
    DestroyDocument(back);
    return t;
}

}  // namespace

int main(int argc, char **argv) {
    long n = argc > 1 ? std::atol(argv[1]) : 100000;
    std::u16string path = mx::fromUtf8("/tmp/xml_bench_" + std::to_string(long(std::rand())) + ".xml");
    for (bool deep : {false, true}) {
        const char *shape = deep ? "deep" : "flat";
        Times a = measure(n, deep, path), b = measure(2 * n, deep, path);
        std::printf("%s build %ld %.1f\n%s write %ld %.1f\n%s load %ld %.1f\n", shape, n, a.build, shape, n,
                    a.write, shape, n, a.load);
        std::printf("%s growth-2x build %.2f write %.2f load %.2f\n", shape, b.build / a.build,
                    b.write / a.write, b.load / a.load);
    }
    std::remove(mx::toUtf8(path.c_str()).c_str());
    return 0;
}
