#include "wqspcfg/models/ptr/SpPTREpsonPLQ20KMRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpPTREpsonPLQ20KMRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,   L"Port",                &C::m_dwPort,                1,    meaning::kPort, Saved},
    {key::Comm,   L"BaudRate",            &C::m_dwBaudRate,            9600, meaning::kBaudRate, Saved},
    {key::Device, L"InitCount",           &C::m_dwInitCount,           3,    meaning::printer::kInitCount, Saved},
    {key::Device, L"FontSize",            &C::m_dwFontSize,            12,   meaning::printer::kFontSize, Saved},
    {key::Device, L"LeftMargin",          &C::m_dwLeftMargin,          0,    meaning::printer::kLeftMargin, Saved},
    {key::Device, L"LineSpace",           &C::m_dwLineSpace,           30,   meaning::printer::kLineSpace, Saved},
    {key::Device, L"UseBlackFace",        &C::m_bUseBlackFace,         0,    meaning::printer::kUseBlackFace, Saved},
    {key::Device, L"UsePrintLine",        &C::m_bUsePrintLine,         0,    meaning::printer::kUsePrintLine, Saved},
    {key::Device, L"PageLen",             &C::m_dwPageLen,             0,    meaning::printer::kPageLen, Saved},
    {key::Device, L"TopLen",              &C::m_dwTopLen,              0,    meaning::printer::kTopLen, Saved},
    {key::Device, L"BlankLen",            &C::m_dwBlankLen,            0,    meaning::printer::kBlankLen, Saved},
    {key::Device, L"FirstOverLen",        &C::m_dwFirstOverLen,        0,    meaning::printer::kFirstOverLen, Saved},
    {key::Device, L"SecondOverLen",       &C::m_dwSecondOverLen,       0,    meaning::printer::kSecondOverLen, Saved},
    {key::Device, L"InsertVertical",      &C::m_bInsertVertical,       0,    meaning::printer::kInsertVertical, Saved},
    {key::Device, L"KeepPaperStatusFull", &C::m_bKeepPaperStatusFull,  0,    meaning::printer::kKeepPaperStatusFull, Saved},
    {key::Device, L"RawDataParseID",      &C::m_dwRawDataParseID,      0,    meaning::printer::kRawDataParseID, Saved},
    {key::Device, L"m_dwUseOneForm",      &C::m_dwUseOneForm,          0,    meaning::printer::kUseOneForm, Saved},
    {key::Device, L"MagType",             &C::m_dwMagType,             0,    L"type of magnetic stripe; 0 the device's standard", Saved},
    {key::Device, L"TrackTwoReturnStyle", &C::m_dwTrackTwoReturnStyle, 0,    L"style in which track 2 is returned; 0 as read", Saved},
    {key::Device, L"MaxRetract",          &C::m_dwMaxRetract,          10,   meaning::printer::kMaxRetract, Saved},
    {key::Device, L"RetractCount",        &C::m_dwRetractCount,        0,    meaning::printer::kRetractCount, Saved},
    {key::Device, L"OpenOption",          &C::m_dwOpenOption,          0,    meaning::printer::kOpenOption, Saved, OneOf},
    {key::Device, L"Track2",              &C::m_strTrack2,             L"",  meaning::printer::kTrack2, Saved},
    {key::Device, L"Track3",              &C::m_strTrack3,             L"",  meaning::printer::kTrack3, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTREpsonPLQ20KMRegInfo, CPTRRegInfo, kSettings)
