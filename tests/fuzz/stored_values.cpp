// Values of any type and any bytes: a query takes those of its type, as they are, and leaves its output alone
// otherwise. Records as a store keeps them: what is written is what is read.
#include "fuzz/Fuzzing.h"
#include "wqspcfg/core/RegKeyEx.h"
#include "wqspcfg/platform/store/KeyHandle.h"
#include "wqspcfg/platform/store/Record.h"
#include "wqspcfg/platform/store/RegistryValue.h"
#include "wqspcfg/platform/store/Session.h"

#include <optional>

using namespace wqspcfg;
using namespace wqspcfg::test;

namespace {

constexpr wchar_t kKey[] = L"SOFTWARE\\XFS\\K";
constexpr wchar_t kUntouched[] = L"untouched";
constexpr DWORD kUntouchedNumber = 0xA5A5A5A5;

std::optional<DWORD> ExpectedNumber(ValueType type, std::string_view bytes)
{
    if (type != ValueType::Dword || bytes.size() != 4) {
        return std::nullopt;
    }
    DWORD number;
    std::memcpy(&number, bytes.data(), 4);
    return number;
}

// The code units up to the first NUL.
std::optional<std::u16string> ExpectedUnits(ValueType type, std::string_view bytes)
{
    if (type != ValueType::Sz) {
        return std::nullopt;
    }
    std::u16string units(bytes.size() / 2, u'\0');
    std::memcpy(units.data(), bytes.data(), units.size() * 2);
    return units.substr(0, std::min(units.find(u'\0'), units.size()));
}

void Check(const std::shared_ptr<Store>& store, ValueType type, std::string_view bytes, const std::wstring& name)
{
    SetCurrentStore(store);
    ClearStoreError();
    {
        const auto transaction = Begin(*store, Access::Write);
        transaction->DeleteKey(Hive::LocalMachine, L"SOFTWARE");
        KeyId key = 0;
        EXPECT_EQ(transaction->CreateKey(Hive::LocalMachine, kKey, key), Outcome::Found);
        EXPECT_EQ(transaction->SetValue(key, name, {type, std::as_bytes(std::span(bytes))}), Outcome::Found);
        EXPECT_EQ(transaction->Commit(false), Outcome::Found);
    }
    const auto number = ExpectedNumber(type, bytes);
    const auto units = ExpectedUnits(type, bytes);

    DWORD asNumber = kUntouchedNumber;
    EXPECT_EQ(CRegKeyEx::QueryValue(asNumber, CString(name), L"%s", kKey), number ? 1 : 0);
    EXPECT_EQ(asNumber, number.value_or(kUntouchedNumber));
    CString asText(kUntouched);
    EXPECT_EQ(CRegKeyEx::QueryValue(asText, CString(name), L"%s", kKey), units ? 1 : 0);
    if (units) {
        std::u16string read;
        EXPECT_TRUE(AppendUtf16(asText.View(), read));
        EXPECT_EQ(read, *units);
    } else {
        EXPECT_EQ(asText, CString(kUntouched));
    }

    CMap<DWORD, DWORD, DWORD, DWORD> codes;
    CMap<CString, LPCWSTR, DWORD, DWORD> numbers;
    CMapStringToString texts;
    EXPECT_EQ(CRegKeyEx::QueryValues(codes, L"%s", kKey), 1);
    EXPECT_EQ(CRegKeyEx::QueryValues(numbers, L"%s", kKey), 1);
    EXPECT_EQ(CRegKeyEx::QueryValues(texts, L"%s", kKey), 1);
    EXPECT_LE(codes.GetCount(), numbers.GetCount());
    EXPECT_EQ(numbers.GetCount(), number ? 1 : 0);
    EXPECT_EQ(texts.GetCount(), units ? 1 : 0);

    KeyHandle handle;
    EXPECT_TRUE(handle.Open(kKey));
    {
        KeyReader reader(handle.Get());
        DWORD readNumber = kUntouchedNumber;
        CString readText(kUntouched);
        EXPECT_EQ(reader.Query(name, readNumber), number.has_value());
        EXPECT_EQ(reader.Query(name, readText), units.has_value());
        EXPECT_EQ(readNumber, asNumber);
        EXPECT_EQ(readText, asText);
    }
    // What was read can be written, and reads the same.
    if (units) {
        KeyWriter writer(handle.Get(), L"Copy");
        EXPECT_TRUE(writer.Set(name, asText));
        EXPECT_TRUE(writer.Commit());
        CString copy;
        EXPECT_EQ(CRegKeyEx::QueryValue(copy, CString(name), L"%s\\Copy", kKey), 1);
        EXPECT_EQ(copy, asText);
    }
    EXPECT_FALSE(LastStoreError()) << LastStoreError().message;
    SetCurrentStore(nullptr);
}

// Text of a program: it is written as it is, or refused as a whole.
void CheckWriting(const std::shared_ptr<Store>& store, const std::wstring& text)
{
    SetCurrentStore(store);
    ClearStoreError();
    std::u16string units;
    const bool wellFormed = AppendUtf16(text, units);
    EXPECT_EQ(CRegKeyEx::SetValue(CString(text), L"written", L"%s\\Text", kKey), wellFormed ? 1 : 0);
    EXPECT_EQ(LastStoreError().kind == ErrorKind::BadText, !wellFormed);
    ClearStoreError();
    CString read(kUntouched);
    EXPECT_EQ(CRegKeyEx::QueryValue(read, L"written", L"%s\\Text", kKey), wellFormed ? 1 : 0);
    EXPECT_EQ(read.Std(), wellFormed ? text.substr(0, text.find(L'\0')) : kUntouched);
    SetCurrentStore(nullptr);
}

void CheckRecord(std::uint32_t type, std::string_view bytes, std::string_view name)
{
    RecordView view;
    if (ParseRecord(bytes, view)) {
        EXPECT_EQ(kRecordHeader + view.writtenName.size() + view.data.size(), bytes.size());
    }
    (void)IsSealed(NameSum(name), name, bytes);

    std::string record;
    const auto written = name.substr(0, 0xFFFF);
    BuildRecord(type, written, std::as_bytes(std::span(bytes)), record);
    SealRecord(NameSum("p"), name, record);
    EXPECT_TRUE(IsSealed(NameSum("p"), name, record));
    EXPECT_TRUE(ParseRecord(record, view));
    EXPECT_EQ(view.type, type);
    EXPECT_EQ(view.writtenName, written);
    EXPECT_TRUE(std::equal(view.data.begin(), view.data.end(), std::as_bytes(std::span(bytes)).begin(),
                           std::as_bytes(std::span(bytes)).end()));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const TemporaryDirectory directory{fuzz::FastDirectory()};
    static const auto embedded = Open("lmdb:" + directory.File("store"), {.create = true});
    static const auto memory = Open("memory:");

    fuzz::Input input(data, size);
    const auto kind = input.Byte();
    const auto type = kind < 0x40 ? kind % 12U : input.Number();
    const auto nameBytes = input.Field();
    auto name = fuzz::Text(nameBytes.substr(0, 32)).substr(0, 64);
    std::u16string ignored;
    if (!AppendUtf16(name, ignored) || ignored.find(u'\0') != std::u16string::npos) {
        name = L"1";
    }
    const auto bytes = input.Rest();
    CheckRecord(type, bytes, nameBytes);
    for (const auto& store : {memory, embedded}) {
        Check(store, static_cast<ValueType>(type), bytes, name);
        CheckWriting(store, fuzz::Text(bytes));
    }
    return 0;
}
