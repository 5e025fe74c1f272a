#include <windows.h>
#include <gtest/gtest.h>
TEST(WinSmoke, DllLoads) { EXPECT_NE(LoadLibraryW(L"morvix32w.dll"), nullptr); }
