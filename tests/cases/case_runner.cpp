#include "case_runner.h"

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

namespace fs = std::filesystem;

namespace {

std::string readBytes(const fs::path &p) {
    std::ifstream f(p, std::ios::binary);
    std::stringstream s;
    s << f.rdbuf();
    return s.str();
}

void writeBytes(const fs::path &p, const std::string &bytes) {
    if (p.has_parent_path()) fs::create_directories(p.parent_path());
    std::ofstream f(p, std::ios::binary);
    f << bytes;
}

fs::path freshDirectory() {
    static unsigned next = 0;
    fs::path base = fs::temp_directory_path();
    for (;;) {
        fs::path dir = base / ("mxcase-" + std::to_string(std::time(nullptr) % 100000) + "-" + std::to_string(next++));
        std::error_code ec;
        if (fs::create_directory(dir, ec)) return dir;
    }
}

// "${today:FORMAT}" in the expected output stands for the date of the
// given moment written with strftime's FORMAT.
std::string expandDates(const std::string &text, std::time_t when) {
    std::string out;
    size_t at = 0;
    for (size_t open; (open = text.find("${today:", at)) != std::string::npos;) {
        size_t close = text.find('}', open);
        if (close == std::string::npos) break;
        std::string format = text.substr(open + 8, close - open - 8);
        char buf[64] = {};
        std::tm tm = *std::localtime(&when);
        std::strftime(buf, sizeof buf, format.c_str(), &tm);
        out += text.substr(at, open - at) + buf;
        at = close + 1;
    }
    return out + text.substr(at);
}

// Every file and directory under dir, by relative path ("sub/" for a directory).
std::map<std::string, std::string> contents(const fs::path &dir) {
    std::map<std::string, std::string> out;
    for (auto &e : fs::recursive_directory_iterator(dir)) {
        std::string rel = fs::relative(e.path(), dir).generic_string();
        if (e.is_directory()) out[rel + "/"] = "";
        else out[rel] = readBytes(e.path());
    }
    return out;
}

std::string compareFiles(const Case &c, const fs::path &dir) {
    std::map<std::string, std::string> want;
    for (const CaseBytes &b : c.inputs) want[b.name] = b.bytes;
    if (!c.macroFile.empty()) want[c.macroFile] = c.fileBytes;
    for (const CaseBytes &b : c.expected) want[b.isDir ? b.name + "/" : b.name] = b.bytes;
    // Directories that hold a wanted file need no line of their own.
    std::set<std::string> parents;
    for (auto &[name, bytes] : want)
        for (size_t s = name.find('/'); s != std::string::npos && s + 1 < name.size(); s = name.find('/', s + 1))
            parents.insert(name.substr(0, s + 1));
    std::string report;
    std::map<std::string, std::string> have = contents(dir);
    for (auto &[name, bytes] : have) {
        if (parents.count(name)) continue;
        auto w = want.find(name);
        if (w == want.end()) report += "unexpected file " + name + ":\n" + bytes + "\n";
        else if (w->second != bytes) report += "file " + name + " is:\n" + bytes + "\nexpected:\n" + w->second + "\n";
    }
    for (auto &[name, bytes] : want)
        if (!have.count(name)) report += "missing file " + name + "\n";
    return report;
}

}  // namespace

std::string caseCheck(const Case &c, const CaseHost &host) {
    fs::path home = fs::current_path();
    fs::path dir = freshDirectory();
    for (const CaseBytes &b : c.inputs) writeBytes(dir / b.name, b.bytes);
    if (!c.macroFile.empty()) writeBytes(dir / c.macroFile, c.fileBytes);
    fs::current_path(dir);
    std::time_t before = std::time(nullptr);
    CaseRun r = host(c);
    std::time_t after = std::time(nullptr);
    fs::current_path(home);
    std::string report;
    // A run across midnight may print either day.
    if (r.output != expandDates(c.output, before) && r.output != expandDates(c.output, after))
        report += "output:\n" + r.output + "expected:\n" + expandDates(c.output, after);
    if (r.result != c.result)
        report += "result " + std::to_string(r.result) + ", expected " + std::to_string(c.result) + "\n";
    report += compareFiles(c, dir);
    // Windows refuses to remove a file the run left open.
    std::error_code ec;
    fs::remove_all(dir, ec);
    if (ec) report += "the case's directory cannot be removed (a file left open?): " + ec.message() + "\n";
    return report.empty() ? "" : c.where + " " + c.name + ":\n" + report;
}

std::vector<std::string> caseCheckAll(const std::string &dir, const CaseHost &host, size_t &count) {
    std::vector<Case> cases;
    std::string error;
    count = 0;
    if (!caseLoadAll(dir, cases, error)) return {error};
    std::vector<std::string> failures;
    // MX_CASES=TEXT runs only the cases whose name or file holds TEXT.
    const char *only = std::getenv("MX_CASES");
    for (const Case &c : cases) {
        if (only && c.where.find(only) == std::string::npos && c.name.find(only) == std::string::npos) continue;
        std::string f = caseCheck(c, host);
        if (!f.empty()) failures.push_back(f);
        ++count;
    }
    return failures;
}
