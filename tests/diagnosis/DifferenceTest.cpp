#include "wqspcfg/diagnosis/Difference.h"

#include "catalogue/CatalogueTesting.h"
#include "support/StoreTesting.h"

#include <algorithm>
#include <set>

namespace wqspcfg::diagnosis {

namespace {

using namespace wqspcfg::test;

ServiceIdentity TheService()
{
    ServiceIdentity service;
    service.logicalName = L"Svc";
    service.physicalName = L"Phys";
    service.deviceKey = L"Dev";
    return service;
}

std::vector<Examination> ExaminedBy(const ClassEntry& entry)
{
    std::vector<Examination> services;
    services.push_back(Examine(TheService(), entry));
    return services;
}

class DifferenceTest : public CatalogueTest
{
  protected:
    void Start()
    {
        Wipe();
        AddRequiredKeys();
        ResetProcess();
    }

    // Those of an examination that a person may store in the keys of the service.
    static std::vector<const ExaminedSetting*> Settable(const Examination& examination)
    {
        std::vector<const ExaminedSetting*> settings;
        for (const auto& each : examination.settings) {
            const auto& setting = each.Setting();
            if (!setting.wholeKey && !setting.computed && !setting.computedDefault && setting.root != Root::Logical &&
                each.source == Source::Missing && each.name != L"ExeDllMother") {
                settings.push_back(&each);
            }
        }
        return settings;
    }
};

} // namespace

// For every class: all defaults stored are as good as none, and each value of another type differs from both.
TEST_F(DifferenceTest, AMissingValueAndAStoredDefaultAreEqualAndAMistypedOneIsNot)
{
    for (const auto* entry : Concrete()) {
        SCOPED_TRACE(NameOfClass(*entry));
        Start();
        const auto missing = ExaminedBy(*entry);
        const auto settings = Settable(missing.front());
        for (const auto* each : settings) {
            const auto& value = each->Setting().defaultValue;
            if (test::IsText(each->Setting().type)) {
                Set(each->path, each->name, value.text.c_str());
            } else {
                Set(each->path, each->name, value.number);
            }
        }
        const auto stored = ExaminedBy(*entry);
        std::string differing;
        for (const auto& difference : Compare(missing, stored, false)) {
            differing += Narrow(difference.key + L'\\' + difference.name) + ' ' + difference.left.value + " -> " +
                         difference.right.value + '\n';
        }
        EXPECT_EQ(differing, "");

        for (const auto* each : settings) {
            if (test::IsText(each->Setting().type)) {
                Set(each->path, each->name, 7U);
            } else {
                Set(each->path, each->name, L"7");
            }
        }
        const auto mistyped = ExaminedBy(*entry);
        std::set<std::wstring> told;
        for (const auto& difference : Compare(stored, mistyped, false)) {
            told.insert(UpCase(difference.key + L'\\' + difference.name));
            EXPECT_EQ(difference.right.setting->source, Source::WrongType);
            const bool isCorrected = difference.right.setting->isCorrected;
            EXPECT_EQ(difference.right.note.find(isCorrected ? "made of the default " : "the default is in effect"), 0U)
                << difference.right.note;
        }
        // Two rows of different types for one place are never both right.
        std::set<std::wstring> never;
        for (const auto& each : stored.front().settings) {
            if (each.source == Source::WrongType) {
                never.insert(UpCase(each.Setting().key + L'\\' + each.name));
            }
        }
        for (const auto& each : mistyped.front().settings) {
            const auto name = UpCase(each.Setting().key + L'\\' + each.name);
            if (each.source == Source::WrongType && !never.contains(name)) {
                EXPECT_TRUE(told.contains(name)) << Narrow(name);
            }
        }
        EXPECT_GT(told.size(), 20U);
    }
}

class ServiceDifferenceTest : public ConfigTest
{
  protected:
    static constexpr const wchar_t* kModel = L"CSpCRDWQTYM1200RegInfo";

