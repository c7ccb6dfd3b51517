// The root of every configuration class: who the service provider is, where its settings live, and the settings that
// all service providers share.
#pragma once

#include "wqspcfg/core/Log.h"
#include "wqspcfg/core/RegKeyEx.h"
#include "wqspcfg/core/RegPolicyGroup.h"
#include "wqspcfg/platform/utility/ValueInterlocker.h"

namespace wqspcfg {
class Loading;
struct Table;
} // namespace wqspcfg

// A service provider constructs one object of its device model, calls Load once with its log, reads the public members
// while it runs, and calls Save where it changed a value that is persisted. The object lives as long as the provider.
//
// Objects are constructed, loaded and destroyed by one thread at a time; the static members are shared by all objects
// of the process. Getters may be called by several threads once the object is loaded and its physical name known,
// except GetPhysicalName with another service's name, which changes the object. Nothing throws. Failures of the store
// are not results of Load or Save: a missing value takes its default, and wqspcfg::LastStoreError tells of a store that
// could not be read or written (Load then also writes an error line).
class WQSPCFG_API CRegInfo : public CRegKeyEx
{
  public:
    // `strName` is the logical service name, or the physical one when `bPhysicalName` is set. A logical name is
    // resolved at once.
    CRegInfo(const CString& strName, bool bPhysicalName);
    CRegInfo(const CRegInfo&) = delete;
    CRegInfo& operator=(const CRegInfo&) = delete;
    virtual ~CRegInfo();

    // Reads the settings, each with its default where it is missing, and reports each with one line to the log; a null
    // log gets none. The shared settings are read once in the life of a policy group.
    virtual bool Load(CLog* pLog);
    // Writes the persisted settings back, all together and durably on an embedded store.
    virtual void Save();
    // A display hook without effect; false.
    virtual bool Show(CDWordArray& arValues, HWND hWnd);

    static const wqspcfg::Table& Settings() noexcept;

    // Forgets what the objects of this process have read and share, for a program that looks at several registries one
    // after another. No other object exists.
    static void ForgetProcess();

    CString GetLogicalName() const;
    // The name of the service key. A logical name that differs from the object's own becomes the object's, and its
    // physical name with it. Empty when the logical service names no provider.
    CString GetPhysicalName(LPCWSTR lpszLogicalName = nullptr) const;
    // The XFS class: of the logical service given, else of the object's own, else of the service key.
    CString GetClassNameW(LPCWSTR lpszLogicalName) const;
    CString GetType(LPCWSTR lpszLogicalName) const;
    // The module name of the provider for its XFS class; empty when the class is unknown.
    CString GetDeviceClassName(LPCWSTR lpszLogicalName, int bWithExtension) const;
    CString GetDllPathName() const;
    CString GetDllDir(int bTrailingBackslash) const;
    // With `bDefault`, a service key without an executable gives the provider's directory and physical name.
    CString GetExePathName(int bDefault) const;
    CString GetExeFileName(int bDefault) const;
    CString GetExeFileTitle(int bDefault) const;
    // The device key name: the carrier of the provider, an executable or a module in a mother process. `pbIsExe`, when
    // not null, tells which.
    CString GetExeDllMother(int bUseExeTitle, int* pbIsExe) const;
    CString GetVersion() const;
    CString GetProductVersion() const;
    CString GetSpSettingAppID() const;
    // The name of the object that controls the provider's life, unique per physical service.
    CString GetSPLifeCtrl() const;

    // The time-out configured for a command, 0 when there is none. Execute and information commands are configured by
    // name and index.
    DWORD GetReSetTimeout(const CString& strCommand, UINT nIndex) const;
    // Nonzero: only commands whose name contains "open" have a time-out. Read once in a process.
    DWORD GetOnlyOpenReSetTimeout() const;
    // Milliseconds between polls; null asks for the interval `Normal`.
    DWORD GetIdleTimeInterval(LPCWSTR lpszName) const;
    // 0: report success; 1: report the error that the check found; or the number configured for the rule.
    DWORD GetCheckErrorRuler(const CString& strRequest, const CString& strRule) const;
    // Fills the maps of commands and error codes afresh.
    void GetCmdMap();
    // The common policy at this moment; needs at least one live object.
    DWORD GetResetLoadCfgPolicy() const;
    // The index in m_arOtherSideServerName, or -1.
    int FindOtherSideServerName(const CString& strServerName) const;
    // Read once in a process.
    CString GetErrorCodeDescKey() const;
    CString GetCapVendorDescKey() const;
    CString GetCapVendorDescKeyValue() const;

    bool m_bPhysicalName;
    mutable CString m_strLogicalName;
    mutable CString m_strPhysicalName;
    CMap<DWORD, DWORD, DWORD, DWORD> m_mapExeCmd;
    CMap<DWORD, DWORD, DWORD, DWORD> m_mapInfoCmd;
    CMap<DWORD, DWORD, DWORD, DWORD> m_mapSpare;
    CMap<CString, LPCWSTR, DWORD, DWORD> m_mapErrCode;
    // Whether the provider deletes sensitive files that applications left behind.
    bool m_bIsDeleteSensetiveInfo;

    // Shared by all objects of the process. The policy group exists while an object does.
    static tagRegPolicyGroup* m_lpsPolicyGroup;
    static CValueInterlocker m_vilRefCount;
    static DWORD m_dwFrmReserved[128];
    static DWORD m_dwFirstErrorIntervalTime; // seconds, 0: the first error code is not recorded
    static DWORD m_dwServer;
    static CStringArray m_arOtherSideServerName;
    static CString m_strExtraSepCharacter;
    static DWORD m_dwOnlyOpenReSetTimeout; // 0xFFFFFFFF: not read yet

    // Results that are cached for the life of the process.
    static CString m_strDllPathName;
    static CString m_strVersion;
    static CString m_strProductVersion;
    static CString m_strSpSettingAppID;
    static CString m_strErrorCodeDescKey;
    static CString m_strCapVendorDescKey;
    static CString m_strCapVendorDescKeyValue;

  private:
    void ReportShared(wqspcfg::Loading& loading) const;
};
