// What holds for every class of the library.
#include "catalogue/Catalogue.h"

#include "core/settings/Reference.h"
#include "platform/store/Session.h"
#include "platform/text/CaseFold.h"
#include "platform/text/Utf.h"
#include "support/ConfigTest.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

namespace wqspcfg {

static void PrintTo(const DescribedValue& value, std::ostream* out)
{
    *out << value.number << " \"" << Utf8ForMessage(value.text) << '"';
}

} // namespace wqspcfg

namespace wqspcfg::test {

namespace {

std::string Narrow(std::wstring_view text)
{
    return Utf8ForMessage(text);
}

std::string NameOfClass(const ClassEntry& entry)
{
    return Narrow(entry.table().className);
}

// Every class that can be made.
std::vector<const ClassEntry*> Concrete()
{
    std::vector<const ClassEntry*> entries;
    for (const auto* entry : AllClasses()) {
        if (entry->create != nullptr) {
            entries.push_back(entry);
        }
    }
    return entries;
}

bool Is(const ClassEntry& entry, std::wstring_view name)
{
    const auto tables = Lineage(entry.table());
    return std::any_of(tables.begin(), tables.end(), [&](const Table* table) { return table->className == name; });
}

const void* MemberOf(const DescribedSetting& setting, CRegKeyEx& object)
{
    const auto& row = *setting.row;
    if (row.locate != nullptr) {
        return row.locate(object, setting.turn);
    }
    switch (row.type) {
    case Type::Dword:
        return &(object.*row.member.dword);
    case Type::Flag:
        return &(object.*row.member.flag);
    case Type::String:
        return &(object.*row.member.string);
    case Type::Char:
    case Type::None:
        break;
    }
    return &(object.*row.member.character);
}

DescribedValue Held(const DescribedSetting& setting, CRegKeyEx& object)
{
    const auto* member = MemberOf(setting, object);
    switch (setting.type) {
    case Type::Dword:
        return {*static_cast<const DWORD*>(member), {}};
    case Type::Flag:
        return {*static_cast<const bool*>(member) ? 1U : 0U, {}};
    case Type::String:
        return {0, static_cast<const CString*>(member)->Std()};
    case Type::Char: {
        const auto character = *static_cast<const wchar_t*>(member);
        return {0, character != 0 ? std::wstring(1, character) : std::wstring()};
    }
    case Type::None:
        break;
    }
    return {};
}

// Models whose Save leaves out what their bases save.
bool SavesOnlyItsOwn(const ClassEntry& entry)
{
    static const std::set<std::wstring_view> kNames{L"CSpMCRCF66RegInfo", L"CSpIDCPrdFPCNormalRegInfo"};
    return kNames.contains(entry.table().className);
}

bool IsText(Type type)
{
    return type == Type::String || type == Type::Char;
}

// Nothing but the query and its default says what the member holds.
bool IsPlain(const DescribedSetting& setting)
{
    const auto& row = *setting.row;
    // A switch without a polarity, which is read later, becomes 0.
    const bool decidedLater = setting.key == L"Switches\\Index";
    return row.bound && !row.preloaded && row.step == nullptr && row.correct == nullptr && row.correctText == nullptr &&
           !setting.conditional && !decidedLater;
}

// A setting of one class, and which.
struct Owned
{
    const Table* table;
    DescribedSetting setting;
    std::string Name() const { return Narrow(table->className) + ": " + Narrow(setting.key + L"\\" + setting.name); }
};

// The settings of a class and its bases in the order of loading.
std::vector<Owned> WithInherited(const ClassEntry& entry)
{
    std::vector<Owned> all;
    auto tables = Lineage(entry.table());
    std::reverse(tables.begin(), tables.end());
    for (const auto* table : tables) {
        for (auto& setting : Describe(*table)) {
            all.push_back({table, std::move(setting)});
        }
    }
    return all;
}

class CatalogueTest : public ConfigTest
{
  protected:
    // The keys without which a Load returns false.
    void AddRequiredKeys()
    {
        Set(Device(L"SNRData"), L"Present", 1U);
        Set(L"SOFTWARE\\TARNO\\Driver\\WQDrOKIUsbAgent", L"CanpostKeyEvent", 0U);
        Set(L"SOFTWARE\\TARNO\\Driver\\WQDrOKIUsbAgent\\KeyboardMapping", L"1", L"13");
    }

