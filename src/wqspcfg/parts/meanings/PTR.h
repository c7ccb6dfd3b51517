// Texts that the printers share.
#pragma once

namespace wqspcfg::meaning::printer {

inline constexpr wchar_t kNotDocumented[] = L"not documented";
inline constexpr wchar_t kTimeOut[] = L"time-out in s";
inline constexpr wchar_t kReturnWord[] =
    L"characters that start a new line; empty the carriage return and line feed of the data";
inline constexpr wchar_t kMustBeBold[] = L"always print bold: 0 no; nonzero yes";
inline constexpr wchar_t kAutoReset[] = L"the device is reset without a command when it is in error: 0 no; nonzero yes";
inline constexpr wchar_t kCharSet[] = L"number of the character set; 0 the device's own";
inline constexpr wchar_t kSendFieldWarnningEvent[] = L"field warnings are sent as events: 0 no; nonzero yes";
inline constexpr wchar_t kPtrName[] = L"name of the printer in the operating system; empty the default printer";
inline constexpr wchar_t kPageHeight[] = L"height of a page";
inline constexpr wchar_t kPaperWidth[] = L"width of the paper";
inline constexpr wchar_t kPaperHeight[] = L"height of the paper";
inline constexpr wchar_t kOffsetValid[] = L"the offset given with a print command counts: 0 no; nonzero yes";
inline constexpr wchar_t kLineSpace[] = L"line height";
inline constexpr wchar_t kWordSpace[] = L"space between characters";
inline constexpr wchar_t kLeftSpace[] = L"space to the left of the print area";
inline constexpr wchar_t kUseFixFontSize[] = L"the size of FontSize is used whatever the form says: 0 no; nonzero yes";
inline constexpr wchar_t kFontSize[] = L"size of the print font";
inline constexpr wchar_t kUseCPI[] =
    L"the characters per inch of the form set the width of characters: 0 no; nonzero yes";
inline constexpr wchar_t kMustBeFontName[] = L"the font of FontName is used whatever the form says: 0 no; nonzero yes";
inline constexpr wchar_t kFontName[] = L"name of the print font";
inline constexpr wchar_t kRawDataAsBmp[] = L"raw data are printed as a picture: 0 no; nonzero yes";
inline constexpr wchar_t kRawDataWordWrap[] = L"raw data that run beyond the line are wrapped: 0 no; nonzero yes";
inline constexpr wchar_t kRawDataFontSize[] = L"size of the font for raw data";
inline constexpr wchar_t kRawDataFontName[] = L"name of the font for raw data";
inline constexpr wchar_t kUseImageStretch[] = L"pictures are stretched to the size of their field: 0 no; nonzero yes";
inline constexpr wchar_t kBlackColorRangeMax[] =
    L"largest value that counts as black when a picture is made black and white: 0 to 255";
inline constexpr wchar_t kFeedBeforePrint[] = L"paper feed before printing";
inline constexpr wchar_t kFeedAfterPrint[] = L"paper feed after printing";
inline constexpr wchar_t kSendMediaTakenEvent[] = L"the media-taken event is sent: 0 no; nonzero yes";
inline constexpr wchar_t kWaitMediaTakenTime[] =
    L"seconds after media went from entering to not present before the media-taken event is sent";
inline constexpr wchar_t kPrintIntervalTime[] = L"interval in ms between two print jobs";
inline constexpr wchar_t kPolicyOfLineSpace[] = L"policy for the line height; 0 the device's standard";
inline constexpr wchar_t kUseOneFormPrintManyKindsReceipt[] =
    L"one form serves to print several kinds of receipt: 0 no; nonzero yes";
inline constexpr wchar_t kAdjustPosY[] = L"adjustment of the vertical print position";
inline constexpr wchar_t kRawDataStyle[] = L"style in which raw data are printed; 0 the device's standard";
inline constexpr wchar_t kIgnoreInvalidData[] = L"invalid print data are ignored: 0 no; nonzero yes";
inline constexpr wchar_t kIsStamp[] = L"a stamping unit is fitted: 0 no; nonzero yes";
inline constexpr wchar_t kRawDataParseID[] = L"profile by which raw data are parsed; 0 the standard one";
inline constexpr wchar_t kCheckInputParam[] = L"check the input parameters of commands: 0 no; nonzero yes";
inline constexpr wchar_t kWaitPrintJob[] = L"printing waits for the end of the print job: 0 no; nonzero yes";
inline constexpr wchar_t kPaperStatusStartIndex[] = L"index of the first paper source in the paper status";
inline constexpr wchar_t kMaxRetain[] = L"capacity of the retain bin";
inline constexpr wchar_t kHighRetainBin[] = L"count at which the retain bin is nearly full";
inline constexpr wchar_t kRetainBinCount[] = L"number of items in the retain bin";
inline constexpr wchar_t kScanResolution[] = L"scan resolution in dots per inch";
inline constexpr wchar_t kUseOneForm[] = L"one form serves for all pages: 0 no; nonzero yes";
inline constexpr wchar_t kStartLineNum[] = L"number of the first line";
inline constexpr wchar_t kMaxLineNum[] = L"number of lines on a page";
inline constexpr wchar_t kPowerOnOption[] = L"action at power on: 0 none; 1 eject the media; 2 retract them";
inline constexpr wchar_t kMaxRetract[] = L"capacity of the retract bin";
inline constexpr wchar_t kTopAdjustSpace[] = L"adjustment of the top margin";
inline constexpr wchar_t kLeftAdjustSpace[] = L"adjustment of the left margin";
inline constexpr wchar_t kForceRetract[] = L"retracting is forced: 0 no; nonzero yes";
inline constexpr wchar_t kTrack2[] = L"text for track 2 of the magnetic stripe";
inline constexpr wchar_t kTrack3[] = L"text for track 3 of the magnetic stripe";
inline constexpr wchar_t kRetractCount[] = L"number of items retracted";
inline constexpr wchar_t kKeepPaperStatusFull[] = L"the paper status stays full: 0 no; nonzero yes";
inline constexpr wchar_t kCharWidthFlag[] = L"width of characters; 0 normal";
inline constexpr wchar_t kResetCount[] = L"attempts to reset the device";
inline constexpr wchar_t kCharHeightFlag[] = L"height of characters; 0 normal";
inline constexpr wchar_t kLeftMargin[] = L"left margin";
inline constexpr wchar_t kCutMode[] = L"how the paper is cut; 0 the device's standard";
inline constexpr wchar_t kCutPos[] = L"position at which the paper is cut";
inline constexpr wchar_t kInsertVertical[] = L"passbooks are inserted vertically: 0 no; nonzero yes";
inline constexpr wchar_t kOpenOption[] = L"action when the SP opens: 0 none; 1 eject the media; 2 retract them";
inline constexpr wchar_t kIsUseBlackMark[] = L"the black mark of the paper positions the cut: 0 no; nonzero yes";
inline constexpr wchar_t kRawDataFilePathStyle[] = L"how raw data name a file to be printed; 0 the standard way";
inline constexpr wchar_t kFullCut[] = L"the paper is cut in full: 0 in part; nonzero in full";
inline constexpr wchar_t kCurLastCount[] = L"number of receipts that can still be printed on low paper";
inline constexpr wchar_t kUseCountWhenLow[] = L"receipts are counted while paper is low: 0 no; nonzero yes";
inline constexpr wchar_t kType[] = L"link: 0 serial; 1 USB";
inline constexpr wchar_t kUnderline[] = L"print underlined: 0 no; nonzero yes";
inline constexpr wchar_t kDoubleHeight[] = L"print in double height: 0 no; nonzero yes";
inline constexpr wchar_t kDoubleWidth[] = L"print in double width: 0 no; nonzero yes";
inline constexpr wchar_t kMustBeWordWrap[] = L"text that runs beyond the line is always wrapped: 0 no; nonzero yes";
inline constexpr wchar_t kEjectLength[] = L"length by which the paper is ejected";
inline constexpr wchar_t kCutWhenEject[] = L"an eject cuts the paper: 0 no; nonzero yes";
inline constexpr wchar_t kMaxCountWhenLow[] = L"number of receipts that can be printed from low paper on";
inline constexpr wchar_t kPrintDensity[] = L"print density; 0 the device's own";
inline constexpr wchar_t kPrintSpeed[] = L"print speed; 0 the device's own";
inline constexpr wchar_t kBeepFile[] = L"sound file played when data is scanned; empty plays nothing";
inline constexpr wchar_t kRealWidth[] = L"real width of the print area";
inline constexpr wchar_t kRealHeight[] = L"real height of the print area";
inline constexpr wchar_t kFeedBeforeCut[] = L"paper feed before the cut";
inline constexpr wchar_t kMinFeedLength[] = L"smallest length of a paper feed";
inline constexpr wchar_t kBroadMediainserted[] = L"the media-inserted event is broadcast: 0 no; nonzero yes";
inline constexpr wchar_t kBrushWait[] = L"time in s for which a swipe is waited for";
inline constexpr wchar_t kTrack1TiledName[] = L"name of the field for track 1";
inline constexpr wchar_t kTrack2TiledName[] = L"name of the field for track 2";
inline constexpr wchar_t kTrack3TiledName[] = L"name of the field for track 3";
inline constexpr wchar_t kAddNullToUnicodeFields[] = L"Unicode field data end with a null character: 0 no; nonzero yes";
inline constexpr wchar_t kRawDataRowBitCount[] = L"number of characters in a row of raw data; 0 as many as fit";
inline constexpr wchar_t kRawDataUseUnitMM[] = L"positions in raw data are in mm: 0 no; nonzero yes";
inline constexpr wchar_t kFormWidth[] = L"width of a form";
inline constexpr wchar_t kFormHeight[] = L"height of a form";
inline constexpr wchar_t kNewLineWhenOverWidth[] =
    L"text that runs beyond the width starts a new line: 0 no; nonzero yes";
inline constexpr wchar_t kMustBeCut[] = L"the paper is always cut after printing: 0 no; nonzero yes";
inline constexpr wchar_t kContinuePrintType[] = L"how consecutive print commands are joined; 0 not at all";
inline constexpr wchar_t kFieldPosYChange[] = L"change of the vertical position of fields";
inline constexpr wchar_t kMaxRetainCount[] = L"maximum number of tickets in the retain bin";
inline constexpr wchar_t kHighRetainCount[] = L"number at which the retain bin counts as nearly full";
inline constexpr wchar_t kRFIDPort[] = L"serial port number of the RFID reader";
inline constexpr wchar_t kSaveImageTime[] = L"days for which images are kept: 0 to 90";
inline constexpr wchar_t kBankType[] = L"bank profile: 1 Drodre; 2 Tograx; 3 Agricultural Bank of China Hebei";
inline constexpr wchar_t kMustBeRetract[] = L"media left in the device are always retracted: 0 no; nonzero yes";
inline constexpr wchar_t kMustScanJPG[] = L"scanned pictures are always JPG files: 0 no; nonzero yes";
inline constexpr wchar_t kMatchLev[] = L"level of the fingerprint match";

} // namespace wqspcfg::meaning::printer
