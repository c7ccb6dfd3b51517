#include "wqspcfg/models/ptr/SpPTRNanTianPR9RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/PassbookPrinterRows.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRNanTianPR9RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,   L"Port",      &C::m_dwPort,      1,    kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,   L"BaudRate",  &C::m_dwBaudRate,  9600, kBaudRate, Saved},
    {key::Device, L"CharSpace", &C::m_dwCharSpace, 0,    printer::kWordSpace, Saved},
    Group(Rows<kPassbookPageRows>),
    {key::Device, L"UseOneForm",          &C::m_dwUseOneForm,         0,         printer::kUseOneForm, Saved},
    {key::Device, L"PowerOnOption",       &C::m_dwPowerOnOption,      1,         printer::kPowerOnOption, Saved},
    {key::Device, L"MaxRetract",          &C::m_dwMaxRetract,         10,        printer::kMaxRetract, Saved},
    {key::Device, L"TopAdjustSpace",      &C::m_dwTopAdjustSpace,     0,         printer::kTopAdjustSpace, Saved},
    {key::Device, L"LeftAdjustSpace",     &C::m_dwLeftAdjustSpace,    0,         printer::kLeftAdjustSpace, Saved},
    {key::Device, L"ForceRetract",        &C::m_bForceRetract,        0,         printer::kForceRetract, Saved},
    {key::Device, L"Track2",              &C::m_strTrack2,            L"",       printer::kTrack2, Saved},
    {key::Device, L"Track3",              &C::m_strTrack3,            L"",       printer::kTrack3, Saved},
    {key::Device, L"FontName",            &C::m_strFontName,          L"SimSun", printer::kFontName, Saved},
    {key::Device, L"RetractCount",        &C::m_dwRetractCount,       0,         printer::kRetractCount, Saved},
    {key::Device, L"KeepPaperStatusFull", &C::m_bKeepPaperStatusFull, 0,         printer::kKeepPaperStatusFull, Saved},
    {key::Device, L"EjectAfterReadFaild", &C::m_bEjectAfterReadFaild, 1,
     L"the passbook is ejected after a failed read: 0 no; nonzero yes", Saved},
    {key::Device, L"CharWidthFlag",  &C::m_dwCharWidthFlag,  0, printer::kCharWidthFlag, Saved},
    {key::Device, L"CharHeightFlag", &C::m_dwCharHeightFlag, 0, printer::kCharHeightFlag, Saved},
    {key::Device, L"ResetCount",     &C::m_dwResetCount,     3, printer::kResetCount, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRNanTianPR9RegInfo, PassbookPrinter, kSettings)
