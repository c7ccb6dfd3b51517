// Every value of every class with what no installer would write. The store is the one in memory on every platform: what
// the Windows registry itself refuses to hold never reaches a class.
#include "catalogue/CatalogueTesting.h"

#include "support/Sanitizers.h"
#include "support/StoreTesting.h"

#include <cwchar>
#include <map>
#include <optional>
#include <tuple>

namespace wqspcfg::test {

namespace {

constexpr std::size_t kLongText = kSanitized ? 8 * 1024 : 512 * 1024; // in characters of two bytes: a megabyte

// Takes lines and keeps none.
class CountingLog final : public CLog
{
  public:
    int Write(Severity, DWORD, std::wstring_view text) override
    {
        m_characters += text.size();
        ++m_lines;
        return 1;
    }
    std::size_t m_characters = 0;
    std::size_t m_lines = 0;
};

struct Stored
{
    ValueType type;
    Bytes data;
};

Bytes UnitBytes(std::u16string_view units)
{
    Bytes bytes;
    for (const auto unit : units) {
        bytes.push_back(static_cast<std::byte>(unit & 0xFF));
        bytes.push_back(static_cast<std::byte>(unit >> 8));
    }
    return bytes;
}

// A value for numbers and one for texts, and what a setting that nothing corrects then holds: none counts as missing.
struct Hostile
{
    const char* what;
    Stored number;
    Stored text;
    std::optional<DWORD> heldNumber;
    std::optional<std::wstring> heldText;
};

std::vector<Hostile> HostileValues()
{
    const auto dword = [](DWORD value) { return Stored{ValueType::Dword, DwordBytes(value)}; };
    const auto sz = [](std::wstring_view text) { return Stored{ValueType::Sz, SzBytes(text)}; };
    const auto units = [](std::u16string_view text) { return Stored{ValueType::Sz, UnitBytes(text)}; };
    const std::wstring smile = sizeof(wchar_t) == 2 ? L"\xD83D\xDE00" : std::wstring(1, static_cast<wchar_t>(0x1F600));
    return {
        {"0", dword(0), sz(L"0"), 0, L"0"},
        {"1", dword(1), sz(L"1"), 1, L"1"},
        {"the largest number", dword(0xFFFFFFFF), sz(L"4294967295"), 0xFFFFFFFF, L"4294967295"},
        {"a number that does not fit", dword(0x80000000), sz(L"-99999999999999999999"), 0x80000000,
         L"-99999999999999999999"},
        {"empty text", dword(7), sz(L""), 7, L""},
        {"no bytes at all", {ValueType::Dword, {}}, units(u""), {}, L""},
        {"separators only", dword(7), sz(L";=;=|,,x,"), 7, L";=;=|,,x,"},
        {"conversions", dword(7), sz(L"%s%n%1000000d%"), 7, L"%s%n%1000000d%"},
        {"no terminator", dword(7), units(u"abc"), 7, L"abc"},
        {"embedded NUL", dword(7), units({u"ab\0cd\0", 6}), 7, L"ab"},
        {"NUL in front", dword(7), units({u"\0cd\0", 4}), 7, L""},
        {"half a character", {ValueType::Dword, ToBytes("abc")}, {ValueType::Sz, ToBytes("a")}, {}, L""},
        {"lone surrogates", dword(7), units(u"\xDC00x\xD800y\xD83D\xDE00z\xD800"), 7,
         L"\xDC00x\xD800y" + smile + L"z\xD800"},
        {"a megabyte of text", dword(7), sz(std::wstring(kLongText, L'x')), 7, std::wstring(kLongText, L'x')},
        {"the other type", sz(L"7"), dword(7), {}, {}},
        {"a kindred type", {ValueType::DwordBigEndian, DwordBytes(7)}, {ValueType::ExpandSz, SzBytes(L"7")}, {}, {}},
        {"the right bytes", {ValueType::Binary, DwordBytes(7)}, {ValueType::Binary, SzBytes(L"7")}, {}, {}},
        {"too many bytes", {ValueType::Dword, ToBytes("12345678")}, {ValueType::MultiSz, SzBytes(L"7")}, {}, {}},
    };
}

class CatalogueHostileTest : public CatalogueTest
{
  protected:
    using Settings = std::vector<Owned>;

    // The class's own settings; what its bases read is tried with the bases themselves.
    static bool IsTried(const ClassEntry& entry, const Owned& each)
    {
        const auto& setting = each.setting;
        const bool isCarrier = setting.root == Root::Service && setting.name == L"ExeDllMother";
        return each.table == &entry.table() && !isCarrier && setting.name.find(L'%') == std::wstring::npos;
    }

