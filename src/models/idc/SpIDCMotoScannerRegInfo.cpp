#include "models/idc/SpIDCMotoScannerRegInfo.h"

#include "core/settings/Settings.h"

using namespace wqspcfg;

const Table& CSpIDCMotoScannerRegInfo::Settings() noexcept
{
    static constexpr Table kTable{L"CSpIDCMotoScannerRegInfo", &CBCRRegInfo::Settings, nullptr, {}};
    return kTable;
}

CSpIDCMotoScannerRegInfo::CSpIDCMotoScannerRegInfo(const CString& strName, bool bPhysicalName)
    : CBCRRegInfo(strName, bPhysicalName)
{}

WQSPCFG_CATALOGUE_ENTRY(CSpIDCMotoScannerRegInfo)
