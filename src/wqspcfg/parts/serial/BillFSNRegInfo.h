#pragma once

#include "wqspcfg/parts/serial/SerialField.h"
#include "wqspcfg/platform/base/Export.h"

// One part of a composed file or folder name.
struct tagFSNNamePart
{
    DWORD Type = 0; // 1 year, 2 month, 3 date, 4 hour, 5 minute, 6 second, 7 millisecond, 8 operator type, 9 remarks
    CString Value;
    CString Link; // the text between this part and the next
};

// FSN files, in which banks exchange note serial numbers and their images: where and when they are written, and how
// they are named.
//
// The two lists of name parts are in the subkeys FSNFileNameParts\Data%d and FSNFolderParts\Data%d, numbered from 1
// without a count: a list ends before the first part that is missing or whose Type is not 1 to 9. Save puts a Type of 0
// behind a list that has become shorter.
struct WQSPCFG_API tagBillFSNRegInfo
{
    tagBillFSNRegInfo();
    // Reads every value, each with its default where it is missing. False when the key is not open; everything is
    // default then.
    bool Load(HKEY hKey);
    // Writes every value. False when any could not be written.
    bool Save(HKEY hKey) const;

    CString FSNFilePath;
    CString ApDataFilePath;
    bool RecordFSN;
    bool UseGrayToDealSNPic;
    DWORD FSNFileSaveMonth;
    DWORD FSNPolicy;
    DWORD FSNAPID;
    DWORD MakeFSNFileMode;
    CString DevNO;
    CString OrganizationCode;
    CString MakeYearOfDev;
    bool BlackBackGroundOfImage;
    bool DelExistFile;
    bool SaveFsnFileIfAPPNotGet;
    bool IsUseDevNoFromBank;
    CString DevNoPathAndKey;
    CString szDevNoGainFormBank;
    bool UseFixedFSNFileName;
    CString FSNFileName;
    DWORD BankCodeMaxLen;
    bool IsUseTermType;
    CString BankCode;
    CString FirmCode;
    CString OperatorNO;
    CString TreatyVer;
    CString AddressCode;
    DWORD dwRecordDevTypeAction;
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

namespace wqspcfg {

// clang-format off
inline constexpr auto kBillFSNFields = [] {
    using R = tagBillFSNRegInfo;
    using F = SerialField<R>;
    return std::to_array<F>({
        F{L"FSNFilePath", &R::FSNFilePath, L"", L"directory of the FSN files"},
        F{L"ApDataFilePath", &R::ApDataFilePath, L"", L"path of the data file that the application provides"},
        F{L"RecordFSN", &R::RecordFSN, 0, L"FSN files are recorded: 0 no; nonzero yes"},
        F{L"UseGrayToDealSNPic", &R::UseGrayToDealSNPic, 0, L"serial-number pictures are processed in grey: 0 no; nonzero yes"},
        F{L"FSNFileSaveMonth", &R::FSNFileSaveMonth, 3, L"how long FSN files are kept, in months"},
        F{L"FSNPolicy", &R::FSNPolicy, 0, L"FSN policy bits"}.Shown(L"0x%0X"),
        F{L"FSNAPID", &R::FSNAPID, 0, L"application profile of the FSN files: 0 Tarno; 1 and 2 other application profiles"},
        F{L"MakeFSNFileMode", &R::MakeFSNFileMode, 0, L"an FSN file is made: 0 for each validation; 1 for each day"},
        F{L"DevNO", &R::DevNO, L"", L"number of the device"},
        F{L"OrganizationCode", &R::OrganizationCode, L"", L"code of the organisation"},
        F{L"MakeYearOfDev", &R::MakeYearOfDev, L"", L"year in which the device was made"},
        F{L"BlackBackGroundOfImage", &R::BlackBackGroundOfImage, 0, L"images have a black background: 0 no; nonzero yes"},
        F{L"DelExistFile", &R::DelExistFile, 0, L"a file that exists already is deleted: 0 no; nonzero yes"},
        F{L"SaveFsnFileIfAPPNotGet", &R::SaveFsnFileIfAPPNotGet, 0, L"an FSN file is kept when the application has not fetched it: 0 no; nonzero yes"},
        F{L"IsUseDevNoFromBank", &R::IsUseDevNoFromBank, 0, L"the device number of the bank is used: 0 no; nonzero yes"},
        F{L"DevNoPathAndKey", &R::DevNoPathAndKey, L"", L"path and key of the bank's device number, separated by \";\""},
        F{L"szDevNoGainFormBank", &R::szDevNoGainFormBank, L"", L"device number that was obtained from the bank"},
        F{L"UseFixedFSNFileName", &R::UseFixedFSNFileName, 0, L"FSN files have the fixed name FSNFileName: 0 no; nonzero yes"},
        F{L"FSNFileName", &R::FSNFileName, L"CNYGZHM.FSN", L"fixed name of the FSN file; a name that does not end in .fsn becomes CNYGZHM.FSN"},
        F{L"BankCodeMaxLen", &R::BankCodeMaxLen, 4, L"longest bank code, in characters: 3 to 5; any other number becomes 4"}.Within(3, 5),
        F{L"IsUseTermType", &R::IsUseTermType, 1, L"the terminal type is used: 0 no; nonzero yes"},
        F{L"BankCode", &R::BankCode, L"", L"code of the bank"},
        F{L"FirmCode", &R::FirmCode, L"", L"code of the manufacturer"},
        F{L"OperatorNO", &R::OperatorNO, L"", L"number of the operator"},
        F{L"TreatyVer", &R::TreatyVer, L"", L"version of the protocol"},
        F{L"AddressCode", &R::AddressCode, L"", L"code of the address"},
        F{L"dwRecordDevTypeAction", &R::dwRecordDevTypeAction, 0, L"how the device type is recorded"},
        F{L"CashIn", &R::CashIn, L"CashIn", L"word in the file name for the operation cash-in"},
        F{L"CashInEnd", &R::CashInEnd, L"CashInEnd", L"word in the file name for the operation cash-in end"},
        F{L"CIMRetract", &R::CIMRetract, L"CIMRetract", L"word in the file name for the operation CIM retract"},
        F{L"CIMReset", &R::CIMReset, L"CIMReset", L"word in the file name for the operation CIM reset"},
        F{L"Dispense", &R::Dispense, L"Dispense", L"word in the file name for the operation dispense"},
        F{L"CDMRetract", &R::CDMRetract, L"CDMRetract", L"word in the file name for the operation CDM retract"},
        F{L"CDMReset", &R::CDMReset, L"CDMReset", L"word in the file name for the operation CDM reset"},
        F{L"CDMReject", &R::CDMReject, L"CDMReject", L"word in the file name for the operation CDM reject"},
    });
}();
// clang-format on

} // namespace wqspcfg
