#include "wqspcfg/parts/serial/BillSNRegInfo.h"

using namespace wqspcfg;

tagBillSNRegInfo::tagBillSNRegInfo()
{
    SetDefaults(*this, kBillSNFields);
}

bool tagBillSNRegInfo::Load(HKEY hKey)
{
    KeyReader reader(hKey);
    LoadFields(reader, *this, kBillSNFields);
    return reader.Exists();
}

bool tagBillSNRegInfo::Save(HKEY hKey) const
{
    KeyWriter writer(hKey);
    SaveFields(writer, *this, kBillSNFields);
    return writer.Commit();
}
