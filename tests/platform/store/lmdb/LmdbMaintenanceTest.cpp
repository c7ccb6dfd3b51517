#include "support/StoreTesting.h"
#include "wqspcfg/platform/store/Maintenance.h"

#include <cstring>
#include <fstream>
#include <functional>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace wqspcfg::test {

namespace {

namespace fs = std::filesystem;

constexpr std::wstring_view kKey = L"SOFTWARE\\XFS\\Device";

class LmdbMaintenanceTest : public testing::Test
{
  protected:
    static int InChild(const std::function<int()>& work)
    {
        const auto child = fork();
        if (child == 0) {
            _exit(work());
        }
        int result = 0;
        EXPECT_EQ(waitpid(child, &result, 0), child);
        return WIFEXITED(result) ? WEXITSTATUS(result) : -WTERMSIG(result);
    }

    std::string Directory() const { return temporary.File("store"); }
    std::string Address() const { return "lmdb:" + Directory(); }
    std::string DataFile() const { return Directory() + "/data.mdb"; }

    // A store that was large once.
    void Fill()
    {
        const auto store = Open(Address(), {.create = true});
        Put(*store, L"Large", L"x", Bytes(std::size_t{4} << 20), ValueType::Binary);
        const auto transaction = Begin(*store, Access::Write);
        ASSERT_EQ(transaction->DeleteKey(Hive::LocalMachine, L"Large"), Outcome::Found);
        ASSERT_EQ(transaction->Commit(true), Outcome::Found);
        const auto filling = Begin(*store, Access::Write);
        KeyId key = 0;
        ASSERT_EQ(filling->CreateKey(Hive::LocalMachine, kKey, key), Outcome::Found);
        for (std::uint32_t i = 0; i < 300; ++i) {
            ASSERT_EQ(filling->SetValue(key, std::to_wstring(i), {ValueType::Dword, DwordBytes(i)}), Outcome::Found);
        }
        ASSERT_EQ(filling->Commit(true), Outcome::Found);
        Put(*store, kKey, L"n", DwordBytes(0));
    }

    TemporaryDirectory temporary;
    CompactCounts counts;
    StoreStatus status;
    Error error;
};

} // namespace

TEST_F(LmdbMaintenanceTest, CompactsUnderItsUsers)
{
    Fill();
    ASSERT_EQ(chmod(DataFile().c_str(), 0640), 0);
    const auto store = Open(Address());
    const auto before = Dump(*store, L"");
    auto reader = Begin(*store, Access::Read);
    // Twice, and after odd and even numbers of commits.
    for (std::uint32_t i = 1; i <= 4; ++i) {
        EXPECT_EQ(InChild([&] { return CompactStore(Address(), counts, error) ? 0 : 1; }), 0);
        EXPECT_LT(fs::file_size(DataFile()), 200000U);
        if (i == 1) {
            ValueView value;
            ASSERT_EQ(reader->QueryAt(Hive::LocalMachine, kKey, L"299", value), Outcome::Found); // of the old file
        }
        EXPECT_EQ(InChild([&] {
                      const auto own = Open(Address());
                      Put(*own, kKey, L"n", DwordBytes(i));
                      return Get(*own, kKey, L"n") == Get(*own, kKey, std::to_wstring(i)) ? 0 : 1;
                  }),
                  0);
    }
    reader.reset();
    EXPECT_EQ(Get(*store, kKey, L"n"), "4:04000000");
    Put(*store, kKey, L"n", DwordBytes(0));
    ASSERT_TRUE(CompactStore(Address(), counts, error)) << error.message; // by this process, which has it open
    EXPECT_EQ(counts.values, 301U);
    EXPECT_EQ(counts.after, fs::file_size(DataFile()));
    EXPECT_EQ(Dump(*store, L""), before);
    Put(*store, kKey, L"n", DwordBytes(9));
    EXPECT_EQ(Get(*store, kKey, L"n"), "4:09000000");
    EXPECT_EQ(fs::status(DataFile()).permissions(), fs::perms(0640));
    EXPECT_EQ(std::distance(fs::directory_iterator(Directory()), {}), 2); // nothing is left
}

