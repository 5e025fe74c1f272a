#include "case_file.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

namespace fs = std::filesystem;

namespace {

bool startsWith(const std::string &s, const char *p) { return s.rfind(p, 0) == 0; }

std::vector<std::string> words(const std::string &s) {
    std::istringstream in(s);
    std::vector<std::string> out;
    for (std::string w; in >> w;) out.push_back(w);
    return out;
}

// "=== NAME [country=N] [as=FILE.mac]": the options are the last words.
bool readHeader(const std::string &line, Case &c) {
    std::vector<std::string> w = words(line.substr(3));
    while (!w.empty()) {
        const std::string &last = w.back();
        if (startsWith(last, "country=")) c.country = std::atoi(last.c_str() + 8);
        else if (startsWith(last, "as=")) c.macroFile = last.substr(3);
        else break;
        w.pop_back();
    }
    for (const std::string &x : w) c.name += (c.name.empty() ? "" : " ") + x;
    return !c.name.empty();
}

int hexDigit(char h) {
    if (h >= '0' && h <= '9') return h - '0';
    if (h >= 'a' && h <= 'f') return h - 'a' + 10;
    if (h >= 'A' && h <= 'F') return h - 'A' + 10;
    return -1;
}

bool fromHex(const std::vector<std::string> &lines, std::string &out) {
    std::string digits;
    for (const std::string &l : lines)
        for (char h : l)
            if (h != ' ' && h != '\t') digits += h;
    if (digits.size() % 2) return false;
    for (size_t i = 0; i < digits.size(); i += 2) {
        int hi = hexDigit(digits[i]), lo = hexDigit(digits[i + 1]);
        if (hi < 0 || lo < 0) return false;
        out += char(hi * 16 + lo);
    }
    return true;
}

// The bytes of a block: its lines with their line ends, or hex; "noeol"
// leaves the last line without one, "crlf" ends lines with CR LF.
bool blockBytes(const std::vector<std::string> &lines, const std::vector<std::string> &flags, std::string &out) {
    bool hex = false, noeol = false;
    std::string eol = "\n";
    for (const std::string &f : flags) {
        if (f == "hex") hex = true;
        else if (f == "noeol") noeol = true;
        else if (f == "crlf") eol = "\r\n";
        else return false;
    }
    if (hex) return fromHex(lines, out);
    for (const std::string &l : lines) out += l + eol;
    if (noeol && !lines.empty()) out.resize(out.size() - eol.size());
    return true;
}

// Macro files are 8-bit text in the Windows code page 1252: the UTF-8 of
// the case file turned into those bytes. False for a character it lacks.
bool toCodePage1252(const std::string &utf8, std::string &out) {
    static const char16_t high[32] = {0x20AC, 0x81,   0x201A, 0x192,  0x201E, 0x2026, 0x2020, 0x2021,
                                      0x2C6,  0x2030, 0x160,  0x2039, 0x152,  0x8D,   0x17D,  0x8F,
                                      0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                      0x2DC,  0x2122, 0x161,  0x203A, 0x153,  0x9D,   0x17E,  0x178};
    for (size_t i = 0; i < utf8.size();) {
        unsigned char b = utf8[i];
        int len = b < 0x80 ? 1 : b >= 0xF0 ? 4 : b >= 0xE0 ? 3 : b >= 0xC0 ? 2 : 0;
        if (len == 0 || i + len > utf8.size()) return false;
        uint32_t cp = len == 1 ? b : b & (0x7F >> len);
        for (int k = 1; k < len; ++k) cp = cp << 6 | (utf8[i + k] & 0x3F);
        i += size_t(len);
        const char16_t *at = std::find(high, high + 32, char16_t(cp));
        if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) out += char(cp);
        else if (at != high + 32 && cp > 0x7F) out += char(0x80 + (at - high));
        else return false;
    }
    return true;
}

std::string joined(const std::vector<std::string> &lines) {
    std::string s;
    for (const std::string &l : lines) s += l + "\n";
    return s;
}

// One "--- KIND ARGS" section with its block.
bool applySection(Case &c, const std::vector<std::string> &head, const std::vector<std::string> &block) {
    const std::string &kind = head[0];
    std::vector<std::string> rest(head.begin() + 1, head.end());
    if (kind == "output" && rest.empty()) c.output = joined(block);
    else if (kind == "answers" && rest.empty()) c.answers = joined(block);
    else if (kind == "result" && rest.size() == 1 && block.empty()) c.result = std::atoi(rest[0].c_str());
    else if (kind == "dir" && rest.size() == 1 && block.empty()) c.expected.push_back({rest[0], "", true});
    else if ((kind == "input" || kind == "file") && !rest.empty()) {
        CaseBytes b{rest[0], "", false};
        if (!blockBytes(block, std::vector<std::string>(rest.begin() + 1, rest.end()), b.bytes)) return false;
        (kind == "input" ? c.inputs : c.expected).push_back(b);
    } else return false;
    return true;
}

