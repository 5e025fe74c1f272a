// The profile parser of the Linux store: any text parses; every listing and
// lookup works on it; a write of names the store says it can hold reads back
// unchanged, also after the text has been written out and parsed again.
#include <cstdlib>

#include "fuzz_input.h"
#include "platform/posix/profile_text.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    FuzzInput in{data, size};
    bool wide = in.byte() & 1;
    std::u16string section = in.text(wide), key = in.text(wide), value = in.text(wide);
    mx::ProfileText text = mx::ProfileText::parse(in.rest(wide));
    for (const std::u16string &s : text.sectionNames()) {
        for (const std::u16string &k : text.entryNames(s)) {
            std::u16string v;
            text.value(s, k, &v);
        }
    }
    if (!mx::ProfileText::canHold(section.c_str(), key.c_str(), value.c_str())) return 0;
    text.set(section, key, value);
    mx::ProfileText again = mx::ProfileText::parse(text.serialize());
    std::u16string first, second;
    bool found = text.value(section, key, &first) && again.value(section, key, &second);
    if (!found || first != second) std::abort();
    text.removeEntry(section, key);
    text.removeSection(section);
    return 0;
}
