#include "wqspcfg/core/RegInfo.h"

#include "wqspcfg/core/RegInfoSettings.h"
#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/core/settings/OwnChanges.h"
#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/platform/store/ForkSafe.h"
#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/platform/utility/StringUtility.h"
#include "wqspcfg/platform/utility/Utility.h"

#include <mutex>
#include <string>

using wqspcfg::EqualNoCase;
using wqspcfg::kDeviceRoot;
using wqspcfg::kLogicalRoot;
using wqspcfg::kServiceRoot;
using wqspcfg::Row;
using wqspcfg::Rows;
namespace shared = wqspcfg::shared;

namespace {

constexpr DWORD kNotLoaded = 9999; // in DevBusy, until the first Load
constexpr DWORD kNotRead = 0xFFFFFFFF;
constexpr wchar_t kDeviceKeyFormat[] = L"%s%s\\%s"; // a subkey of the device key

long g_refCount = 0;

// Guards what getters keep, for the process or in their object: service providers call them from several threads.
std::mutex& CacheMutex()
{
    return wqspcfg::ForkSafeMutex(wqspcfg::ForkSafe::CachedResults);
}

bool EndsWith(const CString& strText, std::wstring_view ending)
{
    const auto text = strText.View();
    return text.size() >= ending.size() && EqualNoCase(text.substr(text.size() - ending.size()), ending);
}

// What `query` gives is kept once it is not `unread`, but not what a store that failed gave. It may ask for other
// cached results, so the lock is not held meanwhile.
template <class T, class F>
T Cached(T& cache, const T& unread, F query)
{
    {
        const std::lock_guard lock(CacheMutex());
        if (cache != unread) {
            return cache;
        }
    }
    wqspcfg::ReadScope scope;
    T result = query();
    if (scope->Failure()) {
        return result;
    }
    const std::lock_guard lock(CacheMutex());
    if (cache == unread) {
        cache = result;
    }
    return cache;
}

CString TextOf(const CRegInfo& object, const wqspcfg::Setting& row)
{
    CString strText;
    wqspcfg::ReadSetting(object, row, strText);
    return strText;
}

} // namespace

tagRegPolicyGroup* CRegInfo::m_lpsPolicyGroup = nullptr;
CValueInterlocker CRegInfo::m_vilRefCount(&g_refCount);
DWORD CRegInfo::m_dwFrmReserved[128] = {};
DWORD CRegInfo::m_dwFirstErrorIntervalTime = 0;
DWORD CRegInfo::m_dwServer = 0;
CStringArray CRegInfo::m_arOtherSideServerName;
CString CRegInfo::m_strExtraSepCharacter(L"=");
DWORD CRegInfo::m_dwOnlyOpenReSetTimeout = kNotRead;
CString CRegInfo::m_strDllPathName;
CString CRegInfo::m_strVersion;
CString CRegInfo::m_strProductVersion;
CString CRegInfo::m_strSpSettingAppID;
CString CRegInfo::m_strErrorCodeDescKey;
CString CRegInfo::m_strCapVendorDescKey;
CString CRegInfo::m_strCapVendorDescKeyValue;

const wqspcfg::Table& CRegInfo::Settings() noexcept
{
    static const wqspcfg::Table table{L"CRegInfo", nullptr, L"", Rows<shared::kSettings>, {}, shared::kOperations};
    return table;
}

CRegInfo::CRegInfo(const CString& strName, bool bPhysicalName)
    : m_bPhysicalName(bPhysicalName), m_mapExeCmd(10), m_mapInfoCmd(10), m_mapSpare(10), m_mapErrCode(10),
      m_bIsDeleteSensetiveInfo(true)
{
    m_vilRefCount.Increment();
    if (m_lpsPolicyGroup == nullptr) {
        m_lpsPolicyGroup = new tagRegPolicyGroup;
        m_lpsPolicyGroup->DevBusy = kNotLoaded;
        for (auto& word : m_dwFrmReserved) {
            word = 0;
        }
    }
    if (bPhysicalName) {
        m_strPhysicalName = strName;
    } else {
        m_strLogicalName = strName;
        GetPhysicalName();
    }
}

