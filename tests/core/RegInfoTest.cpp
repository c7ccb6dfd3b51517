#include "wqspcfg/core/RegInfo.h"

#include "support/ConfigTest.h"
#include "wqspcfg/core/settings/Reference.h"
#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/platform/store/Session.h"
#include "wqspcfg/platform/text/Utf.h"

#include <algorithm>
#include <cwchar>
#include <functional>
#include <map>
#include <utility>

namespace {

using wqspcfg::test::ConfigTest;
using Strings = std::vector<std::wstring>;

class RegInfoTest : public ConfigTest
{
  protected:
    std::ptrdiff_t IndexOf(const std::wstring& label) const
    {
        const auto lines = Lines();
        const auto at = std::find_if(lines.begin(), lines.end(),
                                     [&](const auto& line) { return line.find(label + L" : ") != std::wstring::npos; });
        return at == lines.end() ? -1 : at - lines.begin();
    }
};

// ---- identity and paths ----

TEST_F(RegInfoTest, ALogicalNameIsResolvedAtOnce)
{
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Class", L"CRD");
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Type", L"Dispenser");
    const CRegInfo config(L"Svc", false);
    EXPECT_EQ(config.m_strPhysicalName, L"Phys");
    EXPECT_EQ(config.GetLogicalName(), L"Svc");
    EXPECT_EQ(config.GetClassNameW(nullptr), L"CRD");
    EXPECT_EQ(config.GetType(nullptr), L"Dispenser");
    EXPECT_EQ(config.GetSPLifeCtrl(), L"PhysAFX_STDAFX_H__2A758A77_04CD_48D4_A4AE_CA78D28CD13F__INCLUDED_");
}

TEST_F(RegInfoTest, ALogicalNameThatIsGivenIsAskedEvenWhenItIsEmpty)
{
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES", L"Class", L"PIN");
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES", L"Type", L"Pad");
    const CRegInfo config(L"Svc", false);
    EXPECT_EQ(config.GetClassNameW(L""), L"PIN");
    EXPECT_EQ(config.GetType(L""), L"Pad");
}

TEST_F(RegInfoTest, APhysicalNameHasNoLogicalOneAndTakesItsClassFromTheServiceKey)
{
    Set(Service(), L"Class", L"PTR");
    const CRegInfo config(L"Phys", true);
    EXPECT_TRUE(config.GetLogicalName().IsEmpty());
    EXPECT_TRUE(config.GetType(nullptr).IsEmpty());
    EXPECT_EQ(config.GetClassNameW(nullptr), L"PTR");
}

TEST_F(RegInfoTest, AnotherLogicalNameChangesTheObjectsNames)
{
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Other", L"Provider", L"OtherPhys");
    const CRegInfo config(L"Svc", false);
    EXPECT_EQ(config.GetPhysicalName(L"sVC"), L"Phys"); // the same name in another case
    EXPECT_EQ(config.GetLogicalName(), L"Svc");
    EXPECT_EQ(config.GetPhysicalName(L"Other"), L"OtherPhys");
    EXPECT_EQ(config.GetLogicalName(), L"Other");
    EXPECT_EQ(config.GetPhysicalName(L"Nobody"), L"");
}

TEST_F(RegInfoTest, TheDeviceKeyIsNamedAfterTheCarrier)
{
    const CRegInfo config(L"Svc", false);
    const auto mother = [&](LPCWSTR value, int& isExe) {
        Set(Service(), L"ExeDllMother", value);
        return config.GetExeDllMother(1, &isExe);
    };
    int isExe = -1;
    EXPECT_EQ(mother(L"Mother.DLL", isExe), L"Mother");
    EXPECT_EQ(isExe, 0);
    EXPECT_EQ(mother(L"Mother.exe", isExe), L"Mother");
    EXPECT_EQ(isExe, 1);
    EXPECT_EQ(mother(L"My.Mother.x", isExe), L"My.Mother");
    EXPECT_EQ(isExe, 1);
    EXPECT_EQ(mother(L"Mother", isExe), L"Mother");
    // An empty one counts as missing: the executable carries the provider.
    Set(Service(), L"Executable", L"D:\\sp\\WQSpCRD");
    EXPECT_EQ(mother(L"", isExe), L"WQSpCRD");
    EXPECT_EQ(config.GetExeDllMother(0, nullptr), L"");
}

TEST_F(RegInfoTest, ALoadKnowsTheDeviceKeyOfItsOwnObjectOnly)
{
    const auto service = [](const wchar_t* name) { return L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\" + std::wstring(name); };
    Set(service(L"One"), L"ExeDllMother", L"DevOne.exe");
    Set(service(L"Two"), L"ExeDllMother", L"DevTwo.exe");
    CRegInfo one(L"One", true);
    CRegInfo two(L"Two", true);
    const auto expect = [&](const wchar_t* nameOfOne) {
        EXPECT_EQ(one.GetExeDllMother(1, nullptr), nameOfOne);
        EXPECT_EQ(two.GetExeDllMother(1, nullptr), L"DevTwo");
    };
    {
        const wqspcfg::Loading outer(one, nullptr);
        expect(L"DevOne");
        try {
            const wqspcfg::Loading inner(two, nullptr);
            expect(L"DevOne");
            const wqspcfg::Loading again(one, nullptr);
            expect(L"DevOne");
            throw 1;
        } catch (int) {
        }
        Set(service(L"One"), L"ExeDllMother", L"Other.exe");
        expect(L"DevOne"); // until the Load ends
    }
    expect(L"Other");
}

TEST_F(RegInfoTest, PathsAreCompleted)
{
    const CRegInfo config(L"Svc", false);
    EXPECT_EQ(config.GetDllPathName(), L"");
    EXPECT_EQ(config.GetExePathName(0), L"");
    Set(Service(), L"DLLName", L"WQSpCRD");
    EXPECT_EQ(config.GetDllPathName(), L"C:\\vexo\\sp\\bin\\WQSpCRD.dll");
    EXPECT_EQ(config.GetDllDir(1), L"C:\\vexo\\sp\\bin\\");
    EXPECT_EQ(config.GetDllDir(0), L"C:\\vexo\\sp\\bin");
    EXPECT_EQ(config.GetExePathName(1), L"C:\\vexo\\sp\\bin\\Phys.exe");
    Set(Service(), L"Executable", L"Driver.EXE");
    EXPECT_EQ(config.GetExePathName(0), L"C:\\vexo\\sp\\bin\\Driver.EXE");
    EXPECT_EQ(config.GetExeFileName(0), L"Driver.EXE");
    EXPECT_EQ(config.GetExeFileTitle(0), L"Driver");
    // The module's path is cached for the process.
    Set(Service(), L"DLLName", L"Z:\\Other.DLL");
    EXPECT_EQ(config.GetDllPathName(), L"C:\\vexo\\sp\\bin\\WQSpCRD.dll");
    ResetProcess();
    EXPECT_EQ(config.GetDllPathName(), L"Z:\\Other.DLL");
}

TEST_F(RegInfoTest, TheClassModuleIsNamedWithOrWithoutExtension)
{
    const CRegInfo config(L"Svc", false);
    EXPECT_EQ(config.GetDeviceClassName(nullptr, 1), L"");
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Class", L"PTR");
    EXPECT_EQ(config.GetDeviceClassName(nullptr, 1), L"WQSpPTR.dll");
    EXPECT_EQ(config.GetDeviceClassName(nullptr, 0), L"WQSpPTR");
    Set(Service(), L"PTRName", L"C:\\x\\Printer.Dll");
    EXPECT_EQ(config.GetDeviceClassName(nullptr, 0), L"Printer");
    EXPECT_EQ(config.GetDeviceClassName(nullptr, 1), L"Printer.Dll");
    Set(Service(), L"PTRName", L"Printer");
    EXPECT_EQ(config.GetDeviceClassName(nullptr, 1), L"Printer.dll");
}

TEST_F(RegInfoTest, TheProductVersionNamesBuildAndPatch)
{
    const CRegInfo config(L"Svc", false);
    Set(Common(L"Setup"), L"NewVersion", L"2.1.0");
    Set(Common(L"Setup"), L"NewBuild", L"17");
    Set(Common(L"Setup"), L"PatchVersion", L"3");
    EXPECT_EQ(config.GetProductVersion(), L"2.1.0 17 Patch3");
}

TEST_F(RegInfoTest, TheApplicationIdKeepsItsLastResult)
{
    const CRegInfo config(L"Svc", false);
    EXPECT_EQ(config.GetSpSettingAppID(), L"WQSpSetting");
    Set(Common(L"SpSetting"), L"AppID", L"  Mine ");
    EXPECT_EQ(config.GetSpSettingAppID(), L"Mine");
    Set(Common(L"SpSetting"), L"AppID", L" ");
    EXPECT_EQ(config.GetSpSettingAppID(), L"WQSpSetting");
}

// ---- the shared settings ----

TEST_F(RegInfoTest, ADevicePolicyOverridesTheCommonOne)
{
    Set(Common(L"Policy"), L"SPExit", 5);
    Set(Common(L"Policy"), L"DmpMode", 0U);
    Set(Device(L"Policy"), L"SPExit", 7);
    Set(Device(L"Policy"), L"ErrorCodeKey", L"MyCode");
    Set(Device(L"Policy"), L"Buff2OfCDMMediaDetectEvent", 1); // read from the common key only
    CRegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(&m_log));
    const auto& policy = *CRegInfo::m_lpsPolicyGroup;
    EXPECT_EQ(policy.SPExit, 7U);
    EXPECT_EQ(policy.DmpMode, 0U);
    EXPECT_EQ(policy.HandleArriveError, 0xFFFFU);
    EXPECT_EQ(*policy.ErrorCodeKey, L"MyCode");
    EXPECT_EQ(policy.Buff2OfCDMMediaDetectEvent, 0U);
}

TEST_F(RegInfoTest, RaiseShutdownPriorityIsReadUnderAnotherNameFromTheDevice)
{
    Set(Device(L"Policy"), L"RaiseShutdownPriority", 9);
    {
        CRegInfo config(L"Svc", false);
        config.Load(nullptr);
        EXPECT_EQ(CRegInfo::m_lpsPolicyGroup->RaiseShutdownPriority, 0U);
    }
    Set(Common(L"Policy"), L"RaiseShutdownPriority", 3);
    {
        CRegInfo config(L"Svc", false);
        config.Load(nullptr);
        EXPECT_EQ(CRegInfo::m_lpsPolicyGroup->RaiseShutdownPriority, 3U);
    }
    Set(Device(L"Policy"), L"ResponseOnQueryEndSession", 2);
    CRegInfo config(L"Svc", false);
    config.Load(nullptr);
    EXPECT_EQ(CRegInfo::m_lpsPolicyGroup->RaiseShutdownPriority, 2U);
    EXPECT_EQ(CRegInfo::m_lpsPolicyGroup->ResponseOnQueryEndSession, 2U);
}

TEST_F(RegInfoTest, PoliciesAreReadInTheirOrderDeviceBeforeCommon)
{
    CRegInfo config(L"Svc", false);
    ClearRecord();
    config.Load(nullptr);
    Strings names;
    const auto device = Device(L"Policy") + L"|";
    for (const auto& read : Reads()) {
        if (read.starts_with(Common(L"Policy") + L"|")) {
            names.push_back(read.substr(read.find(L'|') + 1));
        }
    }
    // No device policy key exists, so the common key is asked for each: it does not exist either.
    EXPECT_TRUE(names.empty());
    Set(Device(L"Policy"), L"x", 1);
    Set(Common(L"Policy"), L"x", 1);
    CRegInfo::m_lpsPolicyGroup->DevBusy = 9999;
    ClearRecord();
    config.Load(nullptr);
    const auto reads = Reads();
    const auto at = [&](const std::wstring& read) {
        return std::find(reads.begin(), reads.end(), read) - reads.begin();
    };
    EXPECT_LT(at(device + L"DevError"), at(Common(L"Policy") + L"|DevError"));
    EXPECT_LT(at(Common(L"Policy") + L"|DevError"), at(device + L"DevErrAction"));
    EXPECT_LT(at(device + L"DevErrAction"), at(device + L"ForceHwSwErrEvtID"));
    EXPECT_LT(at(device + L"ForceHwSwErrEvtID"), at(device + L"CancelOnClose"));
}

TEST_F(RegInfoTest, SharedSettingsAreLoadedOnceInTheLifeOfAPolicyGroup)
{
    Set(Device(L"Policy"), L"IsDeleteSensetiveInfo", 0U);
    CRegInfo first(L"Svc", false);
    first.Load(&m_log);
    EXPECT_FALSE(first.m_bIsDeleteSensetiveInfo);
    Set(Common(L"Policy"), L"SPExit", 8);
    CRegInfo second(L"Svc", false);
    m_log.Clear();
    EXPECT_TRUE(second.Load(&m_log));
    EXPECT_TRUE(second.m_bIsDeleteSensetiveInfo); // it does not read its own
    EXPECT_EQ(CRegInfo::m_lpsPolicyGroup->SPExit, 1U);
    EXPECT_TRUE(m_log.Entries().empty());
}

// A store that cannot be read.
class BrokenStore final : public wqspcfg::Store
{
  public:
    std::unique_ptr<wqspcfg::Transaction> Begin(wqspcfg::Access, wqspcfg::Error& error) override
    {
        error = {wqspcfg::ErrorKind::Io, "the disk is gone"};
        return nullptr;
    }
    const std::string& Address() const noexcept override { return m_address; }

