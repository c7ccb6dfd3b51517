#include "wqspcfg/classes/CHKRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CCHKRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"SendMediaInsertedEvent", &C::m_bSendMediaInsertedEvent, 0, L"post the media-inserted event when a fingerprint is taken: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

const Table& CCHKRegInfo::Settings() noexcept
{
    static constexpr Table kTable{L"CCHKRegInfo", &CRegInfo::Settings, L"CHK", kSettings};
    return kTable;
}

CCHKRegInfo::CCHKRegInfo(const CString& strName, bool bPhysicalName) : CRegInfo(strName, bPhysicalName)
{
    Construct(*this, kSettings);
}

bool CCHKRegInfo::Load(CLog* pLog)
{
    Loading loading(*this, pLog);
    const bool bResult = CRegInfo::Load(pLog);
    return loading.Read(Settings()) && bResult;
}

void CCHKRegInfo::Save()
{
    Saving saving(*this);
    CRegInfo::Save();
    saving.Write(Settings());
}

WQSPCFG_CATALOGUE_ENTRY(CCHKRegInfo)
