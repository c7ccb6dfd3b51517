// What every store promises.
#include "support/StoreTesting.h"
#include "wqspcfg/platform/store/regfile/RegFile.h"

#include <algorithm>
#include <functional>
#include <map>
#include <random>
#include <sstream>
#include <thread>

namespace wqspcfg::test {

namespace {

constexpr std::wstring_view kRoot = L"Software\\WQSpCfgTests";

struct StoreKind
{
    std::string name;
    Hive hive;
    std::function<std::shared_ptr<Store>(const TemporaryDirectory&)> open;
    bool rollsBack;
};

void PrintTo(const StoreKind& kind, std::ostream* out)
{
    *out << kind.name;
}

std::vector<StoreKind> StoreKinds()
{
    std::vector<StoreKind> kinds;
    kinds.push_back({"memory", Hive::LocalMachine, [](const TemporaryDirectory&) { return Open("memory:"); }, true});
#if defined(_WIN32)
    kinds.push_back(
        {"windowsUser", Hive::CurrentUser, [](const TemporaryDirectory&) { return Open("windows:"); }, false});
    kinds.push_back(
        {"windows32", Hive::LocalMachine, [](const TemporaryDirectory&) { return Open("windows:32"); }, false});
    kinds.push_back(
        {"windows64", Hive::LocalMachine, [](const TemporaryDirectory&) { return Open("windows:64"); }, false});
#else
    kinds.push_back(
        {"lmdb", Hive::LocalMachine,
         [](const TemporaryDirectory& directory) { return Open("lmdb:" + directory.File("store"), {.create = true}); },
         true});
#endif
    return kinds;
}

class StoreContract : public testing::TestWithParam<StoreKind>
{
  protected:
    void SetUp() override
    {
        store = GetParam().open(directory);
        ASSERT_TRUE(store);
        TearDown();
    }

    void TearDown() override
    {
        if (store) {
            const auto transaction = test::Begin(*store, Access::Write);
            ASSERT_TRUE(transaction);
            EXPECT_NE(transaction->DeleteKey(hive, kRoot), Outcome::Failed) << transaction->LastError().message;
            EXPECT_EQ(transaction->Commit(false), Outcome::Found);
        }
    }

    static std::wstring At(std::wstring_view path) { return std::wstring(kRoot) + L'\\' + std::wstring(path); }
    void Put(std::wstring_view path, std::wstring_view name, const Bytes& data, ValueType type = ValueType::Dword)
    {
        test::Put(*store, At(path), name, data, type, hive);
    }
    std::string Get(std::wstring_view path, std::wstring_view name) { return test::Get(*store, At(path), name, hive); }

