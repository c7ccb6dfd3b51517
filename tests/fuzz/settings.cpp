// Any class of the library over any values below its keys, those that classes read as lists or whole keys among them:
// Load and Save come to an end without a failure of the store, a log changes nothing, members keep within the bounds
// that the class sets, and what Save wrote gives the same when it is loaded and saved again.
#include "catalogue/CatalogueTesting.h"
#include "fuzz/Fuzzing.h"
#include "wqspcfg/classes/CRMRegInfo.h"
#include "wqspcfg/platform/store/FlatKey.h"

#include <map>
#include <memory>

// The buffers of card units' hoppers outlive their records, as given.
extern "C" [[gnu::visibility("default"), gnu::used]] const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:Duplicate<*Nobody\nleak:Duplicate<*)1>\n";
}

using namespace wqspcfg;
using namespace wqspcfg::test;

namespace {

class Registry final : public CatalogueTest
{
  public:
    // Without a record of what is read and written, which costs more than the rest.
    Registry() : m_plain(Open("memory:"))
    {
        SetCurrentStore(m_plain);
        Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Provider", L"Phys");
        Set(Service(), L"ExeDllMother", L"Dev.exe");
    }
    void TestBody() override {}

    void Fill(const ClassEntry& entry, fuzz::Input& input)
    {
        const auto& settings = SettingsOf(entry);
        const auto transaction = Begin(*m_plain, Access::Write);
        for (int count = 0; count < 64 && !input.IsEmpty(); ++count) {
            const auto where = input.Byte();
            std::wstring path;
            std::wstring name;
            if (where < 0x80 && !settings.empty()) {
                const auto& setting = settings[(where + std::size_t{128} * input.Below(8)) % settings.size()];
                path = PathOfSetting(setting);
                name = setting.name;
            } else {
                path = ListKey(where % 20, input);
                name = fuzz::Text(input.Field()).substr(0, 64);
            }
            ValueType type{};
            const auto data = Data(input, type);
            KeyId key = 0;
            std::u16string units;
            if (AppendUtf16(path + name, units) && AppendUtf16(name, units) && !HasControlCharacter(path) &&
                path.find(L'\0') == std::wstring::npos && name.find(L'\0') == std::wstring::npos) {
                EXPECT_EQ(transaction->CreateKey(path.starts_with(L'.') ? Hive::Users : Hive::LocalMachine, path, key),
                          Outcome::Found)
                    << transaction->LastError().message;
                EXPECT_EQ(transaction->SetValue(key, name, {type, data}), Outcome::Found);
            }
        }
        EXPECT_EQ(transaction->Commit(false), Outcome::Found);
        ResetProcess();
        ClearStoreError();
    }

    void LoadAndSave(const ClassEntry& entry)
    {
        std::string states[2];
        for (auto& state : states) {
            MemoryLog log;
            const auto object = Make(entry);
            const bool loaded = object->Load(&log);
            const auto members = Members(entry, *object);
            EXPECT_TRUE(CheckRanges(entry, members));
            if (&state == states) {
                EXPECT_EQ(object->Load(nullptr), loaded);
                const auto again = Members(entry, *object);
                for (std::size_t i = 0; i < members.size(); ++i) {
                    const auto& setting = SettingsOf(entry)[i];
                    EXPECT_TRUE(again[i] == members[i])
                        << Utf8ForMessage(entry.table().className) << ' ' << Utf8ForMessage(setting.name);
                }
                UseGetters(*object);
            }
            object->Save();
            // The carrier's name names the device key, and may be longer than a key's or hold what none holds.
            EXPECT_TRUE(!LastStoreError() || LastStoreError().kind == ErrorKind::TooLong ||
                        LastStoreError().kind == ErrorKind::BadText)
                << LastStoreError().message;
            state = Dump(*m_plain, {}) + Dump(*m_plain, {}, Hive::Users);
            ResetProcess();
        }
        EXPECT_EQ(states[0], states[1]) << "the second Save writes something else";
    }

  private:
    static const std::vector<DescribedSetting>& SettingsOf(const ClassEntry& entry)
    {
        static std::map<const ClassEntry*, std::vector<DescribedSetting>> described;
        auto [known, isNew] = described.try_emplace(&entry);
        if (isNew) {
            for (const auto* table : Lineage(entry.table())) {
                for (auto& setting : Describe(*table)) {
                    if (setting.name.find(L'%') == std::wstring::npos) {
                        known->second.push_back(std::move(setting));
                    }
                }
            }
        }
        return known->second;
    }