CRegInfo::~CRegInfo()
{
    wqspcfg::ForgetLoaded(*this);
    m_vilRefCount.Decrement();
    if (m_vilRefCount.Get() < 1) {
        delete m_lpsPolicyGroup;
        m_lpsPolicyGroup = nullptr;
    }
}

void CRegInfo::ForgetProcess()
{
    m_dwFirstErrorIntervalTime = 0;
    m_dwServer = 0;
    m_arOtherSideServerName.RemoveAll();
    m_strExtraSepCharacter = L"=";
    m_dwOnlyOpenReSetTimeout = kNotRead;
    for (auto* text : {&m_strDllPathName, &m_strVersion, &m_strProductVersion, &m_strSpSettingAppID,
                       &m_strErrorCodeDescKey, &m_strCapVendorDescKey, &m_strCapVendorDescKeyValue}) {
        text->Empty();
    }
}

bool CRegInfo::Load(CLog* pLog)
{
    if (m_lpsPolicyGroup->DevBusy != kNotLoaded) {
        return true;
    }
    wqspcfg::Loading loading(*this, pLog);
    m_lpsPolicyGroup->DevBusy = 1;
    const auto& table = Settings();
    loading.Read(table, Rows<shared::kPolicy>);

    GetSpSettingAppID();
    GetProductVersion();
    GetDllPathName();
    GetOnlyOpenReSetTimeout();
    GetErrorCodeDescKey();
    GetVersion();
    GetCmdMap();

    loading.Read(table, Row<shared::kFirstErrorInterval>());
    m_dwFirstErrorIntervalTime *= Row<shared::kFirstErrorInterval>().scale;

    loading.Read(table, Row<shared::kServer>());
    m_arOtherSideServerName.RemoveAll();
    CString strServers;
    if (loading.Query(Row<shared::kOtherSideServerName>(), strServers)) {
        CStringUtility::SplitString(m_arOtherSideServerName, strServers, L';');
    }
    loading.Read(table, Row<shared::kExtraSepCharacter>());

    if (loading.IsTold()) {
        ReportShared(loading);
    }
    loading.Read(table, Row<shared::kIsDeleteSensetiveInfo>());
    if (loading.HasFailed()) {
        m_lpsPolicyGroup->DevBusy = kNotLoaded; // the next Load reads what this one could not
    }
    return true;
}

void CRegInfo::ReportShared(wqspcfg::Loading& loading) const
{
    const auto& table = Settings();

    loading.Read(table, Rows<shared::kSetup>);
    const auto version = [&](const wqspcfg::Setting& row, const wqspcfg::Setting& rowOfBuild) {
        CString strVersion;
        CString strBuild;
        loading.Query(row, strVersion);
        loading.Query(rowOfBuild, strBuild);
        loading.Print(row, strVersion + L" " + strBuild);
    };
    version(Row<shared::kNewVersion>(), Row<shared::kNewBuild>());
    version(Row<shared::kOldVersion>(), Row<shared::kOldBuild>());
    loading.Read(table, Rows<shared::kSetupRest>);

    for (const auto& place : shared::kPolicyLines) {
        const auto& row = place.In(Rows<shared::kPolicy>);
        if (&row == &shared::DevError()) {
            loading.Print(Row<shared::kDevErrorLow>(), LOBYTE(m_lpsPolicyGroup->DevError));
            loading.Print(Row<shared::kDevErrorHigh>(), HIBYTE(m_lpsPolicyGroup->DevError));
        } else {
            loading.PrintHeld(row);
        }
    }
    const CString strClass = GetClassNameW(nullptr);
    if (strClass.CompareNoCase(L"CDM") == 0 || strClass.CompareNoCase(L"CIM") == 0) {
        loading.PrintHeld(shared::MediaDetectLine());
    }

    loading.Print(Row<shared::kFirstErrorInterval>(),
                  m_dwFirstErrorIntervalTime / Row<shared::kFirstErrorInterval>().scale);

    loading.Read(table, Row<shared::kCheckLevel>());
    loading.Read(table, Row<shared::kCheckRules>());

    loading.PrintHeld(Row<shared::kServer>());
    loading.Print(Row<shared::kOtherSideServerName>(), CStringUtility::CombineString(m_arOtherSideServerName, L';'));
    loading.Read(table, Row<shared::kOpenCompleteTimeout>());
    CString strBatFile;
    if (loading.Query(Row<shared::kExtBatFileName>(), strBatFile) && !strBatFile.IsEmpty()) {
        loading.Print(Row<shared::kExtBatFileName>(), strBatFile);
    }
    loading.Read(table, Row<shared::kIdleNormal>());
    loading.PrintHeld(Row<shared::kExtraSepCharacter>());
}

