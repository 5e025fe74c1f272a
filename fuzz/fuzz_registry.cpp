// The registry store of the Linux build: any file text parses, and the text
// it writes parses back to a store that writes the same text.
#include <cstdlib>

#include "fuzz_input.h"
#include "platform/posix/registry_store.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    FuzzInput in{data, size};
    std::u16string path = in.text(true);
    std::string file(reinterpret_cast<const char *>(in.p), in.n);
    mx::RegistryStore store = mx::RegistryStore::parse(file);
    if (mx::RegistryStore::validPath(path)) {
        mx::RegKey &key = store.create(path);
        key.values.push_back({u"v", false, path, 0});
        if (!store.find(path)) std::abort();
    }
    store.hasSubkeys(path);
    std::string once = store.serialize();
    if (mx::RegistryStore::parse(once).serialize() != once) std::abort();
    store.removeKey(path);
    return 0;
}
