#include "answers.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

#include "base/utf8.h"

using mx::AnswerAction;
using mx::DialogAnswer;
using mx::DialogKind;

namespace {

struct Line {
    int number;
    std::string word;
    DialogAnswer answer;
};

std::vector<Line> script;
size_t nextLine = 0;
void (*reportTo)(const std::string &) = nullptr;

void report(const std::string &line) {
    if (reportTo) {
        reportTo(line);
        return;
    }
    std::fwrite(line.data(), 1, line.size(), stderr);
    std::fflush(stderr);
}

bool readPicks(const std::string &rest, std::vector<int32_t> &picks) {
    std::string word;
    std::istringstream in(rest);
    while (in >> word) {
        for (char &c : word)
            if (c == ',') c = ' ';
        std::istringstream parts(word);
        std::string part;
        while (parts >> part) {
            if (part.size() > 9 || part.find_first_not_of("0123456789") != std::string::npos) return false;
            picks.push_back(int32_t(std::stol(part)));
        }
    }
    return true;
}

bool parseLine(const std::string &raw, int number, Line &out, std::string &error) {
    size_t blank = raw.find(' ');
    std::string word = raw.substr(0, blank);
    std::string rest = blank == std::string::npos ? std::string() : raw.substr(blank + 1);
    out.number = number;
    out.word = word;
    DialogAnswer &a = out.answer;
    if (word == "ok") a.action = AnswerAction::kOk;
    else if (word == "cancel") a.action = AnswerAction::kCancel;
    else if (word == "yes") a.action = AnswerAction::kYes;
    else if (word == "no") a.action = AnswerAction::kNo;
    else if (word == "text") a.action = AnswerAction::kText, a.text = mx::fromUtf8(rest);
    else if (word == "file" || word == "dir") a.action = AnswerAction::kPath, a.text = mx::fromUtf8(rest);
    else if (word == "select") {
        a.action = AnswerAction::kSelect;
        if (!readPicks(rest, a.picks)) {
            error = "line " + std::to_string(number) + ": 'select' takes entry numbers";
            return false;
        }
    } else {
        error = "line " + std::to_string(number) + ": unknown answer '" + word + "'";
        return false;
    }
    if ((a.action == AnswerAction::kPath) && rest.empty()) {
        error = "line " + std::to_string(number) + ": '" + word + "' needs a path";
        return false;
    }
    if (word == "file" || word == "dir") out.word = word;
    return (rest.empty() || a.action == AnswerAction::kText || a.action == AnswerAction::kPath ||
            a.action == AnswerAction::kSelect) ||
           (error = "line " + std::to_string(number) + ": '" + word + "' takes nothing after it", false);
}

bool fits(const Line &line, DialogKind kind) {
    AnswerAction a = line.answer.action;
    switch (kind) {
        case DialogKind::kMessageOk: return a == AnswerAction::kOk;
        case DialogKind::kMessageOkCancel: return a == AnswerAction::kOk || a == AnswerAction::kCancel;
        case DialogKind::kMessageYesNo: return a == AnswerAction::kYes || a == AnswerAction::kNo;
        case DialogKind::kMessageYesNoCancel:
            return a == AnswerAction::kYes || a == AnswerAction::kNo || a == AnswerAction::kCancel;
        case DialogKind::kInput:
            return a == AnswerAction::kOk || a == AnswerAction::kCancel || a == AnswerAction::kText;
        case DialogKind::kListBox:
            return a == AnswerAction::kOk || a == AnswerAction::kCancel || a == AnswerAction::kSelect;
        case DialogKind::kListView: return a == AnswerAction::kOk || a == AnswerAction::kCancel;
        case DialogKind::kFile: return a == AnswerAction::kCancel || (a == AnswerAction::kPath && line.word == "file");
        case DialogKind::kDirectory: return a == AnswerAction::kCancel || (a == AnswerAction::kPath && line.word == "dir");
    }
    return false;
}

DialogAnswer cancelFor(DialogKind kind) {
    DialogAnswer a;
    a.action = kind == DialogKind::kMessageYesNo ? AnswerAction::kNo : AnswerAction::kCancel;
    return a;
}

}  // namespace

bool answersParse(const std::string &text, std::string &error) {
    script.clear();
    nextLine = 0;
    std::istringstream in(text.compare(0, 3, "\xEF\xBB\xBF") == 0 ? text.substr(3) : text);
    std::string raw;
    int number = 0;
    while (std::getline(in, raw)) {
        ++number;
        if (!raw.empty() && raw.back() == '\r') raw.pop_back();
        size_t start = raw.find_first_not_of(" \t");
        if (start == std::string::npos || raw[start] == '#') continue;
        Line line;
        if (!parseLine(raw.substr(start), number, line, error)) {
            script.clear();
            return false;
        }
        script.push_back(line);
    }
    return true;
}

bool answersLoad(const std::u16string &file, std::string &error) {
    std::ifstream in(std::filesystem::path(file), std::ios::binary);
    if (!in) {
        error = "cannot read the answer script " + mx::toUtf8(file.c_str());
        return false;
    }
    std::ostringstream all;
    all << in.rdbuf();
    if (!answersParse(all.str(), error)) {
        error = mx::toUtf8(file.c_str()) + ": " + error;
        return false;
    }
    return true;
}

DialogAnswer answersNext(DialogKind kind, const std::u16string &title) {
    if (kind == DialogKind::kMessageOk) {
        DialogAnswer ok;
        ok.action = AnswerAction::kOk;
        return ok;
    }
    std::string name = mx::toUtf8(title.c_str());
    if (nextLine >= script.size()) {
        report("answers: no answer left for \"" + name + "\"; cancelled\n");
        return cancelFor(kind);
    }
    const Line &line = script[nextLine++];
    if (!fits(line, kind)) {
        report("answers: line " + std::to_string(line.number) + " ('" + line.word + "') does not fit \"" +
               name + "\"; cancelled\n");
        return cancelFor(kind);
    }
    return line.answer;
}

void answersSetReport(void (*r)(const std::string &line)) { reportTo = r; }

size_t answersLeft() { return script.size() - nextLine; }
