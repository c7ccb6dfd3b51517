#include "wqspcfg/models/ptr/SpPTRCATICPR2RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/PassbookPrinterRows.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRCATICPR2RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,   L"Port",      &C::m_dwPort,      1,    kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,   L"BaudRate",  &C::m_dwBaudRate,  9600, kBaudRate, Saved},
    {key::Device, L"CharSpace", &C::m_dwCharSpace, 0,    printer::kWordSpace, Saved},
    {key::Device, L"LineSpace", &C::m_dwLineSpace, 30,   printer::kLineSpace, Saved},
    Group(Rows<kPassbookPageRows>),
    {key::Device, L"UseOneForm",    &C::m_dwUseOneForm,    0,  printer::kUseOneForm, Saved},
    {key::Device, L"StartLineNum",  &C::m_dwStartLineNum,  1,  printer::kStartLineNum, Saved},
    {key::Device, L"MaxLineNum",    &C::m_dwMaxLineNum,    24, printer::kMaxLineNum, Saved},
    {key::Device, L"PowerOnOption", &C::m_dwPowerOnOption, 1,  printer::kPowerOnOption, Saved},
    {key::Device, L"MaxRetract",    &C::m_dwMaxRetract,    10, printer::kMaxRetract, Saved},
    {key::Device, L"FormForceUnit", &C::m_dwFormForceUnit, 0,
     L"unit that forms are forced to; 0 the form's own", Saved},
    {key::Device, L"PrintUseUnit", &C::m_dwPrintUseUnit, 0,
     L"unit that printing uses; 0 the form's own", Saved},
    {key::Device, L"TopAdjustSpace",      &C::m_dwTopAdjustSpace,     0,         printer::kTopAdjustSpace, Saved},
    {key::Device, L"LeftAdjustSpace",     &C::m_dwLeftAdjustSpace,    0,         printer::kLeftAdjustSpace, Saved},
    {key::Device, L"ForceRetract",        &C::m_bForceRetract,        0,         printer::kForceRetract, Saved},
    {key::Device, L"ReadMagicModel",      &C::m_dwReadMagicModel,     0,         printer::kNotDocumented, Saved},
    {key::Device, L"Track2",              &C::m_strTrack2,            L"",       printer::kTrack2, Saved},
    {key::Device, L"Track3",              &C::m_strTrack3,            L"",       printer::kTrack3, Saved},
    {key::Device, L"FontName",            &C::m_strFontName,          L"SimSun", printer::kFontName, Saved},
    {key::Device, L"FontSize",            &C::m_dwFontSize,           12,        printer::kFontSize, Saved},
    {key::Device, L"RetractCount",        &C::m_dwRetractCount,       0,         printer::kRetractCount, Saved},
    {key::Device, L"KeepPaperStatusFull", &C::m_bKeepPaperStatusFull, 0,         printer::kKeepPaperStatusFull, Saved},
    {key::Device, L"Bold", &C::m_bBold, 0,
     L"print bold: 0 no; nonzero yes", Saved},
    {key::Device, L"CharWidthFlag",  &C::m_dwCharWidthFlag,  0, printer::kCharWidthFlag, Saved},
    {key::Device, L"ResetCount",     &C::m_dwResetCount,     3, printer::kResetCount, Saved},
    {key::Device, L"CharHeightFlag", &C::m_dwCharHeightFlag, 0, printer::kCharHeightFlag, Saved},
    {key::Device, L"LeftMargin",     &C::m_dwLeftMargin,     0, printer::kLeftMargin, Saved},
    {key::Device, L"RawDataParseID", &C::m_dwRawDataParseID, 0, printer::kRawDataParseID, Saved},
    {key::Device, L"SupportCmdOfRawData", &C::m_bSupportCmdOfRawData, 1,
     L"WFS_CMD_PTR_RAW_DATA is supported: 0 no; nonzero yes", Saved},
    {key::Device, L"SupportCmdOfReadImage", &C::m_bSupportCmdOfReadImage, 0,
     L"WFS_CMD_PTR_READ_IMAGE is supported: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRCATICPR2RegInfo, PassbookPrinter, kSettings)
