#include "wqspcfg/models/bcr/SpBCRMotoScannerRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;

const Table& CSpBCRMotoScannerRegInfo::Settings() noexcept
{
    static const Table kTable{L"CSpBCRMotoScannerRegInfo", &CBCRRegInfo::Settings, nullptr, Rows()};
    return kTable;
}

CSpBCRMotoScannerRegInfo::CSpBCRMotoScannerRegInfo(const CString& strName, bool bPhysicalName)
    : MotoScanner(strName, bPhysicalName)
{}

WQSPCFG_CATALOGUE_ENTRY(CSpBCRMotoScannerRegInfo)
