#include "wqspcfg/models/ttu/SpTTUVirtualRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

#include <iterator>
#include <vector>

using namespace wqspcfg;
using C = CSpTTUVirtualRegInfo;

namespace {

constexpr Key kFdk = key::Below(L"FDK\\FDK%d");

// clang-format off
constexpr Setting kButtonRows[] = {
    {kFdk, L"Enabled", Element<&C::m_arFdkButton, &FdkButton::m_bEnabled>, 1, L"the function-key button is shown and can be pressed: 0 no; nonzero yes", Saved, Label(L"FDK%d\\Enabled")},
    {kFdk, L"Text",    Element<&C::m_arFdkButton, &FdkButton::m_strText>,  L"", L"text on the function-key button; empty shows its number", Saved, Label(L"FDK%d\\Text")},
};
constexpr Setting kSettings[] = {
    Repeat(1, C::kFdkButtons, kButtonRows),
};
// clang-format on

} // namespace

const Table& CSpTTUVirtualRegInfo::Settings() noexcept
{
    static const std::vector<Setting> kRows = [] {
        std::vector<Setting> rows(Rows().begin(), Rows().end());
        rows.insert(rows.end(), std::begin(kSettings), std::end(kSettings));
        return rows;
    }();
    static const Table kTable{L"CSpTTUVirtualRegInfo", &CTTURegInfo::Settings, nullptr, kRows};
    return kTable;
}

CSpTTUVirtualRegInfo::CSpTTUVirtualRegInfo(const CString& strName, bool bPhysicalName)
    : TextTerminal(strName, bPhysicalName)
{
    Construct(*this, kSettings);
}

bool CSpTTUVirtualRegInfo::Load(CLog* pLog)
{
    Loading loading(*this, pLog);
    const bool bResult = TextTerminal::Load(pLog);
    return loading.Read(Settings(), kSettings) && bResult;
}

void CSpTTUVirtualRegInfo::Save()
{
    Saving saving(*this);
    TextTerminal::Save();
    saving.Write(kSettings);
}

WQSPCFG_CATALOGUE_ENTRY(CSpTTUVirtualRegInfo)
