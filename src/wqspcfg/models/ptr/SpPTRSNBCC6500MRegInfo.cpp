#include "wqspcfg/models/ptr/SpPTRSNBCC6500MRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRSNBCC6500MRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,    L"Port",      &C::m_dwPort,      1, kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Control, L"CheckType", &C::m_dwCheckType, 0, printer::kNotDocumented, Saved},
    {key::Control, L"CheckOutBoxEmpty", &C::m_bCheckOutBoxEmpty, 0,
     L"the output box is checked to be empty: 0 no; nonzero yes", Saved},
    {key::Control, L"UserOCRCheck", &C::m_bUserOCRCheck, 0,
     L"the cheque is checked by character recognition: 0 no; nonzero yes", Saved},
    {key::Control, L"CheckWidth",  &C::m_dwCheckWidth,  0, L"width of a cheque; 0 as the form says", Saved},
    {key::Control, L"CheckHeight", &C::m_dwCheckHeight, 0, L"height of a cheque; 0 as the form says", Saved},
    {key::Control, L"TwoDimPicXPoxLeftOffset", &C::m_dwTwoDimPicXPoxLeftOffset, 0,
     L"offset of the two-dimensional code to the left", Saved},
    {key::Control, L"TwoDimPicXPoxRightOffset", &C::m_dwTwoDimPicXPoxRightOffset, 0,
     L"offset of the two-dimensional code to the right", Saved},
    {key::Control, L"TwoDimPicYPoxUpOffset", &C::m_dwTwoDimPicYPoxUpOffset, 0,
     L"upward offset of the two-dimensional code", Saved},
    {key::Control, L"TwoDimPicYPoxDownOffset", &C::m_dwTwoDimPicYPoxDownOffset, 0,
     L"downward offset of the two-dimensional code", Saved},
    {key::Control, L"ContentXPoxLeftOffset", &C::m_dwContentXPoxLeftOffset, 0,
     L"offset of the content to the left", Saved},
    {key::Control, L"ContentXPoxRightOffset", &C::m_dwContentXPoxRightOffset, 0,
     L"offset of the content to the right", Saved},
    {key::Control, L"ContentYPoxUpOffset", &C::m_dwContentYPoxUpOffset, 0, L"upward offset of the content", Saved},
    {key::Control, L"ContentYPoxDownOffset", &C::m_dwContentYPoxDownOffset, 0,
     L"downward offset of the content", Saved},
    {key::Control, L"FirstGetCheckNoWhenPrintCheck", &C::m_bFirstGetCheckNoWhenPrintCheck, 0,
     L"printing a cheque first gets its number: 0 no; nonzero yes", Saved},
    {key::Control, L"CompareCheckStartNo", &C::m_bCompareCheckStartNo, 0,
     L"compare the starting cheque number given by the application while printing: 0 no; nonzero yes", Saved},
    {key::Control, L"PintTwoDimCodePic", &C::m_bPintTwoDimCodePic, 0,
     L"print a two-dimensional code: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRSNBCC6500MRegInfo, CPTRRegInfo, kSettings)
