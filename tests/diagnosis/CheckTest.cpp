#include "wqspcfg/diagnosis/Check.h"

#include "catalogue/CatalogueTesting.h"
#include "support/StoreTesting.h"
#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/diagnosis/SettingText.h"

#include <array>
#include <optional>

namespace wqspcfg::diagnosis {

namespace {

using namespace wqspcfg::test;

// One service of a class, whose device key is named after it.
class FaultTest : public CatalogueTest
{
  protected:
    // False where a service cannot be told to be of the class.
    bool Install(const ClassEntry& entry)
    {
        Wipe();
        std::wstring_view name(entry.table().className);
        const bool isModel = name.starts_with(L"CSp") || name.starts_with(L"CSP");
        name.remove_prefix(1);
        name.remove_suffix(std::wstring_view(L"RegInfo").size());
        m_device = isModel ? L"WQ" + std::wstring(name) : std::wstring(L"Dev");
        const auto* deviceClass = DeviceClassOf(entry.table());
        Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Provider", L"Phys");
        if (deviceClass != nullptr) {
            Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Class", deviceClass);
        }
        Set(L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\Phys", L"ExeDllMother", (m_device + L".exe").c_str());
        Set(Device(), L"", L"");
        ResetProcess();
        ClearStoreError();
        return SelectModel(IdentifyService(L"Svc", false)).entry == &entry;
    }

    std::wstring Device() const { return kDeviceRoot + m_device; }

    std::wstring PathIn(const DescribedSetting& setting) const
    {
        ServiceIdentity service;
        service.logicalName = L"Svc";
        service.physicalName = L"Phys";
        service.deviceKey = m_device;
        return PathOf(service, setting.root, setting.key);
    }

    static void Put(const std::wstring& path, const std::wstring& name, const DescribedSetting& setting,
                    const DescribedValue& value)
    {
        if (test::IsText(setting.type)) {
            Set(path, name, value.text.c_str());
        } else {
            Set(path, name, value.number);
        }
    }

    static std::vector<Finding> Findings()
    {
        ResetProcess();
        Places places({});
        auto checkup = Check({}, places);
        EXPECT_FALSE(checkup.failure) << checkup.failure.message;
        return std::move(checkup.findings);
    }

    static std::string Text(const std::vector<Finding>& findings)
    {
        std::string text;
        for (const auto& finding : findings) {
            text += finding.message + '\n';
        }
        return text;
    }

    // The settings of the class's own table that a person would set.
    static std::vector<DescribedSetting> OwnSettings(const ClassEntry& entry)
    {
        std::vector<DescribedSetting> settings;
        for (auto& setting : Describe(entry.table())) {
            const bool isPlace = setting.key.find(L'%') == std::wstring::npos &&
                                 setting.name.find(L'%') == std::wstring::npos && !setting.name.empty();
            if (isPlace && !setting.wholeKey && !setting.computed &&
                (setting.root == Root::Device || setting.root == Root::Common)) {
                settings.push_back(std::move(setting));
            }
        }
        return settings;
    }

    static bool IsRead(const ClassEntry& entry, const DescribedSetting& setting, std::wstring_view key,
                       std::wstring_view name)
    {
        const auto& all = SettingsOf(entry).All();
        return std::any_of(all.begin(), all.end(), [&](const ClassSetting& each) {
            return each.setting.root == setting.root && MatchesPattern(each.setting.key, key) &&
                   (each.setting.wholeKey || MatchesPattern(each.setting.name, name));
        });
    }

    std::wstring m_device;
};

// What a slip of the hand makes of a name; nothing where it makes none.
std::wstring Misspelt(std::wstring name, unsigned kind)
{
    const auto middle = name.size() / 2;
    switch (kind) {
    case 0:
        return name.insert(middle, 1, L'q');
    case 1:
        return name.size() > 2 ? name.erase(middle, 1) : std::wstring();
    case 2:
        name[middle] = L'q';
        return name;
    case 3:
        for (auto i = middle; i + 1 < name.size(); ++i) {
            if (UpCase(name[i]) != UpCase(name[i + 1])) {
                std::swap(name[i], name[i + 1]);
                return name;
            }
        }
        return {};
    case 4:
        return name.insert(middle, 1, L' ');
    default:
        return name + L'1';
    }
}
constexpr unsigned kSlips = 6;

TEST_F(FaultTest, IsSilentOnWhatEachClassSaves)
{
    std::size_t installed = 0;
    for (const auto* entry : Concrete()) {
        SCOPED_TRACE(NameOfClass(*entry));
        if (!Install(*entry)) {
            continue;
        }
        ++installed;
        const auto object = Create(*entry, L"Svc", false);
        object->Load(nullptr);
        object->Save();
        EXPECT_EQ(Text(Findings()), "");
    }
    EXPECT_GT(installed, 170U);
}

// A fault of every kind in every setting of every class is found, and the cause is named.
TEST_F(FaultTest, FindsAndNamesEveryFault)
{
    std::size_t faults = 0;
    std::string missed;
    std::size_t misses = 0;
    const auto expect = [&](const std::vector<Finding>& findings, const DescribedSetting& setting,
                            const std::wstring& path, const std::wstring& name,
                            std::initializer_list<FindingKind> kinds, const std::string& cause) {
        ++faults;
        for (const auto& finding : findings) {
            if (EqualNoCase(finding.path, path) && finding.name && EqualNoCase(*finding.name, name) &&
                std::find(kinds.begin(), kinds.end(), finding.kind) != kinds.end() &&
                finding.message.find(cause) != std::string::npos) {
                return;
            }
        }
        ++misses;
        missed += Narrow(path + L'\\' + name + L" for " + setting.name) + ": " + cause + '\n';
    };
    for (const auto* entry : Concrete()) {
        SCOPED_TRACE(NameOfClass(*entry));
        const auto settings = OwnSettings(*entry);
        for (unsigned kind = 0; kind < kSlips + 3; ++kind) {
            if (!Install(*entry)) {
                break;
            }
            struct Fault
            {
                const DescribedSetting* setting;
                std::wstring path;
                std::wstring name;
            };
            std::vector<Fault> made;
            std::string before;
            for (const auto& setting : settings) {
                const auto own = PathIn(setting);
                auto path = own;
                auto name = setting.readAs.empty() ? setting.name : setting.readAs;
                if (kind < kSlips) {
                    name = Misspelt(name, kind);
                    if (name.empty() || IsRead(*entry, setting, setting.key, name)) {
                        continue;
                    }
                    Put(path, name, setting, setting.defaultValue);
                } else if (kind == kSlips) {
                    test::IsText(setting.type) ? Set(path, name, 1U) : Set(path, name, L"1");
                } else if (kind == kSlips + 1) {
                    DWORD number = setting.range ? setting.range->high + 1 : 0;
                    for (const auto& choice : setting.allowed) {
                        number = std::max(number, choice.value + 1);
                    }
                    if (number == 0 || test::IsText(setting.type)) {
                        continue;
                    }
                    Set(path, name, number);
                } else {
                    const std::wstring key = setting.key.empty() ? L"Comm" : L"";
                    if (setting.root != Root::Device || IsRead(*entry, setting, key, name)) {
                        continue;
                    }
                    path = key.empty() ? Device() : Device() + L'\\' + key;
                    Put(path, name, setting, setting.defaultValue);
                }
                made.push_back({&setting, path, name});
            }
            if (made.empty()) {
                continue;
            }
            const auto findings = Findings();
            for (const auto& [setting, path, name] : made) {
                const auto meant = Narrow(setting->readAs.empty() ? setting->name : setting->readAs);
                if (kind < kSlips) {
                    expect(findings, *setting, path, name, {FindingKind::UnknownName}, "did you mean " + meant + "?");
                } else if (kind == kSlips) {
                    expect(findings, *setting, path, name, {FindingKind::WrongType}, "is read");
                } else if (kind == kSlips + 1) {
                    expect(findings, *setting, path, name, {FindingKind::NotAllowed}, "allowed: ");
                } else {
                    expect(findings, *setting, path, name, {FindingKind::ReadElsewhere},
                           KeyText(setting->root, setting->key));
                }
            }
        }
    }
    EXPECT_GT(faults, 20000U);
    EXPECT_LE(misses * 100, faults) << faults << " faults, " << misses << " missed:\n" << missed;
}

// A terminal with two services, each fault of it in turn.
class TerminalTest : public ConfigTest
{
  protected:
    TerminalTest()
    {
        SetCurrentStore(Open("memory:"));
        AddService(L"Dispenser", L"CRD", L"WQSpCRDWQTYM1200");
        AddService(L"Reader", L"IDC", L"WQSpIDCTTCEM100");
        Set(kDispenser + L"\\Comm", L"Port", 4U);
        Set(kReader + L"\\Comm", L"Port", 5U);
        EXPECT_EQ(Found(), "");
    }

