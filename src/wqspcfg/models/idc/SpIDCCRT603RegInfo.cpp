#include "wqspcfg/models/idc/SpIDCCRT603RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;

const Table& CSpIDCCRT603RegInfo::Settings() noexcept
{
    static const Table table{L"CSpIDCCRT603RegInfo", &CIDCRegInfo::Settings, nullptr, {}};
    return table;
}

CSpIDCCRT603RegInfo::CSpIDCCRT603RegInfo(const CString& strName, bool bPhysicalName)
    : CIDCRegInfo(strName, bPhysicalName)
{}

CSpIDCCRT603RegInfo::~CSpIDCCRT603RegInfo() = default;

WQSPCFG_CATALOGUE_ENTRY(CSpIDCCRT603RegInfo)
