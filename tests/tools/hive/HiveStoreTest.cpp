#include "wqspcfg/tools/hive/HiveStore.h"

#include "HiveTesting.h"
#include "wqspcfg/platform/store/regfile/RegFile.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <sys/stat.h>
#include <thread>

namespace wqspcfg::test {

namespace {

using ::testing::HasSubstr;

std::shared_ptr<HiveStore> OpenHive(const std::string& path, Error& error, bool view32 = false)
{
    error = {};
    return HiveStore::Open("hive:" + path, path, view32, error);
}

std::shared_ptr<HiveStore> OpenHive(const std::string& path, bool view32 = false)
{
    Error error;
    auto store = OpenHive(path, error, view32);
    EXPECT_TRUE(store) << error.message;
    return store;
}

// Why a hive is refused.
std::string Refusal(const std::string& path)
{
    Error error;
    EXPECT_FALSE(OpenHive(path, error));
    return error.message;
}

std::string Notes(const HiveStore& store)
{
    std::string text;
    for (const auto& note : store.Notes()) {
        text += note + '\n';
    }
    return text;
}

// All below the root of the hive, each value, up to the first failure, which is appended.
std::string ReadAll(Store& store)
{
    const auto transaction = Begin(store, Access::Read);
    std::string text;
    std::vector<std::wstring> paths{L"SOFTWARE"};
    while (!paths.empty()) {
        const auto path = paths.back();
        paths.pop_back();
        KeyId key = 0;
        auto outcome = transaction->OpenKey(Hive::LocalMachine, path, key);
        if (outcome == Outcome::Found) {
            text += Utf8ForMessage(path) + '\n';
            outcome = transaction->EnumValues(key, [&text](std::wstring_view name, const ValueView& value) {
                text += Utf8ForMessage(name) + '=' + std::to_string(value.data.size()) + '\n';
                return true;
            });
        }
        if (outcome == Outcome::Found) {
            outcome = transaction->EnumKeys(key, [&](std::wstring_view name) {
                paths.push_back(path + L'\\' + std::wstring(name));
                return true;
            });
            transaction->CloseKey(key);
        }
        if (outcome != Outcome::Found) {
            EXPECT_EQ(outcome, Outcome::Failed);
            EXPECT_NE(transaction->LastError().message, "");
            return text + transaction->LastError().message;
        }
    }
    return text;
}

class HiveStoreTest : public ::testing::Test
{
  protected:
    std::string File(std::string_view name) const { return directory.File(name); }
    // A directory below the test's own.
    std::string Folder(const std::string& name) const
    {
        std::filesystem::create_directories(directory.Path() / name);
        return File(name);
    }