    void Wipe()
    {
        Error error;
        const auto transaction = m_store->Begin(Access::Write, error);
        ASSERT_TRUE(transaction) << error.message;
        transaction->DeleteKey(Hive::LocalMachine, L"SOFTWARE");
        transaction->DeleteKey(Hive::Users, L".DEFAULT");
        ASSERT_NE(transaction->Commit(false), Outcome::Failed);
        Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Provider", L"Phys");
        Set(Service(), L"ExeDllMother", L"Dev.exe");
        ResetProcess();
        ClearStoreError();
        m_log.Clear();
    }

    static std::wstring PathOfSetting(const DescribedSetting& setting)
    {
        switch (setting.root) {
        case Root::Device:
            return Device(setting.key);
        case Root::Service:
            return Service(setting.key);
        case Root::Logical:
            return setting.key.empty() ? L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc"
                                       : L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc\\" + setting.key;
        case Root::Common:
            return Common(setting.key);
        case Root::Absolute:
            break;
        }
        return setting.key;
    }

    // Everything below the three service roots and the drivers' root, as "path|name" and data.
    std::map<std::wstring, std::wstring> Snapshot()
    {
        std::map<std::wstring, std::wstring> values;
        Error error;
        const auto transaction = m_store->Begin(Access::Read, error);
        const auto visit = [&](auto&& self, const std::wstring& path) -> void {
            KeyId key = 0;
            if (transaction->OpenKey(Hive::LocalMachine, path, key) != Outcome::Found) {
                return;
            }
            transaction->EnumValues(key, [&](std::wstring_view name, const ValueView& value) {
                std::wstring data = std::to_wstring(static_cast<unsigned>(value.type)) + L":";
                for (const auto byte : value.data) {
                    data += static_cast<wchar_t>(std::to_integer<unsigned>(byte));
                }
                values[UpCase(path + L"|" + std::wstring(name))] = data;
                return true;
            });
            std::vector<std::wstring> subkeys;
            transaction->EnumKeys(key, [&](std::wstring_view name) {
                subkeys.emplace_back(name);
                return true;
            });
            for (const auto& subkey : subkeys) {
                self(self, path + L"\\" + subkey);
            }
        };
        visit(visit, L"SOFTWARE");
        return values;
    }

    std::unique_ptr<CRegInfo> Make(const ClassEntry& entry) { return Create(entry, CString(L"Svc"), false); }

