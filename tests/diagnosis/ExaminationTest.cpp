#include "wqspcfg/diagnosis/Examination.h"

#include "catalogue/CatalogueTesting.h"
#include "support/StoreTesting.h"
#include "wqspcfg/classes/SIURegInfo.h"
#include "wqspcfg/diagnosis/SettingText.h"
#include "wqspcfg/parts/SIUPorts.h"

#include <random>

namespace wqspcfg::diagnosis {

namespace {

using namespace wqspcfg::test;

class ExaminationTest : public CatalogueTest
{
  protected:
    // Half of the class's settings get a value, some of another type than the one that is read.
    void FillAtRandom(const ClassEntry& entry, std::minstd_rand& random)
    {
        Wipe();
        AddRequiredKeys();
        for (const auto& each : SettingsOf(entry).All()) {
            const auto& setting = each.setting;
            if (random() % 2 == 0 || setting.name.find(L'%') != std::wstring::npos ||
                setting.key.find(L'%') != std::wstring::npos || setting.name == L"ExeDllMother" ||
                setting.root == Root::Logical) {
                continue;
            }
            const auto path = PathOfSetting(setting);
            const auto number = random() % 4 == 0 ? static_cast<DWORD>(random()) : static_cast<DWORD>(random() % 4);
            if (test::IsText(setting.type) != (random() % 8 == 0)) {
                Set(path, setting.name, std::to_wstring(number).c_str());
            } else {
                Set(path, setting.name, number);
            }
        }
        ResetProcess();
        ClearStoreError();
    }
};

Examination ExaminationOf(const ClassEntry& entry)
{
    ServiceIdentity service;
    service.logicalName = L"Svc";
    service.physicalName = L"Phys";
    service.deviceKey = L"Dev";
    return Examine(service, entry);
}

TEST_F(ExaminationTest, TellsWhatALoadGivesEachMember)
{
    std::minstd_rand random(7); // NOLINT(bugprone-random-generator-seed): the same values in every run
    for (const auto* entry : Concrete()) {
        SCOPED_TRACE(NameOfClass(*entry));
        for (int round = 0; round < 3; ++round) {
            FillAtRandom(*entry, random);
            const auto examination = ExaminationOf(*entry);
            ResetProcess();
            const auto object = Make(*entry);
            EXPECT_EQ(object->Load(nullptr), examination.isLoaded);
            std::size_t compared = 0;
            for (const auto& examined : examination.settings) {
                const auto& setting = examined.Setting();
                // What the clock or chance decides is another value each time.
                if (!IsHeld(setting) || !setting.readBy.empty() || examined.declared->isMixin ||
                    examined.source == Source::Code || setting.computedDefault || setting.row->scale != 1) {
                    continue;
                }
                ++compared;
                EXPECT_EQ(examined.value, Held(setting, *object)) << Narrow(setting.key + L'\\' + setting.name);
            }
            EXPECT_GT(compared, 20U);
        }
    }
}

// A line of the configuration log.
struct Logged
{
    std::wstring label;
    std::wstring value; // with what follows it
};

std::optional<Logged> ParseLine(std::wstring_view line)
{
    constexpr std::wstring_view kStart = L"[CFG] ";
    const auto end = line.find(L" : ");
    if (!line.starts_with(kStart) || end == std::wstring_view::npos) {
        return std::nullopt;
    }
    const auto label = line.substr(0, end).substr(line.find_first_not_of(L' ', kStart.size()));
    return Logged{std::wstring(label), std::wstring(line.substr(end + 3))};
}

// Whether the line shows the value that was told of the setting.
bool Shows(const Logged& line, const ExaminedSetting& examined, CRegKeyEx& object)
{
    const auto& setting = examined.Setting();
    if (IsText(setting.type)) {
        // A version's build follows it.
        const auto& text = examined.value.text;
        const auto rest = line.value.starts_with(text) ? line.value.substr(text.size()) : std::wstring(L"?");
        return rest.empty() || rest[0] == L'[' || (rest[0] == L' ' && setting.root == Root::Common);
    }
    const std::wstring_view conversion(setting.row->conversion != nullptr ? setting.row->conversion : L"%d");
    const bool isHex = conversion.find_first_of(L"xX") != std::wstring_view::npos;
    const auto shown = static_cast<DWORD>(std::stoll(line.value, nullptr, isHex ? 16 : 10));
    const auto value = examined.value.number;
    const bool isSwitch = setting.type == Type::Flag || setting.row->Has(Flags::AsSwitch);
    return shown == value || (isSwitch && (shown != 0) == (value != 0)) ||
           (setting.row->logAs != nullptr && shown == setting.row->logAs(object, value));
}

TEST_F(ExaminationTest, TellsEveryValueThatALoadLogs)
{
    std::minstd_rand random(11); // NOLINT(bugprone-random-generator-seed): the same values in every run
    std::size_t compared = 0;
    for (const auto* entry : Concrete()) {
        SCOPED_TRACE(NameOfClass(*entry));
        FillAtRandom(*entry, random);
        const auto examination = ExaminationOf(*entry);
        ResetProcess();
        const auto object = Make(*entry);
        m_log.Clear();
        object->Load(&m_log);
        for (const auto& text : Lines()) {
            const auto line = ParseLine(text);
            std::vector<const ExaminedSetting*> meant;
            bool isEntry = false;
            for (const auto& each : examination.settings) {
                const auto& label = each.Setting().label;
                isEntry = isEntry || std::any_of(each.entries.begin(), each.entries.end(), [&](const auto& stored) {
                              return line && stored.first == line->label && line->value.starts_with(stored.second);
                          });
                if (line && !each.Setting().wholeKey && (label.empty() ? each.name : label) == line->label) {
                    meant.push_back(&each);
                }
            }
            // Not by the clock, by chance, or by what is read after the line: a switch without a polarity becomes 0.
            // The line of a port shows a value as it was read.
            const bool isDecided = std::none_of(meant.begin(), meant.end(), [](const ExaminedSetting* each) {
                return each->source == Source::Code || each->Setting().computedDefault ||
                       each->Setting().heldAs != nullptr || each->Setting().key == L"Switches\\Index";
            });
            if (!meant.empty() && isDecided) {
                ++compared;
                EXPECT_TRUE(isEntry || std::any_of(meant.begin(), meant.end(),
                                                   [&](const ExaminedSetting* each) {
                                                       return each->source != Source::NotRead &&
                                                              Shows(*line, *each, *object);
                                                   }))
                    << Narrow(text) << ", told: " << ValueText(meant.front()->Setting(), meant.front()->value) << ' '
                    << SourceText(*meant.front());
            }
        }
    }
    EXPECT_GT(compared, 10000U);
}

class SourceTest : public ConfigTest
{
  protected:
    static Examination ExamineAs(const wchar_t* className)
    {
        ServiceIdentity service;
        service.logicalName = L"Svc";
        service.physicalName = L"Phys";
        service.deviceKey = L"Dev";
        return Examine(service, *FindClass(className));
    }

