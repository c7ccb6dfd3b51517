#include "wqspcfg/platform/utility/Utility.h"

#include "wqspcfg/platform/utility/ValueInterlocker.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

namespace {

using wqspcfg::OverrideModuleDir;
using wqspcfg::ThisModule;

TEST(Utility, ModuleDirIsWhereTheProgramIs)
{
    const CString with = CUtility::GetModuleDir(1, ThisModule(), true);
    const CString without = CUtility::GetModuleDir(0, nullptr, true);
    ASSERT_FALSE(without.IsEmpty());
    EXPECT_EQ(with.Std(), without.Std() + L'\\');
    EXPECT_EQ(without.Find(L'/'), -1);
#if !defined(_WIN32)
    std::wstring expected = std::filesystem::canonical("/proc/self/exe").parent_path().wstring();
    std::replace(expected.begin(), expected.end(), L'/', L'\\');
    EXPECT_EQ(without.Std(), expected);

    // Any address names the module it lies in.
    const auto system = reinterpret_cast<HINSTANCE>(reinterpret_cast<std::uintptr_t>(&std::malloc));
    EXPECT_NE(CUtility::GetModuleDir(0, system, true).Std(), L"");
    EXPECT_EQ(CUtility::GetModuleDir(1, reinterpret_cast<HINSTANCE>(8), true).Std(), L"");
#endif
}

TEST(Utility, ModuleDirCanBeGiven)
{
    const CString own = CUtility::GetModuleDir(1, nullptr, true);
    OverrideModuleDir(L"D:/SP/bin");
    EXPECT_EQ(CUtility::GetModuleDir(1, ThisModule(), true).Std(), L"D:\\SP\\bin\\");
    OverrideModuleDir(L"D:\\SP\\");
    EXPECT_EQ(CUtility::GetModuleDir(0, nullptr, true).Std(), L"D:\\SP");
    OverrideModuleDir(L"D:\\");
    EXPECT_EQ(CUtility::GetModuleDir(0, nullptr, true).Std(), L"D:\\");
    OverrideModuleDir(L"");
    EXPECT_EQ(CUtility::GetModuleDir(1, nullptr, true).Std(), own.Std());
}

TEST(ValueInterlocker, CountsAcrossThreads)
{
    long counter = 5;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            CValueInterlocker value(&counter);
            for (int n = 0; n < 5000; ++n) {
                value.Increment();
                value.Increment();
                value.Decrement();
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(CValueInterlocker(&counter).Get(), 20005);
    EXPECT_EQ(CValueInterlocker(&counter).Decrement(), 20004);
    EXPECT_EQ(counter, 20004);
}

} // namespace
