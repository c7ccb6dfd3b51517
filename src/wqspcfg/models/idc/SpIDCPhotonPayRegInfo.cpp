#include "wqspcfg/models/idc/SpIDCPhotonPayRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;

const Table& CSpIDCPhotonPayRegInfo::Settings() noexcept
{
    static const Table table{L"CSpIDCPhotonPayRegInfo", &CIDCRegInfo::Settings, nullptr, {}};
    return table;
}

CSpIDCPhotonPayRegInfo::CSpIDCPhotonPayRegInfo(const CString& strName, bool bPhysicalName)
    : CIDCRegInfo(strName, bPhysicalName)
{}

CSpIDCPhotonPayRegInfo::~CSpIDCPhotonPayRegInfo() = default;

WQSPCFG_CATALOGUE_ENTRY(CSpIDCPhotonPayRegInfo)
