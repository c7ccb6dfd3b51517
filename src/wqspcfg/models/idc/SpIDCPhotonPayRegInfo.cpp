#include "wqspcfg/models/idc/SpIDCPhotonPayRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;

const Table& CSpIDCPhotonPayRegInfo::Settings() noexcept
{
    static constexpr Table kTable{L"CSpIDCPhotonPayRegInfo", &CIDCRegInfo::Settings, nullptr, {}};
    return kTable;
}

CSpIDCPhotonPayRegInfo::CSpIDCPhotonPayRegInfo(const CString& strName, bool bPhysicalName)
    : CIDCRegInfo(strName, bPhysicalName)
{}

WQSPCFG_CATALOGUE_ENTRY(CSpIDCPhotonPayRegInfo)