    // Puts the values into an otherwise empty registry; without them it has just the keys.
    void Fill(const ClassEntry& entry, const Settings& settings, const Hostile* hostile)
    {
        Wipe();
        Set(Device(L"SNRData"), L"Present", 1U); // without it, a cash module's Load ends early
        Error error;
        const auto transaction = m_store->Begin(Access::Write, error);
        ASSERT_TRUE(transaction) << error.message;
        for (const auto& each : settings) {
            if (!IsTried(entry, each)) {
                continue;
            }
            const auto path = PathOfSetting(each.setting);
            const auto hive = each.setting.root == Root::Logical ? Hive::Users : Hive::LocalMachine;
            KeyId key = 0;
            ASSERT_EQ(transaction->CreateKey(hive, path, key), Outcome::Found) << transaction->LastError().message;
            if (hostile != nullptr) {
                const auto& [type, data] = IsText(each.setting.type) ? hostile->text : hostile->number;
                ASSERT_EQ(transaction->SetValue(key, each.setting.name, {type, data}), Outcome::Found);
            }
            transaction->CloseKey(key);
        }
        ASSERT_EQ(transaction->Commit(false), Outcome::Found);
        ResetProcess();
        ClearStoreError();
    }

    // Two objects, even when loaded from the same registry, hold different ones.
    static bool IsOfTheClock(const DescribedSetting& setting)
    {
        static const std::set<std::wstring_view> kNames{L"OffsetSec", L"Proc1Start", L"Proc1Stop", L"Proc2Start",
                                                        L"Proc2Stop"};
        return kNames.contains(setting.name);
    }

    static std::vector<DescribedValue> State(const Settings& settings, CRegKeyEx& object)
    {
        std::vector<DescribedValue> state;
        for (const auto& each : settings) {
            const bool isKept = IsHeld(each.setting) && !IsOfTheClock(each.setting);
            state.push_back(isKept ? Held(each.setting, object) : DescribedValue{});
            if (each.setting.row->savedAsSwitch && state.back().number != 0) {
                state.back().number = 1; // all that is saved of it
            }
        }
        return state;
    }

    static std::string Shown(const DescribedValue& value)
    {
        return std::to_string(value.number) + " \"" + Narrow(value.text.substr(0, 60)) + '"';
    }

    // Whether what is stored under the setting's name says alone what its member holds.
    static std::vector<bool> Decided(const ClassEntry& entry, const Settings& settings)
    {
        // The one follows other settings, the other is held in seconds.
        static const std::set<std::wstring_view> kTurned{L"ForceUseSM", L"FirstErrorIntervalTime"};
        std::map<std::wstring, int> kinds; // by path and name: 1 a number, 2 a text, 3 both
        const auto where = [](const Owned& each) {
            return UpCase(PathOfSetting(each.setting) + L"|" + each.setting.name);
        };
        for (const auto& each : settings) {
            if (IsTried(entry, each)) {
                kinds[where(each)] |= IsText(each.setting.type) ? 2 : 1;
            }
        }
        std::vector<bool> decided;
        for (const auto& each : settings) {
            decided.push_back(IsTried(entry, each) && IsPlain(each.setting) && !kTurned.contains(each.setting.name) &&
                              kinds[where(each)] != 3);
        }
        return decided;
    }

    static DescribedValue Expected(const DescribedSetting& setting, const Hostile& hostile)
    {
        if (setting.type == Type::String) {
            return hostile.heldText ? DescribedValue{0, *hostile.heldText} : setting.defaultValue;
        }
        if (setting.type == Type::Char) {
            return hostile.heldText ? DescribedValue{0, hostile.heldText->substr(0, 1)} : setting.defaultValue;
        }
        if (!hostile.heldNumber) {
            return setting.defaultValue;
        }
        const bool isSwitch =
            setting.type == Type::Flag || setting.row->Has(Flags::AsSwitch) || setting.row->savedAsSwitch;
        return {isSwitch && *hostile.heldNumber != 0 ? 1 : *hostile.heldNumber, {}};
    }

