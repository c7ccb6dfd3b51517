// What is particular to the embedded store: damage, other processes, rights, space, format.
#include "wqspcfg/platform/store/lmdb/LmdbStore.h"
#include "support/StoreTesting.h"
#include "wqspcfg/platform/store/Record.h"
#include "wqspcfg/platform/store/lmdb/LmdbFormat.h"

#include <lmdb.h>

#include <algorithm>
#include <csignal>
#include <cstring>
#include <functional>
#include <random>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace wqspcfg::test {

namespace {

namespace fs = std::filesystem;

constexpr std::wstring_view kKey = L"SOFTWARE\\XFS\\Device";

std::shared_ptr<LmdbStore> OpenLmdb(const std::string& directory, LmdbOptions options, Error& error)
{
    return LmdbStore::Open("lmdb:" + directory, directory, options, error);
}

// Runs `work` in a process of its own, which ends without running this one's exit code. Returns its exit status, or
// minus the signal that ended it.
int InChild(const std::function<int()>& work)
{
    const auto child = fork();
    if (child == 0) {
        _exit(work());
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

class LmdbStoreTest : public testing::Test
{
  protected:
    std::string Address() const { return "lmdb:" + Directory(); }
    std::string Directory() const { return temporary.File("store"); }
    std::string DataFile() const { return Directory() + "/data.mdb"; }
    std::shared_ptr<Store> Create() { return Open(Address(), {.create = true}); }

    Error FailToOpen(const OpenOptions& options = {})
    {
        Error error;
        EXPECT_FALSE(OpenStore(Address(), options, error));
        EXPECT_NE(error.message.find(Address()), std::string::npos) << error.message;
        return error;
    }

    // A store of several hundred values over three levels of pages, with values on overflow pages and free pages.
    void CreateRich()
    {
        const auto store = Create();
        for (int generation = 0; generation < 3; ++generation) {
            const auto transaction = Begin(*store, Access::Write);
            for (int k = 0; k < 40; ++k) {
                KeyId key = 0;
                const auto path = L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\Device" + std::to_wstring(k) + L"\\Configuration";
                ASSERT_EQ(transaction->CreateKey(Hive::LocalMachine, path, key), Outcome::Found);
                for (int v = 0; v < 12; ++v) {
                    const auto size = v == 0 && k % 8 == 0 ? 5000U : static_cast<unsigned>(10 + v);
                    ASSERT_EQ(transaction->SetValue(
                                  key, L"Value" + std::to_wstring(v),
                                  {ValueType::Binary, ToBytes(std::string(size, static_cast<char>('a' + generation)))}),
                              Outcome::Found);
                }
                if (generation == 1 && k % 5 == 0) {
                    ASSERT_EQ(transaction->DeleteKey(Hive::LocalMachine, path), Outcome::Found);
                }
            }
            ASSERT_EQ(transaction->Commit(true), Outcome::Found);
        }
    }

    TemporaryDirectory temporary;
};

} // namespace

TEST_F(LmdbStoreTest, SaysWhyItCannotBeOpened)
{
    EXPECT_EQ(FailToOpen().kind, ErrorKind::NotFound);
    fs::create_directory(Directory());
    EXPECT_EQ(FailToOpen().kind, ErrorKind::NotFound);
    for (const auto& content : {std::string(), std::string("x"), std::string(8192, '\0'), std::string(8192, 'x')}) {
        WriteFile(DataFile(), content);
        EXPECT_EQ(FailToOpen({.create = true}).kind, ErrorKind::Damaged);
        EXPECT_EQ(ReadFile(DataFile()), content) << "what is not understood is left as it is";
    }
    fs::remove(DataFile());
    fs::create_directory(DataFile());
    EXPECT_EQ(FailToOpen().kind, ErrorKind::BadArgument);

    // Any other LMDB file.
    fs::remove_all(Directory());
    fs::create_directory(Directory());
    MDB_env* env = nullptr;
    MDB_txn* txn = nullptr;
    MDB_dbi dbi = 0;
    char text[] = "name";
    MDB_val value{4, text};
    ASSERT_EQ(mdb_env_create(&env), 0);
    ASSERT_EQ(mdb_env_open(env, Directory().c_str(), 0, 0600), 0);
    ASSERT_EQ(mdb_txn_begin(env, nullptr, 0, &txn), 0);
    ASSERT_EQ(mdb_dbi_open(txn, nullptr, 0, &dbi), 0);
    ASSERT_EQ(mdb_put(txn, dbi, &value, &value, 0), 0);
    ASSERT_EQ(mdb_txn_commit(txn), 0);
    mdb_env_close(env);
    const auto store = Open(Address());
    Error error;
    EXPECT_FALSE(store->Begin(Access::Read, error));
    EXPECT_EQ(error.kind, ErrorKind::Damaged) << error.message;
    EXPECT_FALSE(store->Begin(Access::Write, error));
}

TEST_F(LmdbStoreTest, RefusesANewerFormat)
{
    Create().reset();
    auto content = ReadFile(DataFile());
    const std::string_view name("\0state", 6);
    // The record of the format: its number behind a check sum that is right.
    bool found = false;
    for (std::size_t at = 8192; (at = content.find(name, at)) != std::string::npos; ++at) {
        auto record = content.substr(at + name.size(), kRecordHeader + 8);
        record[4] = 2;
        SealRecord(NameSum(name), {}, record);
        content.replace(at + name.size(), record.size(), record);
        found = true;
    }
    ASSERT_TRUE(found);
    WriteFile(DataFile(), content);
    const auto store = Open(Address());
    for (const auto access : {Access::Read, Access::Write}) {
        Error error;
        EXPECT_FALSE(store->Begin(access, error));
        EXPECT_EQ(error.kind, ErrorKind::NewerFormat);
        EXPECT_NE(error.message.find("newer"), std::string::npos) << error.message;
    }
    EXPECT_EQ(ReadFile(DataFile()), content);
}

TEST_F(LmdbStoreTest, DoesNotTakeAChangedBitForANewerFormat)
{
    Create().reset();
    const auto whole = ReadFile(DataFile());
    constexpr std::size_t kVersion = 20; // behind a page's header and the magic number
    auto content = whole;
    content[kVersion] = 2;
    WriteFile(DataFile(), content);
    EXPECT_EQ(FailToOpen().kind, ErrorKind::Damaged);
    content[4096 + kVersion] = 2;
    WriteFile(DataFile(), content);
    EXPECT_EQ(FailToOpen().kind, ErrorKind::NewerFormat);

    content = whole;
    const std::string_view name("\0state", 6);
    for (std::size_t at = 8192; (at = content.find(name, at)) != std::string::npos; ++at) {
        content[at + name.size() + 4] = 2; // behind the check sum
    }
    WriteFile(DataFile(), content);
    Error error;
    EXPECT_FALSE(Open(Address())->Begin(Access::Read, error));
    EXPECT_EQ(error.kind, ErrorKind::Damaged) << error.message;
}

TEST_F(LmdbStoreTest, RefusesNamesThatAreLongerThanAnEntryCanBe)
{
    const auto store = Create();
    const auto transaction = Begin(*store, Access::Write);
    KeyId key = 0;
    std::wstring path = L"SOFTWARE";
    for (int i = 0; i < 3; ++i) {
        path += L'\\' + std::wstring(150, L'k');
    }
    ASSERT_EQ(transaction->CreateKey(Hive::LocalMachine, path, key), Outcome::Found);
    const auto room = 511 - (1 + path.size() + 2);
    EXPECT_EQ(transaction->SetValue(key, std::wstring(room, L'v'), {ValueType::Binary, {}}), Outcome::Found);
    EXPECT_EQ(transaction->SetValue(key, std::wstring(room + 1, L'v'), {ValueType::Binary, {}}), Outcome::Failed);
    EXPECT_EQ(transaction->LastError().kind, ErrorKind::TooLong);
    EXPECT_EQ(transaction->SetValue(key, std::wstring(room / 3 + 1, L'\u4e2d'), {ValueType::Binary, {}}),
              Outcome::Failed);
    EXPECT_NE(transaction->LastError().message.find("\u4e2d"), std::string::npos);
    KeyId deep = 0;
    EXPECT_EQ(transaction->CreateKey(Hive::LocalMachine, path + L"\\" + std::wstring(100, L'x') + L"\\y", deep),
              Outcome::Failed);
    EXPECT_EQ(transaction->LastError().kind, ErrorKind::TooLong);
    ASSERT_EQ(transaction->Commit(true), Outcome::Found);
    EXPECT_TRUE(Subkeys(*store, path).empty()); // nothing of a path that is refused is made
    EXPECT_EQ(Get(*store, path, std::wstring(room, L'V')), "3:");
    EXPECT_EQ(Get(*store, path, std::wstring(room + 1, L'v')), "missing");
}

enum DamageResult
{
    AllRight = 0,
    ErrorGiven = 40, // no status that a sanitizer or a crash gives
    WrongData,
    SilentDefault,
    LostByWriting,
};

// Opens the store at `directory`, reads all that CreateRich wrote and then writes. Whatever is in the file: data is
// right, or there is an error.
int UseDamaged(const std::string& directory)
{
    Error error;
    const auto store = OpenLmdb(directory, {}, error);
    if (!store) {
        return error.message.empty() ? WrongData : ErrorGiven;
    }
    bool failed = false;
    const auto read = [&failed](Transaction& transaction) -> int {
        for (int k = 0; k < 40; ++k) {
            const auto path = L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\Device" + std::to_wstring(k) + L"\\Configuration";
            std::size_t seen = 0;
            for (int v = 0; v < 13; ++v) {
                ValueView value;
                const auto outcome =
                    transaction.QueryAt(Hive::LocalMachine, path, L"Value" + std::to_wstring(v), value);
                if (outcome == Outcome::Failed) {
                    failed = true;
                } else if ((outcome == Outcome::Missing) != (v == 12)) {
                    return SilentDefault;
                } else if (outcome == Outcome::Found &&
                           (value.data.size() != (v == 0 && k % 8 == 0 ? 5000U : static_cast<unsigned>(10 + v)) ||
                            static_cast<char>(value.data[0]) != 'c')) {
                    return WrongData;
                }
            }
            KeyId key = 0;
            const auto opened = transaction.OpenKey(Hive::LocalMachine, path, key);
            if (opened == Outcome::Missing) {
                return SilentDefault;
            }
            if (opened == Outcome::Found && transaction.EnumValues(key, [&seen](std::wstring_view, const ValueView&) {
                    ++seen;
                    return true;
                }) == Outcome::Found) {
                if (seen != 12) {
                    return SilentDefault;
                }
            } else {
                failed = true;
            }
        }
        return AllRight;
    };
    {
        const auto transaction = store->Begin(Access::Read, error);
        if (!transaction) {
            return error.message.empty() ? WrongData : ErrorGiven;
        }
        if (const auto result = read(*transaction); result != AllRight) {
            return result;
        }
    }
    {
        const auto transaction = store->Begin(Access::Write, error);
        if (transaction) {
            KeyId key = 0;
            failed = failed || transaction->CreateKey(Hive::LocalMachine, L"SOFTWARE\\New", key) != Outcome::Found ||
                     transaction->SetValue(key, L"x", {ValueType::Binary, ToBytes(std::string(3000, 'x'))}) !=
                         Outcome::Found ||
                     transaction->Commit(true) != Outcome::Found;
        } else {
            failed = true;
        }
    }
    const bool before = failed;
    const auto transaction = store->Begin(Access::Read, error);
    if (!transaction) {
        return before ? ErrorGiven : LostByWriting;
    }
    if (const auto result = read(*transaction); result != AllRight) {
        return result;
    }
    return failed ? (before ? ErrorGiven : LostByWriting) : AllRight;
}

class LmdbDamageTest : public LmdbStoreTest
{
  protected:
    void SetUp() override
    {
        CreateRich();
        whole = ReadFile(DataFile());
        ASSERT_EQ(Use(whole), 0);
    }

    int Use(std::string_view content)
    {
        WriteFile(copy.File("data.mdb"), content);
        fs::remove(copy.File("lock.mdb"));
        return InChild([this] { return UseDamaged(copy.Path().string()); });
    }

    void ExpectHarmless(std::string_view content, const std::string& what)
    {
        const auto result = Use(content);
        EXPECT_TRUE(result == AllRight || result == ErrorGiven) << what << ": " << result;
        errors += result == ErrorGiven ? 1 : 0;
    }

    // In memory where that is to be had: nothing here is about surviving a power cut.
    TemporaryDirectory copy{fs::is_directory("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path()};
    std::string whole;
    int errors = 0;
};

TEST_F(LmdbDamageTest, CutAtEveryPage)
{
    for (std::size_t size = 0; size < whole.size(); size += 4096) {
        ExpectHarmless(whole.substr(0, size), "cut to " + std::to_string(size));
        ExpectHarmless(whole.substr(0, size + 1000), "cut to " + std::to_string(size + 1000));
    }
    EXPECT_GT(errors, 0);
}

TEST_F(LmdbDamageTest, EveryPageZeroedOrOverwritten)
{
    std::mt19937 random(1);
    for (std::size_t page = 0; page < whole.size() / 4096; ++page) {
        auto content = whole;
        content.replace(page * 4096, 4096, 4096, '\0');
        ExpectHarmless(content, "zeroed page " + std::to_string(page));
        for (std::size_t i = 0; i < 4096; ++i) {
            content[page * 4096 + i] = static_cast<char>(random());
        }
        ExpectHarmless(content, "random page " + std::to_string(page));
        if (page > 2) {
            content = whole;
            content.replace(page * 4096 + 8, 4088, whole, (page - 1) * 4096 + 8, 4088);
            ExpectHarmless(content, "page " + std::to_string(page) + " as a copy of the one before");
        }
    }
    EXPECT_GT(errors, 0);
}

TEST_F(LmdbDamageTest, SingleBytesChanged)
{
    // Mostly in the heads of pages and the offsets behind them, where a byte does the most.
    std::mt19937 random(2);
    for (int i = 0; i < 500; ++i) {
        auto content = whole;
        auto at = random() % content.size();
        if (i % 3 != 0) {
            at = at / 4096 * 4096 + random() % (i % 3 == 1 ? 32 : 200);
        }
        content[at] = static_cast<char>(content[at] ^ static_cast<char>(1U << (random() % 8)));
        ExpectHarmless(content, "byte " + std::to_string(at));
    }
    EXPECT_GT(errors, 50);
}

TEST_F(LmdbStoreTest, DoesNotWriteWhereAHeadGivesAnotherOrderOfNames)
{
    CreateRich();
    auto content = ReadFile(DataFile());
    for (const std::size_t head : {0U, 4096U}) {
        content[head + sizeof(lmdb::PageHeader) + offsetof(lmdb::Meta, main) + offsetof(lmdb::Tree, flags)] = 2;
    }
    WriteFile(DataFile(), content);
    const auto store = Open(Address());
    Error error;
    EXPECT_FALSE(store->Begin(Access::Write, error));
    EXPECT_EQ(error.kind, ErrorKind::Damaged) << error.message;
    EXPECT_EQ(ReadFile(DataFile()), content);
}

// A page above that leads to one place twice: what was found whole within the bounds of the one is not within those of
// the other.
TEST_F(LmdbStoreTest, APageReachedThroughAWrongPlaceIsNotTakenForWhole)
{
    const auto path = std::wstring(kKey) + L'\\' + std::wstring(250, L'x');
    {
        const auto store = Create();
        const auto transaction = Begin(*store, Access::Write);
        KeyId key = 0;
        ASSERT_EQ(transaction->CreateKey(Hive::LocalMachine, path, key), Outcome::Found);
        for (int v = 1000; v < 1500; ++v) {
            ASSERT_EQ(transaction->SetValue(key, std::to_wstring(v), {ValueType::Binary, ToBytes("data")}),
                      Outcome::Found);
        }
        ASSERT_EQ(transaction->Commit(true), Outcome::Found);
    }
    auto content = ReadFile(DataFile());
    const auto read = [&content](std::size_t at, auto value) {
        std::memcpy(&value, content.data() + at, sizeof value);
        return value;
    };
    const auto write = [&content](std::size_t at, const auto& value) {
        std::memcpy(content.data() + at, &value, sizeof value);
    };
    const auto metaOf = [&](std::size_t head) { return read(head + sizeof(lmdb::PageHeader), lmdb::Meta{}); };
    const auto tree = std::max(metaOf(0), metaOf(4096), [](const lmdb::Meta& a, const lmdb::Meta& b) {
                          return a.transaction < b.transaction;
                      }).main;
    ASSERT_EQ(tree.depth, 3);
    const auto root = tree.root * 4096;
    const auto nodeOf = [&](std::size_t page, std::size_t index) {
        return page + read(page + sizeof(lmdb::PageHeader) + index * 2, std::uint16_t{0});
    };
    // The root's first child keeps its first child only, and is the root's last child as well.
    const auto first = read(nodeOf(root, 0), lmdb::NodeHeader{});
    const auto branch = (first.low | std::size_t{first.high} << 16) * 4096;
    const auto leaf = read(nodeOf(branch, 0), lmdb::NodeHeader{});
    ASSERT_EQ(leaf.keySize, 0);
    auto header = read(branch, lmdb::PageHeader{});
    header.lower = sizeof header + 2;
    header.upper = 4096 - sizeof leaf;
    write(branch, header);
    write(branch + sizeof header, header.upper);
    write(branch + header.upper, leaf);
    const auto last = nodeOf(root, (read(root, lmdb::PageHeader{}).lower - sizeof header) / 2U - 1U);
    auto wrong = read(last, lmdb::NodeHeader{});
    wrong.low = first.low;
    wrong.high = first.high;
    write(last, wrong);
    WriteFile(DataFile(), content);

    const auto store = Open(Address());
    const auto transaction = Begin(*store, Access::Read);
    ASSERT_TRUE(transaction);
    ValueView value;
    EXPECT_EQ(transaction->QueryAt(Hive::LocalMachine, L"A", L"none", value), Outcome::Missing);
    for (int tries = 0; tries < 2; ++tries) {
        EXPECT_EQ(transaction->QueryAt(Hive::LocalMachine, path, L"1499", value), Outcome::Failed);
    }
}

TEST_F(LmdbStoreTest, WritesOnlyWhatChanges)
{
    const auto store = Create();
    Put(*store, kKey, L"Port", ToBytes("a distinct text"), ValueType::Binary);
    Put(*store, kKey, L"Quiet", DwordBytes(7));
    auto content = ReadFile(DataFile());
    Put(*store, kKey, L"PORT", ToBytes("a distinct text"), ValueType::Binary);
    Put(*store, L"software\\xfs\\device", L"Quiet", DwordBytes(7));
    EXPECT_EQ(ReadFile(DataFile()), content);
    Put(*store, kKey, L"Quiet", DwordBytes(7), ValueType::Binary);
    EXPECT_EQ(Get(*store, kKey, L"Quiet"), "3:07000000");
    Put(*store, kKey, L"Quiet", DwordBytes(8), ValueType::Binary);
    EXPECT_EQ(Get(*store, kKey, L"quiet"), "3:08000000");
    EXPECT_EQ(ValueNames(*store, kKey), (std::vector<std::wstring>{L"Port", L"Quiet"}));
}

TEST_F(LmdbStoreTest, WritingADamagedValueAgainMendsIt)
{
    Put(*Create(), kKey, L"Port", ToBytes("a distinct text"), ValueType::Binary);
    const auto whole = Get(*Open(Address()), kKey, L"Port");
    auto content = ReadFile(DataFile());
    // In the check sum, so that all the rest is what will be written.
    for (std::size_t at = 0; (at = content.find("Porta distinct text", at)) != std::string::npos; ++at) {
        content[at - kRecordHeader] = static_cast<char>(content[at - kRecordHeader] ^ 1);
    }
    WriteFile(DataFile(), content);
    const auto store = Open(Address());
    ASSERT_NE(Get(*store, kKey, L"Port"), whole);
    Put(*store, kKey, L"Port", ToBytes("a distinct text"), ValueType::Binary);
    EXPECT_EQ(Get(*store, kKey, L"Port"), whole);
}

TEST_F(LmdbStoreTest, NamesTheDamagedValue)
{
    {
        const auto store = Create();
        Put(*store, kKey, L"Port", ToBytes("a distinct text"), ValueType::Binary);
        Put(*store, kKey, L"Quiet", DwordBytes(7));
    }
    auto content = ReadFile(DataFile());
    for (std::size_t at = 0; (at = content.find("a distinct text", at)) != std::string::npos; ++at) {
        content[at] = 'A';
    }
    WriteFile(DataFile(), content);
    const auto store = Open(Address());
    const auto message = Get(*store, kKey, L"port");
    for (const auto* part : {"PORT", "HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\DEVICE", "check sum"}) {
        EXPECT_NE(message.find(part), std::string::npos) << message;
    }
    EXPECT_EQ(Get(*store, kKey, L"Quiet"), "4:07000000"); // the others are not lost
    Put(*store, kKey, L"Port", DwordBytes(1));            // and a new value repairs it
    EXPECT_EQ(Get(*store, kKey, L"Port"), "4:01000000");
}

TEST_F(LmdbStoreTest, WorksForOtherProcessesAtTheSameTime)
{
    const auto store = Create();
    Put(*store, kKey, L"n", DwordBytes(1));
    const auto reader = Begin(*store, Access::Read);
    // The child has the parent's store: it must open an environment of its own and refuse the parent's transaction.
    EXPECT_EQ(InChild([&] {
                  ValueView value;
                  if (reader->QueryAt(Hive::LocalMachine, kKey, L"n", value) != Outcome::Failed ||
                      reader->LastError().message.find("fork") == std::string::npos) {
                      return 1;
                  }
                  Put(*store, kKey, L"n", DwordBytes(2));
                  return Get(*store, kKey, L"n") == "4:02000000" ? 0 : 2;
              }),
              0);
    ValueView value;
    ASSERT_EQ(reader->QueryAt(Hive::LocalMachine, kKey, L"n", value), Outcome::Found);
    EXPECT_EQ(Bytes(value.data.begin(), value.data.end()), DwordBytes(1)); // the state that it began with
    EXPECT_EQ(Get(*store, kKey, L"n"), "4:02000000");
}

TEST_F(LmdbStoreTest, AKilledWriterLeavesTheStateBeforeIt)
{
    const auto store = Create();
    Put(*store, kKey, L"n", DwordBytes(1));
    EXPECT_EQ(InChild([&] {
                  const auto transaction = Begin(*store, Access::Write);
                  KeyId key = 0;
                  (void)transaction->CreateKey(Hive::LocalMachine, kKey, key);
                  (void)transaction->SetValue(key, L"n", {ValueType::Dword, DwordBytes(2)});
                  raise(SIGKILL);
                  return 0;
              }),
              -SIGKILL);
    EXPECT_EQ(Get(*store, kKey, L"n"), "4:01000000");
    Put(*store, kKey, L"n", DwordBytes(3));
    EXPECT_EQ(Get(*store, kKey, L"n"), "4:03000000");
}

TEST_F(LmdbStoreTest, DeadReadersDoNotKeepOldPages)
{
    const auto store = Create();
    const auto payload = ToBytes(std::string(100000, 'x'));
    Put(*store, kKey, L"n", payload, ValueType::Binary);
    EXPECT_EQ(InChild([&] {
                  Error error;
                  auto reader = store->Begin(Access::Read, error);
                  return reader.release() != nullptr ? raise(SIGKILL) : 1;
              }),
              -SIGKILL);
    for (int i = 0; i < 100; ++i) {
        Put(*store, kKey, L"n", payload, ValueType::Binary);
    }
    EXPECT_LT(fs::file_size(DataFile()), 1000000U);
}

TEST_F(LmdbStoreTest, GrowsItsMapAndFollowsOthersThatDid)
{
    constexpr std::size_t kMap = std::size_t{1} << 20;
    Create().reset();
    Error error;
    auto store = OpenLmdb(Directory(), {.mapSize = kMap}, error);
    ASSERT_TRUE(store) << error.message;
    const auto store2 = OpenLmdb(Directory(), {.mapSize = kMap}, error);
    const auto write = [](Store& into, std::wstring_view name, std::size_t size, Error& failure) {
        const auto transaction = into.Begin(Access::Write, failure);
        if (!transaction) {
            return Outcome::Failed;
        }
        KeyId key = 0;
        auto outcome = transaction->CreateKey(Hive::LocalMachine, kKey, key);
        if (outcome == Outcome::Found) {
            outcome = transaction->SetValue(key, name, {ValueType::Binary, Bytes(size)});
        }
        if (outcome == Outcome::Found) {
            outcome = transaction->Commit(true);
        }
        failure = transaction->LastError();
        return outcome;
    };
    // More than the map holds in one piece is refused, and the map is larger the next time.
    EXPECT_EQ(write(*store, L"large", 3 * kMap / 2, error), Outcome::Failed);
    EXPECT_EQ(error.kind, ErrorKind::NoSpace) << error.message;
    EXPECT_EQ(write(*store, L"large", 3 * kMap / 2, error), Outcome::Found) << error.message;

    // Another process makes it larger still, while this one reads and while it does not.
    const auto grow = [&] {
        return InChild([&] {
            for (int i = 0; i < 20; ++i) {
                Error failure;
                if (write(*store2, L"child" + std::to_wstring(i), kMap, failure) != Outcome::Found &&
                    failure.kind != ErrorKind::NoSpace) {
                    return 1;
                }
            }
            return 0;
        });
    };
    {
        const auto reader = Begin(*store, Access::Read);
        EXPECT_EQ(grow(), 0);
        ValueView value;
        EXPECT_EQ(reader->QueryAt(Hive::LocalMachine, kKey, L"large", value), Outcome::Found);
        EXPECT_EQ(value.data.size(), 3 * kMap / 2);
    }
    EXPECT_GE(ValueNames(*store, kKey).size(), 15U);
    EXPECT_EQ(write(*store, L"after", 10, error), Outcome::Found) << error.message;
}

TEST_F(LmdbStoreTest, AFullFileSystemLosesNothing)
{
    const auto store = Create();
    Put(*store, kKey, L"n", DwordBytes(1));
    const auto status = InChild([&] {
        // A limit on the file's length fails a write as a full file system does.
        (void)signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{fs::file_size(DataFile()) + 8192, RLIM_INFINITY};
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0) {
            return 10;
        }
        Error error;
        const auto own = OpenLmdb(Directory(), {}, error);
        {
            const auto transaction = own->Begin(Access::Write, error);
            KeyId key = 0;
            if (!transaction || transaction->CreateKey(Hive::LocalMachine, kKey, key) != Outcome::Found ||
                transaction->SetValue(key, L"n", {ValueType::Dword, DwordBytes(2)}) != Outcome::Found ||
                transaction->SetValue(key, L"big", {ValueType::Binary, Bytes(1000000)}) != Outcome::Found) {
                return 2;
            }
            if (transaction->Commit(true) != Outcome::Failed || transaction->LastError().kind != ErrorKind::NoSpace ||
                transaction->LastError().message.find("data.mdb") == std::string::npos) {
                return 3;
            }
        }
        if (Get(*own, kKey, L"n") != "4:01000000") {
            return 4;
        }
        const rlimit none{RLIM_INFINITY, RLIM_INFINITY};
        if (setrlimit(RLIMIT_FSIZE, &none) != 0) {
            return 11;
        }
        Put(*own, kKey, L"n", DwordBytes(3)); // goes on once there is room
        return Get(*own, kKey, L"n") == "4:03000000" ? 0 : 5;
    });
    EXPECT_EQ(status, 0);
    EXPECT_EQ(Get(*store, kKey, L"n"), "4:03000000");
}

TEST_F(LmdbStoreTest, ReadsWithoutTheRightToWrite)
{
    {
        const auto store = Create();
        Put(*store, kKey, L"n", DwordBytes(1));
    }
    fs::permissions(temporary.Path(), fs::perms(0755));
    for (const bool hasLockFile : {true, false}) {
        if (!hasLockFile) {
            fs::remove(Directory() + "/lock.mdb");
        }
        for (const auto& entry : fs::directory_iterator(Directory())) {
            fs::permissions(entry, fs::perms(0444));
        }
        fs::permissions(Directory(), fs::perms(0555));
        const auto status = InChild([&] {
            if (geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0)) {
                return 10;
            }
            Error error;
            const auto store = OpenStore(Address(), {}, error);
            if (!store || Get(*store, kKey, L"n") != "4:01000000") {
                return 1;
            }
            if (store->Begin(Access::Write, error) || error.kind != ErrorKind::AccessDenied ||
                error.message.find("data.mdb") == std::string::npos) {
                return 2;
            }
            return 0;
        });
        EXPECT_EQ(status, 0);
        fs::permissions(Directory(), fs::perms(0755));
    }
    fs::permissions(DataFile(), fs::perms(0));
    EXPECT_EQ(InChild([&] {
                  if (geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0)) {
                      return 10;
                  }
                  return FailToOpen().kind == ErrorKind::AccessDenied ? 0 : 1;
              }),
              0);
}

TEST_F(LmdbStoreTest, WritesOnceTheRightsAreMended)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs the superuser";
    }
    constexpr uid_t kNobody = 65534;
    {
        const auto store = Create();
        Put(*store, kKey, L"n", DwordBytes(1));
    }
    fs::permissions(temporary.Path(), fs::perms(0755));
    ASSERT_EQ(chown(Directory().c_str(), kNobody, kNobody), 0);
    for (const auto& path : {DataFile(), Directory() + "/lock.mdb"}) {
        fs::permissions(path, fs::perms(0644)); // a new store is its maker's alone
    }
    int ready[2];
    int go[2];
    ASSERT_EQ(pipe(ready), 0);
    ASSERT_EQ(pipe(go), 0);
    const auto child = fork();
    if (child == 0) {
        char byte = 0;
        Error error;
        if (setgid(kNobody) != 0 || setuid(kNobody) != 0) {
            _exit(10);
        }
        const auto store = OpenStore(Address(), {}, error);
        if (!store || store->Begin(Access::Write, error) || error.kind != ErrorKind::AccessDenied) {
            _exit(1);
        }
        if (write(ready[1], &byte, 1) != 1 || read(go[0], &byte, 1) != 1) {
            _exit(11);
        }
        const auto transaction = store->Begin(Access::Write, error);
        _exit(transaction ? 0 : 2);
    }
    close(ready[1]);
    char byte = 0;
    ASSERT_EQ(read(ready[0], &byte, 1), 1);
    ASSERT_EQ(chown(DataFile().c_str(), kNobody, kNobody), 0);
    ASSERT_EQ(chown((Directory() + "/lock.mdb").c_str(), kNobody, kNobody), 0);
    ASSERT_EQ(write(go[1], &byte, 1), 1);
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);

    // A lock file that the superuser brings is the owner's, and so is a store.
    ASSERT_EQ(setenv("WQSPCFG_TRUST_STORE", "1", 1), 0);
    for (const auto* name : {"lock.mdb", "data.mdb"}) {
        fs::remove(Directory() + '/' + name);
        (void)Open(Address(), {.create = true});
        EXPECT_EQ(InChild([&] {
                      Error error;
                      const bool dropped = setgid(kNobody) == 0 && setuid(kNobody) == 0;
                      const auto store = OpenStore(Address(), {}, error);
                      return dropped && store && store->Begin(Access::Write, error) ? 0 : 1;
                  }),
                  0)
            << name;
    }
    unsetenv("WQSPCFG_TRUST_STORE");
    for (const int file : {ready[0], go[0], go[1]}) {
        close(file);
    }
}