void CRegInfo::Save()
{
    wqspcfg::Saving saving(*this);
    saving.Write(Row<shared::kIsDeleteSensetiveInfo>());
}

bool CRegInfo::Show(CDWordArray&, HWND)
{
    return false;
}

// ---- identity and paths ----

CString CRegInfo::GetLogicalName() const
{
    return m_strLogicalName;
}

CString CRegInfo::GetPhysicalName(LPCWSTR lpszLogicalName) const
{
    if (lpszLogicalName != nullptr && m_strLogicalName.CompareNoCase(lpszLogicalName) != 0) {
        m_strLogicalName = lpszLogicalName;
        m_strPhysicalName.Empty();
    }
    if (m_strPhysicalName.IsEmpty()) {
        // A name that is still not known is not written: other threads may be reading it.
        if (const CString strName = TextOf(*this, Row<shared::kProvider>()); !strName.IsEmpty()) {
            const std::lock_guard lock(CacheMutex());
            m_strPhysicalName = strName;
        }
    }
    return m_strPhysicalName;
}

CString CRegInfo::GetClassNameW(LPCWSTR lpszLogicalName) const
{
    CString strClass;
    if (lpszLogicalName != nullptr) {
        QueryValue(strClass, Row<shared::kClass>().name, L"%s%s", kLogicalRoot, lpszLogicalName);
        return strClass;
    }
    if (!m_strLogicalName.IsEmpty()) {
        return TextOf(*this, Row<shared::kClass>());
    }
    if (m_strPhysicalName.IsEmpty()) {
        GetPhysicalName();
    }
    return TextOf(*this, Row<shared::kClassOfProvider>());
}

CString CRegInfo::GetType(LPCWSTR lpszLogicalName) const
{
    CString strType;
    if (lpszLogicalName != nullptr || !m_strLogicalName.IsEmpty()) {
        QueryValue(strType, Row<shared::kType>().name, L"%s%s", kLogicalRoot,
                   lpszLogicalName != nullptr ? CString(lpszLogicalName) : m_strLogicalName);
    }
    return strType;
}

CString CRegInfo::GetDeviceClassName(LPCWSTR lpszLogicalName, int bWithExtension) const
{
    const CString strClass = GetClassNameW(lpszLogicalName);
    if (strClass.IsEmpty()) {
        return {};
    }
    CString strModule;
    if (!QueryValue(strModule, wqspcfg::FormatString(Row<shared::kClassModule>().name.data(), strClass), L"%s%s",
                    kServiceRoot, m_strPhysicalName)) {
        return CString(wqspcfg::FormatString(bWithExtension ? L"WQSp%s.dll" : L"WQSp%s", strClass));
    }
    strModule = strModule.Mid(strModule.ReverseFind(L'\\') + 1);
    const bool bHasExtension = EndsWith(strModule, L".dll");
    if (bWithExtension && !bHasExtension) {
        strModule += L".dll";
    } else if (!bWithExtension && bHasExtension) {
        strModule = strModule.Left(strModule.GetLength() - 4);
    }
    return strModule;
}

CString CRegInfo::GetDllPathName() const
{
    return Cached(m_strDllPathName, CString(), [this] {
        CString strPath;
        if (!wqspcfg::ReadSetting(*this, Row<shared::kDllName>(), strPath)) {
            return strPath;
        }
        if (strPath.Find(L'\\') < 0) {
            strPath = CUtility::GetModuleDir(1, wqspcfg::ThisModule(), true) + strPath;
        }
        return EndsWith(strPath, L".dll") ? strPath : strPath + L".dll";
    });
}

CString CRegInfo::GetDllDir(int bTrailingBackslash) const
{
    const CString strPath = GetDllPathName();
    const int nBackslash = strPath.ReverseFind(L'\\');
    return nBackslash < 0 ? CString() : strPath.Left(bTrailingBackslash ? nBackslash + 1 : nBackslash);
}

