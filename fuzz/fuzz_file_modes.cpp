// Mode texts of the file streams: any text is read without fault, and a
// mode the parser accepts opens, writes, reads and closes a scratch file.
#include <unistd.h>

#include <cstdlib>

#include "fuzz_input.h"
#include "platform/file_mode.h"
#include "platform/files.h"

namespace {
std::u16string gPath;
}

extern "C" int LLVMFuzzerInitialize(int *, char ***) {
    char dir[] = "/tmp/mxfuzzmode.XXXXXX";
    if (!mkdtemp(dir)) std::abort();
    std::string p = std::string(dir) + "/f.txt";
    gPath.assign(p.begin(), p.end());
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    FuzzInput in{data, size};
    std::u16string mode = in.text(true);
    std::u16string content = in.rest(true);
    mx::FileMode m = mx::fileModeParse(mode.c_str());
    mx::OpenError why;
    mx::MxpFile *f = mx::mxp_FileOpen(gPath.c_str(), mode.c_str(), mx::Share::kDenyNone, &why);
    if (f && !m.valid) std::abort();
    if (!f) return 0;
    mx::mxp_FilePutText(f, content.c_str());
    char16_t line[64];
    mx::mxp_FileReadLine(f, line, 64);
    mx::mxp_FileGetChar(f);
    mx::mxp_FileLength(f);
    mx::mxp_FileClose(f);
    return 0;
}
