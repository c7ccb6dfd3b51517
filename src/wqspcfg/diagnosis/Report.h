// A terminal's configuration as one HTML page to look at, or to attach to a ticket.
#pragma once

#include "wqspcfg/diagnosis/Check.h"
#include "wqspcfg/diagnosis/Difference.h"
#include "wqspcfg/diagnosis/Places.h"

#include <ostream>
#include <string>

namespace wqspcfg::diagnosis {

// The texts are UTF-8 and may hold anything.
struct ReportOptions
{
    std::string store;   // its address
    std::string made;    // when
    std::string program; // its name and version
    bool showSecrets = false;
};

// How the terminal differs from another one.
struct Comparison
{
    std::string store; // the other one's address
    Places& places;    // of the other one
    std::vector<Difference> differences;
};

// `checkup` is that of the whole terminal, and the left side of the comparison, which may be null. The page is
// well-formed UTF-8, whatever the stores hold.
void WriteReport(const Checkup& checkup, const Comparison* comparison, const ReportOptions& options, Places& places,
                 std::ostream& out);

} // namespace wqspcfg::diagnosis