    TemporaryDirectory directory;
};

} // namespace

TEST_F(HiveStoreTest, GivesWhatAnyStoreWouldGive)
{
    const auto memory = Open("memory:");
    const std::wstring types = L"SOFTWARE\\Types";
    Put(*memory, types, L"", SzBytes(L"default"), ValueType::Sz);
    Put(*memory, types, L"none", {}, ValueType::None);
    Put(*memory, types, L"empty", {}, ValueType::Sz);
    Put(*memory, types, L"text", SzBytes(L"\u65e0\u4eba \U0001F4B6"), ValueType::Sz);
    Put(*memory, types, L"odd", ToBytes(std::string_view("a\0b", 3)), ValueType::Sz);
    Put(*memory, types, L"inline", ToBytes("abcd"), ValueType::Binary);
    Put(*memory, types, L"short", ToBytes("ab"), ValueType::Dword);
    Put(*memory, types, L"expand", SzBytes(L"%SystemRoot%\\x"), ValueType::ExpandSz);
    Put(*memory, types, L"list", ToBytes(std::string_view("a\0\0\0\0\0", 6)), ValueType::MultiSz);
    Put(*memory, types, L"q", ToBytes("12345678"), ValueType::Qword);
    Put(*memory, types, L"big", DwordBytes(0x01020304), ValueType::DwordBigEndian);
    Put(*memory, types, L"unnamed type", ToBytes("odd type"), static_cast<ValueType>(0xFFFF0001));
    Put(*memory, types, L"\u00e9 Latin", DwordBytes(1));
    Put(*memory, types, L"\u4e2d Chinese", DwordBytes(2));
    for (int i = 0; i < 1500; ++i) {
        Put(*memory, L"SOFTWARE\\Many\\Key" + std::to_wstring(i * 7919 % 1500), L"n", DwordBytes(1));
    }
    Put(*memory, L"SOFTWARE\\\u00e9\u00c0\\\u4e2d\u6587", L"Caf\u00e9", DwordBytes(3));
    Put(*memory, L".DEFAULT\\XFS", L"n", DwordBytes(4), ValueType::Dword, Hive::Users);
    WriteHives(*memory, directory.Path());

    const auto store = OpenHive(directory.Path().string());
    EXPECT_EQ(Dump(*store, {}), Dump(*memory, {}));
    EXPECT_EQ(Dump(*store, {}, Hive::Users), Dump(*memory, {}, Hive::Users));
    EXPECT_EQ(Notes(*store), "");
    std::vector<std::string> dumps(3);
    {
        std::vector<std::jthread> threads;
        for (auto& dump : dumps) {
            threads.emplace_back([&store, &dump] { dump = Dump(*store, L"SOFTWARE\\Types"); });
        }
    }
    EXPECT_EQ(dumps, std::vector<std::string>(3, Dump(*memory, L"SOFTWARE\\Types")));
    // In any case, and with components that do not count.
    EXPECT_EQ(Get(*store, L"software\\\\\u00c9\u00e0\\\u4e2d\u6587\\", L"CAF\u00c9"), "4:03000000");
    EXPECT_EQ(Get(*store, L".default\\xfs", L"N", Hive::Users), "4:04000000");
    for (const auto* path : {L"SOFTWARE\\Man", L"SOFTWARE\\Many\\Key1500", L"SOFTWARE\\Types\\text", L"SYSTEM"}) {
        EXPECT_EQ(Get(*store, path, L"n"), "missing") << Utf8ForMessage(path);
    }
    EXPECT_EQ(Get(*store, L".DEFAULT\\XFS", L"n"), "missing") << "the other hive";

    // Several keys at once, and numbers used again.
    const auto transaction = Begin(*store, Access::Read);
    KeyId one = 0;
    KeyId two = 0;
    ValueView value;
    ASSERT_EQ(transaction->OpenKey(Hive::LocalMachine, types, one), Outcome::Found);
    ASSERT_EQ(transaction->OpenKey(Hive::Users, L".DEFAULT\\XFS", two), Outcome::Found);
    EXPECT_EQ(transaction->Query(one, L"short", value), Outcome::Found);
    transaction->CloseKey(one);
    ASSERT_EQ(transaction->OpenKey(Hive::LocalMachine, L"SOFTWARE\\Many\\Key3", one), Outcome::Found);
    EXPECT_EQ(transaction->Query(one, L"short", value), Outcome::Missing);
    EXPECT_EQ(transaction->Query(two, L"n", value), Outcome::Found);
    EXPECT_EQ(transaction->CreateKey(Hive::LocalMachine, types, one), Outcome::Failed);
    Error error;
    EXPECT_FALSE(store->Begin(Access::Write, error));
    EXPECT_EQ(error.kind, ErrorKind::AccessDenied);
}

TEST_F(HiveStoreTest, PutsBigDataTogether)
{
    const auto path = File("SOFTWARE");
    std::string data(3 * 16344 + 5, '\0');
    for (std::size_t i = 0; i < data.size(); ++i) {
        data[i] = static_cast<char>(i * 31 >> 3);
    }
    HiveWriter writer(path);
    const auto key = writer.AddKey(writer.Root(), "K");
    const SegmentedValue big(writer, key, data);
    writer.Commit();
    auto image = ReadFile(path);
    big.Link(image);
    WriteFile(path, image);

    const auto store = OpenHive(path);
    const auto transaction = Begin(*store, Access::Read);
    ValueView value;
    ASSERT_EQ(transaction->QueryAt(Hive::LocalMachine, L"SOFTWARE\\K", L"big", value), Outcome::Found)
        << transaction->LastError().message;
    EXPECT_EQ(Bytes(value.data.begin(), value.data.end()), ToBytes(data));

    // A segment less than the length needs, one that is nowhere, and a list that is.
    const auto damaged = [&](std::size_t at, std::uint32_t number) {
        auto bad = image;
        Put32(bad, at, number);
        WriteFile(path, bad);
        return Get(*OpenHive(path), L"SOFTWARE\\K", L"big");
    };
    EXPECT_THAT(damaged(big.HeadCell() + 4, Get32(image, big.HeadCell() + 4) - 0x10000), HasSubstr("segments"));
    EXPECT_THAT(damaged(big.ListCell() + 4, 0xFFFFFFF0), HasSubstr("the value \"big\": the segments"));
    EXPECT_THAT(damaged(big.HeadCell() + 8, 0x7FFFFFF8), HasSubstr("segments"));
}

TEST_F(HiveStoreTest, ReadsAnIndexOfLists)
{
    const auto path = File("SOFTWARE");
    HiveWriter writer(path);
    const auto key = writer.AddKey(writer.Root(), "K");
    std::vector<std::wstring> names;
    for (int i = 0; i < 9; ++i) {
        names.push_back(L"Key" + std::to_wstring(i));
        writer.AddKey(key, Utf8ForMessage(names.back()));
    }
    const SubkeyIndex index(writer, writer.AddKey(writer.Root(), "Spare"), names.size());
    writer.Commit();
    auto image = ReadFile(path);
    index.Link(image, key);
    WriteFile(path, image);
    EXPECT_EQ(Subkeys(*OpenHive(path), L"SOFTWARE\\K"), names);
    EXPECT_EQ(Get(*OpenHive(path), L"SOFTWARE\\K\\KEY8", L"n"), "missing");

    // One that leads to itself, and one that has a list twice.
    for (const auto& [item, message] :
         {std::pair{index.IndexCell(), "no list of subkeys"}, {index.PlainCell(), "fewer than the key tells"}}) {
        Put32(image, index.IndexCell() + hive::kListItems + 4, static_cast<std::uint32_t>(item - hive::kHeaderSize));
        WriteFile(path, image);
        EXPECT_THAT(ReadAll(*OpenHive(path)), HasSubstr(message));
    }
}

TEST_F(HiveStoreTest, FindsTheHivesOnADisk)
{
    const auto memory = Open("memory:");
    Put(*memory, L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\P", L"n", DwordBytes(1));
    Put(*memory, L".DEFAULT\\XFS\\LOGICAL_SERVICES\\L", L"n", DwordBytes(2), ValueType::Dword, Hive::Users);
    const std::filesystem::path config = Folder("disk/WINDOWS/system32/Config");
    WriteHives(*memory, config);
    std::filesystem::rename(config / "SOFTWARE", config / "software");
    std::filesystem::create_directory(directory.Path() / "disk/Software");
    const std::wstring provider = L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\P";
    const std::wstring service = L".DEFAULT\\XFS\\LOGICAL_SERVICES\\L";
    for (const auto* from : {"disk", "disk/", "disk/WINDOWS", "disk/WINDOWS/system32", "disk/WINDOWS/system32/Config",
                             "Disk/windows/System32", "disk/windows//SYSTEM32/config/"}) {
        const auto store = OpenHive(File(from));
        EXPECT_EQ(Get(*store, provider, L"n"), "4:01000000") << from;
        EXPECT_EQ(Get(*store, service, L"n", Hive::Users), "4:02000000") << from;
    }

    // A file by its name, or else by the name that Windows gave it, or else by its keys.
    auto store = OpenHive((config / "software").string());
    EXPECT_EQ(Get(*store, provider, L"n"), "4:01000000");
    store = OpenHive((config / "SOFTWARE").string());
    EXPECT_EQ(Get(*store, provider, L"n"), "4:01000000");
    EXPECT_EQ(Subkeys(*store, L"", Hive::Users), std::vector<std::wstring>{});
    EXPECT_THAT(Notes(*store), HasSubstr("only the hive SOFTWARE is read; HKEY_USERS is empty"));
    auto image = ReadFile((config / "DEFAULT").string());
    WriteFile(File("t.hiv"), image);
    EXPECT_EQ(Get(*OpenHive(File("t.hiv")), service, L"n", Hive::Users), "4:02000000");
    for (std::size_t i = 0; const auto ch : std::string_view("\\config\\SOFTWARE")) {
        image[hive::kFileName + 2 * i++] = ch;
    }
    SealHeader(image);
    WriteFile(File("t.hiv"), image);
    EXPECT_EQ(Subkeys(*OpenHive(File("t.hiv")), L""), std::vector<std::wstring>{L"SOFTWARE"});
    WriteFile(File("SAM"), MinimalHive());
    EXPECT_THAT(Refusal(File("SAM")), HasSubstr("nothing tells whether"));

    std::filesystem::remove(config / "DEFAULT");
    EXPECT_THAT(Notes(*OpenHive(File("disk"))), HasSubstr("HKEY_USERS is empty"));
    EXPECT_THAT(Refusal(Folder("none")), HasSubstr("there is no registry hive"));
    EXPECT_THAT(Refusal(File("absent")), HasSubstr("absent: No such file"));
    std::filesystem::copy(config / "software", config / "Software");
    EXPECT_THAT(Refusal(File("disk")), HasSubstr("give the one to be read"));
}

TEST_F(HiveStoreTest, FollowsNoLinkOfTheDiskAndWaitsForNoPipe)
{
    WriteFile(File("real"), MinimalHive());
    const std::filesystem::path disk = Folder("disk");
    std::filesystem::create_symlink(File("real"), disk / "SOFTWARE");
    EXPECT_THAT(Refusal(disk), HasSubstr("SOFTWARE: it is a link"));
    std::filesystem::remove(disk / "SOFTWARE");
    ASSERT_EQ(mkfifo((disk / "SOFTWARE").c_str(), 0600), 0);
    EXPECT_THAT(Refusal(disk), HasSubstr("no regular file"));
    std::filesystem::remove(disk / "SOFTWARE");
    std::filesystem::create_directory(disk / "SOFTWARE");
    EXPECT_THAT(Refusal(disk), HasSubstr("no regular file"));
    std::filesystem::remove(disk / "SOFTWARE");
    std::filesystem::create_directory_symlink("/", disk / "Windows");
    EXPECT_THAT(Refusal(disk), HasSubstr("Windows: it is a link"));
}

TEST_F(HiveStoreTest, ShowsTheViewsOf32And64BitPrograms)
{
    const auto memory = Open("memory:");
    Put(*memory, L"SOFTWARE\\Wow6432Node\\XFS\\Dev", L"n", DwordBytes(0x32));
    Put(*memory, L".DEFAULT\\XFS", L"n", DwordBytes(1), ValueType::Dword, Hive::Users);
    WriteHives(*memory, directory.Path());
    const auto path = directory.Path().string();
    EXPECT_THAT(Refusal(path), HasSubstr("give --view32"));
    EXPECT_EQ(Get(*OpenHive(path, true), L"software\\xfs\\DEV", L"n"), "4:32000000");

    Put(*memory, L"SOFTWARE\\XFS\\Dev", L"n", DwordBytes(0x64));
    WriteHives(*memory, directory.Path());
    EXPECT_EQ(Get(*OpenHive(path, true), L"SOFTWARE\\XFS\\Dev", L"n"), "4:32000000");
    EXPECT_EQ(Get(*OpenHive(path), L"SOFTWARE\\XFS\\Dev", L"n"), "4:64000000");

    // Not only the keys of service providers.
    Put(*memory, L"SOFTWARE\\WOW6432Node\\TARNO\\Driver", L"n", DwordBytes(0x32));
    Put(*memory, L"SOFTWARE\\TARNO\\Driver", L"n", DwordBytes(0x64));
    WriteHives(*memory, directory.Path());
    EXPECT_EQ(Get(*OpenHive(path, true), L"SOFTWARE\\TARNO\\Driver", L"n"), "4:32000000");
}

TEST_F(HiveStoreTest, TellsOfAWriteThatWindowsDidNotFinish)
{
    const auto path = File("SOFTWARE");
    auto image = MinimalHive();
    Put32(image, hive::kSequence1, 7);
    Put32(image, hive::kSequence2, 7);
    SealHeader(image);
    // A log in the old form, and one whose second entry has that sequence number.
    const auto dirt = [](std::uint32_t sequence) {
        std::string log = MinimalHive().substr(0, 512) + "DIRT";
        Put32(log, hive::kSequence1, sequence);
        return log + std::string(100, '\0');
    };
    const auto entries = [](std::uint32_t sequence) {
        std::string log(3 * 512, '\0');
        log.replace(0, 4, "regf");
        for (std::uint32_t i = 0; i < 2; ++i) {
            const auto at = 512 + i * 512;
            log.replace(at, 4, "HvLE");
            Put32(log, at + 4, 512);
            Put32(log, at + 12, sequence - 1 + i);
        }
        return log;
    };
    const auto told = [&] {
        WriteFile(path, image);
        return Notes(*OpenHive(path));
    };
    WriteFile(File("SOFTWARE.LOG1"), entries(7));
    WriteFile(File("software.log"), dirt(7));
    EXPECT_THAT(told(), Not(HasSubstr("did not finish"))) << "old changes are in every log";
    WriteFile(File("software.log"), dirt(8));
    EXPECT_THAT(told(), HasSubstr("did not finish writing to this hive. Its last changes are in " +
                                  File("software.log") + " and are not merged"));
    WriteFile(File("SOFTWARE.LOG2"), entries(8));
    EXPECT_THAT(told(), HasSubstr("software.log and " + File("SOFTWARE.LOG2")));
    for (const auto* log : {"software.log", "SOFTWARE.LOG1", "SOFTWARE.LOG2"}) {
        std::filesystem::remove(File(log));
    }
    Put32(image, hive::kSequence1, 8);
    SealHeader(image);
    EXPECT_THAT(told(), HasSubstr("none of its transaction logs"));
    // An entry that leads to itself.
    auto log = entries(6);
    Put32(log, 512 + 4, 0);
    WriteFile(File("SOFTWARE.LOG1"), log);
    EXPECT_THAT(told(), HasSubstr("none of its transaction logs"));
    std::filesystem::remove(File("SOFTWARE.LOG1"));
    std::filesystem::create_symlink(path, File("SOFTWARE.LOG1"));
    EXPECT_THAT(told(), HasSubstr("whether this log holds changes is not known"));
}

TEST_F(HiveStoreTest, NamesWhatIsWrong)
{
    const auto path = File("SOFTWARE");
    HiveWriter writer(path);
    const auto key = writer.AddKey(writer.Root(), "Key");
    const auto child = writer.AddKey(key, "Child");
    writer.AddKey(key, "Sister");
    const auto value = writer.SetValues(key, {{"Value", ValueType::Binary, ToBytes("0123456789")}}).front();
    const auto root = writer.Root();
    writer.Commit();
    const auto sound = ReadFile(path);
    EXPECT_EQ(ReadAll(*OpenHive(path)),
              "SOFTWARE\nSOFTWARE\\Key\nValue=10\nSOFTWARE\\Key\\Sister\nSOFTWARE\\Key\\Child\n");

    const auto list = Get32(sound, key + hive::kKeySubkeyList) + hive::kHeaderSize;
    const auto number = [](std::size_t cell) { return static_cast<std::uint32_t>(cell - hive::kHeaderSize); };
    using Damage = std::function<void(std::string&)>;
    const auto put = [](std::size_t at, std::uint32_t what) -> Damage {
        return [at, what](std::string& image) { Put32(image, at, what); };
    };
    const std::pair<Damage, const char*> damages[] = {
        {put(key + hive::kKeySubkeyCount, 3), "fewer than the key tells"},
        {put(key + hive::kKeySubkeyCount, 1), "more than the key tells"},
        {put(key + hive::kKeySubkeyCount, 0xFFFFFFFF), "fewer than the key tells"},
        {put(key + hive::kKeySubkeyList, 0xFFFFFFFF), "no list of subkeys"},
        {put(key + hive::kKeySubkeyList, number(key)), "no list of subkeys"},
        {put(list + hive::kListItems, number(root)), "belongs to another key"},
        {put(list + hive::kListItems, number(key)), "belongs to another key"},
        {put(child + hive::kKeyParent, number(child)), "belongs to another key"},
        {put(list + hive::kListItems, 0x7FFFFFF8), "no key where one should be"},
        {put(list + hive::kListItems, Get32(sound, list + hive::kListItems + 8)), "a name stands twice"},
        {[list](std::string& image) { image.replace(list + 4, 2, "ri"); }, "no list of subkeys"},
        {[list](std::string& image) { image[list + hive::kListCount + 1] = '\x7F'; }, "longer than its place"},
        {[child](std::string& image) { image[child + hive::kKeyName] = '\\'; }, "impossible name"},
        {[child](std::string& image) { image[child + hive::kKeyNameLength + 1] = '\x7F'; }, "impossible length"},
        {put(key + hive::kKeyValueCount, 0x40000001), "longer than its place"},
        {put(key + hive::kKeyValueList, number(value)), "no value where one should be"},
        {put(value + hive::kValueDataLength, 0x7FFFFFFF), "the value \"Value\": a value is longer than its place"},
        {put(value + hive::kValueDataLength, 0x80000005), "the value \"Value\": a value has an impossible length"},
        {put(value + hive::kValueData, 0x80000000), "longer than its place"},
    };
    for (const auto& [damage, message] : damages) {
        auto image = sound;
        damage(image);
        WriteFile(path, image);
        EXPECT_THAT(ReadAll(*OpenHive(path)),
                    testing::AllOf(HasSubstr(path + ": the key HKEY_LOCAL_MACHINE\\SOFTWARE"), HasSubstr(message)));
    }

    const auto header = [&](std::size_t at, std::uint32_t what) {
        auto image = sound;
        Put32(image, at, what);
        SealHeader(image);
        WriteFile(path, image);
        return Refusal(path);
    };
    EXPECT_THAT(header(0, 0), HasSubstr("it is no registry hive"));
    EXPECT_THAT(header(28, 6), HasSubstr("transaction log"));
    EXPECT_THAT(header(20, 2), HasSubstr("format"));
    EXPECT_THAT(header(hive::kRootCell, 0x7FFFFFF8), HasSubstr("no key where"));
    EXPECT_THAT(header(hive::kContentSize, 0x7FFFF000), HasSubstr("shorter than its header tells"));
    EXPECT_THAT(header(hive::kContentSize, 0xFFFFF000), HasSubstr("impossible size"));
    auto image = sound;
    image[hive::kSequence1] = 9;
    WriteFile(path, image);
    EXPECT_THAT(Refusal(path), HasSubstr("check sum"));
    for (const std::size_t size : {std::size_t{0}, std::size_t{100}, hive::kHeaderSize, sound.size() - 1}) {
        WriteFile(path, sound.substr(0, size));
        EXPECT_THAT(Refusal(path), HasSubstr("short")) << size;
    }
}

// A file with any byte changed is refused, or read to an end; what an error keeps from being read is named.
TEST_F(HiveStoreTest, AnyDamageComesToAnEnd)
{
    const auto path = File("SOFTWARE");
    HiveWriter writer(path);
    const auto key = writer.AddKey(writer.Root(), "K");
    writer.AddKey(key, "A\xc3\xa9");
    writer.AddKey(key, "\xe4\xb8\xad");
    writer.SetValues(key, {{"V", ValueType::Dword, DwordBytes(1)}, {"W", ValueType::Sz, SzBytes(L"some text")}});
    writer.Commit();
    const auto sound = ReadFile(path);
    const auto used = sound.find_last_not_of('\0') + 1;
    int refused = 0;
    int failed = 0;
    for (auto at = std::size_t{0}; at < used; at += at + 1 == 512 ? hive::kHeaderSize - 511 : 1) {
        for (const int change : {0x01, 0x80}) {
            auto image = sound;
            image[at] = static_cast<char>(image[at] ^ change);
            if (at < hive::kCheckSum) {
                SealHeader(image);
            }
            // In place: a file that is cut first goes to the disk at once.
            std::fstream(path, std::ios::in | std::ios::out | std::ios::binary) << image;
            Error error;
            if (const auto store = OpenHive(path, error)) {
                failed += ReadAll(*store).find("HKEY_LOCAL_MACHINE") != std::string::npos ? 1 : 0;
            } else {
                EXPECT_THAT(error.message, HasSubstr(path));
                ++refused;
            }
        }
    }
    EXPECT_GT(refused, 100);
    EXPECT_GT(failed, 100);
}

} // namespace wqspcfg::test