    TemporaryDirectory directory;
    std::shared_ptr<Store> store;
    Hive hive = GetParam().hive;
};

INSTANTIATE_TEST_SUITE_P(Stores, StoreContract, testing::ValuesIn(StoreKinds()),
                         [](const auto& instance) { return instance.param.name; });

} // namespace

TEST_P(StoreContract, FindsNamesWithoutRegardToCaseAndKeepsTheFirstSpelling)
{
    Put(L"Comm\u00e9\u0434\u4e2d", L"BaudRate\u03c3", DwordBytes(1));
    Put(L"COMM\u00c9\u0414\u4e2d", L"BAUDRATE\u03a3", DwordBytes(2));

    EXPECT_EQ(Get(L"comm\u00c9\u0434\u4e2d", L"baudrate\u03c3"), "4:02000000");
    EXPECT_EQ(Subkeys(*store, kRoot, hive), std::vector<std::wstring>{L"Comm\u00e9\u0434\u4e2d"});
    EXPECT_EQ(ValueNames(*store, At(L"Comm\u00e9\u0434\u4e2d"), hive), std::vector<std::wstring>{L"BaudRate\u03c3"});
    // One-way upper-case forms are names of their own.
    Put(L"dotless", L"\u0131", DwordBytes(3));
    EXPECT_EQ(Get(L"dotless", L"I"), "missing");
}

TEST_P(StoreContract, KeepsEveryTypeAndEveryByte)
{
    const std::vector<std::pair<ValueType, Bytes>> values = {
        {ValueType::None, {}},
        {ValueType::None, ToBytes("ab")},
        {ValueType::Sz, {}},
        {ValueType::Sz, SzBytes(L"\u65e0\u4eba \U0001F4B6")},
        {ValueType::Sz, ToBytes(std::string_view("a\0b", 3))},                     // odd length, no terminator
        {ValueType::Sz, ToBytes(std::string_view("a\0b\0", 4))},                   // no terminator
        {ValueType::Sz, ToBytes(std::string_view("\x00\xd8\x01\x00\x00\x00", 6))}, // a lone surrogate
        {ValueType::ExpandSz, SzBytes(L"%SystemRoot%\\x")},
        {ValueType::Binary, ToBytes(std::string(100000, '\xA5'))},
        {ValueType::Dword, DwordBytes(0xFFFFFFFF)},
        {ValueType::Dword, ToBytes("abc")}, // a dword of another length
        {ValueType::DwordBigEndian, ToBytes("wxyz")},
        {ValueType::Link, SzBytes(L"target")},
        {ValueType::MultiSz, ToBytes(std::string_view("a\0\0\0b\0\0\0\0\0", 10))},
        {ValueType::Qword, ToBytes("12345678")},
        {static_cast<ValueType>(0xFFFF0001), ToBytes("odd type")},
    };
    for (std::size_t i = 0; i < values.size(); ++i) {
        const auto& [type, data] = values[i];
        Put(L"types", std::to_wstring(i), data, type);
        const auto transaction = test::Begin(*store, Access::Read);
        ValueView value;
        ASSERT_EQ(transaction->QueryAt(hive, At(L"types"), std::to_wstring(i), value), Outcome::Found) << i;
        EXPECT_EQ(value.type, type) << i;
        EXPECT_EQ(Bytes(value.data.begin(), value.data.end()), data) << i;
    }
    // A value changes its type and length in place.
    Put(L"types", L"14", DwordBytes(7), ValueType::Dword);
    EXPECT_EQ(Get(L"types", L"14"), "4:07000000");
}

TEST_P(StoreContract, TellsMissingKeysAndValuesApartFromEmptyOnes)
{
    Put(L"a", L"", SzBytes(L""), ValueType::Sz);
    const auto transaction = test::Begin(*store, Access::Read);
    KeyId key = 0;
    ValueView value;
    EXPECT_EQ(transaction->OpenKey(hive, At(L"b"), key), Outcome::Missing);
    EXPECT_EQ(transaction->OpenKey(hive, At(L"a\\b\\c"), key), Outcome::Missing);
    EXPECT_EQ(transaction->QueryAt(hive, At(L"a\\b"), L"", value), Outcome::Missing);
    ASSERT_EQ(transaction->OpenKey(hive, At(L"\\a\\\\"), key), Outcome::Found); // empty components do not count
    EXPECT_EQ(transaction->Query(key, L"x", value), Outcome::Missing);
    ASSERT_EQ(transaction->Query(key, L"", value), Outcome::Found); // the default value
    EXPECT_EQ(value.data.size(), 2U);
    EXPECT_EQ(transaction->EnumKeys(key, [](std::wstring_view) { return ADD_FAILURE(), false; }), Outcome::Found);
    EXPECT_EQ(transaction->OpenKey(hive, L"", key), Outcome::Found); // the hive itself
    // No name of this length can exist.
    EXPECT_NE(transaction->QueryAt(hive, At(L"a"), std::wstring(20000, L'x'), value), Outcome::Found);
}

TEST_P(StoreContract, EnumeratesInCaseInsensitiveOrder)
{
    // In UTF-16 a character beyond U+FFFF comes before U+F900.
    const std::vector<std::wstring> ordered = {L"_1",  L"a",      L"A B",    L"b",          L"C10",   L"c2",
                                               L"Z_9", L"\u00e4", L"\u4e2d", L"\U0001F4B6", L"\uF900"};
    auto expected = ordered;
    std::sort(expected.begin(), expected.end(), [](const std::wstring& left, const std::wstring& right) {
        std::u16string a;
        std::u16string b;
        AppendUtf16(left, a);
        AppendUtf16(right, b);
        const auto upper = [](std::u16string& text) {
            for (auto& ch : text) {
                ch = ch >= u'a' && ch <= u'z' ? static_cast<char16_t>(ch - 32) : (ch == u'\u00e4' ? u'\u00c4' : ch);
            }
        };
        upper(a);
        upper(b);
        return a < b;
    });
    for (auto name = ordered.rbegin(); name != ordered.rend(); ++name) {
        Put(L"order\\" + *name, L"x", DwordBytes(1));
        Put(L"order", *name, DwordBytes(1));
        Put(L"order\\" + *name + L"\\below", L"x", DwordBytes(1));
    }
    EXPECT_EQ(Subkeys(*store, At(L"order"), hive), expected);
    EXPECT_EQ(ValueNames(*store, At(L"order"), hive), expected);

    // The visitor ends it.
    const auto transaction = test::Begin(*store, Access::Read);
    KeyId key = 0;
    ASSERT_EQ(transaction->OpenKey(hive, At(L"order"), key), Outcome::Found);
    int seen = 0;
    EXPECT_EQ(transaction->EnumKeys(key, [&seen](std::wstring_view) { return ++seen < 3; }), Outcome::Found);
    EXPECT_EQ(seen, 3);
}

// Names of every length that share beginnings of every length, on many pages, looked for near the last one and far from
// it, and among them names that differ in little and do not exist.
TEST_P(StoreContract, FindsEveryNameAmongItsLikes)
{
    std::mt19937 random(1);
    const auto below = [&random](std::size_t end) { return static_cast<std::size_t>(random() % end); };
    std::vector<std::wstring> paths;
    for (const auto* path : {L"A", L"A\\B", L"A\\B\\CCCCCCC", L"A B", L"AB", L"A\\B\\CCCCCCCC"}) {
        paths.push_back(At(path));
    }
    std::map<std::pair<std::size_t, std::wstring>, std::uint32_t> written;
    {
        const auto transaction = test::Begin(*store, Access::Write);
        std::vector<KeyId> keys(paths.size());
        for (std::size_t i = 0; i < paths.size(); ++i) {
            ASSERT_EQ(transaction->CreateKey(hive, paths[i], keys[i]), Outcome::Found);
        }
        std::wstring name;
        for (std::uint32_t n = 0; n < 1500; ++n) {
            name.resize(below(name.size() + 1));
            for (auto more = below(20); more > 0; --more) {
                name.push_back(L"AB \x00C9\xFF21"[below(5)]);
            }
            name.resize(std::min(name.size(), std::size_t{60}));
            const auto path = below(paths.size());
            ASSERT_EQ(transaction->SetValue(keys[path], name, {ValueType::Dword, DwordBytes(n)}), Outcome::Found);
            written[{path, name}] = n;
        }
        ASSERT_EQ(transaction->Commit(false), Outcome::Found);
    }
    const std::vector<std::pair<std::pair<std::size_t, std::wstring>, std::uint32_t>> all(written.begin(),
                                                                                          written.end());
    const auto transaction = test::Begin(*store, Access::Read);
    std::vector<KeyId> keys(paths.size());
    for (std::size_t i = 0; i < paths.size(); ++i) {
        ASSERT_EQ(transaction->NameKey(hive, paths[i], keys[i]), Outcome::Found);
    }
    std::size_t at = 0;
    for (int n = 0; n < 12000; ++n) {
        at = below(8) == 0 ? below(all.size()) : (at + below(4)) % all.size();
        auto [path, name] = all[at].first;
        switch (below(6)) {
        case 0:
            name.push_back(L'A');
            break;
        case 1:
            name.resize(name.size() - (name.empty() ? 0 : 1));
            break;
        case 2:
            path = below(paths.size());
            break;
        default:
            break;
        }
        const auto found = written.find({path, name});
        ValueView value;
        const auto outcome = below(2) == 0 ? transaction->Query(keys[path], name, value)
                                           : transaction->QueryAt(hive, paths[path], name, value);
        ASSERT_EQ(outcome, found != written.end() ? Outcome::Found : Outcome::Missing) << n;
        if (found != written.end()) {
            ASSERT_EQ(Bytes(value.data.begin(), value.data.end()), DwordBytes(found->second)) << n;
        }
    }
}

TEST_P(StoreContract, CreatesAndDeletesWholeBranches)
{
    Put(L"one\\two\\three", L"v", DwordBytes(1));
    Put(L"one\\two", L"v", DwordBytes(2));
    Put(L"one\\two!", L"v", DwordBytes(3)); // a neighbour whose name begins the same
    Put(L"one\\twofold", L"v", DwordBytes(4));

    const auto transaction = test::Begin(*store, Access::Write);
    KeyId inside = 0;
    ValueView value;
    ASSERT_EQ(transaction->OpenKey(hive, At(L"one\\two\\three"), inside), Outcome::Found);
    EXPECT_EQ(transaction->DeleteKey(hive, At(L"one\\absent")), Outcome::Missing);
    EXPECT_EQ(transaction->DeleteKey(hive, At(L"ONE\\TWO")), Outcome::Found);
    EXPECT_EQ(transaction->Query(inside, L"v", value), Outcome::Missing);
    EXPECT_EQ(transaction->SetValue(inside, L"v", {ValueType::Dword, DwordBytes(1)}), Outcome::Failed);
    EXPECT_EQ(transaction->LastError().kind, ErrorKind::NotFound);
    KeyId one = 0;
    ASSERT_EQ(transaction->OpenKey(hive, At(L"one"), one), Outcome::Found);
    EXPECT_EQ(transaction->DeleteValue(one, L"absent"), Outcome::Missing);
    EXPECT_EQ(transaction->DeleteKey(hive, L""), Outcome::Failed);
    ASSERT_EQ(transaction->Commit(true), Outcome::Found);

    EXPECT_EQ(Subkeys(*store, At(L"one"), hive), (std::vector<std::wstring>{L"two!", L"twofold"}));
    EXPECT_EQ(Get(L"one\\two\\three", L"v"), "missing");
    EXPECT_EQ(Get(L"one\\two!", L"v"), "4:03000000");
    // A key that is made again is empty.
    Put(L"one\\two", L"w", DwordBytes(5));
    EXPECT_EQ(Get(L"one\\two", L"v"), "missing");
    EXPECT_TRUE(Subkeys(*store, At(L"one\\two"), hive).empty());
}

TEST_P(StoreContract, SeesItsOwnWritesAndRollsBack)
{
    Put(L"t", L"v", DwordBytes(1));
    {
        const auto transaction = test::Begin(*store, Access::Write);
        KeyId key = 0;
        ValueView value;
        ASSERT_EQ(transaction->CreateKey(hive, At(L"t\\new"), key), Outcome::Found);
        ASSERT_EQ(transaction->SetValue(key, L"v", {ValueType::Dword, DwordBytes(2)}), Outcome::Found);
        ASSERT_EQ(transaction->Query(key, L"V", value), Outcome::Found);
        EXPECT_EQ(Bytes(value.data.begin(), value.data.end()), DwordBytes(2));
        ASSERT_EQ(transaction->DeleteValue(key, L"v"), Outcome::Found);
        EXPECT_EQ(transaction->Query(key, L"v", value), Outcome::Missing);
        ASSERT_EQ(transaction->OpenKey(hive, At(L"t"), key), Outcome::Found);
        ASSERT_EQ(transaction->SetValue(key, L"v", {ValueType::Dword, DwordBytes(3)}), Outcome::Found);
    }
    EXPECT_EQ(store->RollsBack(), GetParam().rollsBack);
    if (store->RollsBack()) {
        EXPECT_EQ(Get(L"t", L"v"), "4:01000000");
        EXPECT_TRUE(Subkeys(*store, At(L"t"), hive).empty());
    }
}

TEST_P(StoreContract, ReadersKeepTheStateThatTheyBeganWith)
{
    if (!store->RollsBack()) {
        GTEST_SKIP() << "the registry has no transactions";
    }
    for (std::uint32_t i = 0; i < 400; ++i) {
        Put(L"many", std::to_wstring(i), DwordBytes(1));
    }
    const auto reader = test::Begin(*store, Access::Read);
    KeyId key = 0;
    ASSERT_EQ(reader->OpenKey(hive, At(L"many"), key), Outcome::Found);
    std::thread writer([this] {
        const auto transaction = test::Begin(*store, Access::Write);
        KeyId own = 0;
        ASSERT_EQ(transaction->OpenKey(hive, At(L"many"), own), Outcome::Found);
        for (std::uint32_t i = 0; i < 400; i += 2) {
            ASSERT_EQ(transaction->SetValue(own, std::to_wstring(i), {ValueType::Dword, DwordBytes(2)}),
                      Outcome::Found);
            ASSERT_EQ(transaction->DeleteValue(own, std::to_wstring(i + 1)), Outcome::Found);
        }
        ASSERT_EQ(transaction->Commit(false), Outcome::Found);
    });
    writer.join();
    std::size_t seen = 0;
    EXPECT_EQ(reader->EnumValues(key,
                                 [&seen](std::wstring_view, const ValueView& value) {
                                     ++seen;
                                     EXPECT_EQ(Bytes(value.data.begin(), value.data.end()), DwordBytes(1));
                                     return true;
                                 }),
              Outcome::Found);
    EXPECT_EQ(seen, 400U);
    EXPECT_EQ(ValueNames(*store, At(L"many"), hive).size(), 200U);
    EXPECT_EQ(Get(L"many", L"0"), "4:02000000");
}

TEST_P(StoreContract, OneThreadWritesAtATime)
{
    if (!store->RollsBack()) {
        GTEST_SKIP() << "the registry has no transactions";
    }
    Put(L"count", L"n", DwordBytes(0));
    const auto count = [this] {
        for (int i = 0; i < 50; ++i) {
            const auto transaction = test::Begin(*store, Access::Write);
            ASSERT_TRUE(transaction);
            KeyId key = 0;
            ValueView value;
            ASSERT_EQ(transaction->OpenKey(hive, At(L"count"), key), Outcome::Found);
            ASSERT_EQ(transaction->Query(key, L"n", value), Outcome::Found);
            std::uint32_t number = 0;
            std::memcpy(&number, value.data.data(), 4);
            ASSERT_EQ(transaction->SetValue(key, L"n", {ValueType::Dword, DwordBytes(number + 1)}), Outcome::Found);
            ASSERT_EQ(transaction->Commit(false), Outcome::Found);
        }
    };
    std::thread first(count);
    std::thread second(count);
    first.join();
    second.join();
    EXPECT_EQ(Get(L"count", L"n"), "4:64000000");

    // A second write transaction of the same thread would wait for itself.
    const auto transaction = test::Begin(*store, Access::Write);
    Error error;
    EXPECT_FALSE(store->Begin(Access::Write, error));
    EXPECT_EQ(error.kind, ErrorKind::BadArgument);
}

TEST_P(StoreContract, RefusesWhatItCannotKeep)
{
    const auto transaction = test::Begin(*store, Access::Write);
    KeyId key = 0;
    ValueView value;
    const auto refused = [&](Outcome outcome, ErrorKind kind) {
        return outcome == Outcome::Failed && transaction->LastError().kind == kind;
    };
    const std::wstring nul(L"a\0b", 3);
    ASSERT_EQ(transaction->CreateKey(hive, kRoot, key), Outcome::Found);
    EXPECT_TRUE(refused(transaction->CreateKey(hive, At(nul), key), ErrorKind::BadText));
    EXPECT_TRUE(refused(transaction->OpenKey(hive, At(nul), key), ErrorKind::BadText));
    EXPECT_TRUE(refused(transaction->Query(key, nul, value), ErrorKind::BadText));
    EXPECT_TRUE(refused(transaction->SetValue(key, nul, {ValueType::Dword, DwordBytes(1)}), ErrorKind::BadText));
    EXPECT_TRUE(refused(transaction->CreateKey(hive, At(std::wstring(256, L'k')), key), ErrorKind::TooLong));
    EXPECT_NE(transaction->LastError().message.find("kkk"), std::string::npos) << transaction->LastError().message;
    EXPECT_TRUE(refused(transaction->SetValue(key, std::wstring(16384, L'v'), {ValueType::Dword, DwordBytes(1)}),
                        ErrorKind::TooLong));
    KeyId other = 0;
    for (const auto* name : {L"two\nlines", L"return\r", L"escape\x1B[2J", L"deleted\x7F", L"next\u0085line"}) {
        EXPECT_TRUE(refused(transaction->CreateKey(hive, At(name), other), ErrorKind::BadText)) << name;
        EXPECT_EQ(transaction->OpenKey(hive, At(name), other), Outcome::Missing);
    }
    std::wstring deep;
    for (int level = 0; level < 100000; ++level) {
        deep += L"\\k";
    }
    EXPECT_TRUE(refused(transaction->CreateKey(hive, At(deep), other), ErrorKind::TooLong));
    EXPECT_LT(transaction->LastError().message.size(), 2000U);
    // What was refused leaves the transaction usable.
    EXPECT_EQ(transaction->SetValue(key, L"good", {ValueType::Dword, DwordBytes(1)}), Outcome::Found);
    EXPECT_EQ(transaction->Commit(false), Outcome::Found);
    EXPECT_EQ(ValueNames(*store, kRoot, hive), std::vector<std::wstring>{L"good"});

    EXPECT_TRUE(refused(transaction->OpenKey(hive, kRoot, key), ErrorKind::BadArgument)); // it is over
    const auto reader = test::Begin(*store, Access::Read);
    EXPECT_EQ(reader->CreateKey(hive, At(L"x"), key), Outcome::Failed);
    EXPECT_EQ(reader->Commit(false), Outcome::Failed);
}

TEST_P(StoreContract, KeepsLoneSurrogatesInNames)
{
    const std::wstring high(1, static_cast<wchar_t>(0xD83D));
    const std::wstring low(1, static_cast<wchar_t>(0xDCB6));
    Put(L"s\\" + high, low, DwordBytes(1));
    Put(L"s\\\U0001F4B6", L"\U0001F4B6", DwordBytes(2));
    EXPECT_EQ(Subkeys(*store, At(L"s"), hive), (std::vector<std::wstring>{high, L"\U0001F4B6"}));
    EXPECT_EQ(Get(L"s\\" + high, low), "4:01000000");
    if (sizeof(wchar_t) > 2) {
        const auto transaction = test::Begin(*store, Access::Write);
        KeyId key = 0;
        EXPECT_EQ(transaction->CreateKey(hive, At(high + low), key), Outcome::Failed);
        EXPECT_EQ(transaction->LastError().kind, ErrorKind::BadText);
    }
}

TEST_P(StoreContract, ExportsAndImportsEverything)
{
    Put(L"Terminal", L"", SzBytes(L"default"), ValueType::Sz);
    Put(L"Terminal", L"quo\"te\\d", SzBytes(L"C:\\Program Files\\\"x\""), ValueType::Sz);
    Put(L"Terminal", L"broken", ToBytes(std::string_view("\x3d\xd8\x41\x00\x00", 5)), ValueType::Sz);
    Put(L"Terminal", L"lines", SzBytes(L"one\r\ntwo"), ValueType::Sz);
    Put(L"Terminal", L"twice", SzBytes(std::wstring_view(L"a\0b", 3)), ValueType::Sz);
    Put(L"Terminal", L"short", ToBytes("ab"), ValueType::Dword);
    Put(L"Terminal", L"long", ToBytes(std::string(1000, '\x7f')), ValueType::Binary);
    Put(L"Terminal", L"odd", ToBytes("x"), static_cast<ValueType>(0xABCD));
    Put(L"Terminal\\\u4e2d\u6587 [1]", L"\U0001F4B6", SzBytes(L"\u4e2d\U0001F4B6"), ValueType::Sz);
    Put(L"Terminal\\empty", L"x", DwordBytes(1));

    const auto before = Dump(*store, At(L"Terminal"), hive);
    Error error;
    std::stringstream file;
    ASSERT_TRUE(ExportRegFile(*store, hive, At(L"Terminal\\"), file, error)) << error.message;
    {
        const auto transaction = test::Begin(*store, Access::Write);
        ASSERT_EQ(transaction->DeleteKey(hive, At(L"Terminal")), Outcome::Found);
        ASSERT_EQ(transaction->Commit(false), Outcome::Found);
    }
    ImportCounts counts;
    ASSERT_TRUE(ImportRegFile(*store, file, "export", counts, error)) << error.message;
    EXPECT_EQ(counts.values, 10U);
    EXPECT_EQ(Dump(*store, At(L"Terminal"), hive), before);

    // And in place.
    WriteFile(directory.File("export.reg"), file.str());
    const auto inPlace = Open("reg:" + directory.File("export.reg"));
    EXPECT_EQ(Dump(*inPlace, At(L"Terminal"), hive), before);
    EXPECT_FALSE(inPlace->Begin(Access::Write, error));
    EXPECT_EQ(error.kind, ErrorKind::AccessDenied);
}

TEST_P(StoreContract, ABadExportImportsNothing)
{
    Put(L"kept", L"v", DwordBytes(1));
    const auto before = Dump(*store, kRoot, hive);
    std::string root;
    AppendUtf8(kRoot, root);
    const std::string name = hive == Hive::CurrentUser ? "HKCU\\" : "HKLM\\";
    std::stringstream file("Windows Registry Editor Version 5.00\n\n[" + name + root + "\\kept]\n\"v\"=dword:2\n[-" +
                           name + root + "\\kept]\n[" + name + root + "\\new]\n\"w\"=dword:xyz\n");
    ImportCounts counts;
    Error error;
    EXPECT_FALSE(ImportRegFile(*store, file, "terminal.reg", counts, error));
    EXPECT_NE(error.message.find("terminal.reg:7: "), std::string::npos) << error.message;
    EXPECT_EQ(Dump(*store, kRoot, hive), before);
}

} // namespace wqspcfg::test