  private:
    std::string m_address = "broken:";
};

TEST_F(RegInfoTest, AStoreThatFailedLeavesNoDefaultsBehind)
{
    Set(Common(L"Policy"), L"SPExit", 8);
    Set(Device(), L"ErrorCodeDescKey", L"Mine");
    Set(Device(L"ReSetTimeout"), L"OnlyOpenAppend", 0);
    Set(Service(), L"Version", L"7.1");
    wqspcfg::SetCurrentStore(std::make_shared<BrokenStore>());
    CRegInfo config(L"Phys", true);
    EXPECT_TRUE(config.Load(&m_log));
    EXPECT_EQ(config.GetErrorCodeDescKey(), L"ErrorCodeDescription");
    EXPECT_EQ(config.GetOnlyOpenReSetTimeout(), 1U);
    EXPECT_EQ(config.GetVersion(), L"");

    wqspcfg::SetCurrentStore(m_store);
    m_log.Clear();
    EXPECT_TRUE(config.Load(&m_log));
    EXPECT_FALSE(m_log.Entries().empty());
    EXPECT_EQ(CRegInfo::m_lpsPolicyGroup->SPExit, 8U);
    EXPECT_EQ(config.GetErrorCodeDescKey(), L"Mine");
    EXPECT_EQ(config.GetOnlyOpenReSetTimeout(), 0U);
    EXPECT_EQ(config.GetVersion(), L"7.1");
}

TEST_F(RegInfoTest, TheLastObjectFreesThePolicyGroup)
{
    {
        const CRegInfo first(L"Svc", false);
        ASSERT_NE(CRegInfo::m_lpsPolicyGroup, nullptr);
        EXPECT_EQ(CRegInfo::m_lpsPolicyGroup->DevBusy, 9999U);
        EXPECT_EQ(*CRegInfo::m_lpsPolicyGroup->ErrorCodeKey, L"LastErrorCode");
        CRegInfo::m_dwFrmReserved[5] = 5;
        {
            const CRegInfo second(L"Svc", false);
            EXPECT_EQ(CRegInfo::m_vilRefCount.Get(), 2);
        }
        EXPECT_NE(CRegInfo::m_lpsPolicyGroup, nullptr);
    }
    EXPECT_EQ(CRegInfo::m_lpsPolicyGroup, nullptr);
    const CRegInfo next(L"Svc", false);
    EXPECT_EQ(CRegInfo::m_dwFrmReserved[5], 0U);
}

TEST_F(RegInfoTest, TwoPolicyRecordsNeverOwnOneString)
{
    tagRegPolicyGroup a;
    a.SPExit = 4;
    *a.ErrorCodeKey = L"A";
    tagRegPolicyGroup b;
    b = a;
    EXPECT_EQ(b.SPExit, 4U);
    *a.ErrorCodeKey = L"changed";
    EXPECT_EQ(*b.ErrorCodeKey, L"A");
    EXPECT_NE(a.ErrorCodeKey, b.ErrorCodeKey);
}

TEST_F(RegInfoTest, TheFirstErrorIntervalIsKeptInSecondsAndMultipliedAgainWhenMissing)
{
    Set(Common(L"Log"), L"FirstErrorIntervalTime", 5);
    {
        CRegInfo config(L"Svc", false);
        config.Load(&m_log);
        EXPECT_EQ(CRegInfo::m_dwFirstErrorIntervalTime, 300U);
        EXPECT_NE(Line(L"FirstErrorIntervalTime").find(L" : 5["), std::wstring::npos);
    }
    Set(Common(L"Log"), L"FirstErrorIntervalTime", L"no number"); // reads as missing
    CRegInfo config(L"Svc", false);
    config.Load(nullptr);
    EXPECT_EQ(CRegInfo::m_dwFirstErrorIntervalTime, 18000U);
}

TEST_F(RegInfoTest, SharedServersAndTheSeparator)
{
    Set(Device(L"ShareInfo"), L"Server", 1);
    Set(Device(L"ShareInfo"), L"OtherSideServerName", L"One;Two");
    Set(Device(L"ShareInfo"), L"ExtraSepCharacter", L":");
    Set(Common(L"Policy"), L"ExtraSepCharacter", L"#");
    CRegInfo config(L"Svc", false);
    config.Load(&m_log);
    EXPECT_EQ(CRegInfo::m_dwServer, 1U);
    ASSERT_EQ(CRegInfo::m_arOtherSideServerName.GetSize(), 2);
    EXPECT_EQ(config.FindOtherSideServerName(L"two"), 1);
    EXPECT_EQ(config.FindOtherSideServerName(L"three"), -1);
    EXPECT_EQ(CRegInfo::m_strExtraSepCharacter, L":");
    EXPECT_NE(Line(L"OtherSideServerName").find(L" : One;Two["), std::wstring::npos);
}

TEST_F(RegInfoTest, TheLinesAndTheirOrder)
{
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Class", L"cim");
    Set(Common(L"Setup"), L"NewVersion", L"2.0");
    Set(Common(L"Setup"), L"NewBuild", L"9");
    Set(Device(L"Policy"), L"DevError", 0x0A05);
    Set(Device(L"CheckErrorHandler"), L"Dispense", L"Jam=0;Cover=1");
    Set(Device(), L"ExtBatFileName", L"run.bat");
    CRegInfo config(L"Svc", false);
    config.Load(&m_log);
    const wchar_t* order[] = {L"SetupType",
                              L"DevPID",
                              L"NewVersion",
                              L"NetTimeOut",
                              L"ExeDllMother",
                              L"DevBusy",
                              L"LOBYTE(DevError)",
                              L"HIBYTE(DevError)",
                              L"DevErrAction",
                              L"ForceHwSwErrEvtID",
                              L"SPExit",
                              L"HandleArriveError",
                              L"CanCancelOpen",
                              L"RecordDeferReqCount",
                              L"Buff2OfCDMMediaDetectEvent",
                              L"FirstErrorIntervalTime",
                              L"CheckLevel",
                              L"Dispense",
                              L"Server",
                              L"OtherSideServerName",
                              L"OpenCompleteTimeout",
                              L"ExtBatFileName",
                              L"Normal",
                              L"ExtraSepCharacter",
                              L"IsDeleteSensetiveInfo"};
    std::ptrdiff_t last = -1;
    for (const auto* label : order) {
        const auto at = IndexOf(label);
        EXPECT_GT(at, last) << std::string(label, label + std::wcslen(label));
        last = at;
    }
    EXPECT_EQ(Line(L"DevPID"), L"[CFG] " + std::wstring(34, L' ') + L"DevPID : 0");
    EXPECT_NE(Line(L"NewVersion").find(L" : 2.0 9["), std::wstring::npos);
    EXPECT_NE(Line(L"LOBYTE(DevError)").find(L" : 0x05["), std::wstring::npos);
    EXPECT_NE(Line(L"HIBYTE(DevError)").find(L" : 0x0a["), std::wstring::npos);
    EXPECT_NE(Line(L"DevErrAction").find(L" : 0x00000000["), std::wstring::npos);
    EXPECT_NE(Line(L"HandleArriveError").find(L" : 0xFFFF["), std::wstring::npos);
    EXPECT_NE(Line(L"Dispense").find(L" : Jam=0;Cover=1["), std::wstring::npos);
    for (const auto& entry : m_log.Entries()) {
        EXPECT_EQ(entry.dwCategory, 0x10000U);
    }
}

TEST_F(RegInfoTest, ANullLogOnlySuppressesLines)
{
    Set(Device(L"Policy"), L"IsDeleteSensetiveInfo", 0U);
    CRegInfo config(L"Svc", false);
    ClearRecord();
    EXPECT_TRUE(config.Load(nullptr));
    EXPECT_FALSE(config.m_bIsDeleteSensetiveInfo);
    const auto reads = Reads();
    EXPECT_TRUE(
        std::none_of(reads.begin(), reads.end(), [](const auto& read) { return read.ends_with(L"|TermType"); }));
}

TEST_F(RegInfoTest, SaveWritesTheOneValueThatChanges)
{
    CRegInfo config(L"Svc", false);
    config.Load(nullptr);
    config.m_bIsDeleteSensetiveInfo = false;
    ClearRecord();
    config.Save();
    EXPECT_EQ(Writes(), Strings{Device(L"Policy") + L"|IsDeleteSensetiveInfo"});
    EXPECT_EQ(Number(Device(L"Policy"), L"IsDeleteSensetiveInfo"), 0U);
    EXPECT_FALSE(config.Show(*std::make_unique<CDWordArray>(), nullptr));
}

// ---- time-outs, error rules, command maps ----

TEST_F(RegInfoTest, OnlyOpenCommandsHaveTimeOutsUnlessToldOtherwise)
{
    Set(Device(L"ReSetTimeout"), L"Open", 11);
    Set(Device(L"ReSetTimeout"), L"Dispense", 12);
    Set(Device(L"ReSetTimeout"), L"WFSExecute302", 13);
    const CRegInfo config(L"Svc", false);
    EXPECT_EQ(config.GetReSetTimeout(L"Open", 1), 11U);
    ClearRecord();
    EXPECT_EQ(config.GetReSetTimeout(L"Dispense", 1), 0U);
    EXPECT_TRUE(Reads().empty());
    Set(Device(L"ReSetTimeout"), L"OnlyOpenAppend", 0U);
    EXPECT_EQ(config.GetReSetTimeout(L"Dispense", 1), 0U); // read once in a process
    ResetProcess();
    EXPECT_EQ(config.GetReSetTimeout(L"Dispense", 1), 12U);
    EXPECT_EQ(config.GetReSetTimeout(L"WFSEXECUTE", 302), 13U);
    EXPECT_EQ(config.GetReSetTimeout(L"WFSInfo", 7), 0U);
}

TEST_F(RegInfoTest, IdleIntervals)
{
    const CRegInfo config(L"Svc", false);
    EXPECT_EQ(config.GetIdleTimeInterval(nullptr), 60000U);
    EXPECT_EQ(config.GetIdleTimeInterval(L"NORMAL"), 60000U);
    EXPECT_EQ(config.GetIdleTimeInterval(L"WaitTaken"), 0U);
    Set(Device(L"IdleInterval"), L"Normal", 0U);
    EXPECT_EQ(config.GetIdleTimeInterval(nullptr), 0U);
}

TEST_F(RegInfoTest, CheckedErrorsFollowTheRulesOfTheRequest)
{
    const CRegInfo config(L"Svc", false);
    EXPECT_EQ(config.GetCheckErrorRuler(L"Dispense", L"Jam"), 1U);
    Set(Device(L"CheckErrorHandler"), L"CheckLevel", 0U);
    EXPECT_EQ(config.GetCheckErrorRuler(L"Dispense", L"Jam"), 0U);
    Set(Device(L"CheckErrorHandler"), L"CheckLevel", 2);
    EXPECT_EQ(config.GetCheckErrorRuler(L"Dispense", L"Jam"), 1U);
    Set(Device(L"CheckErrorHandler"), L"Dispense", L"Jam=0;Cover=1;Jam=5;A=B=0; Space =0;Word=x;Big=7");
    EXPECT_EQ(config.GetCheckErrorRuler(L"Dispense", L"Jam"), 0U);
    EXPECT_EQ(config.GetCheckErrorRuler(L"Dispense", L"cover"), 1U);
    EXPECT_EQ(config.GetCheckErrorRuler(L"Dispense", L"Paper"), 1U);
    EXPECT_EQ(config.GetCheckErrorRuler(L"Dispense", L"A"), 1U);
    EXPECT_EQ(config.GetCheckErrorRuler(L"Dispense", L"Space"), 1U);
    EXPECT_EQ(config.GetCheckErrorRuler(L"Dispense", L"Word"), 0U);
    EXPECT_EQ(config.GetCheckErrorRuler(L"Dispense", L"Big"), 7U);
}

TEST_F(RegInfoTest, CommandMapsAreFilledAfresh)
{
    Set(Device(L"ExeCmdMap"), L"1004", 1088);
    Set(Device(L"ExeCmdMap"), L"Name", 1);
    Set(Device(L"ExeCmdMap"), L"1003", L"text");
    Set(Device(L"ErrCodeMap"), L"E01", 77);
    CRegInfo config(L"Svc", false);
    config.m_mapInfoCmd.SetAt(1, 2);
    config.GetCmdMap();
    DWORD code = 0;
    EXPECT_TRUE(config.m_mapExeCmd.Lookup(1004, code));
    EXPECT_EQ(code, 1088U);
    EXPECT_EQ(config.m_mapExeCmd.GetCount(), 1);
    EXPECT_EQ(config.m_mapInfoCmd.GetCount(), 0);
    EXPECT_TRUE(config.m_mapErrCode.Lookup(L"E01", code));
    EXPECT_EQ(code, 77U);
}

TEST_F(RegInfoTest, TheResetPolicyIsTheCommonOneOnceAsked)
{
    Set(Device(L"Policy"), L"ResetLoadCfg", 5);
    CRegInfo config(L"Svc", false);
    config.Load(nullptr);
    EXPECT_EQ(config.GetResetLoadCfgPolicy(), 5U);
    Set(Common(L"Policy"), L"ResetLoadCfg", 0U);
    EXPECT_EQ(config.GetResetLoadCfgPolicy(), 0U);
}

TEST_F(RegInfoTest, DescriptionKeysAreReadOnce)
{
    const CRegInfo config(L"Svc", false);
    EXPECT_EQ(config.GetErrorCodeDescKey(), L"ErrorCodeDescription");
    EXPECT_EQ(config.GetCapVendorDescKey(), L"Vendor");
    EXPECT_EQ(config.GetCapVendorDescKeyValue(), L"TARNO");
    Set(Device(), L"CapVendorDescKey", L"Other");
    EXPECT_EQ(config.GetCapVendorDescKey(), L"Vendor");
    ResetProcess();
    EXPECT_EQ(config.GetCapVendorDescKey(), L"Other");
}

TEST_F(RegInfoTest, GettersWorkWhenTheDeviceKeyIsNamedAfterTheExecutable)
{
    Set(Service(), L"ExeDllMother", L"");
    Set(Service(), L"DLLName", L"C:\\sp\\x.dll");
    Set(Service(), L"Executable", L"Carrier");
    Set(L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\Carrier", L"ErrorCodeDescKey", L"FromCarrier");
    const CRegInfo config(L"Svc", false);
    EXPECT_EQ(config.GetErrorCodeDescKey(), L"FromCarrier");
    EXPECT_EQ(config.GetOnlyOpenReSetTimeout(), 1U);
}

// What the reference says of the getters is what they read.
TEST_F(RegInfoTest, EveryValueOfAGetterIsReadByIt)
{
    CRegInfo config(L"Svc", false);
    const CRegInfo physical(L"Phys", true);
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Class", L"CRD");
    const std::map<std::wstring_view, std::function<void()>> getters = {
        {L"GetPhysicalName",
         [&] {
             config.m_strPhysicalName.Empty();
             config.GetPhysicalName();
         }},
        {L"GetClassNameW",
         [&] {
             config.GetClassNameW(nullptr);
             physical.GetClassNameW(nullptr);
         }},
        {L"GetType", [&] { config.GetType(nullptr); }},
        {L"GetDeviceClassName", [&] { config.GetDeviceClassName(nullptr, 1); }},
        {L"GetDllPathName", [&] { config.GetDllPathName(); }},
        {L"GetExePathName", [&] { config.GetExePathName(0); }},
        {L"GetVersion", [&] { config.GetVersion(); }},
        {L"GetProductVersion", [&] { config.GetProductVersion(); }},
        {L"GetSpSettingAppID", [&] { config.GetSpSettingAppID(); }},
        {L"GetOnlyOpenReSetTimeout", [&] { config.GetOnlyOpenReSetTimeout(); }},
        {L"GetReSetTimeout", [&] { config.GetReSetTimeout(L"Open", 0); }},
        {L"GetIdleTimeInterval", [&] { config.GetIdleTimeInterval(L"Open"); }},
        {L"GetErrorCodeDescKey", [&] { config.GetErrorCodeDescKey(); }},
        {L"GetCapVendorDescKey", [&] { config.GetCapVendorDescKey(); }},
        {L"GetCapVendorDescKeyValue", [&] { config.GetCapVendorDescKeyValue(); }},
    };
    std::size_t checked = 0;
    for (const auto& setting : wqspcfg::DescribeOperations(CRegInfo::Settings())) {
        if (setting.readBy == L"GetCmdMap") {
            continue; // takes whatever names there are
        }
        ASSERT_TRUE(getters.contains(setting.readBy)) << wqspcfg::Utf8ForMessage(setting.readBy);
        auto name = setting.name;
        if (const auto at = name.find(L"%s"); at != std::wstring::npos) {
            name.replace(at, 2, at == 0 && name.size() > 2 ? L"CRD" : L"Open");
        }
        auto path = wqspcfg::PathOf(setting);
        path.erase(0, path.find(L'\\') + 1);
        for (const auto& [placeholder, actual] :
             {std::pair{L"<device>", L"Dev"}, {L"<service>", L"Phys"}, {L"<logical service>", L"Svc"}}) {
            if (const auto at = path.find(placeholder); at != std::wstring::npos) {
                path.replace(at, std::wcslen(placeholder), actual);
            }
        }
        Set(path, L"Present", 1U);
        ResetProcess();
        ClearRecord();
        getters.at(setting.readBy)();
        const auto reads = Reads();
        EXPECT_TRUE(std::find(reads.begin(), reads.end(), path + L'|' + name) != reads.end())
            << wqspcfg::Utf8ForMessage(path + L'|' + name);
        ++checked;
    }
    EXPECT_GE(checked, getters.size());
}

} // namespace
