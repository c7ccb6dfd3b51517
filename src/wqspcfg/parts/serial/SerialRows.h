// The settings of the serial-number records, for the records and for the class that has them.
#pragma once

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/serial/BillBLRegInfo.h"
#include "wqspcfg/parts/serial/BillFAIRegInfo.h"
#include "wqspcfg/parts/serial/BillFSNRegInfo.h"
#include "wqspcfg/parts/serial/BillSNRegInfo.h"

#include <span>

namespace wqspcfg {

// Reads and logs a list of name parts: rows[0] to rows[2] are a part's type, text and link.
void LoadNameParts(CArray<tagFSNNamePart>& parts, Loading& loading, RowList rows);

inline constexpr Key kSnrData = key::Below(L"SNRData");
inline constexpr Key kFileNamePart = key::Below(L"SNRData\\FSNFileNameParts\\Data%d");
inline constexpr Key kFolderPart = key::Below(L"SNRData\\FSNFolderParts\\Data%d");

inline constexpr wchar_t kIndexFile[] = L"D:\\SNRInfo.ini";
inline constexpr wchar_t kFSNDirectory[] = L"D:\\MyFSN";

inline constexpr auto kIndexFileWhenEmpty = Normalize([](tagBillSNRegInfo&, CString& strPath, bool) {
    if (strPath.IsEmpty()) {
        strPath = kIndexFile;
    }
});
inline constexpr auto kFSNDirectoryWhenEmpty = Normalize([](tagBillFSNRegInfo&, CString& strPath, bool) {
    if (strPath.IsEmpty()) {
        strPath = kFSNDirectory;
    }
});

inline constexpr wchar_t kPartType[] = L"type of the name part: 1 year; 2 month; 3 date; 4 hour; 5 minute; 6 second; "
                                       L"7 millisecond; 8 operator type; 9 remarks";
inline constexpr wchar_t kPartValue[] = L"text of the name part";
inline constexpr wchar_t kPartLink[] = L"text between this name part and the next";

// clang-format off
inline constexpr Setting kFileNamePartRows[] = {
    {kFileNamePart, L"Type",  DwordValue,  0,   kPartType, Saved, NotLogged, Label(L"FSNFileNameParts\\Data%d.Type")},
    {kFileNamePart, L"Value", StringValue, L"", kPartValue, Saved, NotLogged, Label(L"FSNFileNameParts\\Data%d.Value")},
    {kFileNamePart, L"Link",  StringValue, L"", kPartLink, Saved, NotLogged, Label(L"FSNFileNameParts\\Data%d.Link")},
};
inline constexpr Setting kFolderPartRows[] = {
    {kFolderPart, L"Type",  DwordValue,  0,   kPartType, Saved, NotLogged, Label(L"FSNFolderParts\\Data%d.Type")},
    {kFolderPart, L"Value", StringValue, L"", kPartValue, Saved, NotLogged, Label(L"FSNFolderParts\\Data%d.Value")},
    {kFolderPart, L"Link",  StringValue, L"", kPartLink, Saved, NotLogged, Label(L"FSNFolderParts\\Data%d.Link")},
};
inline constexpr auto kLoadFileNameParts = [](tagBillFSNRegInfo& record, Loading& loading) {
    LoadNameParts(record.FileNameParts, loading, Rows<kFileNamePartRows>);
};
inline constexpr auto kLoadFolderParts = [](tagBillFSNRegInfo& record, Loading& loading) {
    LoadNameParts(record.FolderParts, loading, Rows<kFolderPartRows>);
};

inline constexpr Setting kFullImageWords[] = {
    {kSnrData, L"LOWORD(dwMakeFullImage)", DwordValue, 0,
     L"full note images are made, bit set: 1 of the front; 2 of the back", Format(L"0x%04x")},
    {kSnrData, L"HIWORD(dwMakeFullImage)", DwordValue, 0,
     L"full note images are made, bit set: 1 of rejected notes; 2 of genuine notes", Format(L"0x%04x")},
};
inline constexpr auto kFullImageLines = [](tagBillSNRegInfo& record, Loading& loading) {
    loading.Print(Rows<kFullImageWords>[0], LOWORD(record.dwMakeFullImage));
    loading.Print(Rows<kFullImageWords>[1], HIWORD(record.dwMakeFullImage));
};

inline constexpr Setting kBillSNRows[] = {
    {kSnrData, L"szPhotoPath", &tagBillSNRegInfo::szPhotoPath, L"",
     L"directory of the note photos; no longer used", Saved},
    {kSnrData, L"dwPhotoSaveMonth", &tagBillSNRegInfo::dwPhotoSaveMonth, 3,
     L"how long note photos are kept, in months: 1 to 6", Saved, Range(1, 6)},
    {kSnrData, L"szAllPhotosPath", &tagBillSNRegInfo::szAllPhotosPath, L"",
     L"directory of the photos of all notes", Saved, RefersTo(Reference::Directory)},
    {kSnrData, L"szSNRInfoFileName", &tagBillSNRegInfo::szSNRInfoFileName, kIndexFile,
     L"full path of the serial-number index file (INI)", Saved, RefersTo(Reference::File), Constructed(L""),
     kIndexFileWhenEmpty},
    {kSnrData, L"szTotalTitle", &tagBillSNRegInfo::szTotalTitle, L"Cash_Info",
     L"index file: section of the totals", Saved},
    {kSnrData, L"szFSNPathTitle", &tagBillSNRegInfo::szFSNPathTitle, L"FSNPath",
     L"index file: key of the FSN file path", Saved},
    {kSnrData, L"szLv2CountTitle", &tagBillSNRegInfo::szLv2CountTitle, L"LEVEL2_COUNT",
     L"index file: key of the number of level-2 notes", Saved},
    {kSnrData, L"szLv3CountTitle", &tagBillSNRegInfo::szLv3CountTitle, L"LEVEL3_COUNT",
     L"index file: key of the number of level-3 notes", Saved},
    {kSnrData, L"szLv4CountTitle", &tagBillSNRegInfo::szLv4CountTitle, L"LEVEL4_COUNT",
     L"index file: key of the number of level-4 notes", Saved},
    {kSnrData, L"szOpertimeTitle", &tagBillSNRegInfo::szOpertimeTitle, L"OperationTime",
     L"index file: key of the time of the operation", Saved},
    {kSnrData, L"szCurrencyTitle", &tagBillSNRegInfo::szCurrencyTitle, L"Currency",
     L"index file: key of the currency", Saved},
    {kSnrData, L"szOperationModeTitle", &tagBillSNRegInfo::szOperationModeTitle, L"OperationMode",
     L"index file: key of the kind of operation", Saved},
    {kSnrData, L"szLv2Title", &tagBillSNRegInfo::szLv2Title, L"LEVEL2",
     L"index file: section name of level-2 notes, before the note number", Saved},
    {kSnrData, L"szLv3Title", &tagBillSNRegInfo::szLv3Title, L"LEVEL3",
     L"index file: section name of level-3 notes, before the note number", Saved},
    {kSnrData, L"szLv4Title", &tagBillSNRegInfo::szLv4Title, L"LEVEL4",
     L"index file: section name of level-4 notes, before the note number", Saved},
    {kSnrData, L"szIndexTitle", &tagBillSNRegInfo::szIndexTitle, L"Index", L"index file: key of a note's index", Saved},
    {kSnrData, L"szValueTitle", &tagBillSNRegInfo::szValueTitle, L"Value",
     L"index file: key of a note's denomination", Saved},
    {kSnrData, L"szSNTitle", &tagBillSNRegInfo::szSNTitle, L"SerialNumber",
     L"index file: key of a note's serial number", Saved},
    {kSnrData, L"szImageFileTitle", &tagBillSNRegInfo::szImageFileTitle, L"ImageFile",
     L"index file: key of a note's image file", Saved},
    {kSnrData, L"szNoteVersionTitle", &tagBillSNRegInfo::szNoteVersionTitle, L"NoteVersion",
     L"index file: key of a note's version", Saved},
    {kSnrData, L"szNoteIDTitle", &tagBillSNRegInfo::szNoteIDTitle, L"NoteID", L"index file: key of a note's ID", Saved},
    {kSnrData, L"dwAPID", &tagBillSNRegInfo::dwAPID, 0,
     L"application profile of the serial-number feature: 0, 2 to 7, 100 or 101", Saved, OneOf},
    {kSnrData, L"dwMakeSNOfVerify", &tagBillSNRegInfo::dwMakeSNOfVerify, 0,
     L"serial numbers are made on note validation: 0 no; nonzero yes", Saved},
    {kSnrData, L"dwMakeSNOfStore", &tagBillSNRegInfo::dwMakeSNOfStore, 0,
     L"serial numbers are made on storing: 0 no; nonzero yes", Saved},
    {kSnrData, L"dwMakeSNOfCancel", &tagBillSNRegInfo::dwMakeSNOfCancel, 0,
     L"serial numbers are made on cancelling a deposit: 0 no; nonzero yes", Saved},
    {kSnrData, L"dwMakeSNOfDispense", &tagBillSNRegInfo::dwMakeSNOfDispense, 0,
     L"serial numbers are made on dispensing: 0 no; nonzero yes", Saved},
    {kSnrData, L"dwMakeSNOfRetract", &tagBillSNRegInfo::dwMakeSNOfRetract, 0,
     L"serial numbers are made on retracting: 0 no; nonzero yes", Saved},
    {kSnrData, L"dwMakeSNOfBillMove", &tagBillSNRegInfo::dwMakeSNOfBillMove, 0,
     L"serial numbers are made on moving notes between cassettes: 0 no; nonzero yes", Saved},
    {kSnrData, L"dwMakeSNOfPassCheck", &tagBillSNRegInfo::dwMakeSNOfPassCheck, 0,
     L"serial numbers are made on the pass check: 0 no; nonzero yes", Saved},
    {kSnrData, L"dwSNSrcOfStore", &tagBillSNRegInfo::dwSNSrcOfStore, 0,
     L"where the serial numbers of stored notes come from: 0 the device; 1 the accumulated validation data", Saved,
     OneOf},
    {kSnrData, L"dwOCRCnt2Show", &tagBillSNRegInfo::dwOCRCnt2Show, 0, L"number of OCR results to show", Saved},
    {kSnrData, L"dwMakeFullImage", &tagBillSNRegInfo::dwMakeFullImage, 0,
     L"full note images are made: low word, bit set, 1 of the front, 2 of the back; high word, bit set, 1 of "
     L"rejected notes, 2 of genuine notes", Saved, NotLogged},
    Step(kFullImageLines),
    {kSnrData, L"dwSaveRjBSNOnlyInCntCU", &tagBillSNRegInfo::dwSaveRjBSNOnlyInCntCU, 0,
     L"serial numbers of rejected notes are saved only while cassettes are counted: 0 no; nonzero yes", Saved},
    {kSnrData, L"dwIndexStrLen", &tagBillSNRegInfo::dwIndexStrLen, 0,
     L"width of the note number in the [LEVELx_ID] headers: 0 padded with zeros to 3 digits below 1000, natural "
     L"above; 1 never padded; 4 padded to 4 digits", Saved, OneOf},
    {kSnrData, L"dwMaxItemPerFile", &tagBillSNRegInfo::dwMaxItemPerFile, 1000,
     L"largest number of notes in one file", Saved},
};

inline constexpr Setting kBillFSNRows[] = {
    {kSnrData, L"FSNFilePath", &tagBillFSNRegInfo::FSNFilePath, kFSNDirectory,
     L"directory of the FSN files", Saved, RefersTo(Reference::Directory), Constructed(L""), kFSNDirectoryWhenEmpty},
    {kSnrData, L"ApDataFilePath", &tagBillFSNRegInfo::ApDataFilePath, L"",
     L"path of the data file that the application provides", Saved, RefersTo(Reference::File)},
    {kSnrData, L"RecordFSN", &tagBillFSNRegInfo::RecordFSN, 0, L"FSN files are recorded", Saved},
    {kSnrData, L"UseGrayToDealSNPic", &tagBillFSNRegInfo::UseGrayToDealSNPic, 0,
     L"serial-number pictures are processed in grey", Saved},
    {kSnrData, L"FSNFileSaveMonth", &tagBillFSNRegInfo::FSNFileSaveMonth, 3,
     L"how long FSN files are kept, in months", Saved},
    {kSnrData, L"FSNPolicy", &tagBillFSNRegInfo::FSNPolicy, 0, L"FSN policy bits", Saved, Format(L"0x%0X")},
    {kSnrData, L"FSNAPID", &tagBillFSNRegInfo::FSNAPID, 0,
     L"application profile of the FSN files: 0 Tarno; 1 and 2 other application profiles", Saved, OneOf},
    {kSnrData, L"MakeFSNFileMode", &tagBillFSNRegInfo::MakeFSNFileMode, 0,
     L"an FSN file is made: 0 for each validation; 1 for each day", Saved, OneOf},
    {kSnrData, L"DevNO",            &tagBillFSNRegInfo::DevNO,            L"", L"number of the device", Saved},
    {kSnrData, L"OrganizationCode", &tagBillFSNRegInfo::OrganizationCode, L"", L"code of the organisation", Saved},
    {kSnrData, L"MakeYearOfDev", &tagBillFSNRegInfo::MakeYearOfDev, L"",
     L"year in which the device was made", Saved},
    {kSnrData, L"BlackBackGroundOfImage", &tagBillFSNRegInfo::BlackBackGroundOfImage, 0,
     L"images have a black background", Saved},
    {kSnrData, L"DelExistFile", &tagBillFSNRegInfo::DelExistFile, 0, L"a file that exists already is deleted", Saved},
    {kSnrData, L"SaveFsnFileIfAPPNotGet", &tagBillFSNRegInfo::SaveFsnFileIfAPPNotGet, 0,
     L"an FSN file is kept when the application has not fetched it", Saved},
    {kSnrData, L"IsUseDevNoFromBank", &tagBillFSNRegInfo::IsUseDevNoFromBank, 0,
     L"the device number of the bank is used", Saved},
    {kSnrData, L"DevNoPathAndKey", &tagBillFSNRegInfo::DevNoPathAndKey, L"",
     L"path and key of the bank's device number, separated by \";\"", Saved},
    {kSnrData, L"szDevNoGainFormBank", &tagBillFSNRegInfo::szDevNoGainFormBank, L"",
     L"device number that was obtained from the bank", Saved},
    {kSnrData, L"UseFixedFSNFileName", &tagBillFSNRegInfo::UseFixedFSNFileName, 0,
     L"FSN files have the fixed name FSNFileName", Saved},
    {kSnrData, L"FSNFileName", &tagBillFSNRegInfo::FSNFileName, L"CNYGZHM.FSN",
     L"fixed name of the FSN file, which ends in .fsn", Saved},
    {kSnrData, L"BankCodeMaxLen", &tagBillFSNRegInfo::BankCodeMaxLen, 4,
     L"longest bank code, in characters: 3 to 5", Saved, Range(3, 5)},
    {kSnrData, L"IsUseTermType", &tagBillFSNRegInfo::IsUseTermType, 1,   L"the terminal type is used", Saved},
    {kSnrData, L"BankCode",      &tagBillFSNRegInfo::BankCode,      L"", L"code of the bank", Saved},
    {kSnrData, L"FirmCode",      &tagBillFSNRegInfo::FirmCode,      L"", L"code of the manufacturer", Saved},
    {kSnrData, L"OperatorNO",    &tagBillFSNRegInfo::OperatorNO,    L"", L"number of the operator", Saved},
    {kSnrData, L"TreatyVer",     &tagBillFSNRegInfo::TreatyVer,     L"", L"version of the protocol", Saved},
    {kSnrData, L"AddressCode",   &tagBillFSNRegInfo::AddressCode,   L"", L"code of the address", Saved},
    {kSnrData, L"dwRecordDevTypeAction", &tagBillFSNRegInfo::dwRecordDevTypeAction, 0,
     L"how the device type is recorded", Saved},
    {kSnrData, L"CashIn", &tagBillFSNRegInfo::CashIn, L"CashIn",
     L"word in the file name for the operation cash-in", Saved},
    {kSnrData, L"CashInEnd", &tagBillFSNRegInfo::CashInEnd, L"CashInEnd",
     L"word in the file name for the operation cash-in end", Saved},
    {kSnrData, L"CIMRetract", &tagBillFSNRegInfo::CIMRetract, L"CIMRetract",
     L"word in the file name for the operation CIM retract", Saved},
    {kSnrData, L"CIMReset", &tagBillFSNRegInfo::CIMReset, L"CIMReset",
     L"word in the file name for the operation CIM reset", Saved},
    {kSnrData, L"Dispense", &tagBillFSNRegInfo::Dispense, L"Dispense",
     L"word in the file name for the operation dispense", Saved},
    {kSnrData, L"CDMRetract", &tagBillFSNRegInfo::CDMRetract, L"CDMRetract",
     L"word in the file name for the operation CDM retract", Saved},
    {kSnrData, L"CDMReset", &tagBillFSNRegInfo::CDMReset, L"CDMReset",
     L"word in the file name for the operation CDM reset", Saved},
    {kSnrData, L"CDMReject", &tagBillFSNRegInfo::CDMReject, L"CDMReject",
     L"word in the file name for the operation CDM reject", Saved},
    Step(kLoadFileNameParts, Rows<kFileNamePartRows>),
    Step(kLoadFolderParts, Rows<kFolderPartRows>),
};

inline constexpr Setting kBillBLRows[] = {
    {kSnrData, L"dwUseExternalBL", &tagBillBLRegInfo::dwUseExternalBL, 0,
     L"black list of serial numbers: 0 none; 1 the internal file; above 1 an external file", Saved},
    {kSnrData, L"szBlackListPath", &tagBillBLRegInfo::szBlackListPath, L"",
     L"path of the black-list file", Saved, RefersTo(Reference::File)},
    {kSnrData, L"szBlackListType", &tagBillBLRegInfo::szBlackListType, L"", L"type of the black list", Saved},
    {kSnrData, L"szComChr", &tagBillBLRegInfo::szComChr, L"*",
     L"wildcard character in the black list", Saved},
};

inline constexpr Setting kBillFAIRows[] = {
    {kSnrData, L"dwRecordFAI", &tagBillFAIRegInfo::dwRecordFAI, 0,
     L"warning files are recorded: 0 no; nonzero yes", Saved},
    {kSnrData, L"dwFAISaveMonth", &tagBillFAIRegInfo::dwFAISaveMonth, 3,
     L"how long warning files are kept, in months", Saved},
    {kSnrData, L"dwDelExistFAI", &tagBillFAIRegInfo::dwDelExistFAI, 0,
     L"a warning file that exists already is deleted: 0 no; nonzero yes", Saved},
    {kSnrData, L"dwOneRow", &tagBillFAIRegInfo::dwOneRow, 0, L"a warning file holds one row: 0 no; nonzero yes", Saved},
    {kSnrData, L"dwFAIDeleted", &tagBillFAIRegInfo::dwFAIDeleted, 0,
     L"warning files are deleted: 0 no; nonzero yes", Saved},
    {kSnrData, L"szFAIPath", &tagBillFAIRegInfo::szFAIPath, L"",
     L"directory of the warning files", Saved, RefersTo(Reference::Directory)},
    {kSnrData, L"szFAIName", &tagBillFAIRegInfo::szFAIName, L"", L"name of the warning file", Saved},
    {kSnrData, L"szBackUpFAIName", &tagBillFAIRegInfo::szBackUpFAIName, L"",
     L"name of the backup of the warning file", Saved},
    {kSnrData, L"szFAIPostfix", &tagBillFAIRegInfo::szFAIPostfix, L"", L"extension of the warning file", Saved},
    {kSnrData, L"szFAIType",    &tagBillFAIRegInfo::szFAIType,    L"", L"type of the warning file", Saved},
    {kSnrData, L"szFAIMode",    &tagBillFAIRegInfo::szFAIMode,    L"", L"mode of the warning file", Saved},
    {kSnrData, L"szFAIApRegQuery", &tagBillFAIRegInfo::szFAIApRegQuery, L"",
     L"registry value in which the application queries the warning file", Saved},
    {kSnrData, L"szFAIApRegSet", &tagBillFAIRegInfo::szFAIApRegSet, L"",
     L"registry value in which the application sets the warning file", Saved},
};
// clang-format on

} // namespace wqspcfg