CString CRegInfo::GetExePathName(int bDefault) const
{
    CString strPath;
    if (wqspcfg::ReadSetting(*this, Row<shared::kExecutable>(), strPath)) {
        if (strPath.Find(L'\\') < 0) {
            strPath = GetDllDir(1) + strPath;
        }
        if (!EndsWith(strPath, L".exe")) {
            strPath += L".exe";
        }
        return strPath;
    }
    return bDefault ? GetDllDir(1) + GetPhysicalName() + L".exe" : CString();
}

CString CRegInfo::GetExeFileName(int bDefault) const
{
    const CString strPath = GetExePathName(bDefault);
    return strPath.Mid(strPath.ReverseFind(L'\\') + 1);
}

CString CRegInfo::GetExeFileTitle(int bDefault) const
{
    const CString strName = GetExeFileName(bDefault);
    const int nDot = strName.ReverseFind(L'.');
    return nDot < 0 ? strName : strName.Left(nDot);
}

CString CRegInfo::GetExeDllMother(int bUseExeTitle, int* pbIsExe) const
{
    if (bUseExeTitle == 1 && pbIsExe == nullptr) {
        if (const auto* known = wqspcfg::Loading::DeviceKeyNameOf(*this)) {
            return *known; // a Load asks once
        }
    }
    int bIsExe = 1;
    CString strMother;
    if (wqspcfg::ReadSetting(*this, Row<shared::kExeDllMother>(), strMother) && !strMother.IsEmpty()) {
        const int nDot = strMother.ReverseFind(L'.');
        if (nDot >= 0) {
            bIsExe = strMother.Mid(nDot).CompareNoCase(L".dll") == 0 ? 0 : 1;
            strMother = strMother.Left(nDot);
        }
    } else {
        strMother = bUseExeTitle ? GetExeFileTitle(bUseExeTitle) : CString();
    }
    if (pbIsExe != nullptr) {
        *pbIsExe = bIsExe;
    }
    return strMother;
}

CString CRegInfo::GetVersion() const
{
    return Cached(m_strVersion, CString(), [this] { return TextOf(*this, Row<shared::kVersion>()); });
}

CString CRegInfo::GetProductVersion() const
{
    return Cached(m_strProductVersion, CString(), [this] {
        CString strVersion = TextOf(*this, Row<shared::kNewVersion>());
        const CString strBuild = TextOf(*this, Row<shared::kNewBuild>());
        if (!strBuild.IsEmpty()) {
            strVersion += L" " + strBuild;
        }
        const CString strPatch = TextOf(*this, Row<shared::kPatchVersion>());
        if (!strPatch.IsEmpty()) {
            strVersion += L" Patch" + strPatch;
        }
        return strVersion;
    });
}

CString CRegInfo::GetSpSettingAppID() const
{
    CString strAppID;
    const bool bFound = wqspcfg::ReadSetting(*this, Row<shared::kAppID>(), strAppID);
    const std::lock_guard lock(CacheMutex());
    if (bFound) {
        m_strSpSettingAppID = strAppID;
    }
    m_strSpSettingAppID.Trim();
    if (m_strSpSettingAppID.IsEmpty()) {
        m_strSpSettingAppID = Row<shared::kAppID>().defaultValue.text;
    }
    return m_strSpSettingAppID;
}

CString CRegInfo::GetSPLifeCtrl() const
{
    return GetPhysicalName() + L"AFX_STDAFX_H__2A758A77_04CD_48D4_A4AE_CA78D28CD13F__INCLUDED_";
}

// ---- time-outs, error rules and command maps ----

DWORD CRegInfo::GetOnlyOpenReSetTimeout() const
{
    return Cached(m_dwOnlyOpenReSetTimeout, kNotRead, [this] {
        DWORD dwOnlyOpen = 0;
        wqspcfg::ReadSetting(*this, Row<shared::kOnlyOpenAppend>(), dwOnlyOpen);
        return dwOnlyOpen;
    });
}

