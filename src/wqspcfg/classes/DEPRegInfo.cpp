#include "wqspcfg/classes/DEPRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;

const Table& CDEPRegInfo::Settings() noexcept
{
    static const Table table{L"CDEPRegInfo", &CRegInfo::Settings, L"DEP", {}};
    return table;
}

CDEPRegInfo::CDEPRegInfo(const CString& strName, bool bPhysicalName) : CRegInfo(strName, bPhysicalName) {}

CDEPRegInfo::~CDEPRegInfo() = default;

WQSPCFG_CATALOGUE_ENTRY(CDEPRegInfo)