TEST_F(LmdbMaintenanceTest, WhatAKilledOneHasLeftIsRemovedByTheNext)
{
    const auto left = Directory() + "/.data.mdb.wqspcfg-0123456789ab";
    const auto backup = temporary.File("backup");
    BackupCounts saved;
    std::string kept;
    Fill();
    ASSERT_TRUE(BackUpStore(Address(), backup, saved, error)) << error.message;
    fs::copy_file(DataFile(), left);
    ASSERT_TRUE(CompactStore(Address(), counts, error)) << error.message;
    EXPECT_FALSE(fs::exists(left));
    fs::copy_file(backup, left);
    fs::resize_file(DataFile(), 5000);
    ASSERT_TRUE(RestoreStore(Address(), backup, saved, kept, error)) << error.message;
    EXPECT_FALSE(fs::exists(left));
    fs::copy_file(backup, left);
    fs::remove(DataFile());
    (void)Open(Address(), {.create = true});
    EXPECT_FALSE(fs::exists(left));
}

TEST_F(LmdbMaintenanceTest, NoWriteIsLostWhileOthersCompact)
{
    constexpr std::uint32_t kWrites = 40;
    Fill();
    std::vector<pid_t> children;
    for (int i = 0; i < 2; ++i) {
        children.push_back(fork());
        if (children.back() == 0) {
            const auto store = Open(Address());
            for (std::uint32_t n = 0; n < kWrites; ++n) {
                const auto transaction = Begin(*store, Access::Write);
                KeyId key = 0;
                ValueView value;
                if (!transaction || transaction->CreateKey(Hive::LocalMachine, kKey, key) != Outcome::Found ||
                    transaction->Query(key, L"n", value) != Outcome::Found) {
                    _exit(1);
                }
                std::uint32_t number = 0;
                std::memcpy(&number, value.data.data(), sizeof number);
                const auto next = DwordBytes(number + 1);
                if (transaction->SetValue(key, L"n", {ValueType::Dword, next}) != Outcome::Found ||
                    transaction->Commit(true) != Outcome::Found) {
                    _exit(2);
                }
            }
            _exit(0);
        }
    }
    for (int i = 0; i < 10; ++i) {
        EXPECT_TRUE(CompactStore(Address(), counts, error)) << error.message;
    }
    for (const auto child : children) {
        int result = 0;
        EXPECT_EQ(waitpid(child, &result, 0), child);
        EXPECT_EQ(result, 0);
    }
    const auto store = Open(Address());
    const auto transaction = Begin(*store, Access::Read);
    ValueView value;
    ASSERT_EQ(transaction->QueryAt(Hive::LocalMachine, kKey, L"n", value), Outcome::Found);
    EXPECT_EQ(Bytes(value.data.begin(), value.data.end()), DwordBytes(2 * kWrites));
}

TEST_F(LmdbMaintenanceTest, TellsHowTheStoreIs)
{
    EXPECT_FALSE(GetStoreStatus("memory:", false, status, error));
    EXPECT_FALSE(CompactStore("reg:x", counts, error));
    Fill();
    const auto store = Open(Address());
    const auto reader = Begin(*store, Access::Read);
    for (std::uint32_t i = 0; i < 3; ++i) {
        Put(*store, kKey, L"n", DwordBytes(i + 5));
    }
    ASSERT_TRUE(GetStoreStatus(Address(), true, status, error)) << error.message;
    EXPECT_EQ(status.path, fs::canonical(DataFile()).string());
    EXPECT_EQ(status.fileSize, fs::file_size(DataFile()));
    EXPECT_GT(status.freeSize, 3000000U);
    EXPECT_LT(status.usedSize, 200000U);
    EXPECT_EQ(status.lastWriter, getpid());
    EXPECT_EQ(status.writer, 0);
    ASSERT_EQ(status.readers.size(), 1U);
    EXPECT_EQ(status.readers[0].process, getpid());
    EXPECT_EQ(status.readers[0].behind, 3U);
    EXPECT_FALSE(status.readers[0].program.empty());
    EXPECT_GE(status.readers[0].seconds, 0);
    EXPECT_TRUE(status.isSound) << status.damage;
    EXPECT_EQ(status.counts.values, 301U);
    {
        const auto writer = Begin(*store, Access::Write);
        EXPECT_EQ(InChild([&] {
                      return GetStoreStatus(Address(), false, status, error) && status.writer == getppid() ? 0 : 1;
                  }),
                  0);
    }
    auto content = ReadFile(DataFile());
    for (std::size_t at = 0; (at = content.find("\x05", at + 1)) != std::string::npos;) {
        content[at] = '\x06'; // somewhere among the values
    }
    std::fstream(DataFile(), std::ios::in | std::ios::out | std::ios::binary).seekp(8192) << content.substr(8192);
    if (GetStoreStatus(Address(), true, status, error)) {
        EXPECT_FALSE(status.isSound);
        EXPECT_NE(status.damage, "");
    } else {
        EXPECT_EQ(error.kind, ErrorKind::Damaged) << error.message;
    }
}

} // namespace wqspcfg::test
