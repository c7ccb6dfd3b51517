#include "wqspcfg/models/ptr/SpPTREpsonPLQ20KMRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/PassbookPrinterRows.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTREpsonPLQ20KMRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kLinePassbookPrinterRows>),
    {key::Device, L"InsertVertical",      &C::m_bInsertVertical,      0, printer::kInsertVertical, Saved},
    {key::Device, L"KeepPaperStatusFull", &C::m_bKeepPaperStatusFull, 0, printer::kKeepPaperStatusFull, Saved},
    {key::Device, L"RawDataParseID",      &C::m_dwRawDataParseID,     0, printer::kRawDataParseID, Saved},
    {key::Device, L"m_dwUseOneForm",      &C::m_dwUseOneForm,         0, printer::kUseOneForm, Saved},
    {key::Device, L"MagType",             &C::m_dwMagType,            0, printer::kNotDocumented, Saved},
    {key::Device, L"TrackTwoReturnStyle", &C::m_dwTrackTwoReturnStyle, 0,
     L"style in which track 2 is returned; 0 as read", Saved},
    {key::Device, L"MaxRetract",   &C::m_dwMaxRetract,   10,  printer::kMaxRetract, Saved},
    {key::Device, L"RetractCount", &C::m_dwRetractCount, 0,   printer::kRetractCount, Saved},
    {key::Device, L"OpenOption",   &C::m_dwOpenOption,   0,   printer::kOpenOption, Saved},
    {key::Device, L"Track2",       &C::m_strTrack2,      L"", printer::kTrack2, Saved},
    {key::Device, L"Track3",       &C::m_strTrack3,      L"", printer::kTrack3, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTREpsonPLQ20KMRegInfo, LinePassbookPrinter, kSettings)