    static const ExaminedSetting& Find(const Examination& examination, std::wstring_view name)
    {
        const auto found = std::find_if(examination.settings.begin(), examination.settings.end(),
                                        [&](const ExaminedSetting& setting) { return setting.name == name; });
        if (found == examination.settings.end()) {
            ADD_FAILURE() << Narrow(name) << " is not told of";
            return examination.settings.front();
        }
        return *found;
    }
};

TEST_F(SourceTest, NamesWhereEachValueComesFrom)
{
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Provider", L"Phys");
    Set(L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\Phys", L"ExeDllMother", L"Dev.exe");
    const std::wstring device = L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\Dev";
    Set(device + L"\\Comm", L"Port", L"4");
    Set(device + L"\\Comm", L"BaudRate", 115200U);
    Set(L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\WQCmnCfg\\Policy", L"DevError", 258U);
    Set(L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\WQCmnCfg\\Log", L"FirstErrorIntervalTime", 5U);
    Set(device + L"\\Control", L"CloseOption", 77U);
    const auto examination = ExamineAs(L"CSpCRDWQTYM1200RegInfo");

    const auto& port = Find(examination, L"Port");
    EXPECT_EQ(port.source, Source::WrongType);
    EXPECT_TRUE(port.IsDefault());
    EXPECT_EQ(port.KeyInEffect(), nullptr);
    EXPECT_EQ(NoteOn(
                  port, [](const AskedKey&) { return "a.reg:3"; }, false),
              "REG_SZ \"4\" at a.reg:3 ignored: a REG_DWORD is read");

    const auto& error = Find(examination, L"DevError");
    EXPECT_EQ(error.source, Source::Fallback);
    ASSERT_EQ(error.asked.size(), 2U);
    EXPECT_FALSE(error.asked[0].found);
    EXPECT_EQ(error.KeyInEffect(), &error.asked[1]);

    // Stored in minutes, and held in seconds: a person sets minutes.
    const auto& interval = Find(examination, L"FirstErrorIntervalTime");
    EXPECT_FALSE(interval.isCorrected);
    EXPECT_EQ(interval.source, Source::Key);
    EXPECT_EQ(interval.value.number, 5U);

    const auto& close = Find(examination, L"CloseOption");
    EXPECT_EQ(close.source, Source::Key);
    EXPECT_EQ(NoteOn(
                  close, [](const AskedKey&) { return std::string(); }, false),
              "not allowed: 0 eject, 1 retain, 2 leave");
    EXPECT_EQ(Find(examination, L"CancelOnClose").source, Source::Missing);
}

TEST_F(SourceTest, FindsWhatOnlyALoadCanName)
{
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Provider", L"Phys");
    Set(L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\Phys", L"ExeDllMother", L"Dev.exe");
    const std::wstring units = L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\Dev\\CardUnit";
    Set(units + L"\\CardUnitInfo1", L"Number", 1U);
    Set(units + L"\\CardUnitInfo1", L"Count", 64U);
    const auto examination = ExamineAs(L"CCRDRegInfo");
    const auto& count = Find(examination, L"Count");
    EXPECT_EQ(count.path, units + L"\\CardUnitInfo1");
    EXPECT_EQ(count.value.number, 64U);
    EXPECT_EQ(count.source, Source::Key);
    EXPECT_TRUE(count.declared->isSaved);
}

TEST_F(SourceTest, NamesTheModuleOfTheServicesClass)
{
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Provider", L"Phys");
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Class", L"PTR");
    const std::wstring provider = L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\Phys";
    Set(provider, L"ExeDllMother", L"Dev.exe");
    Set(provider, L"DLLName", L"a.dll");
    Set(provider, L"PTRName", L"b.dll");
    Set(provider, L"CIMName", L"c.dll");
    const auto examination = ExamineAs(L"CPTRRegInfo");
    EXPECT_EQ(Find(examination, L"PTRName").value.text, L"b.dll");
    std::vector<std::wstring> names;
    for (const auto& setting : examination.settings) {
        if (setting.path == provider && setting.name.ends_with(L"Name")) {
            names.push_back(setting.name);
        }
    }
    EXPECT_EQ(names, (std::vector<std::wstring>{L"DLLName", L"PTRName"}));
}

TEST_F(SourceTest, TellsOfAPortThatIsNotUsed)
{
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Provider", L"Phys");
    Set(L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\Phys", L"ExeDllMother", L"Dev.exe");
    const std::wstring comm = L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\Dev\\Comm";
    Set(comm, L"Port", 4U);
    EXPECT_EQ(Find(ExamineAs(L"CSpCRDWQTYM1200RegInfo"), L"Port").refersTo, Reference::SerialPort);
    Set(comm, L"BluetoothOption", 1U);
    EXPECT_EQ(Find(ExamineAs(L"CSpCRDWQTYM1200RegInfo"), L"Port").refersTo, Reference::None);
}

// The number is read between rows, and held in 16 bits.
TEST_F(SourceTest, TellsOfANumberThatTheClassCuts)
{
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Provider", L"Phys");
    Set(L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\Phys", L"ExeDllMother", L"Dev.exe");
    const std::wstring device = L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\Dev";
    const auto noteOn = [](const ExaminedSetting& setting) {
        return std::to_string(setting.value.number) + ' ' +
               NoteOn(
                   setting, [](const AskedKey&) { return std::string(); }, false);
    };
    Set(device + L"\\CardUnit\\CardUnitInfo2", L"Number", 65538U);
    Set(device + L"\\CardUnit\\CardUnitInfo2", L"Status", 65635U);
    Set(device + L"\\CardUnit\\CardUnitInfo2", L"Count", 65636U);
    const auto dispenser = ExamineAs(L"CCRDRegInfo");
    EXPECT_EQ(noteOn(Find(dispenser, L"Number")), "2 corrected from 65538");
    EXPECT_EQ(noteOn(Find(dispenser, L"Status")), "99 corrected from 65635");
    EXPECT_EQ(noteOn(Find(dispenser, L"Count")), "65636 ");

    Set(device + L"\\NoteType", L"Count", 1U);
    for (const auto* name : {L"NoteID", L"Value", L"Release", L"Config"}) {
        Set(device + L"\\NoteType\\NoteType1", name, 65537U);
    }
    Set(device + L"\\NoteType\\NoteType1", L"CurrencyID", L"CNY");
    const auto recycler = ExamineAs(L"CCRMRegInfo");
    EXPECT_EQ(noteOn(Find(recycler, L"NoteID")), "1 corrected from 65537");
    EXPECT_EQ(noteOn(Find(recycler, L"Value")), "65537 ");
}

// What a port's values say all together is in one word: a value is in effect where its bit is set there.
TEST_F(ExaminationTest, TellsWhatTheCapabilitiesHoldOfEachPort)
{
    std::minstd_rand random(3); // NOLINT(bugprone-random-generator-seed): the same values in every run
    const auto& entry = *FindClass(L"CSIURegInfo");
    std::size_t differing = 0;
    for (int round = 0; round < 30; ++round) {
        FillAtRandom(entry, random);
        const auto examination = ExaminationOf(entry);
        CSIURegInfo object(L"Svc", false);
        object.Load(nullptr);
        const auto compare = [&](const siu::PortArray& array, const WORD* words) {
            for (const auto& port : array.ports) {
                const auto key = L"CAPABILITIES\\" + std::wstring(array.name) + L'\\' + port.name;
                for (const auto& state : port.form.states) {
                    const auto found =
                        std::find_if(examination.settings.begin(), examination.settings.end(), [&](const auto& each) {
                            return each.Setting().key == key && each.name == state.name;
                        });
                    ASSERT_NE(found, examination.settings.end()) << Narrow(key);
                    SCOPED_TRACE(Narrow(key + L'\\' + state.name));
                    if (state.name != siu::kNotAvailable) {
                        EXPECT_EQ(found->value.number != 0,
                                  (words[port.index] & (state.isCount ? 0xFFFF : state.bit)) != 0);
                    } else if (found->value.number != 0 && found->source != Source::NotRead) {
                        EXPECT_EQ(words[port.index], 0);
                    }
                    differing += found->isCorrected && found->source == Source::Key ? 1U : 0U;
                }
            }
        };
        compare(siu::kSensors, object.m_stSiuCaps.fwSensors);
        compare(siu::kDoors, object.m_stSiuCaps.fwDoors);
        compare(siu::kIndicators, object.m_stSiuCaps.fwIndicators);
        compare(siu::kAuxiliaries, object.m_stSiuCaps.fwAuxiliaries);
        compare(siu::kGuidLights, object.m_stSiuCaps.fwGuidLights);
    }
    EXPECT_GT(differing, 20U);
}

TEST_F(SourceTest, TellsWhatADoorWithoutItsValueIsTakenFor)
{
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Provider", L"Phys");
    Set(L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\Phys", L"ExeDllMother", L"Dev.exe");
    const std::wstring capabilities = L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\Dev\\CAPABILITIES";
    Set(capabilities + L"\\fwDoors\\CABINET", L"WFS_SIU_LOCKED", 1U);
    EXPECT_EQ(Find(ExamineAs(L"CSIURegInfo"), L"WFS_SIU_LOCKED").source, Source::NotRead) << "there are no doors";
    Set(capabilities, L"WFS_SIU_DOORS", 1U);
    const auto before = ExamineAs(L"CSIURegInfo");
    const auto& locked = Find(before, L"WFS_SIU_LOCKED");
    EXPECT_EQ(locked.value.number, 0U);
    EXPECT_TRUE(locked.isCorrected);
    EXPECT_TRUE(IsChanged(locked));
    const auto missing = std::find_if(before.settings.begin(), before.settings.end(), [&](const auto& each) {
        return each.path == locked.path && each.name == L"WFS_SIU_NOT_AVAILABLE";
    });
    ASSERT_NE(missing, before.settings.end());
    EXPECT_EQ(missing->value.number, 1U);
    EXPECT_EQ(SourceText(*missing), "class");
    EXPECT_FALSE(IsChanged(*missing)) << "nobody has set it";
    Set(capabilities + L"\\fwDoors\\CABINET", L"WFS_SIU_NOT_AVAILABLE", 0U);
    EXPECT_EQ(Find(ExamineAs(L"CSIURegInfo"), L"WFS_SIU_LOCKED").value.number, 1U);
}

TEST_F(SourceTest, NamesTheSettingThatWasMeant)
{
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Provider", L"Phys");
    Set(L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\Phys", L"ExeDllMother", L"Dev.exe");
    const auto dispenser = ExamineAs(L"CSpCRDWQTYM1200RegInfo");
    EXPECT_EQ(NearestSetting(dispenser, L"BuadRate"), "BaudRate");
    EXPECT_EQ(NearestSetting(dispenser, L"Control\\Port"), "Comm\\Port");
    EXPECT_EQ(NearestSetting(dispenser, L"Comm\\Prot"), "Comm\\Port");
    const auto pinpad = ExamineAs(L"CSpPINXZSE8098BRegInfo");
    EXPECT_EQ(NearestSetting(pinpad, L"KeyboardMapping\\4"), "KeybordInfo\\KeyboardMapping\\4");
    for (const auto& examination : {&dispenser, &pinpad}) {
        for (const auto* text : {L"1", L"a", L"CheckErrorHandler\\X", L"checkerrorhandler\\x", L"port"}) {
            const auto nearest = NearestSetting(*examination, text);
            EXPECT_FALSE(nearest.ends_with('*')) << nearest;
            std::wstring wide;
            AppendWideFromUtf8(nearest, wide);
            EXPECT_FALSE(EqualNoCase(wide, text)) << nearest;
        }
    }
}

// What one registry left in the process does not reach the next.
TEST_F(SourceTest, ForgetsTheRegistryBefore)
{
    const auto versionOf = [&](const wchar_t* version) {
        const auto store = Open("memory:");
        SetCurrentStore(store);
        Set(L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\Phys", L"ExeDllMother", L"Dev.exe");
        Set(L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\WQCmnCfg\\Policy", L"DevBusy", version[0] == L'1' ? 1U : 0U);
        Set(L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\WQCmnCfg\\Setup", L"NewVersion", version);
        const auto examination = ExamineAs(L"CIDCRegInfo");
        EXPECT_EQ(Find(examination, L"DevBusy").value.number, version[0] == L'1' ? 1U : 0U);
        return Find(examination, L"NewVersion").value.text;
    };
    EXPECT_EQ(versionOf(L"1.0"), L"1.0");
    EXPECT_EQ(versionOf(L"2.0"), L"2.0");
}

} // namespace

} // namespace wqspcfg::diagnosis
