#pragma once

#include "wqspcfg/parts/serial/SerialRecord.h"

// Banknote serial numbers: where they are kept, how the index file is written, and which operations make them.
struct WQSPCFG_API tagBillSNRegInfo : wqspcfg::SerialRecord
{
    tagBillSNRegInfo();
    // Reads every value, each with its default where it is missing. False when the key is not open; everything is
    // default then.
    bool Load(HKEY hKey);
    // Writes the values that differ from what Load would give. False when any could not be written.
    bool Save(HKEY hKey) const;

    CString szPhotoPath;
    DWORD dwPhotoSaveMonth{};
    CString szAllPhotosPath;
    CString szSNRInfoFileName;
    CString szTotalTitle;
    CString szFSNPathTitle;
    CString szLv2CountTitle;
    CString szLv3CountTitle;
    CString szLv4CountTitle;
    CString szOpertimeTitle;
    CString szCurrencyTitle;
    CString szOperationModeTitle;
    CString szLv2Title;
    CString szLv3Title;
    CString szLv4Title;
    CString szIndexTitle;
    CString szValueTitle;
    CString szSNTitle;
    CString szImageFileTitle;
    CString szNoteVersionTitle;
    CString szNoteIDTitle;
    DWORD dwAPID{};
    DWORD dwMakeSNOfVerify{};
    DWORD dwMakeSNOfStore{};
    DWORD dwMakeSNOfCancel{};
    DWORD dwMakeSNOfDispense{};
    DWORD dwMakeSNOfRetract{};
    DWORD dwMakeSNOfBillMove{};
    DWORD dwMakeSNOfPassCheck{};
    DWORD dwSNSrcOfStore{};
    DWORD dwOCRCnt2Show{};
    DWORD dwMakeFullImage{};
    DWORD dwSaveRjBSNOnlyInCntCU{};
    DWORD dwIndexStrLen{};
    DWORD dwMaxItemPerFile{};
};
