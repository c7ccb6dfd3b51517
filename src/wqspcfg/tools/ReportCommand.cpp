#include "wqspcfg/tools/ReportCommand.h"

#include "wqspcfg/diagnosis/Report.h"
#include "wqspcfg/diagnosis/Terminal.h"
#include "wqspcfg/tools/OutputFile.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <optional>
#include <utility>
#include <vector>

namespace wqspcfg::tools {

namespace {

// "2026-11-25 04:00 UTC".
std::string Now()
{
    const auto now = std::time(nullptr);
    std::tm parts{};
#if defined(_WIN32)
    gmtime_s(&parts, &now);
#else
    gmtime_r(&now, &parts);
#endif
    std::array<char, 32> text{};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M UTC", &parts)};
}

} // namespace

int Report(const StoreChoice& choice, const ReportCommandOptions& options, const Console& console)
{
    std::optional<StoreChoice> other;
    if (options.against) {
        other = choice.At(*options.against, "--against");
    }
    Error error;
    auto store = OpenForExamination(choice, error);
    if (!store) {
        return console.Fail(error);
    }
    auto sources = store->Files();
    diagnosis::Places places(SourceOf(choice));
    diagnosis::Checkup checkup;
    {
        const CurrentStoreScope current(std::move(store));
        checkup = diagnosis::Check({.view32 = choice.view32, .showSecrets = choice.secrets}, places);
    }
    if (checkup.failure) {
        return console.Fail(checkup.failure);
    }
    diagnosis::Terminal otherTerminal;
    std::optional<diagnosis::Places> otherPlaces;
    std::optional<diagnosis::Comparison> comparison;
    if (other) {
        if (!(store = OpenForExamination(*other, error))) {
            return console.Fail(error);
        }
        const auto others = store->Files();
        sources.insert(sources.end(), others.begin(), others.end());
        const CurrentStoreScope current(std::move(store));
        otherTerminal = diagnosis::ExamineTerminal({});
        if (otherTerminal.failure) {
            return console.Fail(otherTerminal.failure);
        }
        otherPlaces.emplace(SourceOf(*other));
        comparison.emplace(
            diagnosis::Comparison{other->Address(), *otherPlaces,
                                  diagnosis::Compare(checkup.services, otherTerminal.services, choice.secrets)});
    }
    const diagnosis::ReportOptions what{choice.Address(), Now(), std::string("wqspcfg ") + WQSPCFG_VERSION,
                                        choice.secrets};
    const auto write = [&](std::ostream& out) {
        diagnosis::WriteReport(checkup, comparison ? &*comparison : nullptr, what, places, out);
        return int{kDone};
    };
    const int status =
        options.file.empty() ? write(console.out) : WriteOutputFile(options.file, sources, write, console);
    const bool hasErrors =
        std::any_of(checkup.findings.begin(), checkup.findings.end(),
                    [](const diagnosis::Finding& each) { return each.severity == diagnosis::Severity::Error; });
    const bool differs = comparison && !comparison->differences.empty();
    return status == kDone && (hasErrors || differs) ? kNegative : status;
}

} // namespace wqspcfg::tools
