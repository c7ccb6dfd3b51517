// Settings of fingerprint collectors, for device models of more than one device class.
#pragma once

#include "wqspcfg/core/Log.h"
#include "wqspcfg/core/RegKeyEx.h"

class CRegInfo;

namespace wqspcfg {
struct Table;
} // namespace wqspcfg

// A second base of the models that drive a fingerprint collector, after their class base. The model calls this Load
// after its class base's, and loads m_dwProtocolType by a row of its own.
class WQSPCFG_API CSpFPCRegInfo : public CRegKeyEx
{
  public:
    // `owner` is the model itself, whose device key holds the settings. It outlives this object.
    explicit CSpFPCRegInfo(const CRegInfo& owner);
    CSpFPCRegInfo(const CSpFPCRegInfo&) = delete;
    CSpFPCRegInfo& operator=(const CSpFPCRegInfo&) = delete;
    virtual ~CSpFPCRegInfo();

    // Reads the collector's settings and reports each to the log; true.
    virtual bool Load(CLog* pLog);
    // Writes them back, and m_dwProtocolType with them.
    virtual void Save();

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwIntervalOfTemplate{}; // seconds, 0: the next capture waits until the finger has been lifted
    bool m_bVendorInfo{};
    bool m_bInvialMediaContinueWait{};
    bool m_bRtResultLastTimeWaitMediaTaken{};
    CString m_strFeatureFilePath;
    CString m_strFeatureFilePathForTemplet[3]; // of the first, second and third capture
    CString m_strDN_FPC_NORMAL;
    CString m_strVendorProductModelKeyName;
    CString m_strVendorVdnameKeyName;
    CString m_strVendorFwverKeyName;
    CString m_strVendorDrverKeyName;
    CString m_strVendorVdnameValue;

    DWORD m_dwProtocolType = 0; // the deriving model's setting
    CString m_strKeyName;       // of the owner's device key, at the last Load or Save

  protected:
    // The model has loaded m_dwProtocolType: this Save is to know what it held.
    void ProtocolTypeLoaded(CLog* pLog);

  private:
    const CRegInfo& m_owner;
};