    // Loads the class and saves it into a store that holds nothing of it.
    std::map<std::wstring, std::wstring> LoadAndSave(const ClassEntry& entry, bool& loaded)
    {
        const auto object = Make(entry);
        loaded = object->Load(&m_log);
        Wipe();
        // A cash module's Save ends early without its serial-number key.
        if (Is(entry, L"CCRMRegInfo")) {
            Set(Device(L"SNRData"), L"Present", 1U);
        }
        object->Save();
        return Snapshot();
    }
};

} // namespace

TEST_F(CatalogueTest, EverySourcePairHasItsLine)
{
    std::set<std::string> names;
    for (const auto* entry : AllClasses()) {
        EXPECT_TRUE(names.insert(NameOfClass(*entry)).second) << NameOfClass(*entry) << " stands twice";
    }
    std::size_t files = 0;
    for (const auto* folder : {"classes", "models"}) {
        for (const auto& file : std::filesystem::recursive_directory_iterator(
                 std::filesystem::path(WQSPCFG_SOURCE_DIR) / "src" / folder)) {
            const auto stem = file.path().stem().string();
            if (file.path().extension() == ".h" && stem.ends_with("RegInfo")) {
                ++files;
                EXPECT_TRUE(names.contains("C" + stem)) << file.path() << " has no line in src/catalogue";
            }
        }
    }
    EXPECT_EQ(names.size(), files + 1) << "every class but CRegInfo has a file pair named after it";
}

TEST_F(CatalogueTest, ClassesAreFoundByNameAndDeviceClass)
{
    for (const auto* entry : AllClasses()) {
        EXPECT_EQ(FindClass(entry->table().className), entry);
        const auto* deviceClass = DeviceClassOf(entry->table());
        if (entry->create == nullptr || entry->table().base == nullptr) {
            EXPECT_EQ(deviceClass, nullptr) << NameOfClass(*entry);
            continue;
        }
        ASSERT_NE(deviceClass, nullptr) << NameOfClass(*entry);
        const auto same = ClassesOf(deviceClass);
        EXPECT_NE(std::find(same.begin(), same.end(), entry), same.end()) << NameOfClass(*entry);
        EXPECT_TRUE(Is(*entry, L"CRegInfo")) << NameOfClass(*entry);
    }
    EXPECT_NE(FindClass(L"cregINFO"), nullptr);
    EXPECT_EQ(FindClass(L"CNoRegInfo"), nullptr);
    EXPECT_TRUE(ClassesOf(L"NO").empty());
}

TEST_F(CatalogueTest, TablesAreSound)
{
    for (const auto* entry : AllClasses()) {
        std::set<std::wstring> seen;
        for (const auto& setting : Describe(entry->table())) {
            const Owned owned{&entry->table(), setting};
            SCOPED_TRACE(owned.Name());
            EXPECT_FALSE(setting.name.empty() && setting.key.empty());
            EXPECT_FALSE(setting.meaning.empty());
            EXPECT_FALSE(setting.meaning.ends_with(L'.') ||
                         setting.meaning.find_first_of(L"\r\n") != std::wstring::npos);
            if (!setting.allowed.empty()) {
                EXPECT_NE(std::find(setting.allowed.begin(), setting.allowed.end(), setting.fallback.number),
                          setting.allowed.end())
                    << "the default is not allowed";
            }
            if (setting.range) {
                EXPECT_LE(setting.range->low, setting.fallback.number);
                EXPECT_GE(setting.range->high, setting.fallback.number);
            }
            if (setting.saved && setting.savedName.empty() && !setting.conditional) {
                EXPECT_TRUE(seen.insert(UpCase(PathOf(setting) + L"|" + setting.name)).second) << "saved twice";
            }
        }
    }
}

TEST_F(CatalogueTest, AnEmptyRegistryGivesEveryDefault)
{
    for (const auto* entry : Concrete()) {
        SCOPED_TRACE(NameOfClass(*entry));
        Wipe();
        AddRequiredKeys();
        const auto object = Make(*entry);
        const auto settings = WithInherited(*entry);
        for (const auto& each : settings) {
            if (each.table->base != nullptr && each.setting.row->bound && !each.setting.row->preloaded) {
                EXPECT_EQ(Held(each.setting, *object), each.setting.constructed.value_or(each.setting.fallback))
                    << each.Name() << " after construction";
            }
        }
        EXPECT_TRUE(object->Load(&m_log));
        EXPECT_FALSE(LastStoreError()) << LastStoreError().message;
        for (const auto& each : settings) {
            if (IsPlain(each.setting)) {
                EXPECT_EQ(Held(each.setting, *object), each.setting.fallback) << each.Name() << " after Load";
            }
        }
    }
}

TEST_F(CatalogueTest, EveryLoggedSettingHasItsLineInOrder)
{
    for (const auto* entry : Concrete()) {
        SCOPED_TRACE(NameOfClass(*entry));
        Wipe();
        AddRequiredKeys();
        EXPECT_TRUE(Make(*entry)->Load(&m_log));
        const auto lines = Lines();
        std::size_t at = 0;
        for (const auto& each : WithInherited(*entry)) {
            const auto& row = *each.setting.row;
            // The root prints its lines in an order of its own.
            if (each.table->base == nullptr || !row.logged || row.step != nullptr || each.setting.conditional) {
                continue;
            }
            const auto& label = each.setting.label.empty() ? each.setting.name : each.setting.label;
            std::wstring start = FormatString(L"[CFG] %40s : ", label);
            if (row.head != nullptr) {
                start = FormatString(row.head, label);
            } else if (IsPlain(each.setting) && row.conversion == nullptr && row.logAs == nullptr &&
                       (each.setting.type != Type::Char || !each.setting.fallback.text.empty())) {
                start += IsText(each.setting.type) ? each.setting.fallback.text
                                                   : FormatString(L"%d", each.setting.fallback.number);
                start += row.described ? L"[" + std::wstring(each.setting.meaning) : L"";
            }
            std::size_t found = at;
            while (found < lines.size() && !lines[found].starts_with(start)) {
                ++found;
            }
            if (found == lines.size()) {
                ADD_FAILURE() << each.Name() << ": no such line behind those before it: " << Narrow(start);
            } else {
                at = found + 1;
            }
        }
    }
}

TEST_F(CatalogueTest, EverySavedValueSurvivesLoadAndSave)
{
    for (const auto* entry : Concrete()) {
        SCOPED_TRACE(NameOfClass(*entry));
        Wipe();
        AddRequiredKeys();
        Set(Device(L"CAPABILITIES"), L"EnableRandSpecMix", 1U); // without it, the order of the mix is not written
        const auto settings = WithInherited(*entry);
        std::map<std::wstring, DescribedValue> written; // by path and name
        DWORD next = 3;
        for (const auto& each : settings) {
            const auto& setting = each.setting;
            if (!setting.saved || !setting.row->bound) {
                continue;
            }
            const auto path = PathOfSetting(setting);
            DescribedValue value;
            if (setting.type == Type::String) {
                value.text = L"text " + std::to_wstring(next++);
            } else if (setting.type == Type::Char) {
                value.text = setting.fallback.text == L"Q" ? L"R" : L"Q";
            } else if (setting.type == Type::Flag || setting.row->asSwitch || setting.row->savedAsSwitch) {
                value.number = 1 - setting.fallback.number;
            } else if (!setting.allowed.empty()) {
                value.number = setting.allowed.front() != setting.fallback.number ? setting.allowed.front()
                                                                                  : setting.allowed.back();
            } else if (setting.range) {
                value.number = setting.range->low != setting.fallback.number ? setting.range->low : setting.range->high;
            } else {
                value.number = next++;
            }
            for (const auto& name : {setting.name, setting.row->readName != nullptr && setting.turn == 0
                                                       ? std::wstring(setting.row->readName)
                                                       : setting.name}) {
                if (IsText(setting.type)) {
                    Set(path, name, value.text.c_str());
                } else {
                    Set(path, name, value.number);
                }
            }
            written[UpCase(path + L"|" + setting.name)] = value;
        }
        bool loaded = false;
        const auto first = LoadAndSave(*entry, loaded);
        std::set<std::wstring> misnamed; // saved under a name that is not read
        EXPECT_TRUE(loaded);
        EXPECT_FALSE(LastStoreError()) << LastStoreError().message;
        for (const auto& each : settings) {
            const auto& setting = each.setting;
            if (!setting.saved || !setting.row->bound || (SavesOnlyItsOwn(*entry) && each.table != &entry->table())) {
                continue;
            }
            const auto path = PathOfSetting(setting);
            const auto& name = setting.savedName.empty() ? setting.name : setting.savedName;
            if (!setting.savedName.empty()) {
                misnamed.insert(UpCase(path + L"|" + name));
            }
            if (IsText(setting.type)) {
                const auto text = Text(path, name);
                EXPECT_TRUE(text) << each.Name() << " is not written";
                if (text && IsPlain(setting)) {
                    EXPECT_EQ(*text, written[UpCase(path + L"|" + setting.name)].text) << each.Name();
                }
            } else {
                const auto number = Number(path, name);
                EXPECT_TRUE(number) << each.Name() << " is not written";
                if (number && IsPlain(setting)) {
                    EXPECT_EQ(*number, written[UpCase(path + L"|" + setting.name)].number) << each.Name();
                }
            }
        }
        // What was saved gives the same when it is loaded and saved again.
        ResetProcess();
        Set(Device(L"SNRData"), L"Present", 1U);
        Set(Device(L"CAPABILITIES"), L"EnableRandSpecMix", 1U);
        const auto again = LoadAndSave(*entry, loaded);
        EXPECT_EQ(first.size(), again.size());
        for (const auto& [what, data] : first) {
            const auto found = again.find(what);
            EXPECT_TRUE(misnamed.contains(what) || (found != again.end() && found->second == data))
                << Narrow(what) << " changes with the second Save";
        }
    }
}

namespace {

// Takes lines and keeps none.
class CountingLog final : public CLog
{
  public:
    int Write(Severity, DWORD, std::wstring_view text) override
    {
        m_characters += text.size();
        return 1;
    }
    std::size_t m_characters = 0;
};

} // namespace

TEST_F(CatalogueTest, HostileValuesDoNoHarm)
{
    const std::wstring huge(512 * 1024, L'x'); // 1 MB in the store
    struct Hostile
    {
        const char* what;
        std::optional<DWORD> number;
        std::wstring text;
    };
    const Hostile hostile[] = {
        {"0", 0, L"0"},
        {"1", 1, L"1"},
        {"the largest number", 0xFFFFFFFF, L"4294967295"},
        {"empty text", {}, L""},
        {"separators only", {}, L";=;=|,"},
        {"very long text", {}, huge},
    };
    for (const auto* entry : Concrete()) {
        SCOPED_TRACE(NameOfClass(*entry));
        for (const auto& value : hostile) {
            SCOPED_TRACE(value.what);
            for (const bool wrongType : {false, true}) {
                if (wrongType && value.text.size() > 100) {
                    continue;
                }
                Wipe();
                AddRequiredKeys();
                {
                    const WriteScope scope; // one commit
                    int plain = 0;
                    int special = 0;
                    for (const auto& each : WithInherited(*entry)) {
                        const auto& setting = each.setting;
                        // What its bases read is tried with the bases themselves.
                        if (each.table != &entry->table() || setting.name.find(L'%') != std::wstring::npos) {
                            continue;
                        }
                        // Rows of one kind take long text all in the same way.
                        if (value.text.size() > 100 &&
                            (!IsText(setting.type) || (IsPlain(setting) ? ++plain > 1 : ++special > 8))) {
                            continue;
                        }
                        const bool asText = IsText(setting.type) != wrongType;
                        if (asText) {
                            Set(PathOfSetting(setting), setting.name, value.text.c_str());
                        } else {
                            Set(PathOfSetting(setting), setting.name, value.number.value_or(7));
                        }
                    }
                    // The service itself stays what it is.
                    Set(Service(), L"ExeDllMother", L"Dev.exe");
                }
                CountingLog log;
                const auto object = Make(*entry);
                object->Load(&log);
                EXPECT_GT(log.m_characters, 0U);
                EXPECT_FALSE(LastStoreError()) << LastStoreError().message;
                if (wrongType) {
                    for (const auto& each : WithInherited(*entry)) {
                        if (IsPlain(each.setting)) {
                            EXPECT_EQ(Held(each.setting, *object), each.setting.fallback) << each.Name();
                        }
                    }
                }
                object->Save();
                EXPECT_FALSE(LastStoreError()) << LastStoreError().message;
            }
        }
    }
}

} // namespace wqspcfg::test
