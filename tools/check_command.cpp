#include "check_command.h"

#include <algorithm>
#include <cstdio>

#include "base/utf8.h"
#include "engine/check.h"
#include "engine/errors.h"
#include "host_common.h"

namespace {

constexpr int32_t kMessageCapacity = 200;

// The host table of the check: Print and the --host names, sorted as a run
// demands, with their texts kept alive here.
struct CheckTable {
    std::vector<std::u16string> names, signatures;
    std::vector<bool> functions;
    std::vector<mx::FunctionRow> rows;

    void add(const std::u16string &hostName) {
        size_t eq = hostName.find(u'=');
        names.push_back(hostName.substr(0, eq));
        signatures.push_back(eq == std::u16string::npos ? u"" : hostName.substr(eq + 1));
        functions.push_back(eq != std::u16string::npos);
    }
    const mx::FunctionRow *build() {
        add(u"Print=X");
        std::vector<size_t> order(names.size());
        for (size_t i = 0; i < order.size(); ++i) order[i] = i;
        std::sort(order.begin(), order.end(), [&](size_t a, size_t b) { return names[a] < names[b]; });
        for (size_t i : order)
            rows.push_back({names[i].c_str(), uint32_t(i + 1), functions[i] ? signatures[i].c_str() : nullptr, u""});
        rows.push_back({});
        return rows.data();
    }
};

void writeError(const mx::RunContext &ctx, void *user) {
    const auto *path = static_cast<const std::string *>(user);
    char16_t message[kMessageCapacity];
    mx::errFormatMessage(ctx, message, kMessageCapacity);
    hostWriteOut(*path + ":" + std::to_string(ctx.line) + ": " + mx::toUtf8(message) + "\n");
}

}  // namespace

int hostCheckFiles(const std::vector<std::u16string> &args, const MX_FUNCTION_ROW *builtins) {
    CheckTable table;
    size_t i = 0;
    for (; i < args.size() && args[i] == u"--host"; i += 2) {
        if (i + 1 >= args.size() || args[i + 1].empty() || args[i + 1][0] == u'=') {
            std::fprintf(stderr, "--host needs NAME or NAME=SIGNATURE\n");
            return 64;
        }
        table.add(args[i + 1]);
    }
    if (i == args.size()) {
        std::fprintf(stderr, "usage: HOST --check [--host NAME[=SIGNATURE]]... FILE...\n");
        return 64;
    }
    const mx::FunctionRow *hostRows = table.build();
    int status = 0;
    for (; i < args.size(); ++i) {
        const std::u16string &file = args[i];
        // The loader takes the first word of a macro command; quoted, a path
        // with blanks stays one word (as the hosts pass it to a run).
        std::u16string command = file.find(u' ') == std::u16string::npos ? file : u"\"" + file + u"\"";
        mx::RunContext ctx{};
        ctx.macroCommand = command.c_str();
        ctx.macroTitle = command.c_str();
        ctx.hostTable = hostRows;
        ctx.builtinTable = reinterpret_cast<const mx::FunctionRow *>(builtins);
        ctx.builtinCount = mx::kBuiltinRowCount;
        std::string path = mx::toUtf8(file.c_str());
        if (mx::ckCheckMacro(ctx, writeError, &path) > 0) status = 1;
    }
    return status;
}
