#include "wqspcfg/models/idc/SpIDCCRT603RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;

const Table& CSpIDCCRT603RegInfo::Settings() noexcept
{
    static constexpr Table kTable{L"CSpIDCCRT603RegInfo", &CIDCRegInfo::Settings, nullptr, {}};
    return kTable;
}

CSpIDCCRT603RegInfo::CSpIDCCRT603RegInfo(const CString& strName, bool bPhysicalName)
    : CIDCRegInfo(strName, bPhysicalName)
{}

WQSPCFG_CATALOGUE_ENTRY(CSpIDCCRT603RegInfo)
