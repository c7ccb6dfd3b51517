#include "wqspcfg/core/settings/OwnChanges.h"
#include "wqspcfg/parts/serial/SerialRows.h"

#include <iterator>

using namespace wqspcfg;

namespace {

using NameParts = CArray<tagFSNNamePart>;

template <class R>
bool LoadRecord(R& record, HKEY hKey, RowList rows)
{
    Loading loading(record, hKey);
    return loading.Read(rows);
}

template <class R>
bool SaveRecord(const R& record, HKEY hKey, RowList rows)
{
    KeyWriter writer(hKey);
    WriteRecord(record, rows, hKey, writer);
    return writer.Commit();
}

// The key of a name part below that of the record.
std::wstring PartKey(RowList rows, const Iteration& part)
{
    return ForIteration(rows[0].key.subkey + std::size(L"SNRData"), &part);
}

Iteration PartAt(INT_PTR nIndex)
{
    return {nullptr, static_cast<unsigned>(nIndex) + 1, static_cast<unsigned>(nIndex)};
}

// A part as it is stored; its type is 0 when the list ends before it.
tagFSNNamePart ReadPart(HKEY hKey, const std::wstring& strKey, RowList rows)
{
    KeyReader reader(hKey, strKey);
    tagFSNNamePart part;
    reader.Query(rows[0].name, part.Type);
    if (part.Type == 0 || part.Type > 9) {
        return {};
    }
    reader.Query(rows[1].name, part.Value);
    reader.Query(rows[2].name, part.Link);
    return part;
}

bool SaveNameParts(HKEY hKey, const NameParts& parts, RowList rows)
{
    bool bDone = true;
    // A list that has become shorter ends before a part of type 0.
    for (INT_PTR i = 0; i <= parts.GetSize(); ++i) {
        const auto strKey = PartKey(rows, PartAt(i));
        const auto part = i < parts.GetSize() ? parts[i] : tagFSNNamePart{};
        const auto stored = ReadPart(hKey, strKey, rows);
        if (part == stored) {
            continue;
        }
        KeyWriter writer(hKey, strKey);
        writer.Set(rows[0].name, part.Type);
        // Texts behind the old end of the list are not the new part's.
        if (part.Type != 0 && (stored.Type == 0 || part.Value != stored.Value)) {
            writer.Set(rows[1].name, part.Value);
        }
        if (part.Type != 0 && (stored.Type == 0 || part.Link != stored.Link)) {
            writer.Set(rows[2].name, part.Link);
        }
        bDone = writer.Commit() && bDone;
    }
    return bDone;
}

} // namespace

void wqspcfg::LoadNameParts(NameParts& parts, Loading& loading, RowList rows)
{
    parts.RemoveAll();
    while (true) {
        const auto iteration = PartAt(parts.GetSize());
        const auto part = ReadPart(loading.RecordKey(), PartKey(rows, iteration), rows);
        if (part.Type == 0) {
            return;
        }
        parts.Add(part);
        loading.Print(rows[0], part.Type, &iteration);
        loading.Print(rows[1], part.Value, &iteration);
        loading.Print(rows[2], part.Link, &iteration);
    }
}

SerialRecord::~SerialRecord()
{
    ForgetLoaded(*this);
}

tagBillSNRegInfo::tagBillSNRegInfo()
{
    Construct(*this, Rows<kBillSNRows>);
}

bool tagBillSNRegInfo::Load(HKEY hKey)
{
    return LoadRecord(*this, hKey, Rows<kBillSNRows>);
}

bool tagBillSNRegInfo::Save(HKEY hKey) const
{
    return SaveRecord(*this, hKey, Rows<kBillSNRows>);
}

tagBillFSNRegInfo::tagBillFSNRegInfo()
{
    Construct(*this, Rows<kBillFSNRows>);
}

bool tagBillFSNRegInfo::Load(HKEY hKey)
{
    return LoadRecord(*this, hKey, Rows<kBillFSNRows>);
}

bool tagBillFSNRegInfo::Save(HKEY hKey) const
{
    KeyWriter whole(hKey); // everything is written together
    const bool bValues = SaveRecord(*this, hKey, Rows<kBillFSNRows>);
    const bool bFileName = SaveNameParts(hKey, FileNameParts, Rows<kFileNamePartRows>);
    const bool bFolder = SaveNameParts(hKey, FolderParts, Rows<kFolderPartRows>);
    return whole.Commit() && bValues && bFileName && bFolder;
}

tagBillBLRegInfo::tagBillBLRegInfo()
{
    Construct(*this, Rows<kBillBLRows>);
}

bool tagBillBLRegInfo::Load(HKEY hKey)
{
    return LoadRecord(*this, hKey, Rows<kBillBLRows>);
}

bool tagBillBLRegInfo::Save(HKEY hKey) const
{
    return SaveRecord(*this, hKey, Rows<kBillBLRows>);
}

tagBillFAIRegInfo::tagBillFAIRegInfo()
{
    Construct(*this, Rows<kBillFAIRows>);
}

bool tagBillFAIRegInfo::Load(HKEY hKey)
{
    return LoadRecord(*this, hKey, Rows<kBillFAIRows>);
}

bool tagBillFAIRegInfo::Save(HKEY hKey) const
{
    return SaveRecord(*this, hKey, Rows<kBillFAIRows>);
}
