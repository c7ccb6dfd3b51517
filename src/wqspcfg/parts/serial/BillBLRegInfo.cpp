#include "wqspcfg/parts/serial/BillBLRegInfo.h"

using namespace wqspcfg;

tagBillBLRegInfo::tagBillBLRegInfo()
{
    SetDefaults(*this, kBillBLFields);
}

bool tagBillBLRegInfo::Load(HKEY hKey)
{
    KeyReader reader(hKey);
    LoadFields(reader, *this, kBillBLFields);
    return reader.Exists();
}

bool tagBillBLRegInfo::Save(HKEY hKey) const
{
    KeyWriter writer(hKey);
    SaveFields(writer, *this, kBillBLFields);
    return writer.Commit();
}
