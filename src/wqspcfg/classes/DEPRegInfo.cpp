#include "wqspcfg/classes/DEPRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;

const Table& CDEPRegInfo::Settings() noexcept
{
    static constexpr Table kTable{L"CDEPRegInfo", &CRegInfo::Settings, L"DEP", {}};
    return kTable;
}

CDEPRegInfo::CDEPRegInfo(const CString& strName, bool bPhysicalName) : CRegInfo(strName, bPhysicalName) {}

WQSPCFG_CATALOGUE_ENTRY(CDEPRegInfo)
