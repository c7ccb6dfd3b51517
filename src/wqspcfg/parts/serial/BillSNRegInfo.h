#pragma once

#include "wqspcfg/parts/serial/SerialField.h"
#include "wqspcfg/platform/base/Export.h"

// Banknote serial numbers: where they are kept, how the index file is written, and which operations make them.
struct WQSPCFG_API tagBillSNRegInfo
{
    tagBillSNRegInfo();
    // Reads every value, each with its default where it is missing. False when the key is not open; everything is
    // default then.
    bool Load(HKEY hKey);
    // Writes every value. False when any could not be written.
    bool Save(HKEY hKey) const;

    CString szPhotoPath;
    DWORD dwPhotoSaveMonth;
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
    DWORD dwAPID;
    DWORD dwMakeSNOfVerify;
    DWORD dwMakeSNOfStore;
    DWORD dwMakeSNOfCancel;
    DWORD dwMakeSNOfDispense;
    DWORD dwMakeSNOfRetract;
    DWORD dwMakeSNOfBillMove;
    DWORD dwMakeSNOfPassCheck;
    DWORD dwSNSrcOfStore;
    DWORD dwOCRCnt2Show;
    DWORD dwMakeFullImage;
    DWORD dwSaveRjBSNOnlyInCntCU;
    DWORD dwIndexStrLen;
    DWORD dwMaxItemPerFile;
};

namespace wqspcfg {

// clang-format off
inline constexpr auto kBillSNFields = [] {
    using R = tagBillSNRegInfo;
    using F = SerialField<R>;
    return std::to_array<F>({
        F{L"szPhotoPath", &R::szPhotoPath, L"", L"directory of the note photos; no longer used"},
        F{L"dwPhotoSaveMonth", &R::dwPhotoSaveMonth, 3, L"how long note photos are kept, in months: 1 to 6; any other number becomes 3"}.Within(1, 6),
        F{L"szAllPhotosPath", &R::szAllPhotosPath, L"", L"directory of the photos of all notes"},
        F{L"szSNRInfoFileName", &R::szSNRInfoFileName, L"", L"full path of the serial-number index file (INI)"},
        F{L"szTotalTitle", &R::szTotalTitle, L"Cash_Info", L"index file: section of the totals"},
        F{L"szFSNPathTitle", &R::szFSNPathTitle, L"FSNPath", L"index file: key of the FSN file path"},
        F{L"szLv2CountTitle", &R::szLv2CountTitle, L"LEVEL2_COUNT", L"index file: key of the number of level-2 notes"},
        F{L"szLv3CountTitle", &R::szLv3CountTitle, L"LEVEL3_COUNT", L"index file: key of the number of level-3 notes"},
        F{L"szLv4CountTitle", &R::szLv4CountTitle, L"LEVEL4_COUNT", L"index file: key of the number of level-4 notes"},
        F{L"szOpertimeTitle", &R::szOpertimeTitle, L"OperationTime", L"index file: key of the time of the operation"},
        F{L"szCurrencyTitle", &R::szCurrencyTitle, L"Currency", L"index file: key of the currency"},
        F{L"szOperationModeTitle", &R::szOperationModeTitle, L"OperationMode", L"index file: key of the kind of operation"},
        F{L"szLv2Title", &R::szLv2Title, L"LEVEL2", L"index file: section name of level-2 notes, before the note number"},
        F{L"szLv3Title", &R::szLv3Title, L"LEVEL3", L"index file: section name of level-3 notes, before the note number"},
        F{L"szLv4Title", &R::szLv4Title, L"LEVEL4", L"index file: section name of level-4 notes, before the note number"},
        F{L"szIndexTitle", &R::szIndexTitle, L"Index", L"index file: key of a note's index"},
        F{L"szValueTitle", &R::szValueTitle, L"Value", L"index file: key of a note's denomination"},
        F{L"szSNTitle", &R::szSNTitle, L"SerialNumber", L"index file: key of a note's serial number"},
        F{L"szImageFileTitle", &R::szImageFileTitle, L"ImageFile", L"index file: key of a note's image file"},
        F{L"szNoteVersionTitle", &R::szNoteVersionTitle, L"NoteVersion", L"index file: key of a note's version"},
        F{L"szNoteIDTitle", &R::szNoteIDTitle, L"NoteID", L"index file: key of a note's ID"},
        F{L"dwAPID", &R::dwAPID, 0, L"application profile of the serial-number feature: 0, 2 to 7, 100 or 101"},
        F{L"dwMakeSNOfVerify", &R::dwMakeSNOfVerify, 0, L"serial numbers are made on note validation: 0 no; nonzero yes"},
        F{L"dwMakeSNOfStore", &R::dwMakeSNOfStore, 0, L"serial numbers are made on storing: 0 no; nonzero yes"},
        F{L"dwMakeSNOfCancel", &R::dwMakeSNOfCancel, 0, L"serial numbers are made on cancelling a deposit: 0 no; nonzero yes"},
        F{L"dwMakeSNOfDispense", &R::dwMakeSNOfDispense, 0, L"serial numbers are made on dispensing: 0 no; nonzero yes"},
        F{L"dwMakeSNOfRetract", &R::dwMakeSNOfRetract, 0, L"serial numbers are made on retracting: 0 no; nonzero yes"},
        F{L"dwMakeSNOfBillMove", &R::dwMakeSNOfBillMove, 0, L"serial numbers are made on moving notes between cassettes: 0 no; nonzero yes"},
        F{L"dwMakeSNOfPassCheck", &R::dwMakeSNOfPassCheck, 0, L"serial numbers are made on the pass check: 0 no; nonzero yes"},
        F{L"dwSNSrcOfStore", &R::dwSNSrcOfStore, 0, L"where the serial numbers of stored notes come from: 0 the device; 1 the accumulated validation data"},
        F{L"dwOCRCnt2Show", &R::dwOCRCnt2Show, 0, L"number of OCR results to show"},
        F{L"dwMakeFullImage", &R::dwMakeFullImage, 0, L"full note images are made: low word, bit set, 1 of the front, 2 of the back; high word, bit set, 1 of rejected notes, 2 of genuine notes"}.ShownByWords(L"full note images are made, bit set: 1 of the front; 2 of the back", L"full note images are made, bit set: 1 of rejected notes; 2 of genuine notes"),
        F{L"dwSaveRjBSNOnlyInCntCU", &R::dwSaveRjBSNOnlyInCntCU, 0, L"serial numbers of rejected notes are saved only while cassettes are counted: 0 no; nonzero yes"},
        F{L"dwIndexStrLen", &R::dwIndexStrLen, 0, L"width of the note number in the [LEVELx_ID] headers: 0 padded with zeros to 3 digits below 1000, natural above; 1 never padded; 4 padded to 4 digits"},
        F{L"dwMaxItemPerFile", &R::dwMaxItemPerFile, 1000, L"largest number of notes in one file"},
    });
}();
// clang-format on

} // namespace wqspcfg
