#include "wqspcfg/models/idc/SpIDCMotoScannerRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;

const Table& CSpIDCMotoScannerRegInfo::Settings() noexcept
{
    static const Table kTable{L"CSpIDCMotoScannerRegInfo", &CBCRRegInfo::Settings, nullptr, Rows()};
    return kTable;
}

CSpIDCMotoScannerRegInfo::CSpIDCMotoScannerRegInfo(const CString& strName, bool bPhysicalName)
    : MotoScanner(strName, bPhysicalName)
{}

WQSPCFG_CATALOGUE_ENTRY(CSpIDCMotoScannerRegInfo)