    static std::string Text(const std::vector<Difference>& differences)
    {
        std::string text;
        for (const auto& each : differences) {
            text += std::string(NameOf(each.kind)) + ' ' + Narrow(each.service) + ' ' +
                    Narrow(each.key + L'\\' + each.name) + ": " + each.left.value + " (" + each.left.stored + ") -> " +
                    each.right.value + " (" + each.right.stored + ")\n";
        }
        return text;
    }
};

TEST_F(ServiceDifferenceTest, TellsFallbacksSecretsEntriesAndLongTexts)
{
    const auto& entry = *FindClass(kModel);
    const std::wstring same(5000, L'x');
    Set(Device(L"Comm"), L"BluetoothPassWord", L"hunter2");
    Set(Device(L"Comm"), L"BluetoothName", (same + L"left").c_str());
    Set(Device(L"Policy"), L"DevError", 258U);
    Set(Device(L"Control"), L"CloseOption", 1U);
    const auto left = ExaminedBy(entry);
    Set(Device(L"Comm"), L"BluetoothPassWord", L"hunter3");
    Set(Device(L"Comm"), L"BluetoothName", (same + L"right").c_str());
    Set(Device(L"Policy"), L"DevError", L"");
    Set(Common(L"Policy"), L"DevError", 7U);
    Set(Device(L"Control"), L"CloseOption", 77U);
    const auto right = ExaminedBy(entry);

    EXPECT_EQ(Text(Compare(left, left, false)), "");
    const auto text = Text(Compare(left, right, false));
    EXPECT_NE(text.find("Policy\\DevError: 258 (REG_DWORD 258) -> 7 (REG_DWORD 7 in WQCmnCfg\\Policy)\n"),
              std::string::npos)
        << text;
    EXPECT_NE(text.find("Control\\CloseOption: 1 retain (REG_DWORD 1) -> 77 (REG_DWORD 77)\n"), std::string::npos);
    EXPECT_NE(text.find("Comm\\BluetoothPassWord: ******** (a secret) -> ******** (a secret)\n"), std::string::npos);
    EXPECT_NE(text.find("xxxleft\" from character 4981 "), std::string::npos) << text;
    EXPECT_NE(text.find("xxxright\" from character 4981 "), std::string::npos);
    EXPECT_EQ(text.find("hunter"), std::string::npos);
    EXPECT_NE(Text(Compare(left, right, true)).find("\"hunter2\""), std::string::npos);
}

TEST_F(ServiceDifferenceTest, TellsWhatAValueBesideAnotherDecides)
{
    const auto& entry = *FindClass(L"CSIURegInfo");
    Set(Device(L"CAPABILITIES"), L"WFS_SIU_DOORS", 1U);
    Set(Device(L"CAPABILITIES\\fwDoors\\SAFE"), L"WFS_SIU_LOCKED", 1U);
    const auto left = ExaminedBy(entry);
    Set(Device(L"CAPABILITIES\\fwDoors\\SAFE"), L"WFS_SIU_NOT_AVAILABLE", 0U);
    const auto right = ExaminedBy(entry);
    EXPECT_EQ(Text(Compare(left, right, false)),
              "setting Svc CAPABILITIES\\fwDoors\\SAFE\\WFS_SIU_NOT_AVAILABLE: 1 (missing) -> 0 (REG_DWORD 0)\n"
              "setting Svc CAPABILITIES\\fwDoors\\SAFE\\WFS_SIU_LOCKED: 0 (REG_DWORD 1) -> 1 (REG_DWORD 1)\n");
}

TEST_F(ServiceDifferenceTest, TellsWhatOnlyALoadFindsAndWhatOneSideLacks)
{
    const auto& entry = *FindClass(kModel);
    const auto unit = Device(L"CardUnit\\CardUnitInfo1");
    Set(unit, L"Number", 1U);
    Set(unit, L"Count", 64U);
    const auto left = ExaminedBy(entry);
    Set(unit, L"Count", 63U);
    Set(Device(L"CardUnit\\CardUnitInfo2"), L"Number", 2U);
    auto right = ExaminedBy(entry);
    const auto units = Text(Compare(left, right, false));
    EXPECT_NE(units.find("CardUnit\\CardUnitInfo1\\Count: 64 (REG_DWORD 64) -> 63 (REG_DWORD 63)"), std::string::npos)
        << units;
    EXPECT_NE(units.find("CardUnit\\CardUnitInfo2\\Number:  (missing) -> 2 (REG_DWORD 2)"), std::string::npos) << units;

    // Another class: what both have is compared, and the rest goes without saying.
    Set(Device(L"Policy"), L"DevError", 1U);
    right = ExaminedBy(*FindClass(L"CSpCRDTD2001GetRegInfo"));
    right.front().service.deviceKey = L"Other";
    const auto other = Text(Compare(left, right, false));
    EXPECT_EQ(other.rfind("class Svc \\: CSpCRDWQTYM1200RegInfo () -> CSpCRDTD2001GetRegInfo ()\n", 0), 0U) << other;
    EXPECT_NE(other.find("deviceKey Svc \\: Dev () -> Other ()\n"), std::string::npos);
    EXPECT_NE(other.find("Policy\\DevError: 0 (missing) -> 1 (REG_DWORD 1)"), std::string::npos) << other;
    EXPECT_EQ(other.find("CloseOption"), std::string::npos) << "of one class";
    EXPECT_NE(other.find("CardUnitInfo1\\Count"), std::string::npos);

    right.front().service.logicalName = L"Svc2";
    const auto services = Compare(left, right, false);
    ASSERT_EQ(services.size(), 2U);
    EXPECT_TRUE(services[0].kind == DifferenceKind::Service && services[0].left.isThere && !services[0].right.isThere);
    EXPECT_TRUE(services[1].service == L"Svc2" && services[1].right.isThere && !services[1].left.isThere);
}

// The times at which a load is done and the numbers that it draws are no difference; a stored one beside them is.
TEST_F(ServiceDifferenceTest, WhatTheClassMakesIsNoDifference)
{
    const auto& entry = *FindClass(L"CIDCRegInfo");
    Set(Device(L"Control"), L"OptmPolicy", 1U);
    const auto left = ExaminedBy(entry);
    auto right = ExaminedBy(entry);
    const std::wstring* made = nullptr;
    std::wstring path;
    for (auto& each : right.front().settings) {
        if (each.Setting().computed || each.Setting().computedDefault) {
            each.value = {1234567, L"23_59_59"};
        }
        if (each.Setting().computedDefault && each.Setting().type == Type::String) {
            made = &each.name;
            path = each.path;
        }
    }
    EXPECT_EQ(Text(Compare(left, right, false)), "");
    ASSERT_NE(made, nullptr);
    Set(path, *made, L"01_02_03");
    const auto stored = ExaminedBy(entry);
    const auto differences = Compare(left, stored, false);
    ASSERT_EQ(differences.size(), 1U) << Text(differences);
    EXPECT_EQ(differences[0].left.value, "made by the class");
    EXPECT_EQ(differences[0].right.value, "\"01_02_03\"");
}

TEST_F(ServiceDifferenceTest, StoredValuesAreComparedKeyByKey)
{
    const auto read = [] {
        Error error;
        auto keys = ReadStored(KeysOfServices(), error);
        EXPECT_FALSE(error) << error.message;
        return keys;
    };
    Set(L"SOFTWARE\\XFS\\A", L"Same", 1U);
    Set(L"SOFTWARE\\XFS\\A", L"Other", 1U);
    Set(L"SOFTWARE\\XFS\\A B", L"Beside", 1U); // a blank stands before a backslash
    const auto left = read();
    Set(L"SOFTWARE\\XFS\\A", L"Other", L"1");
    Set(L"SOFTWARE\\XFS\\A", L"New", L"");
    Set(L"SOFTWARE\\XFS\\A\\Below\\Deep", L"x", L"");
    Set(L"SOFTWARE\\XFS\\A\\Below", L"y", L"");
    Set(L"SOFTWARE\\Elsewhere", L"z", L"");
    const auto right = read();
    const auto text = [](const std::vector<StoredDifference>& differences) {
        std::wstring all;
        for (const auto& each : differences) {
            all += each.path + L' ' +
                   (each.name ? *each.name : std::to_wstring(each.keys) + L'/' + std::to_wstring(each.values)) +
                   (each.isInLeft ? L" left" : L"") + (each.isInRight ? L" right" : L"") + L'\n';
        }
        return all;
    };
    EXPECT_EQ(text(Compare(left, left)), L"");
    EXPECT_EQ(text(Compare(left, right)), L"SOFTWARE\\XFS\\A Other left right\n"
                                          L"SOFTWARE\\XFS\\A New right\n"
                                          L"SOFTWARE\\XFS\\A\\Below 2/2 right\n");
    EXPECT_EQ(text(Compare(right, left)), L"SOFTWARE\\XFS\\A New left\n"
                                          L"SOFTWARE\\XFS\\A Other left right\n"
                                          L"SOFTWARE\\XFS\\A\\Below 2/2 left\n");
    EXPECT_TRUE(IsSecretName(L"bluetoothpassword"));
    EXPECT_FALSE(IsSecretName(L"Port"));
}

} // namespace wqspcfg::diagnosis
