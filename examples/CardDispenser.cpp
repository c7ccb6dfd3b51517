// A small service provider of a card dispenser: loads its configuration, reads a few settings, counts the cards that it
// dispenses, and saves the count.
//
//     wqspcfg --store lmdb:/tmp/terminal import examples/terminal.reg
//     example_CardDispenser lmdb:/tmp/terminal CardDispenser 2
#include "wqspcfg/models/crd/SpCRDWQTYM1200RegInfo.h"
#include "wqspcfg/platform/store/Session.h"
#include "wqspcfg/platform/text/NarrowText.h"

#include <cstdlib>
#include <iostream>

namespace {

// Takes `cards` from the current bin; false when it does not hold as many.
bool Dispense(CSpCRDWQTYM1200RegInfo& config, ULONG cards)
{
    CSingleLock lock(&config.m_arCardUnit.m_lock, TRUE);
    for (INT_PTR i = 0; i < config.m_arCardUnit.GetSize(); ++i) {
        auto& unit = config.m_arCardUnit[i];
        if (unit.usNumber == config.m_dwCurNumber && unit.ulCount >= cards) {
            unit.ulCount -= cards;
            return true;
        }
    }
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 4) {
        std::cerr << "usage: " << argv[0] << " STORE LOGICAL_SERVICE CARDS\n";
        return 2;
    }
    wqspcfg::Error error;
    auto store = wqspcfg::OpenStore(argv[1], {}, error);
    if (!store) {
        std::cerr << error.message << '\n';
        return 3;
    }
    wqspcfg::SetCurrentStore(std::move(store));

    wqspcfg::StreamLog log(std::cout);
    CSpCRDWQTYM1200RegInfo config(CString(wqspcfg::NarrowToWide(argv[2])), false);
    if (!config.Load(&log) || wqspcfg::LastStoreError()) {
        return 1; // the log says why
    }
    std::cout << "port " << config.m_dwPort << " at " << config.m_dwBaudRate << " baud\n";

    if (!Dispense(config, static_cast<ULONG>(std::strtoul(argv[3], nullptr, 10)))) {
        std::cerr << "bin " << config.m_dwCurNumber << " does not hold as many cards\n";
        return 1;
    }
    config.Save();
    if (wqspcfg::LastStoreError()) {
        std::cerr << wqspcfg::LastStoreError().message << '\n';
        return 3;
    }
    config.LogCardUnitInfo(&log, L"after dispensing", false);
    return 0;
}
