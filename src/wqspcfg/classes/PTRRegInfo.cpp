#include "wqspcfg/classes/PTRRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CPTRRegInfo;

namespace {

constexpr Key kForm = key::Below(L"Form");

// Save writes the lower-case drive letter for an empty folder; the defaults of Load have the upper-case one.
// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"CheckDataBoundary", &C::m_dwCheckDataBoundary, 0,
     L"check while printing whether form data run beyond the form: 0 no; nonzero yes", Saved},
    {key::Device, L"CheckFormMediaOverflow", &C::m_dwCheckFormMediaOverflow, 0,
     L"when a form is loaded, check the form against the bounds of its media: 0 no; nonzero yes", Saved},
    {key::Device, L"NoAddBlankNode", &C::m_dwNoAddBlankNode, 0,
     L"printing a passbook: 0 blank-line nodes are added; nonzero none are", Saved},
    {key::Device, L"CutWhenResetWithEject", &C::m_dwCutWhenResetWithEject, 1,
     L"a reset with the eject option cuts the paper: 0 no; nonzero yes"},
    {kForm, L"OtherFileDirectory", &C::m_strOtherFileDirectory, L"C:\\form",
     L"folder of other files to be printed", SavedWhenEmptyAs(L"c:\\form"), RefersTo(Reference::Directory)},
    {kForm, L"FormsDirectory", &C::m_strFormsDirectory, L"C:\\vexo\\wq\\conf",
     L"folder of the form definitions", SavedWhenEmptyAs(L"c:\\vexo\\wq\\conf"), RefersTo(Reference::Directory)},
    {kForm, L"FormsExtension", &C::m_strFormsExtension, L"wfm", L"extension of form files", SavedWhenEmptyAs(L"wfm")},
    {kForm, L"MediasDirectory", &C::m_strMediasDirectory, L"C:\\vexo\\wq\\conf",
     L"folder of the media definitions", SavedWhenEmptyAs(L"c:\\vexo\\wq\\conf"), RefersTo(Reference::Directory)},
    {kForm, L"MediasExtension", &C::m_strMediasExtension, L"wfm",
     L"extension of media files", SavedWhenEmptyAs(L"wfm")},
    {key::Device, L"DevNotOnLine", &C::m_dwDevNotOnLine, 500,
     L"idle interval in ms while the device is not in a normal state"},
    {key::Device, L"DevError", &C::m_dwDevError, 500, L"idle interval in ms while the device is faulty"},
    {key::IdleInterval, L"MediaNotPresent", &C::m_dwMediaNotPresent, 500,
     L"query interval in ms while no media is present"},
    {key::IdleInterval, L"PaperOut", &C::m_dwPaperOut, 500, L"query interval in ms while paper is out"},
    {key::IdleInterval, L"WaitTaken", &C::m_dwWaitTaken, 500,
     L"query interval in ms while waiting for media to be taken"},
    {key::Device, L"ForceWaitMediaInsert", &C::m_bForceWaitMediaInsert, 0,
     L"force waiting for media to be inserted: 0 no; nonzero yes", Saved},
    {key::Device, L"ForceErrorWhenRetractBoxFull", &C::m_bForceErrorWhenRetractBoxFull, 0,
     L"a full retract bin forces a hardware error result: 0 no; nonzero yes", Saved},
    {key::Device, L"CheckInputParam", &C::m_dwCheckInputParam, 0,
     L"check the input parameters of commands: 0 no; nonzero yes", Saved},
    {key::Device, L"AllDataMoveDown", &C::m_dwAllDataMoveDown, 0, L"shift the whole form down by this amount", Saved},
    {key::Device, L"UseOldPrintType", &C::m_dwUseOldPrintType, 0,
     L"0 print the corrected way; 1 print the earlier way, for installations whose forms were tuned to the earlier "
     L"behaviour", OneOf},
    {key::Device, L"IsCkFormInvaidWhenPrint", &C::m_dwIsCkFormInvaidWhenPrint, 0,
     L"PrintForm checks whether the form is invalid: 0 no; nonzero yes", Saved},
    {key::Device, L"IsSupportFormInvaidList", &C::m_dwIsSupportFormInvaidList, 1,
     L"the form list also names invalid forms: 0 no; nonzero yes", Saved},
    {key::Device, L"IsSupportMediaInvaidList", &C::m_dwIsSupportMediaInvaidList, 1,
     L"the media list also names invalid media: 0 no; nonzero yes", Saved},
    {key::Device, L"IsUseEscapeCharacter", &C::m_dwIsUseEscapeCharacter, 1,
     L"form parsing recognises escape characters: 0 no; nonzero yes", Saved},
    {key::Device, L"IsUseEscapeCharacterWhenPrint", &C::m_dwIsUseEscapeCharacterWhenPrint, 0,
     L"PrintForm data recognise escape characters: 0 no; nonzero yes", Saved},
    {key::Device, L"SpaceCntWithTabKey", &C::m_dwSpaceCntWithTabKey, 0,
     L"number of spaces that a TAB is turned into: 0 no conversion", Saved},
    {key::Device, L"IsSupportFormMediaReLoad", &C::m_dwIsSupportFormMediaReLoad, 0,
     L"forms and media are loaded again on every form or media request: 0 no; nonzero yes", Saved},
    {key::Device, L"SendErrorWhenFieldNotExist", &C::m_dwSendErrorWhenFieldNotExist, 0,
     L"PrintForm with a field that the form lacks: 0 go on printing; nonzero fail; a field-error event is sent in "
     L"both cases", Saved},
    {key::Device, L"ApID", &C::m_dwApID, 0,
     L"application profile: 0 Tarno standard; 2 Glabrun (Guoguang application); 3 Tograx Beijing (Wincor "
     L"application); 4 Hankou Bank (GRGBanking application); 5 China Bohai Bank (Yuxin application); 7 Postal Savings "
     L"Bank ITM; 8 Nantian application (Nanyue, Guangdong Rural Credit)", Saved, OneOf},
    {key::Device, L"ReadFormFieldDivCharLeft", &C::m_chReadFormFieldDivCharLeft, L"",
     L"separator written to the left of each field-equals-value pair in read-form results; only the first character "
     L"counts"},
    {key::Device, L"ReadFormFieldDivCharRight", &C::m_chReadFormFieldDivCharRight, L"",
     L"separator written to the right of each field-equals-value pair in read-form results; only the first character "
     L"counts"},
    {key::Device, L"SendPaperThresholdAction", &C::m_dwSendPaperThresholdAction, 1,
     L"execute commands send the paper-threshold event when paper is low or out: 0 no; nonzero yes"},
    {key::Device, L"RtFieldNameWhenTrackEmpty", &C::m_bRtFieldNameWhenTrackEmpty, 0,
     L"read-form returns the field name when the track data are empty: 0 no; nonzero yes", Saved, KeepWhenMissing},
    {key::Device, L"UsedInitialValueForIndex", &C::m_dwUsedInitialValueForIndex, 0,
     L"a field with the INDEX attribute prints its INITIALVALUE when assigned: 0 no; nonzero yes", Saved},
    {key::Device, L"SentMediatakenAfterSentMediapresented", &C::m_bSentMediatakenAfterSentMediapresented, 0,
     L"a media-taken event must follow a media-presented event: 0 no; nonzero yes", Saved},
    {key::Device, L"AllowRetractWhenFull", &C::m_dwAllowRetractWhenFull, 0,
     L"allow retracting while the retract bin is full: 0 no; nonzero yes", Saved},
    {key::Device, L"SendMediaTakenOfReadImage", &C::m_dwSendMediaTakenOfReadImage, 0,
     L"media-taken after read-image: 0 before the completion event; 1 after it; 2 not sent", Saved, OneOf},
    {key::Device, L"StyleSupportVertialLine", &C::m_dwStyleSupportVertialLine, 0,
     L"a form's style attribute may hold several values separated by \"|\": 0 no; nonzero yes"},
    {key::Device, L"TriggerMTWhenNoMedia", &C::m_dwTriggerMTWhenNoMedia, 0,
     L"eject and reset-with-retract without media send a media-taken event: 0 no; 1 yes", OneOf},
    {key::Device, L"PrintNodeMgrType", &C::m_dwPrintNodeMgrType, 0,
     L"print-node manager: 0 default manager; 1 custom manager; 2 format 2", Saved, OneOf},
    {key::Device, L"RawDataWaitMediaInsert", &C::m_dwRawDataWaitMediaInsert, 0,
     L"WFS_CMD_PTR_RAW_DATA waits for media to be inserted: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_CLASS_SETTINGS(CPTRRegInfo, L"PTR", kSettings)