TEST_F(LmdbStoreTest, AStoreOpenedForReadingIsNotWritten)
{
    {
        const auto store = Create();
        Put(*store, kKey, L"n", DwordBytes(1));
    }
    const auto before = ReadFile(DataFile());
    const auto store = Open(Address(), {.readOnly = true});
    Error error;
    EXPECT_FALSE(store->Begin(Access::Write, error));
    EXPECT_EQ(error.kind, ErrorKind::AccessDenied);
    EXPECT_EQ(Get(*store, kKey, L"n"), "4:01000000");
    EXPECT_EQ(ReadFile(DataFile()), before);
}

TEST_F(LmdbStoreTest, NoticesThatItsFileIsGoneOrAnother)
{
    const auto store = Create();
    Put(*store, kKey, L"n", DwordBytes(1));
    fs::rename(Directory(), temporary.File("moved"));
    Error error;
    // A writer looks before each transaction, a reader now and then.
    for (const auto access : {Access::Write, Access::Read}) {
        EXPECT_FALSE(store->Begin(access, error));
        EXPECT_EQ(error.kind, ErrorKind::NotFound);
    }
    // A store put in its place by another process is read.
    EXPECT_EQ(InChild([&] {
                  Error failure;
                  const auto fresh = OpenLmdb(Directory(), {.create = true}, failure);
                  Put(*fresh, kKey, L"n", DwordBytes(2));
                  return 0;
              }),
              0);
    EXPECT_EQ(Get(*store, kKey, L"n"), "4:02000000");
    Put(*store, kKey, L"n", DwordBytes(3));
    EXPECT_EQ(Get(*store, kKey, L"n"), "4:03000000");
}

TEST_F(LmdbStoreTest, SeveralStoresOfAProcessShareTheDirectory)
{
    const auto first = Create();
    fs::create_directory_symlink(Directory(), temporary.File("link"));
    auto second = Open("lmdb:" + temporary.File("link"));
    Put(*second, kKey, L"n", DwordBytes(1));
    EXPECT_EQ(Get(*first, kKey, L"n"), "4:01000000");
    second.reset();
    Put(*first, kKey, L"n", DwordBytes(2)); // the other's end took no lock from it
    EXPECT_EQ(Get(*first, kKey, L"n"), "4:02000000");
}

} // namespace wqspcfg::test