    static void ExpectSame(const Settings& settings, const std::vector<DescribedValue>& left,
                           const std::vector<DescribedValue>& right)
    {
        for (std::size_t i = 0; i < settings.size(); ++i) {
            EXPECT_TRUE(left[i] == right[i])
                << settings[i].Name() << ": " << Shown(left[i]) << " and " << Shown(right[i]);
        }
    }
};

} // namespace

TEST_F(CatalogueHostileTest, HostileValuesDoNoHarm)
{
    const auto values = HostileValues();
    for (const auto* entry : Concrete()) {
        SCOPED_TRACE(NameOfClass(*entry));
        const auto settings = WithInherited(*entry);
        const auto decided = Decided(*entry, settings);
        for (const auto& hostile : values) {
            SCOPED_TRACE(hostile.what);
            Fill(*entry, settings, &hostile);
            CountingLog log;
            std::vector<DescribedValue> state;
            std::vector<DescribedValue> saved;
            bool complete = false;
            {
                const auto object = Make(*entry);
                // Note types that cannot be read end a cash module's Load early.
                complete = object->Load(&log) || !Is(*entry, L"CCRMRegInfo");
                EXPECT_GT(log.m_lines, 0U);
                state = State(settings, *object);
                object->Save();
                saved = State(settings, *object); // a Save replaces some empty texts
            }
            EXPECT_FALSE(LastStoreError()) << LastStoreError().message;
            for (std::size_t i = 0; i < settings.size(); ++i) {
                const auto& setting = settings[i].setting;
                if (decided[i]) {
                    EXPECT_TRUE(state[i] == Expected(setting, hostile) ||
                                (!complete && state[i] == setting.constructed.value_or(setting.defaultValue)))
                        << settings[i].Name() << ": " << Shown(state[i]);
                }
                // A correction makes the range hold, but for the one that changes another setting.
                if (setting.range && setting.name != L"VtmOutShtSafeDoorIndex" && IsHeld(setting) &&
                    setting.row->normalize != nullptr) {
                    EXPECT_TRUE(state[i].number >= setting.range->low && state[i].number <= setting.range->high)
                        << settings[i].Name() << ": " << Shown(state[i]);
                }
            }
            // What was saved makes the same object.
            ResetProcess();
            const auto again = Make(*entry);
            again->Load(nullptr);
            ExpectSame(settings, saved, State(settings, *again));
        }
    }
}

TEST_F(CatalogueHostileTest, AValueOfTheWrongTypeReadsAsMissing)
{
    for (const auto* entry : Concrete()) {
        SCOPED_TRACE(NameOfClass(*entry));
        const auto settings = WithInherited(*entry);
        const auto load = [&](const Hostile* hostile) {
            Fill(*entry, settings, hostile);
            m_log.Clear();
            const auto object = Make(*entry);
            const bool loaded = object->Load(&m_log);
            return std::make_tuple(loaded, State(settings, *object), Lines());
        };
        const auto [loaded, state, lines] = load(nullptr);
        for (const auto& hostile : HostileValues()) {
            if (hostile.heldNumber || hostile.heldText) {
                continue;
            }
            SCOPED_TRACE(hostile.what);
            const auto [loadedToo, stateToo, linesToo] = load(&hostile);
            EXPECT_EQ(loadedToo, loaded);
            ExpectSame(settings, stateToo, state);
            // In the key of CheckLevel, texts are rules.
            if (entry->table().base != nullptr || hostile.number.type != ValueType::Sz) {
                EXPECT_TRUE(linesToo == lines);
            }
        }
    }
}

#if WCHAR_MAX > 0xFFFF
// Where wchar_t has 16 bits, every text can be stored.
TEST_F(CatalogueHostileTest, ASaveOfTextThatNoRegistryHoldsIsRefusedAsAWhole)
{
    const std::wstring texts[] = {
        {L'x', static_cast<wchar_t>(0x110000)},
        std::wstring(1, static_cast<wchar_t>(0xFFFFFFFF)),
        {static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE00)}, // would come back as one character
    };
    for (const auto* entry : Concrete()) {
        SCOPED_TRACE(NameOfClass(*entry));
        for (const auto& each : WithInherited(*entry)) {
            const auto& setting = each.setting;
            if (each.table != &entry->table() || !setting.saved || !IsHeld(setting) || setting.type != Type::String) {
                continue;
            }
            SCOPED_TRACE(each.Name());
            for (const auto& text : texts) {
                Fill(*entry, {}, nullptr);
                const auto object = Make(*entry);
                object->Load(nullptr);
                const auto before = Snapshot();
                *static_cast<CString*>(const_cast<void*>(MemberOf(setting, *object))) = text;
                object->Save();
                EXPECT_EQ(LastStoreError().kind, ErrorKind::BadText) << LastStoreError().message;
                const auto name = Narrow(setting.savedName.empty() ? setting.name : setting.savedName);
                EXPECT_NE(LastStoreError().message.find(name), std::string::npos) << LastStoreError().message;
                EXPECT_TRUE(Snapshot() == before) << "a part of it was written";
            }
            break; // one setting of each class
        }
    }
}
#endif

} // namespace wqspcfg::test