DWORD CRegInfo::GetReSetTimeout(const CString& strCommand, UINT nIndex) const
{
    wqspcfg::ReadScope scope;
    CString strUpper(strCommand);
    strUpper.MakeUpper(); // not lower: that is the locale's, and a Turkish one would not find "inf" in "INFO"
    if (GetOnlyOpenReSetTimeout() != 0 && strUpper.Find(L"OPEN") < 0) {
        return 0;
    }
    const bool bIndexed = strUpper.Find(L"EXE") >= 0 || strUpper.Find(L"INF") >= 0;
    const CString strName(bIndexed ? wqspcfg::FormatString(L"%s%d", strCommand, nIndex) : strCommand.Std());
    DWORD dwTimeout = 0;
    QueryValue(dwTimeout, strName, kDeviceKeyFormat, kDeviceRoot, GetExeDllMother(1, nullptr),
               Row<shared::kReSetTimeout>().key.subkey);
    return dwTimeout;
}

DWORD CRegInfo::GetIdleTimeInterval(LPCWSTR lpszName) const
{
    wqspcfg::ReadScope scope;
    const auto& normal = Row<shared::kIdleNormal>();
    const CString strName(lpszName != nullptr ? CString(lpszName) : CString(normal.name));
    DWORD dwInterval = EqualNoCase(strName.View(), normal.name) ? normal.defaultValue.number : 0;
    QueryValue(dwInterval, strName, kDeviceKeyFormat, kDeviceRoot, GetExeDllMother(1, nullptr), normal.key.subkey);
    return dwInterval;
}

DWORD CRegInfo::GetCheckErrorRuler(const CString& strRequest, const CString& strRule) const
{
    wqspcfg::ReadScope scope;
    DWORD dwLevel = 0;
    wqspcfg::ReadSetting(*this, Row<shared::kCheckLevel>(), dwLevel);
    if (dwLevel <= 1) {
        return dwLevel;
    }
    CString strRules;
    QueryValue(strRules, strRequest, kDeviceKeyFormat, kDeviceRoot, GetExeDllMother(1, nullptr),
               Row<shared::kCheckRules>().key.subkey);
    CStringArray arItems;
    CStringUtility::SplitString(arItems, strRules, L';');
    for (const auto& strItem : arItems) {
        CStringArray arPair;
        if (CStringUtility::SplitString(arPair, strItem, L'=') == 2 && arPair[0].CompareNoCase(strRule) == 0) {
            return static_cast<DWORD>(wqspcfg::ParseDecimal(arPair[1].View()));
        }
    }
    return 1;
}

void CRegInfo::GetCmdMap()
{
    wqspcfg::Loading loading(*this, nullptr);
    loading.Read(Settings(), Rows<shared::kCommandMaps>);
}

DWORD CRegInfo::GetResetLoadCfgPolicy() const
{
    DWORD dwResetLoadCfg = 0;
    const bool bFound = QueryValue(dwResetLoadCfg, shared::ResetLoadCfg().name, L"%s%s%s", kServiceRoot,
                                   wqspcfg::kCommonKey, shared::kCommonPolicy.subkey);
    const std::lock_guard lock(CacheMutex());
    auto& dwHeld = m_lpsPolicyGroup->ResetLoadCfg;
    if (bFound && dwHeld != dwResetLoadCfg) { // what stays as it is, others may read meanwhile
        dwHeld = dwResetLoadCfg;
    }
    return dwHeld;
}

int CRegInfo::FindOtherSideServerName(const CString& strServerName) const
{
    for (int i = 0; i < static_cast<int>(m_arOtherSideServerName.GetSize()); ++i) {
        if (m_arOtherSideServerName[i].CompareNoCase(strServerName) == 0) {
            return i;
        }
    }
    return -1;
}

CString CRegInfo::GetErrorCodeDescKey() const
{
    return Cached(m_strErrorCodeDescKey, CString(), [this] { return TextOf(*this, Row<shared::kErrorCodeDescKey>()); });
}

CString CRegInfo::GetCapVendorDescKey() const
{
    return Cached(m_strCapVendorDescKey, CString(), [this] { return TextOf(*this, Row<shared::kCapVendorDescKey>()); });
}

CString CRegInfo::GetCapVendorDescKeyValue() const
{
    return Cached(m_strCapVendorDescKeyValue, CString(),
                  [this] { return TextOf(*this, Row<shared::kCapVendorDescKeyValue>()); });
}

WQSPCFG_CATALOGUE_ENTRY(CRegInfo)
