#include "wqspcfg/classes/BCRRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;

const Table& CBCRRegInfo::Settings() noexcept
{
    static constexpr Table kTable{L"CBCRRegInfo", &CRegInfo::Settings, L"BCR", {}};
    return kTable;
}

CBCRRegInfo::CBCRRegInfo(const CString& strName, bool bPhysicalName) : CRegInfo(strName, bPhysicalName) {}

WQSPCFG_CATALOGUE_ENTRY(CBCRRegInfo)
