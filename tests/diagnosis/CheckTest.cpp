#include "wqspcfg/diagnosis/Check.h"

#include "catalogue/CatalogueTesting.h"
#include "support/StoreTesting.h"
#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/diagnosis/SettingText.h"

#include <array>
#include <optional>
#include <random>

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
        Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Class", deviceClass != nullptr ? deviceClass : L"ALM");
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

// What explain shows as corrected, check tells.
TEST_F(FaultTest, TellsOfEveryStoredValueThatIsCorrected)
{
    std::minstd_rand random(5); // NOLINT(bugprone-random-generator-seed): the same values in every run
    std::size_t corrected = 0;
    for (const auto* entry : Concrete()) {
        SCOPED_TRACE(NameOfClass(*entry));
        if (!Install(*entry)) {
            continue;
        }
        for (const auto& each : SettingsOf(*entry).All()) {
            const auto& setting = each.setting;
            if (random() % 2 == 0 || each.isPattern || setting.wholeKey || setting.root != Root::Device) {
                continue;
            }
            const auto number = random() % 2 == 0 ? static_cast<DWORD>(random()) : static_cast<DWORD>(random() % 100);
            Put(PathIn(setting), setting.readAs.empty() ? setting.name : setting.readAs, setting,
                {number, std::to_wstring(number)});
        }
        ResetProcess();
        Places places({});
        const auto checkup = Check({}, places);
        for (const auto& setting : checkup.services.at(0).settings) {
            if (setting.isCorrected && setting.source == Source::Key) {
                ++corrected;
                EXPECT_TRUE(std::any_of(checkup.findings.begin(), checkup.findings.end(), [&](const Finding& finding) {
                    return EqualNoCase(finding.path, setting.path) && finding.name &&
                           EqualNoCase(*finding.name, setting.name) &&
                           (finding.kind == FindingKind::Corrected || finding.kind == FindingKind::NotAllowed);
                })) << FullNameOf(setting);
            }
        }
    }
    EXPECT_GT(corrected, 100U);
}

// A terminal with two services, each fault of it in turn.
class TerminalTest : public ConfigTest
{
  protected:
    TerminalTest()
    {
        SetCurrentStore(m_terminal);
        AddService(L"Dispenser", L"CRD", L"WQSpCRDWQTYM1200");
        AddService(L"Reader", L"IDC", L"WQSpIDCTTCEM100");
        Set(kDispenser + L"\\Comm", L"Port", 4U);
        Set(kReader + L"\\Comm", L"Port", 5U);
        EXPECT_EQ(Found(), "");
    }

