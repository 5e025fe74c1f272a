// morvix: runs a macro on Linux, or checks macros with --check. Boxes the
// library shows go to standard error.
#include <cstdio>

#include "answers.h"
#include "base/utf8.h"
#include "check_command.h"
#include "dialogs/dialog_answers.h"
#include "host_common.h"

int main(int argc, char **argv) {
    std::vector<std::u16string> args;
    for (int i = 1; i < argc; ++i) args.push_back(mx::fromUtf8(argv[i]));
    if (!args.empty() && args[0] == u"--check")
        return hostCheckFiles({args.begin() + 1, args.end()}, Get_MacroLib_InternalFunctionList());
    HostOptions o;
    std::string error;
    if (!hostParseArgs(args, o, error)) {
        std::fprintf(stderr, "morvix: %s\n%s", error.c_str(), hostUsage());
        return 64;
    }
    if (!o.answers.empty()) {
        if (!answersLoad(o.answers, error)) {
            std::fprintf(stderr, "morvix: %s\n", error.c_str());
            return 66;
        }
        mx::dialogsSetAnswerSource(answersNext);
    }
    hostSetAbortAfter(o.abortAfter);
    MX_ABORT_CALLBACK abort = o.abortAfter >= 0 ? hostAbort : nullptr;
    LONG r;
    if (o.memory) {
        r = o.hasTitle ? Run_MemMacroExt(nullptr, nullptr, o.text.c_str(), o.title.c_str(), kHostTable,
                                         hostFunction, abort, 0, LONG(o.country), 0)
                       : Run_MemMacro(nullptr, nullptr, o.text.c_str(), kHostTable, hostFunction,
                                      abort, 0, LONG(o.country), 0);
    } else {
        std::u16string cmd = hostMacroCommand(o);
        r = Run_Macro(nullptr, nullptr, cmd.c_str(), kHostTable, hostFunction, abort, 0,
                      LONG(o.country));
    }
    return hostExitStatus(r);
}
