#include "wqspcfg/models/ptr/SpPTRRID100RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/RID100PrinterRows.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/platform/utility/StringUtility.h"

#include <algorithm>

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRRID100RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kRID100Rows>),
    {key::Device, L"BankType", &C::m_dwBankType, 1, printer::kBankType, Saved, OneOf},
};

constexpr Setting kRetained[] = {
    {key::Below(L"RetainBins\\RetainBin0"), L"Count", &C::m_dwRetainBinCount, 0,
     L"count of the retain bin", Saved, NotLogged},
};
constexpr Setting kTicketsLeft[] = {
    {key::Below(L"PaperCounts"), L"PaperCount", &C::m_dwPaperCount, 0,
     L"tickets left in the supply bin in use", Saved, NotLogged},
};
constexpr OperationSettings kOnRequest[] = {
    {L"LoadSimData",        L"",                   Rows<kRID100SimulationRows>},
    {L"LoadRetainBinCount", L"SaveRetainBinCount", Rows<kRetained>},
    {L"",                   L"SaveSetPaperCount",  Rows<kTicketsLeft>},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRRID100RegInfo, RID100Printer, kSettings, {}, kOnRequest)

bool CSpPTRRID100RegInfo::IsPrintAsTextField(const CString& strField) const
{
    if (strField.IsEmpty()) {
        return false;
    }
    CStringArray arNames;
    CStringUtility::SplitString(arNames, m_strFieldsPrintAsText, L';');
    return std::any_of(arNames.begin(), arNames.end(), [&](const CString& strName) { return strName == strField; });
}

void CSpPTRRID100RegInfo::LoadRetainBinCount()
{
    Loading(*this, nullptr).Read(Settings(), Rows<kRetained>);
}

void CSpPTRRID100RegInfo::SaveRetainBinCount()
{
    Saving(*this).Write(Rows<kRetained>[0]);
}

void CSpPTRRID100RegInfo::SaveSetPaperCount()
{
    Saving(*this).Write(Rows<kTicketsLeft>[0]);
}