    static void AddService(const std::wstring& name, const wchar_t* deviceClass, const std::wstring& device)
    {
        const auto logical = L".DEFAULT\\XFS\\LOGICAL_SERVICES\\" + name;
        if (deviceClass != nullptr) {
            Set(logical, L"Class", deviceClass);
        }
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
    const std::shared_ptr<Store> m_terminal = Open("memory:");
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

TEST_F(TerminalTest, FindsAPortOnlyWhereItIsUsed)
{
    Set(kReader + L"\\Comm", L"Port", 4U);
    Set(kDispenser + L"\\Comm", L"BluetoothOption", 1U);
    EXPECT_EQ(Found(), "") << "a device that is connected by Bluetooth uses no serial port";
}

TEST_F(TerminalTest, FindsClassValuesThatAreWrong)
{
    const std::wstring logical = L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Reader";
    const std::wstring provider = kServiceRoot + std::wstring(L"WQSpIDCTTCEM100");
    Set(provider, L"Class", L"idc");
    EXPECT_EQ(Found(), "");
    const std::string contradiction = "classContradicts: service Reader: CSpIDCTTCEM100RegInfo is a class of device "
                                      "class IDC, and the class value of the service is \"PTR\"";
    Set(provider, L"Class", L"PTR");
    EXPECT_EQ(Found(), contradiction + " (SERVICE_PROVIDERS\\WQSpIDCTTCEM100\\Class)\n");
    Set(provider, L"Class", L"IDC");
    Set(logical, L"Class", L"PTR");
    EXPECT_EQ(Found(), contradiction + '\n');
    Set(logical, L"Class", L"XYZ");
    EXPECT_EQ(Found(),
              "unknownClass: service Reader: LOGICAL_SERVICES\\Reader\\Class is \"XYZ\", which is no class of XFS\n");
    AddService(L"Alarm", L"ALM", L"OtherAlarm");
    EXPECT_EQ(Found({.services = {L"Alarm"}}), "") << "a class of XFS that no device of ours has";
    AddService(L"Printer", L"", L"WQSpPTRRID100");
    EXPECT_EQ(Found({.services = {L"Printer"}}), "");
    AddService(L"Pinpad", nullptr, L"WQSpPINXZSE8098B");
    EXPECT_EQ(Found({.services = {L"Pinpad"}}), "unknownClass: service Pinpad has no class value: Class is missing "
                                                "from LOGICAL_SERVICES\\Pinpad\n");
}

TEST_F(TerminalTest, NamesAProviderThatIsNoTextOnce)
{
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Reader", L"Provider", 1U);
    EXPECT_EQ(Found({.services = {L"Reader"}}),
              "wrongType: LOGICAL_SERVICES\\Reader\\Provider is REG_DWORD 1, a REG_SZ is read: service Reader has no "
              "service provider\n");
}

TEST_F(TerminalTest, FindsACommonKeyWhoseNameIsMisspelt)
{
    Set(kServiceRoot + std::wstring(L"WQComnCfg\\Policy"), L"DevError", 1U);
    EXPECT_EQ(Found(),
              "noDeviceKey: service WQComnCfg: its service provider WQComnCfg has no device key WQComnCfg; did "
              "you mean WQCmnCfg, which is missing?\n");
}

TEST_F(TerminalTest, FindsKeysWhoseNamesAreMisspelt)
{
    Set(kServiceRoot + std::wstring(L"WQCmnCfg\\Polcy"), L"DevError", 1U);
    Set(kReader + L"\\Comn", L"Speed", 1U);
    Set(kServiceRoot + std::wstring(L"WQCmnCfg\\Installer"), L"Path", L"C:\\");
    EXPECT_EQ(Found(), "unknownKey: WQSpIDCTTCEM100\\Comn is not read by CSpIDCTTCEM100RegInfo; did you mean Comm, "
                       "which is there too?\n"
                       "unknownKey: SERVICE_PROVIDERS\\WQCmnCfg\\Polcy is not read by any class; did you mean "
                       "Policy?\n");
}

TEST_F(TerminalTest, NamesTheKeyThatASettingIsReadFrom)
{
    const std::wstring provider = kServiceRoot + std::wstring(L"WQSpIDCTTCEM100");
    Set(provider + L"\\Comm", L"BaudRate", 9600U);
    Set(provider, L"CapVendorDescKey", L"x");
    Set(provider, L"Port", 1U);        // stands in its own key too
    Set(provider, L"InstallDir", L""); // an installer's
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Reader", L"BaudRate", 9600U);
    Set(kServiceRoot + std::wstring(L"WQCmnCfg\\Policy"), L"IsDeleteSensetiveInfo", 0U);
    Set(kReader + L"\\Policy", L"RaiseShutdownPriority", 1U);
    const std::string device = "HKLM\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSpIDCTTCEM100";
    const std::string is = " is not read: CSpIDCTTCEM100RegInfo reads it from " + device;
    EXPECT_EQ(Found({.services = {L"Reader"}}),
              "readElsewhere: WQSpIDCTTCEM100\\Policy\\RaiseShutdownPriority is not read: CSpIDCTTCEM100RegInfo reads "
              "RaiseShutdownPriority from WQCmnCfg\\Policy, not from Policy\n"
              "readElsewhere: SERVICE_PROVIDERS\\WQSpIDCTTCEM100\\CapVendorDescKey" +
                  is +
                  ", not from here\n"
                  "readElsewhere: SERVICE_PROVIDERS\\WQSpIDCTTCEM100\\Comm\\BaudRate" +
                  is +
                  "\\Comm, not from here\n"
                  "readElsewhere: LOGICAL_SERVICES\\Reader\\BaudRate" +
                  is + "\\Comm, not from here\n");
    EXPECT_NE(Found().find("readElsewhere: SERVICE_PROVIDERS\\WQCmnCfg\\Policy\\IsDeleteSensetiveInfo is not read"),
              std::string::npos)
        << Found();
}

TEST_F(TerminalTest, FindsSlipsInKeysThatAreReadWhole)
{
    const auto idle = kReader + L"\\IdleInterval";
    Set(idle, L"PaperOut", 500U);
    Set(kReader + L"\\ReSetTimeout", L"Open", 500U);
    Set(kReader + L"\\CheckErrorHandler", L"Dispense", L"SafeDoor=1");
    EXPECT_EQ(Found(), "");
    Set(idle, L"Norml", 500U);
    Set(kReader + L"\\ReSetTimeout", L"OnlyOpenAppend1", 1U);
    Set(kReader + L"\\CheckErrorHandler", L"CheckLevel", 2U);
    Set(kReader + L"\\CheckErrorHandler", L"CheckLevel1", 1U);
    const std::string end = " is not read by CSpIDCTTCEM100RegInfo as a setting of its own; did you mean ";
    EXPECT_EQ(Found(), "unknownName: WQSpIDCTTCEM100\\CheckErrorHandler\\CheckLevel1" + end +
                           "CheckLevel?\n"
                           "unknownName: WQSpIDCTTCEM100\\IdleInterval\\Norml" +
                           end +
                           "Normal?\n"
                           "unknownName: WQSpIDCTTCEM100\\ReSetTimeout\\OnlyOpenAppend1" +
                           end + "OnlyOpenAppend?\n");
}

TEST_F(TerminalTest, NamesAModelThatIsNotKnownOnce)
{
    AddService(L"Printer", L"PTR", L"WQSpPTRUnheardOf");
    const auto device = kDeviceRoot + std::wstring(L"WQSpPTRUnheardOf");
    Set(device, L"PaperCount", 1U);
    Set(device + L"\\Comm", L"Port", 9U);
    Set(device + L"\\Own\\More", L"Thing", 9U);
    EXPECT_EQ(Found(),
              "unknownModel: device key WQSpPTRUnheardOf is of no model that is known (class value \"PTR\"): only "
              "what CPTRRegInfo reads of it is checked\n");
    Set(device + L"\\IdleInterval", L"Norml", 9U);
    EXPECT_NE(Found().find("did you mean Normal?"), std::string::npos) << Found();
}

TEST_F(TerminalTest, IsSilentOnWhatOtherProgramsKeep)
{
    AddService(L"Pinpad", L"PIN", L"WQSpPINXZSE8098B");
    Set(kServiceRoot + std::wstring(L"CGB_Encryptor"), L"UseSMAlgorithm", L"1");
    AddService(L"Recycler", L"CDM", L"WQSpCcad");
    Set(kDeviceRoot + std::wstring(L"CASHDISPENSER\\COMMON\\CASSETTETYPE"), L"CASSETTE1", L"x");
    for (const auto* key : {L"", L"\\Comm", L"\\ReSetTimeout", L"\\CheckErrorHandler"}) {
        Set(kReader + key, L"", L"");
    }
    EXPECT_EQ(Found(), "");
    Set(kReader + L"\\Comm", L"", L"text");
    EXPECT_EQ(Found(), "unknownName: WQSpIDCTTCEM100\\Comm\\(default) is not read by CSpIDCTTCEM100RegInfo\n");
    // What another program keeps is a service provider where it looks like one.
    Set(kServiceRoot + std::wstring(L"CGB_Encryptor"), L"ExeDllMother", L"x.exe");
    EXPECT_NE(Found().find("service CGB_Encryptor"), std::string::npos) << Found();
}

TEST_F(TerminalTest, NamesWhatIsWrongWithAValueOfTheRightType)
{
    test::Put(*m_terminal, kReader + L"\\Comm", L"BaudRate", {std::byte{4}, std::byte{0}});
    EXPECT_EQ(
        Found({.services = {L"Reader"}}),
        "wrongType: WQSpIDCTTCEM100\\Comm\\BaudRate is a REG_DWORD of 2 bytes, one of 4 bytes is read: the default "
        "9600 is in effect\n");
}

TEST_F(TerminalTest, TellsOfValuesThatTheClassMakesItself)
{
    Set(kReader + L"\\Control", L"OffsetSec", 1U);
    EXPECT_EQ(Found(), "unknownName: WQSpIDCTTCEM100\\Control\\OffsetSec is not read: CSpIDCTTCEM100RegInfo makes "
                       "OffsetSec itself\n");
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

TEST_F(TerminalTest, FindsBinsThatAreNoCardUnits)
{
    Set(kDispenser + L"\\Control", L"RetainBin", 7U);
    EXPECT_EQ(Found(), "") << "the dispenser has no card units yet";
    for (const auto number : {1U, 2U}) {
        Set(kDispenser + L"\\CardUnit\\CardUnitInfo" + std::to_wstring(number), L"Number", number);
    }
    Set(kDispenser + L"\\Control", L"DispenseBin1", 2U);
    Set(kDispenser + L"\\Control", L"DispenseBin2", 3U); // as a Save leaves it where the device has one bin
    EXPECT_EQ(Found(), "inconsistent: WQSpCRDWQTYM1200\\Control\\RetainBin is 7, and no card unit has that number\n");
    Set(kDispenser + L"\\CardUnit\\CardUnitInfo2", L"Number", 65538U);
    Set(kDispenser + L"\\Control", L"RetainBin", 1U);
    EXPECT_EQ(Found(), "corrected: WQSpCRDWQTYM1200\\CardUnit\\CardUnitInfo2\\Number is 65538; "
                       "CSpCRDWQTYM1200RegInfo takes 2 instead\n");
}

TEST_F(TerminalTest, FindsDoorsWhoseStatesAreNotRead)
{
    AddService(L"Unit", L"SIU", L"WQSpSIUPrdSIUNormal");
    const auto capabilities = kDeviceRoot + std::wstring(L"WQSpSIUPrdSIUNormal\\CAPABILITIES");
    Set(capabilities, L"WFS_SIU_DOORS", 1U);
    Set(capabilities + L"\\fwDoors\\SAFE", L"WFS_SIU_OPEN", 0U);
    EXPECT_EQ(Found(), "");
    Set(capabilities + L"\\fwDoors\\SAFE", L"WFS_SIU_LOCKED", 1U);
    EXPECT_EQ(Found(), "missingValue: WQSpSIUPrdSIUNormal\\CAPABILITIES\\fwDoors\\SAFE\\WFS_SIU_NOT_AVAILABLE is "
                       "missing, which CSpSIUPrdSIUNormalRegInfo needs beside the others\n"
                       "corrected: WQSpSIUPrdSIUNormal\\CAPABILITIES\\fwDoors\\SAFE\\WFS_SIU_LOCKED is 1; "
                       "CSpSIUPrdSIUNormalRegInfo takes 0 instead\n");
    Set(capabilities + L"\\fwDoors\\SAFE", L"WFS_SIU_NOT_AVAILABLE", 0U);
    EXPECT_EQ(Found(), "");
    Set(capabilities, L"WFS_SIU_DOORS", 0U);
    EXPECT_EQ(Found(), "") << "there are no doors";
}

// A Save writes that a UPS which was not said to be there is not there, with its states.
TEST_F(TerminalTest, TellsOfAPortThatASaveHasSwitchedOff)
{
    AddService(L"Unit", L"SIU", L"WQSpSIUPrdSIUNormal");
    const auto device = kDeviceRoot + std::wstring(L"WQSpSIUPrdSIUNormal");
    Set(device + L"\\CAPABILITIES", L"WFS_SIU_AUXILIARIES", 1U);
    Set(device + L"\\CAPABILITIES\\fwAuxiliaries\\UPS", L"WFS_SIU_LOW", 1U);
    EXPECT_EQ(Found(), "");
    const auto object = Create(*FindClass(L"CSpSIUPrdSIUNormalRegInfo"), L"Unit", false);
    object->Load(nullptr);
    object->Save();
    EXPECT_EQ(Found(), "corrected: WQSpSIUPrdSIUNormal\\CAPABILITIES\\fwAuxiliaries\\UPS\\WFS_SIU_LOW is 1; "
                       "CSpSIUPrdSIUNormalRegInfo takes 0 instead\n");
}

TEST_F(TerminalTest, TellsOfValuesThatTheClassReplaces)
{
    AddService(L"Unit", L"SIU", L"WQSpSIUJMBT");
    AddService(L"Printer", L"PTR", L"WQSpPTRRID100");
    Set(kDeviceRoot + std::wstring(L"WQSpSIUJMBT\\Switches\\Index"), L"Switch1", 5U);
    Set(kDeviceRoot + std::wstring(L"WQSpPTRRID100"), L"ReadFormFieldDivCharLeft", L"abc");
    EXPECT_EQ(Found({.services = {L"Printer"}}),
              "corrected: WQSpPTRRID100\\ReadFormFieldDivCharLeft is \"abc\"; CSpPTRRID100RegInfo takes \"a\" "
              "instead\n");
    EXPECT_NE(Found({.services = {L"Unit"}})
                  .find("corrected: WQSpSIUJMBT\\Switches\\Index\\Switch1 is 5; CSpSIUJMBTRegInfo takes 0 instead\n"),
              std::string::npos);
}

TEST_F(TerminalTest, TellsThatNoLogicalServiceIsLeft)
{
    const auto foundWith = [&](Hive hive, const std::wstring& key) {
        Error error;
        const auto transaction = m_terminal->Begin(Access::Write, error);
        transaction->DeleteKey(Hive::Users, L".DEFAULT\\XFS");
        KeyId id = 0;
        EXPECT_NE(transaction->CreateKey(hive, key, id), Outcome::Failed);
        EXPECT_NE(transaction->Commit(false), Outcome::Failed);
        const auto found = Found();
        const auto at = found.find("noLogicalService: ");
        return at != std::string::npos ? found.substr(at, found.find('\n', at) - at) : "";
    };
    const std::string none = "noLogicalService: there is no logical service: HKU\\.DEFAULT\\XFS\\LOGICAL_SERVICES is ";
    EXPECT_EQ(foundWith(Hive::Users, L".DEFAULT\\XFS\\LOGICAL_SERVICES"), none + "empty");
    EXPECT_EQ(foundWith(Hive::Users, L".DEFAULT\\XFS\\LOGICAL_SERVICE\\Reader"),
              none + "missing; HKU\\.DEFAULT\\XFS\\LOGICAL_SERVICE is not read");
    EXPECT_EQ(foundWith(Hive::CurrentUser, L"XFS\\LOGICAL_SERVICES\\Reader"),
              none + "missing; HKCU\\XFS\\LOGICAL_SERVICES is not read");
    EXPECT_EQ(foundWith(Hive::LocalMachine, L"SOFTWARE\\XFS\\LOGICAL_SERVICES\\Reader"),
              none + "missing; HKLM\\SOFTWARE\\XFS\\LOGICAL_SERVICES is not read");
    EXPECT_EQ(foundWith(Hive::Users, L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Reader"), "");
}

// Installers have values of their own beside those that are read.
TEST_F(TerminalTest, IsSilentOnTheNamesOfInstallers)
{
    AddService(L"Printer", L"PTR", L"WQSpPTRRID100");
    AddService(L"Camera", L"CAM", L"WQSpCAMPrdMNCCamera");
    for (const auto* device : {L"WQSpPTRRID100", L"WQSpCAMPrdMNCCamera", L"WQSpIDCTTCEM100"}) {
        for (const auto* name : {L"Server", L"Path", L"Normal", L"Enabled", L"Timeout", L"Type", L"Mode", L"Count"}) {
            Set(kServiceRoot + std::wstring(device), name, L"x");
        }
    }
    for (const auto* service : {L"Printer", L"Camera", L"Reader"}) {
        for (const auto* name : {L"Server", L"Path", L"Normal", L"Enabled", L"Timeout", L"Mode", L"Count"}) {
            Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\" + std::wstring(service), name, 1U);
        }
    }
    EXPECT_EQ(Found(), "");
    Set(kServiceRoot + std::wstring(L"WQSpIDCTTCEM100"), L"BaudRate", L"fast");
    EXPECT_EQ(Found(), "") << "a number is read";
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
    Set(L"SOFTWARE\\WOW6432Node\\XFS", L"Installed", 1U);
    Set(L"SOFTWARE\\WOW6432Node\\XFS\\SERVICE_PROVIDERS", L"", L"");
    EXPECT_EQ(Found(), "") << "nothing there would be read";
    Set(L"SOFTWARE\\WOW6432Node\\XFS\\PHYSICAL_SERVICES\\X", L"Port", 1U);
    EXPECT_NE(Found().find("view32: "), std::string::npos);
    EXPECT_EQ(Found({.view32 = true}), "");
}

} // namespace

} // namespace wqspcfg::diagnosis
