#include "wqspcfg/models/mcr/SpMCRCF66RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpMCRCF66RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,   L"Type",          &C::m_dwType,          2, L"communication: 1 serial; 2 USB", Saved, OneOf, LogAs([](C&, DWORD dwType) -> DWORD { return dwType == 1 ? 1 : 2; })},
    {key::Comm,   L"Port",          &C::m_dwPort,          4, meaning::kPort, Saved},
    {key::Device, L"SyncEjectCard", &C::m_dwSyncEjectCard, 1, L"ejecting: 0 asynchronous; nonzero synchronous", AsSwitch},
};
// clang-format on

} // namespace

const Table& CSpMCRCF66RegInfo::Settings() noexcept
{
    static constexpr Table kTable{L"CSpMCRCF66RegInfo", &CMCRRegInfo::Settings, nullptr, kSettings};
    return kTable;
}

CSpMCRCF66RegInfo::CSpMCRCF66RegInfo(const CString& strName, bool bPhysicalName) : CMCRRegInfo(strName, bPhysicalName)
{
    Construct(*this, kSettings);
}

bool CSpMCRCF66RegInfo::Load(CLog* pLog)
{
    Loading loading(*this, pLog);
    const bool bResult = CMCRRegInfo::Load(pLog);
    return loading.Read(Settings()) && bResult;
}

void CSpMCRCF66RegInfo::Save()
{
    Saving saving(*this);
    saving.Write(Settings());
}

WQSPCFG_CATALOGUE_ENTRY(CSpMCRCF66RegInfo)