    static void AddService(const std::wstring& name, const wchar_t* deviceClass, const std::wstring& device)
    {
        const auto logical = L".DEFAULT\\XFS\\LOGICAL_SERVICES\\" + name;
        Set(logical, L"Class", deviceClass);
        Set(logical, L"Provider", device.c_str());
        Set(kServiceRoot + device, L"ExeDllMother", (device + L".exe").c_str());
        Set(kDeviceRoot + device, L"", L""); // the key itself
    }

    // The findings, one to a line: kind and message.
    static std::string Found(const CheckOptions& options = {})
    {
        CRegInfo::ForgetProcess();
        Places places({});
        std::string text;
        for (const auto& finding : Check(options, places).findings) {
            text += std::string(NameOf(finding.kind)) + ": " + finding.message + '\n';
        }
        return text;
    }

    const std::wstring kDispenser = kDeviceRoot + std::wstring(L"WQSpCRDWQTYM1200");
    const std::wstring kReader = kDeviceRoot + std::wstring(L"WQSpIDCTTCEM100");
};

TEST_F(TerminalTest, FindsServicesThatDoNotFitTogether)
{
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Ghost", L"Class", L"PTR");
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Lost", L"Provider", L"WQSpPTRLost");
    Set(kServiceRoot + std::wstring(L"WQSpPTRBare"), L"ExeDllMother", L"WQSpPTRNone.exe");
    Set(kDeviceRoot + std::wstring(L"WQSpOLDPRINTER"), L"Port", 1U);
    EXPECT_EQ(Found(),
              "noProvider: service Ghost names no service provider: its value Provider is missing\n"
              "noProvider: service Lost: its service provider WQSpPTRLost has no service key and no device key\n"
              "noDeviceKey: service WQSpPTRBare: its service provider WQSpPTRBare has no device key WQSpPTRNone\n"
              "unusedDeviceKey: device key WQSpOLDPRINTER belongs to no service\n");
    EXPECT_EQ(Found({.services = {L"dispenser"}}), "");
    EXPECT_EQ(Found({.services = {L"lost"}}),
              "noProvider: service Lost: its service provider WQSpPTRLost has no service key and no device key\n");
}

TEST_F(TerminalTest, FindsAPortThatTwoDevicesUse)
{
    Set(kReader + L"\\Comm", L"Port", 4U);
    EXPECT_EQ(Found(), "sharedPort: WQSpIDCTTCEM100\\Comm\\Port is serial port 4, which Dispenser uses too "
                       "(WQSpCRDWQTYM1200\\Comm\\Port)\n");
    Set(kReader + L"\\Comm", L"Port", 0U);
    Set(kDispenser + L"\\Comm", L"Port", 0U);
    EXPECT_EQ(Found(), "") << "port 0 is none";
}

TEST_F(TerminalTest, FindsAClassThatTheModelContradicts)
{
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Reader", L"Class", L"PTR");
    EXPECT_NE(Found().find("classContradicts: service Reader: CSpIDCTTCEM100RegInfo is a class of device class IDC"),
              std::string::npos)
        << Found();
}

TEST_F(TerminalTest, NamesTheModelThatAValueBelongsTo)
{
    Set(kDispenser + L"\\CAPABILITIES", L"SupportTrackJIS1", 1U);
    Set(kDispenser + L"\\Control", L"OutBoxOption", 1U);
    const auto found = Found();
    EXPECT_NE(found.find("this service is a CSpCRDWQTYM1200RegInfo"), std::string::npos) << found;
}

TEST_F(TerminalTest, FindsCardUnitsThatDoNotAddUp)
{
    const auto units = kDispenser + L"\\CardUnit";
    const auto unit = [&](const wchar_t* name, DWORD number, DWORD count) {
        Set(units + L"\\" + name, L"Number", number);
        Set(units + L"\\" + name, L"Count", count);
        Set(units + L"\\" + name, L"MaxCount", 100U);
    };
    Set(units, L"CurNumber", 2U);
    unit(L"CardUnitInfo1", 1, 7);
    unit(L"CardUnitInfo2", 2, 100);
    EXPECT_EQ(Found(), "");
    unit(L"CardUnitInfo2", 1, 101);
    Set(units + L"\\CardUnitInfo3", L"Count", 5U);
    EXPECT_EQ(Found(),
              "inconsistent: WQSpCRDWQTYM1200\\CardUnit\\CardUnitInfo2\\Number is 1, as that of CardUnitInfo1\n"
              "inconsistent: WQSpCRDWQTYM1200\\CardUnit\\CardUnitInfo2\\Count is 101, more than MaxCount 100\n"
              "inconsistent: WQSpCRDWQTYM1200\\CardUnit\\CardUnitInfo3 has no Number: the card unit is not loaded\n"
              "inconsistent: WQSpCRDWQTYM1200\\CardUnit\\CurNumber is 2, and no card unit has that number\n");
}

TEST_F(TerminalTest, FindsNoteTypesThatDoNotAddUp)
{
    AddService(L"Recycler", L"CIM", L"WQC81Driver");
    const auto types = kDeviceRoot + std::wstring(L"WQC81Driver\\NoteType");
    const auto add = [&](const wchar_t* name, const wchar_t* currency) {
        for (const auto* number : {L"NoteID", L"Value", L"Release", L"Config"}) {
            Set(types + L"\\" + name, number, 1U);
        }
        Set(types + L"\\" + name, L"CurrencyID", currency);
    };
    Set(types, L"Count", 2U);
    add(L"NoteType1", L"CNY");
    add(L"NoteType2", L"USD");
    EXPECT_EQ(Found(), "");
    add(L"NoteType2", L"US");
    add(L"NoteType3", L"EUR");
    EXPECT_EQ(Found(), "notAllowed: WQC81Driver\\NoteType\\NoteType2\\CurrencyID is \"US\"; a currency has exactly 3 "
                       "characters: the note types from there on are not loaded\n"
                       "inconsistent: WQC81Driver\\NoteType\\NoteType3 is not read: Count is 2\n");
    Set(types, L"Count", 4000000000U);
    EXPECT_NE(Found().find("Count is 4000000000, and NoteType4 is missing"), std::string::npos) << Found();
}

TEST_F(TerminalTest, MasksWhatIsSecret)
{
    AddService(L"Pinpad", L"PIN", L"WQSpPINXZSE8098B");
    Set(kDeviceRoot + std::wstring(L"WQSpPINXZSE8098B"), L"ProtectKey", 4711U);
    const auto masked = Found();
    EXPECT_NE(masked.find("ProtectKey is REG_DWORD, a REG_SZ is read"), std::string::npos) << masked;
    EXPECT_EQ(masked.find("4711"), std::string::npos);
    EXPECT_NE(Found({.showSecrets = true}).find("4711"), std::string::npos);
}

TEST_F(TerminalTest, TellsOfKeysOf32BitPrograms)
{
    Set(L"SOFTWARE\\WOW6432Node\\XFS\\PHYSICAL_SERVICES\\X", L"Port", 1U);
    EXPECT_NE(Found().find("view32: "), std::string::npos);
    EXPECT_EQ(Found({.view32 = true}), "");
}

} // namespace

} // namespace wqspcfg::diagnosis
