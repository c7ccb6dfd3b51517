#include "wqspcfg/diagnosis/Examination.h"

#include "catalogue/CatalogueTesting.h"
#include "support/StoreTesting.h"
#include "wqspcfg/diagnosis/SettingText.h"

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

TEST_F(ExaminationTest, TellsWhatALoadGivesEachMember)
{
    std::minstd_rand random(7); // NOLINT(bugprone-random-generator-seed): the same values in every run
    for (const auto* entry : Concrete()) {
        SCOPED_TRACE(NameOfClass(*entry));
        for (int round = 0; round < 3; ++round) {
            FillAtRandom(*entry, random);
            ServiceIdentity service;
            service.logicalName = L"Svc";
            service.physicalName = L"Phys";
            service.deviceKey = L"Dev";
            const auto examination = Examine(service, *entry);
            ResetProcess();
            const auto object = Make(*entry);
            EXPECT_EQ(object->Load(nullptr), examination.isLoaded);
            std::size_t compared = 0;
            for (const auto& examined : examination.settings) {
                const auto& setting = examined.Setting();
                // What the clock or chance decides is another value each time.
                if (!IsHeld(setting) || !setting.readBy.empty() || examined.declared->isMixin ||
                    examined.source == Source::Code || setting.computedDefault) {
                    continue;
                }
                ++compared;
                EXPECT_EQ(examined.value, Held(setting, *object)) << Narrow(setting.key + L'\\' + setting.name);
            }
            EXPECT_GT(compared, 20U);
        }
    }
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

    const auto& interval = Find(examination, L"FirstErrorIntervalTime");
    EXPECT_TRUE(interval.isCorrected);
    EXPECT_EQ(interval.read.number, 5U);
    EXPECT_EQ(interval.value.number, 300U);

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
