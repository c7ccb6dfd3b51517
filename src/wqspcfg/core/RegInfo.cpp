#include "wqspcfg/core/RegInfo.h"

#include "wqspcfg/core/RegInfoSettings.h"
#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/platform/utility/StringUtility.h"
#include "wqspcfg/platform/utility/Utility.h"

#include <mutex>
#include <string>

using wqspcfg::EqualNoCase;
using wqspcfg::kDeviceRoot;
using wqspcfg::kLogicalRoot;
using wqspcfg::kServiceRoot;
namespace shared = wqspcfg::shared;

namespace {

constexpr DWORD kNotLoaded = 9999; // in DevBusy, until the first Load
constexpr DWORD kNotRead = 0xFFFFFFFF;
constexpr wchar_t kCommonPolicyFormat[] = L"%sWQCmnCfg\\Policy";
constexpr wchar_t kSetupFormat[] = L"%sWQCmnCfg\\Setup";

long g_refCount = 0;

// Guards the results that getters cache for the process: service providers call them from several threads.
std::recursive_mutex& CacheMutex()
{
    static std::recursive_mutex mutex; // the name of the device key may need a cached path
    return mutex;
}

bool EndsWith(const CString& strText, std::wstring_view ending)
{
    const auto text = strText.View();
    return text.size() >= ending.size() && EqualNoCase(text.substr(text.size() - ending.size()), ending);
}

// `query` fills the cache when it is empty. It may ask for other cached results, so the lock is not held meanwhile.
template <class F>
CString Cached(CString& strCache, F query)
{
    {
        const std::lock_guard lock(CacheMutex());
        if (!strCache.IsEmpty()) {
            return strCache;
        }
    }
    CString strResult;
    query(strResult);
    const std::lock_guard lock(CacheMutex());
    if (strCache.IsEmpty()) {
        strCache = strResult;
    }
    return strCache;
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
    static constexpr wqspcfg::Table kTable{L"CRegInfo", nullptr, L"", shared::kSettings, {}, shared::kOperations};
    return kTable;
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
    m_vilRefCount.Decrement();
    if (m_vilRefCount.Get() < 1) {
        delete m_lpsPolicyGroup;
        m_lpsPolicyGroup = nullptr;
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
    loading.Read(table, shared::kPolicy);

    GetSpSettingAppID();
    GetProductVersion();
    GetDllPathName();
    GetOnlyOpenReSetTimeout();
    GetErrorCodeDescKey();
    GetVersion();
    GetCmdMap();

    loading.Read(table, shared::kFirstErrorInterval);
    m_dwFirstErrorIntervalTime *= 60;

    loading.Read(table, shared::kServer);
    m_arOtherSideServerName.RemoveAll();
    CString strServers;
    if (loading.Query(shared::kOtherSideServerName, strServers)) {
        CStringUtility::SplitString(m_arOtherSideServerName, strServers, L';');
    }
    loading.Read(table, shared::kExtraSepCharacter);

    if (pLog != nullptr) {
        ReportShared(loading);
    }
    loading.Read(table, shared::kIsDeleteSensetiveInfo);
    return true;
}

void CRegInfo::ReportShared(wqspcfg::Loading& loading) const
{
    CLog* const pLog = loading.Log();
    const auto& table = Settings();
    const auto& policy = *m_lpsPolicyGroup;

    loading.Read(table, shared::kSetup);
    const auto version = [&](const wqspcfg::Setting& row, const wqspcfg::Setting& rowOfBuild) {
        CString strVersion;
        CString strBuild;
        loading.Query(row, strVersion);
        loading.Query(rowOfBuild, strBuild);
        loading.Print(row, strVersion + L" " + strBuild);
    };
    version(shared::kNewVersion, shared::kNewBuild);
    version(shared::kOldVersion, shared::kOldBuild);
    loading.Read(table, shared::kSetupRest);

    for (const auto* row : shared::kPolicyLines) {
        if (row->type == wqspcfg::Type::String) {
            loading.Print(*row, *policy.ErrorCodeKey);
        } else if (row->name == L"DevError") {
            wqspcfg::LogInfo(pLog, L"[CFG] %40s : 0x%02x[%s]", L"LOBYTE(DevError)", LOBYTE(policy.DevError),
                             L"device states that are converted when the status is queried: 0x01 NODEVICE, 0x02 "
                             L"OFFLINE, 0x04 POWEROFF, 0x08 USERERROR, 0x10 HWERROR; 0x00 none");
            wqspcfg::LogInfo(pLog, L"[CFG] %40s : 0x%02x[%s]", L"HIBYTE(DevError)", HIBYTE(policy.DevError),
                             L"the state reported instead: 0x00 HWERROR, 0x01 NODEVICE, 0x02 OFFLINE, 0x04 POWEROFF, "
                             L"0x08 USERERROR");
        } else {
            loading.PrintHeld(*row);
        }
    }
    const CString strClass = GetClassNameW(nullptr);
    if (strClass.CompareNoCase(L"CDM") == 0 || strClass.CompareNoCase(L"CIM") == 0) {
        loading.PrintHeld(shared::kMediaDetectLine);
    }

    loading.Print(shared::kFirstErrorInterval, m_dwFirstErrorIntervalTime / 60);

    loading.Read(table, shared::kCheckLevel);
    loading.Read(table, shared::kCheckRules);

    loading.PrintHeld(shared::kServer);
    loading.Print(shared::kOtherSideServerName, CStringUtility::CombineString(m_arOtherSideServerName, L';'));
    loading.Read(table, shared::kStartInfo);
    CString strBatFile;
    if (loading.Query(shared::kExtBatFileName, strBatFile) && !strBatFile.IsEmpty()) {
        loading.Print(shared::kExtBatFileName, strBatFile);
    }
    loading.Read(table, shared::kIdle);
    loading.PrintHeld(shared::kExtraSepCharacter);
}

void CRegInfo::Save()
{
    wqspcfg::Saving saving(*this);
    saving.Write(std::span(&shared::kIsDeleteSensetiveInfo, 1));
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
        QueryValue(m_strPhysicalName, L"Provider", L"%s%s", kLogicalRoot, m_strLogicalName);
    }
    return m_strPhysicalName;
}

CString CRegInfo::GetClassNameW(LPCWSTR lpszLogicalName) const
{
    CString strClass;
    if (lpszLogicalName != nullptr) {
        QueryValue(strClass, L"Class", L"%s%s", kLogicalRoot, lpszLogicalName);
    } else if (!m_strLogicalName.IsEmpty()) {
        QueryValue(strClass, L"Class", L"%s%s", kLogicalRoot, m_strLogicalName);
    } else {
        if (m_strPhysicalName.IsEmpty()) {
            GetPhysicalName();
        }
        QueryValue(strClass, L"Class", L"%s%s", kServiceRoot, m_strPhysicalName);
    }
    return strClass;
}

CString CRegInfo::GetType(LPCWSTR lpszLogicalName) const
{
    CString strType;
    const CString strLogicalName = lpszLogicalName != nullptr ? CString(lpszLogicalName) : m_strLogicalName;
    if (!strLogicalName.IsEmpty()) {
        QueryValue(strType, L"Type", L"%s%s", kLogicalRoot, strLogicalName);
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
    if (!QueryValue(strModule, strClass + L"Name", L"%s%s", kServiceRoot, m_strPhysicalName)) {
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
    return Cached(m_strDllPathName, [this](CString& strPath) {
        if (!QueryValue(strPath, L"DLLName", L"%s%s", kServiceRoot, m_strPhysicalName)) {
            return;
        }
        if (strPath.Find(L'\\') < 0) {
            strPath = CUtility::GetModuleDir(1, wqspcfg::ThisModule(), true) + strPath;
        }
        if (!EndsWith(strPath, L".dll")) {
            strPath += L".dll";
        }
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
    if (QueryValue(strPath, L"Executable", L"%s%s", kServiceRoot, m_strPhysicalName)) {
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
    if (QueryValue(strMother, L"ExeDllMother", L"%s%s", kServiceRoot, m_strPhysicalName) && !strMother.IsEmpty()) {
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
    return Cached(m_strVersion, [this](CString& strVersion) {
        QueryValue(strVersion, L"Version", L"%s%s", kServiceRoot, m_strPhysicalName);
    });
}

CString CRegInfo::GetProductVersion() const
{
    return Cached(m_strProductVersion, [](CString& strVersion) {
        QueryValue(strVersion, L"NewVersion", kSetupFormat, kServiceRoot);
        CString strPart;
        QueryValue(strPart, L"NewBuild", kSetupFormat, kServiceRoot);
        if (!strPart.IsEmpty()) {
            strVersion += L" " + strPart;
        }
        strPart.Empty();
        QueryValue(strPart, L"PatchVersion", kSetupFormat, kServiceRoot);
        if (!strPart.IsEmpty()) {
            strVersion += L" Patch" + strPart;
        }
    });
}

CString CRegInfo::GetSpSettingAppID() const
{
    const std::lock_guard lock(CacheMutex());
    QueryValue(m_strSpSettingAppID, shared::kAppID.name, L"%sWQCmnCfg\\SpSetting", kServiceRoot);
    m_strSpSettingAppID.Trim();
    if (m_strSpSettingAppID.IsEmpty()) {
        m_strSpSettingAppID = shared::kAppID.defaultValue.text;
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
    const std::lock_guard lock(CacheMutex());
    if (m_dwOnlyOpenReSetTimeout == kNotRead) {
        m_dwOnlyOpenReSetTimeout = shared::kOnlyOpenAppend.defaultValue.number;
        QueryValue(m_dwOnlyOpenReSetTimeout, shared::kOnlyOpenAppend.name, L"%s%s\\ReSetTimeout", kDeviceRoot,
                   GetExeDllMother(1, nullptr));
    }
    return m_dwOnlyOpenReSetTimeout;
}

DWORD CRegInfo::GetReSetTimeout(const CString& strCommand, UINT nIndex) const
{
    CString strUpper(strCommand);
    strUpper.MakeUpper(); // not lower: that is the locale's, and a Turkish one would not find "inf" in "INFO"
    if (GetOnlyOpenReSetTimeout() != 0 && strUpper.Find(L"OPEN") < 0) {
        return 0;
    }
    const bool bIndexed = strUpper.Find(L"EXE") >= 0 || strUpper.Find(L"INF") >= 0;
    const CString strName(bIndexed ? wqspcfg::FormatString(L"%s%d", strCommand, nIndex) : strCommand.Std());
    DWORD dwTimeout = 0;
    QueryValue(dwTimeout, strName, L"%s%s\\ReSetTimeout", kDeviceRoot, GetExeDllMother(1, nullptr));
    return dwTimeout;
}

DWORD CRegInfo::GetIdleTimeInterval(LPCWSTR lpszName) const
{
    const CString strName(lpszName != nullptr ? lpszName : L"Normal");
    DWORD dwInterval = strName.CompareNoCase(L"Normal") == 0 ? 60000 : 0;
    QueryValue(dwInterval, strName, L"%s%s\\IdleInterval", kDeviceRoot, GetExeDllMother(1, nullptr));
    return dwInterval;
}

DWORD CRegInfo::GetCheckErrorRuler(const CString& strRequest, const CString& strRule) const
{
    wqspcfg::ReadScope scope;
    const CString strDevice = GetExeDllMother(1, nullptr);
    DWORD dwLevel = 1;
    QueryValue(dwLevel, L"CheckLevel", L"%s%s\\CheckErrorHandler", kDeviceRoot, strDevice);
    if (dwLevel <= 1) {
        return dwLevel;
    }
    CString strRules;
    QueryValue(strRules, strRequest, L"%s%s\\CheckErrorHandler", kDeviceRoot, strDevice);
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
    wqspcfg::ReadScope scope;
    const CString strDevice = GetExeDllMother(1, nullptr);
    const auto fill = [&](auto& mapCodes, LPCWSTR lpszFormat) {
        mapCodes.RemoveAll();
        if (!QueryValues(mapCodes, lpszFormat, kDeviceRoot, strDevice)) {
            mapCodes.RemoveAll();
        }
    };
    fill(m_mapExeCmd, L"%s%s\\ExeCmdMap");
    fill(m_mapInfoCmd, L"%s%s\\InfoCmdMap");
    fill(m_mapErrCode, L"%s%s\\ErrCodeMap");
}

DWORD CRegInfo::GetResetLoadCfgPolicy() const
{
    // A getter that several threads may call, although it refreshes what they share.
    const std::lock_guard lock(CacheMutex());
    auto& dwResetLoadCfg = m_lpsPolicyGroup->ResetLoadCfg;
    QueryValue(dwResetLoadCfg, L"ResetLoadCfg", kCommonPolicyFormat, kServiceRoot);
    return dwResetLoadCfg;
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

CString CRegInfo::DescKey(CString& strCache, LPCWSTR lpszName, LPCWSTR lpszDefault) const
{
    return Cached(strCache, [&](CString& strKey) {
        if (!QueryValue(strKey, lpszName, L"%s%s", kDeviceRoot, GetExeDllMother(1, nullptr))) {
            strKey = lpszDefault;
        }
    });
}

CString CRegInfo::GetErrorCodeDescKey() const
{
    return DescKey(m_strErrorCodeDescKey, shared::kErrorCodeDescKey.name.data(),
                   shared::kErrorCodeDescKey.defaultValue.text);
}

CString CRegInfo::GetCapVendorDescKey() const
{
    return DescKey(m_strCapVendorDescKey, shared::kCapVendorDescKey.name.data(),
                   shared::kCapVendorDescKey.defaultValue.text);
}

CString CRegInfo::GetCapVendorDescKeyValue() const
{
    return DescKey(m_strCapVendorDescKeyValue, shared::kCapVendorDescKeyValue.name.data(),
                   shared::kCapVendorDescKeyValue.defaultValue.text);
}

WQSPCFG_CATALOGUE_ENTRY(CRegInfo)
