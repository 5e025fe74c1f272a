#include "check_command.h"

#include <cstdio>

#include "base/utf8.h"
#include "engine/check.h"
#include "engine/errors.h"
#include "host_common.h"

namespace {

constexpr int32_t kMessageCapacity = 200;

struct FileReport {
    std::string path;  // as the user wrote it
};

void writeError(const mx::RunContext &ctx, void *user) {
    const auto *file = static_cast<const FileReport *>(user);
    char16_t message[kMessageCapacity];
    mx::errFormatMessage(ctx, message, kMessageCapacity);
    std::string line = file->path + ":" + std::to_string(ctx.line) + ": " + mx::toUtf8(message) + "\n";
    hostWriteOut(line);
}

}  // namespace

int hostCheckFiles(const std::vector<std::u16string> &files, const MX_FUNCTION_ROW *builtins) {
    if (files.empty()) {
        std::fprintf(stderr, "usage: HOST --check FILE...\n");
        return 64;
    }
    int status = 0;
    for (const std::u16string &file : files) {
        // The loader takes the first word of a macro command; quoted, a path
        // with blanks stays one word (as the hosts pass it to a run).
        std::u16string command = file.find(u' ') == std::u16string::npos ? file : u"\"" + file + u"\"";
        mx::RunContext ctx{};
        ctx.macroCommand = command.c_str();
        ctx.macroTitle = command.c_str();
        ctx.hostTable = reinterpret_cast<const mx::FunctionRow *>(kHostTable);
        ctx.builtinTable = reinterpret_cast<const mx::FunctionRow *>(builtins);
        ctx.builtinCount = mx::kBuiltinRowCount;
        FileReport report{mx::toUtf8(file.c_str())};
        if (mx::ckCheckMacro(ctx, writeError, &report) > 0) status = 1;
    }
    return status;
}
