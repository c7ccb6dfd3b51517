#include "wqspcfg/parts/serial/BillFAIRegInfo.h"

using namespace wqspcfg;

tagBillFAIRegInfo::tagBillFAIRegInfo()
{
    SetDefaults(*this, kBillFAIFields);
}

bool tagBillFAIRegInfo::Load(HKEY hKey)
{
    KeyReader reader(hKey);
    LoadFields(reader, *this, kBillFAIFields);
    return reader.Exists();
}

bool tagBillFAIRegInfo::Save(HKEY hKey) const
{
    KeyWriter writer(hKey);
    SaveFields(writer, *this, kBillFAIFields);
    return writer.Commit();
}
