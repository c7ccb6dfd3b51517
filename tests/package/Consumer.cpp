// A small SP: a log of its own, an override of its own, one device model.
#include "core/Log.h"

#include <wqspcfg/core/Log.h>
#include <wqspcfg/models/crd/SpCRDWQTYM1200RegInfo.h>
#include <wqspcfg/platform/store/Session.h>
#include <wqspcfg/platform/store/Store.h>

#include <cstdio>

#if !defined(PROVIDER_LOG)
#error "core/Log.h is not the provider's"
#endif

namespace {

class CountingLog : public CLog
{
  public:
    int Write(wqspcfg::Severity severity, DWORD, std::wstring_view) override
    {
        return severity == wqspcfg::Severity::Info ? ++lines : ++errors;
    }

    int lines = 0;
    int errors = 0;
};

class TerminalRegInfo : public CSpCRDWQTYM1200RegInfo
{
  public:
    using CSpCRDWQTYM1200RegInfo::CSpCRDWQTYM1200RegInfo;
    bool Load(CLog* pLog) override { return CSpCRDWQTYM1200RegInfo::Load(pLog) && m_dwBaudRate != 0; }
};

} // namespace

int main()
{
    wqspcfg::Error error;
    auto store = wqspcfg::OpenStore("memory:", {}, error);
    if (!store) {
        std::fprintf(stderr, "%s\n", error.message.c_str());
        return 1;
    }
    wqspcfg::SetCurrentStore(std::move(store));

    CountingLog log;
    TerminalRegInfo saved(L"CRD", true);
    saved.Load(&log);
    saved.m_dwPort = 7;
    saved.Save();
    TerminalRegInfo loaded(L"CRD", true);
    loaded.Load(&log);
    std::printf("port %u, %d lines, %d errors\n", static_cast<unsigned>(loaded.m_dwPort), log.lines, log.errors);
    return loaded.m_dwPort == 7 && log.lines > 0 && log.errors == 0 ? 0 : 1;
}
