#include "wqspcfg/models/dep/SpDEPWQEnvelopeRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;

const Table& CSpDEPWQEnvelopeRegInfo::Settings() noexcept
{
    static constexpr Table kTable{L"CSpDEPWQEnvelopeRegInfo", &CDEPRegInfo::Settings, nullptr, {}};
    return kTable;
}

CSpDEPWQEnvelopeRegInfo::CSpDEPWQEnvelopeRegInfo(const CString& strName, bool bPhysicalName)
    : CDEPRegInfo(strName, bPhysicalName)
{}

WQSPCFG_CATALOGUE_ENTRY(CSpDEPWQEnvelopeRegInfo)
