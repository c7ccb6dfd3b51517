#pragma once

#include "wqspcfg/classes/BCRRegInfo.h"

#include <span>

namespace wqspcfg {

struct Setting;

// What the models of the Moto scanner have in common, served as a barcode reader or as a card reader: their settings
// and the Load. Nothing of it is saved.
class WQSPCFG_API MotoScanner : public CBCRRegInfo
{
  public:
    MotoScanner(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;

    CString m_strScannerNameOfConn;
    DWORD m_dwUseTrackWMRead;
    CString m_strBeepFile;

  protected:
    static std::span<const Setting> Rows() noexcept;
};

} // namespace wqspcfg
