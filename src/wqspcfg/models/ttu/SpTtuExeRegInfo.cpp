#include "wqspcfg/models/ttu/SpTtuExeRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;

const Table& CSpTtuExeRegInfo::Settings() noexcept
{
    static const Table kTable{L"CSpTtuExeRegInfo", &CTTURegInfo::Settings, nullptr, Rows()};
    return kTable;
}

CSpTtuExeRegInfo::CSpTtuExeRegInfo(const CString& strName, bool bPhysicalName) : TextTerminal(strName, bPhysicalName) {}

WQSPCFG_CATALOGUE_ENTRY(CSpTtuExeRegInfo)
