#include "wqspcfg/parts/serial/BillFSNRegInfo.h"

#include "wqspcfg/platform/format/Format.h"

using namespace wqspcfg;

namespace {

constexpr wchar_t kFileNameParts[] = L"FSNFileNameParts\\Data%d";
constexpr wchar_t kFolderParts[] = L"FSNFolderParts\\Data%d";

using NameParts = CArray<tagFSNNamePart>;

// The type of a part, 0 when the list ends before it.
DWORD TypeOf(KeyReader& reader)
{
    DWORD dwType = 0;
    reader.Query(L"Type", dwType);
    return dwType <= 9 ? dwType : 0;
}

void LoadParts(HKEY hKey, LPCWSTR lpszSubkey, NameParts& parts)
{
    parts.RemoveAll();
    for (DWORD dwNumber = 1;; ++dwNumber) {
        KeyReader reader(hKey, FormatString(lpszSubkey, dwNumber));
        tagFSNNamePart part;
        part.Type = TypeOf(reader);
        if (part.Type == 0) {
            return;
        }
        reader.Query(L"Value", part.Value);
        reader.Query(L"Link", part.Link);
        parts.Add(part);
    }
}

bool SaveParts(HKEY hKey, LPCWSTR lpszSubkey, const NameParts& parts)
{
    bool bDone = true;
    DWORD dwNumber = 1;
    for (const auto& part : parts) {
        KeyWriter writer(hKey, FormatString(lpszSubkey, dwNumber++));
        writer.Set(L"Type", part.Type);
        writer.Set(L"Value", part.Value);
        writer.Set(L"Link", part.Link);
        bDone = writer.Commit() && bDone;
    }
    const auto strNext = FormatString(lpszSubkey, dwNumber);
    if (KeyReader next(hKey, strNext); TypeOf(next) == 0) {
        return bDone;
    }
    KeyWriter writer(hKey, strNext);
    writer.Set(L"Type", DWORD{0});
    return writer.Commit() && bDone;
}

} // namespace

tagBillFSNRegInfo::tagBillFSNRegInfo()
{
    SetDefaults(*this, kBillFSNFields);
}

bool tagBillFSNRegInfo::Load(HKEY hKey)
{
    KeyReader reader(hKey);
    LoadFields(reader, *this, kBillFSNFields);
    if (FSNFileName.Right(4).CompareNoCase(L".fsn") != 0) {
        FSNFileName = L"CNYGZHM.FSN";
    }
    LoadParts(hKey, kFileNameParts, FileNameParts);
    LoadParts(hKey, kFolderParts, FolderParts);
    return reader.Exists();
}

bool tagBillFSNRegInfo::Save(HKEY hKey) const
{
    KeyWriter writer(hKey);
    SaveFields(writer, *this, kBillFSNFields);
    // The parts join what the writer has begun.
    const bool bFileName = SaveParts(hKey, kFileNameParts, FileNameParts);
    const bool bFolder = SaveParts(hKey, kFolderParts, FolderParts);
    return writer.Commit() && bFileName && bFolder;
}
