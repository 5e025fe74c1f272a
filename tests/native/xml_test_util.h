// Shared helpers of the XML engine tests: owned documents, writing a
// document to a scratch file and reading its bytes back, boxes captured.
#pragma once
#include <sys/wait.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "base/utf8.h"
#include "macro_harness.h"
#include "platform/platform.h"
#include "xml/xml_alloc.h"
#include "xml/xml_model.h"
#include "xml/xml_writer.h"

namespace xmltest {

struct DocumentDeleter {
    void operator()(mx::xml::XmlDocument *d) const { mx::xml::DestroyDocument(d); }
};
using Doc = std::unique_ptr<mx::xml::XmlDocument, DocumentDeleter>;

inline Doc newDocument(const char16_t *root, mx::xml::XmlEncoding encoding = mx::xml::XMLENC_UTF8) {
    Doc d(mx::xml::CreateDocument());
    mx::xml::SetName(d->root, root);
    d->encoding = encoding;
    return d;
}

// Appends a child with name and text; the child.
inline mx::xml::XmlNode *child(mx::xml::XmlNode *parent, const char16_t *name,
                               const char16_t *text = u"") {
    mx::xml::XmlNode *c = nullptr;
    mx::xml::AddChild(parent, name, &c);
    mx::xml::SetText(c, text);
    return c;
}

// A scratch directory of the test process, made once.
inline const std::string &tempDir() {
    static const std::string dir = scratchDir();
    return dir;
}

inline std::string tempPath(const std::string &name) { return tempDir() + "/" + name; }

// Writes the document with flags and returns the file's bytes; *code gets
// the writer's result.
inline std::string written(const mx::xml::XmlDocument *d, int32_t flags, int32_t *code = nullptr,
                           const std::string &name = "written.xml") {
    std::string path = tempPath(name);
    int32_t r = mx::xml::WriteDocument(d, mx::fromUtf8(path).c_str(), flags);
    if (code) *code = r;
    return readFile(path);
}

// Lines joined with CR LF after each.
inline std::string crlf(const std::vector<std::string> &lines) {
    std::string out;
    for (const std::string &l : lines) out += l + "\r\n";
    return out;
}

// Runs a shell command; its exit status.
inline int shell(const std::string &command) {
    int status = std::system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// Captures every box shown while alive, as "TITLE: TEXT" lines.
// Ends any allocation failure a test switched on.
struct AllocationGuard {
    ~AllocationGuard() { mx::xml::xmlFailAllocationsAfter(-1); }
};

class BoxCapture {
public:
    BoxCapture() {
        lines().clear();
        mx::mxp_SetBoxSink(&BoxCapture::sink);
    }
    ~BoxCapture() { mx::mxp_SetBoxSink(nullptr); }
    std::string text() const { return lines(); }

private:
    static std::string &lines() {
        static std::string s;
        return s;
    }
    static void sink(const char16_t *title, const char16_t *text) {
        lines() += mx::toUtf8(title) + ": " + mx::toUtf8(text) + "\n";
    }
};

}  // namespace xmltest
