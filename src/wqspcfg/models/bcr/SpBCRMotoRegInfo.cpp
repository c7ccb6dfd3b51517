#include "wqspcfg/models/bcr/SpBCRMotoRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;

const Table& CSpBCRMotoRegInfo::Settings() noexcept
{
    static const Table kTable{L"CSpBCRMotoRegInfo", &CBCRRegInfo::Settings, nullptr, Rows()};
    return kTable;
}

CSpBCRMotoRegInfo::CSpBCRMotoRegInfo(const CString& strName, bool bPhysicalName) : MotoScanner(strName, bPhysicalName)
{}

WQSPCFG_CATALOGUE_ENTRY(CSpBCRMotoRegInfo)
