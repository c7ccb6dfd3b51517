#include "wqspcfg/models/ptr/SpLQ80KFExeRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpLQ80KFExeRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"PtrName",    &C::m_strPtrName,   L"", printer::kPtrName, Saved},
    {key::Device, L"PageHeight", &C::m_dwPageHeight, 297, printer::kPageHeight, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpLQ80KFExeRegInfo, CPTRRegInfo, kSettings)

void CSpLQ80KFExeRegInfo::ResetValue()
{
    Construct(*this, Rows<kSettings>);
}
