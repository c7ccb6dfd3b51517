#pragma once

#include "wqspcfg/parts/serial/SerialRecord.h"

// One part of a composed file or folder name.
struct tagFSNNamePart
{
    DWORD Type = 0; // 1 year, 2 month, 3 date, 4 hour, 5 minute, 6 second, 7 millisecond, 8 operator type, 9 remarks
    CString Value;
    CString Link; // the text between this part and the next

    friend bool operator==(const tagFSNNamePart&, const tagFSNNamePart&) = default;
};

// FSN files, in which banks exchange note serial numbers and their images: where and when they are written, and how
// they are named.
//
// The two lists of name parts are in the subkeys FSNFileNameParts\Data%d and FSNFolderParts\Data%d, numbered from 1
// without a count: a list ends before the first part that is missing or whose Type is not 1 to 9. Save puts a Type of 0
// behind a list that has become shorter.
struct WQSPCFG_API tagBillFSNRegInfo : wqspcfg::SerialRecord
{
    tagBillFSNRegInfo();
    // Reads every value, each with its default where it is missing. False when the key is not open; everything is
    // default then.
    bool Load(HKEY hKey);
    // Writes the values that differ from what Load would give. False when any could not be written.
    bool Save(HKEY hKey) const;

    CString FSNFilePath;
    CString ApDataFilePath;
    DWORD RecordFSN{};
    DWORD UseGrayToDealSNPic{};
    DWORD FSNFileSaveMonth{};
    DWORD FSNPolicy{};
    DWORD FSNAPID{};
    DWORD MakeFSNFileMode{};
    CString DevNO;
    CString OrganizationCode;
    CString MakeYearOfDev;
    DWORD BlackBackGroundOfImage{};
    DWORD DelExistFile{};
    DWORD SaveFsnFileIfAPPNotGet{};
    DWORD IsUseDevNoFromBank{};
    CString DevNoPathAndKey;
    CString szDevNoGainFormBank;
    DWORD UseFixedFSNFileName{};
    CString FSNFileName;
    DWORD BankCodeMaxLen{};
    DWORD IsUseTermType{};
    CString BankCode;
    CString FirmCode;
    CString OperatorNO;
    CString TreatyVer;
    CString AddressCode;
    DWORD dwRecordDevTypeAction{};
    CString CashIn;
    CString CashInEnd;
    CString CIMRetract;
    CString CIMReset;
    CString Dispense;
    CString CDMRetract;
    CString CDMReset;
    CString CDMReject;

    CArray<tagFSNNamePart> FileNameParts;
    CArray<tagFSNNamePart> FolderParts; // of the second-level folder
};
