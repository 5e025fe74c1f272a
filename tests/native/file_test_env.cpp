// The file tests (and the cases) keep the Windows directory's
// stand-in and the registry stores in a scratch directory of their own, so
// no test touches the user's configuration.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "macro_harness.h"

namespace {

class FileEnvironment : public ::testing::Environment {
public:
    void SetUp() override {
        dir_ = scratchDir();
        setenv("MORVIX_WINDOWS_DIR", (dir_ + "/windows").c_str(), 1);
        setenv("MORVIX_REGISTRY_DIR", (dir_ + "/registry").c_str(), 1);
    }
    void TearDown() override { std::filesystem::remove_all(dir_); }

private:
    std::string dir_;
};

::testing::Environment *const kFileEnvironment = ::testing::AddGlobalTestEnvironment(new FileEnvironment);

}  // namespace