    // Keys that a class reads whole, or whose subkeys it goes through.
    static std::wstring ListKey(unsigned which, fuzz::Input& input)
    {
        const auto number = [&input] { return std::to_wstring(input.Below(5)); };
        static constexpr const wchar_t* kLists[] = {L"CheckErrorHandler",
                                                    L"ExeCmdMap",
                                                    L"InfoCmdMap",
                                                    L"ErrCodeMap",
                                                    L"AutoEnable",
                                                    L"KeybordInfo\\KeyboardMapping",
                                                    L"KeybordInfo\\FDKPosition"};
        if (which < std::size(kLists)) {
            return Device(kLists[which]);
        }
        switch (which) {
        case 7:
            return L"SOFTWARE\\TARNO\\Driver\\WQDrOKIUsbAgent\\KeyboardMapping";
        case 8:
            return Device(L"ReadImageRule");
        case 9:
            return Device(L"NoteType");
        case 10:
        case 11:
            return Device(L"NoteType\\NoteType" + number());
        case 12:
            return Device(L"CardUnit");
        case 13:
            return Device(L"CardUnit\\CardUnitInfo" + number());
        case 14: {
            std::wstring subkey;
            for (const auto ch : fuzz::Text(input.Field()).substr(0, 32)) {
                subkey += ch == L'\\' ? L'/' : ch;
            }
            return Device(L"CardUnit\\x" + subkey);
        }
        case 15:
            return Device(L"SNRData");
        case 16:
            return Device(L"SNRData\\FSNFileNameParts\\Data" + number());
        case 17:
            return Device(L"SNRData\\FSNFolderParts\\Data" + number());
        case 18:
            return Device(L"ShareInfo");
        default:
            return Device(L"KeyboardMapping\\Page" + number());
        }
    }

    static Bytes Data(fuzz::Input& input, ValueType& type)
    {
        const auto kind = input.Below(8);
        type = kind < 4 ? ValueType::Sz : ValueType::Dword;
        switch (kind) {
        case 0:
        case 1:
        case 2: {
            Bytes bytes;
            AppendUtf16Le(fuzz::Text(input.Field()), bytes);
            bytes.resize(bytes.size() + 2);
            return bytes;
        }
        case 3:
            return ToBytes(input.Field());
        case 4:
        case 5:
            return DwordBytes(input.Byte());
        case 6:
            return DwordBytes(input.Number());
        default:
            type = static_cast<ValueType>(input.Below(12));
            return ToBytes(input.Field());
        }
    }

    // What the object holds, setting by setting.
    static std::vector<DescribedValue> Members(const ClassEntry& entry, CRegKeyEx& object)
    {
        std::vector<DescribedValue> members;
        for (const auto& setting : SettingsOf(entry)) {
            members.push_back(IsHeld(setting) ? Held(setting, object) : DescribedValue{});
        }
        return members;
    }

    static bool CheckRanges(const ClassEntry& entry, const std::vector<DescribedValue>& members)
    {
        const auto& settings = SettingsOf(entry);
        for (std::size_t i = 0; i < settings.size(); ++i) {
            const auto& setting = settings[i];
            // A correction makes the range hold, but for the one that changes another setting.
            if (setting.range && IsHeld(setting) && setting.row->normalize != nullptr &&
                setting.name != L"VtmOutShtSafeDoorIndex" &&
                (members[i].number < setting.range->low || members[i].number > setting.range->high)) {
                return false;
            }
        }
        return true;
    }

    static void UseGetters(CRegInfo& object)
    {
        EXPECT_LE(object.GetCheckErrorRuler(L"WFS_CMD_IDC_READ_RAW_DATA", L"a"), 0xFFFFFFFF);
        object.GetReSetTimeout(L"openExe", 1);
        object.GetIdleTimeInterval(nullptr);
        object.GetClassNameW(nullptr);
        object.GetDeviceClassName(nullptr, 1);
        object.GetExePathName(1);
        object.GetExeFileTitle(0);
        object.GetDllDir(1);
        object.GetSPLifeCtrl();
        object.GetErrorCodeDescKey();
        object.GetCapVendorDescKeyValue();
        object.GetResetLoadCfgPolicy();
        if (auto* crm = dynamic_cast<CCRMRegInfo*>(&object)) {
            CArray<WORD, WORD> ids;
            crm->GetNoteIDArray(ids);
            crm->IsValidNoteID(1);
            crm->GetBankNoteBy(100);
            EXPECT_EQ(crm->m_arSupportCurrencyExponent.GetSize(), crm->m_arSupportCurrencyID.GetSize());
        }
    }

    std::shared_ptr<Store> m_plain;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::Input input(data, size);
    static const auto entries = Concrete();
    const auto& entry = *entries[input.Byte() % entries.size()];
    Registry registry;
    registry.Fill(entry, input);
    registry.LoadAndSave(entry);
    return 0;
}
