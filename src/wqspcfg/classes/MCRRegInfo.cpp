#include "wqspcfg/classes/MCRRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/CardRetention.h"

using namespace wqspcfg;
using C = CMCRRegInfo;

namespace {

constexpr Key kRetainCardSet = key::Below(L"RetainCardSet");
constexpr Key kSlotInfo = key::Below(L"SlotInfo");

// clang-format off
constexpr Setting kSettings[] = {
    {key::IdleInterval, L"WaitCardTaken",   &C::m_dwWaitCardTaken,   500, L"idle polling interval in ms while waiting for a returned card to be taken", Line(L"[CFG] %40s : %d[%s"), LoadedBy([](C& c, Loading&) { c.m_dwWaitCardTaken = WaitCardTaken(c); })},
    {kRetainCardSet,    L"MaxRetainCard",   &C::m_dwMaxRetainCard,   20,  L"capacity of the retain bin, in cards", Saved},
    {kRetainCardSet,    L"RetainBinHigh",   &C::m_dwRetainBinHigh,   15,  meaning::kRetainBinHighOfMaxRetainCard, Saved, Normalize([](C& c, DWORD dwHigh, bool bFound) { return RetainBinHigh(dwHigh, bFound, c.m_dwMaxRetainCard); })},
    {kRetainCardSet,    L"CountOfRetained", &C::m_dwCountOfRetained, 0,   L"retain count, read back when the device restarts", Saved},
    {kSlotInfo,         L"CardSlotCn",      &C::m_dwCardSlotCn,      5,   L"number of circulating card slots", Saved},
};
// clang-format on

} // namespace

const Table& CMCRRegInfo::Settings() noexcept
{
    static constexpr Table kTable{L"CMCRRegInfo", &CRegInfo::Settings, L"MCR", kSettings};
    return kTable;
}

CMCRRegInfo::CMCRRegInfo(const CString& strName, bool bPhysicalName) : CRegInfo(strName, bPhysicalName)
{
    Construct(*this, kSettings);
}

bool CMCRRegInfo::Load(CLog* pLog)
{
    Loading loading(*this, pLog);
    const bool bResult = CRegInfo::Load(pLog);
    return loading.Read(Settings()) && bResult;
}

void CMCRRegInfo::Save()
{
    Saving saving(*this);
    CRegInfo::Save();
    saving.Write(Settings());
}

WQSPCFG_CATALOGUE_ENTRY(CMCRRegInfo)
