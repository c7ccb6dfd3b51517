#include "wqspcfg/models/dep/SpDEPWQEnvelopeRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;

const Table& CSpDEPWQEnvelopeRegInfo::Settings() noexcept
{
    static const Table table{L"CSpDEPWQEnvelopeRegInfo", &CDEPRegInfo::Settings, nullptr, {}};
    return table;
}

CSpDEPWQEnvelopeRegInfo::CSpDEPWQEnvelopeRegInfo(const CString& strName, bool bPhysicalName)
    : CDEPRegInfo(strName, bPhysicalName)
{}

CSpDEPWQEnvelopeRegInfo::~CSpDEPWQEnvelopeRegInfo() = default;

WQSPCFG_CATALOGUE_ENTRY(CSpDEPWQEnvelopeRegInfo)
