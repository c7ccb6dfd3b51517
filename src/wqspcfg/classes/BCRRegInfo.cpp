#include "wqspcfg/classes/BCRRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;

const Table& CBCRRegInfo::Settings() noexcept
{
    static const Table table{L"CBCRRegInfo", &CRegInfo::Settings, L"BCR", {}};
    return table;
}

CBCRRegInfo::CBCRRegInfo(const CString& strName, bool bPhysicalName) : CRegInfo(strName, bPhysicalName) {}

CBCRRegInfo::~CBCRRegInfo() = default;

WQSPCFG_CATALOGUE_ENTRY(CBCRRegInfo)