// One line of an "each" block: "MACRO => OUTPUT", the output's lines joined
// by " | ", where "! MESSAGE" stands for the macro error box of line 1 (and
// makes the result -1).
bool eachCase(const Case &table, const std::string &line, size_t k, Case &c) {
    size_t arrow = line.find(" =>");
    if (arrow == std::string::npos) return false;
    c = table;
    c.name += " " + std::to_string(k);
    c.macro = line.substr(0, arrow) + "\n";
    std::string rest = line.substr(arrow + 3);
    if (!rest.empty() && rest[0] == ' ') rest.erase(0, 1);
    for (size_t at = 0; !rest.empty() && at != std::string::npos;) {
        size_t bar = rest.find(" | ", at);
        std::string part = rest.substr(at, bar == std::string::npos ? bar : bar - at);
        at = bar == std::string::npos ? bar : bar + 3;
        if (part.rfind("! ", 0) == 0) {
            c.output += "Makrofehler: Fehler in Zeile 1 des Makros \n\n" + part.substr(2) + "\n\n";
            c.result = -1;
        } else c.output += part + "\n";
    }
    return true;
}

}  // namespace

bool caseParse(const std::string &text, const std::string &fileName, std::vector<Case> &out, std::string &error) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string l; std::getline(in, l);) lines.push_back(!l.empty() && l.back() == '\r' ? l.substr(0, l.size() - 1) : l);
    size_t i = 0;
    auto fail = [&](const char *why) {
        error = fileName + ":" + std::to_string(i + 1) + ": " + why;
        return false;
    };
    // Text before the first case describes the file.
    while (i < lines.size() && !startsWith(lines[i], "===")) ++i;
    while (i < lines.size()) {
        Case c;
        c.where = fileName + ":" + std::to_string(i + 1);
        if (!readHeader(lines[i], c)) return fail("a case needs a name");
        std::vector<std::string> head;  // empty: the macro text
        std::vector<std::pair<size_t, std::string>> each;  // line number, "MACRO => OUTPUT"
        for (++i;;) {
            std::vector<std::string> block;
            size_t from = i;
            while (i < lines.size() && !startsWith(lines[i], "---") && !startsWith(lines[i], "==="))
                block.push_back(lines[i++]);
            bool last = i == lines.size() || startsWith(lines[i], "===");
            // Blank lines between cases belong to no block.
            while (last && !block.empty() && block.back().empty()) block.pop_back();
            if (head.empty()) c.macro = joined(block);
            else if (head[0] == "each" && head.size() == 1) {
                for (size_t k = 0; k < block.size(); ++k)
                    if (!block[k].empty()) each.push_back({from + k, block[k]});
            } else if (!applySection(c, head, block)) return fail("section not understood");
            if (last) break;
            head = words(lines[i].substr(3));
            if (head.empty()) return fail("a section needs a kind");
            ++i;
        }
        for (size_t k = 0, next = i; k < each.size(); ++k, i = next) {
            Case one;
            i = each[k].first;
            if (!eachCase(c, each[k].second, k + 1, one)) return fail("a line of \"each\" needs \" =>\"");
            one.where = fileName + ":" + std::to_string(i + 1);
            out.push_back(std::move(one));
        }
        if (!each.empty()) continue;
        if (c.macro.empty()) return fail("a case needs macro text");
        if (!c.macroFile.empty() && !toCodePage1252(c.macro, c.fileBytes))
            return fail("a macro file holds only characters of code page 1252");
        out.push_back(std::move(c));
    }
    return true;
}

bool caseLoadAll(const std::string &dir, std::vector<Case> &out, std::string &error) {
    std::vector<fs::path> files;
    std::error_code ec;
    for (auto &e : fs::directory_iterator(dir, ec))
        if (e.path().extension() == ".cases") files.push_back(e.path());
    if (ec || files.empty()) {
        error = "no case files in " + dir;
        return false;
    }
    std::sort(files.begin(), files.end());
    for (const fs::path &f : files) {
        std::ifstream in(f, std::ios::binary);
        std::stringstream s;
        s << in.rdbuf();
        if (!in || !caseParse(s.str(), f.filename().string(), out, error)) {
            if (error.empty()) error = "cannot read " + f.string();
            return false;
        }
    }
    std::set<std::string> names;
    for (const Case &c : out)
        if (!names.insert(c.name).second) {
            error = c.where + ": a second case named " + c.name;
            return false;
        }
    return true;
}
