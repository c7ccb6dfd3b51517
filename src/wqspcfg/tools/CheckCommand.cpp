#include "wqspcfg/tools/CheckCommand.h"

#include "wqspcfg/diagnosis/Check.h"
#include "wqspcfg/diagnosis/SettingText.h"
#include "wqspcfg/platform/store/Session.h"
#include "wqspcfg/platform/store/regfile/View32.h"
#include "wqspcfg/tools/JsonText.h"

#include <algorithm>

namespace wqspcfg::tools {

namespace {

using diagnosis::Checkup;
using diagnosis::Finding;
using diagnosis::Severity;

const char* NameOf(Severity severity)
{
    return severity == Severity::Error ? "error" : "warning";
}

std::size_t Count(const Checkup& checkup, Severity severity)
{
    return static_cast<std::size_t>(std::count_if(checkup.findings.begin(), checkup.findings.end(),
                                                  [&](const Finding& each) { return each.severity == severity; }));
}

void PrintJson(const Checkup& checkup, std::ostream& out)
{
    ordered_json all;
    all["errors"] = Count(checkup, Severity::Error);
    all["warnings"] = Count(checkup, Severity::Warning);
    all["findings"] = ordered_json::array();
    for (const auto& finding : checkup.findings) {
        ordered_json each;
        each["severity"] = NameOf(finding.severity);
        each["kind"] = diagnosis::NameOf(finding.kind);
        each["service"] = finding.service.empty() ? ordered_json(nullptr) : ordered_json(Utf8(finding.service));
        each["path"] = diagnosis::FullPath(finding.path);
        each["name"] = finding.name ? ordered_json(Utf8(*finding.name)) : ordered_json(nullptr);
        if (!finding.place.empty()) {
            each["place"] = finding.place;
        }
        each["message"] = finding.message;
        all["findings"].push_back(std::move(each));
    }
    tools::PrintJson(all, out);
}

// Where service providers and services stand.
bool HasXfsKeys()
{
    const ReadScope scope;
    return scope->Exists(scope->Open(kXfsKey)) || scope->Exists(scope->Open(kUsersXfsKey));
}

} // namespace

int CheckTerminal(const StoreChoice& choice, const CheckCommandOptions& options, const Console& console)
{
    Error error;
    auto store = OpenForExamination(choice, error);
    if (!store) {
        return console.Fail(error);
    }
    const CurrentStoreScope current(std::move(store));
    diagnosis::CheckOptions wanted;
    wanted.view32 = choice.view32;
    wanted.showSecrets = choice.secrets;
    for (const auto& name : options.services) {
        const auto names = NamesOfServices(Wide(name), options.physical);
        if (LastStoreError()) {
            return console.Fail(LastStoreError());
        }
        if (names.empty()) {
            return console.Fail(kNegative, "there is no " +
                                               std::string(options.physical ? "service provider" : "service") + " \"" +
                                               name + "\"; `wqspcfg services` lists them");
        }
        wanted.services.insert(wanted.services.end(), names.begin(), names.end());
    }
    diagnosis::Places places(SourceOf(choice));
    const auto checkup = diagnosis::Check(wanted, places);
    if (checkup.failure) {
        return console.Fail(checkup.failure);
    }
    if (checkup.services.empty() && !HasXfsKeys()) {
        return console.Fail(kNegative, choice.Address() + ": there are no XFS keys here");
    }
    if (options.json) {
        PrintJson(checkup, console.out);
    } else {
        for (const auto& finding : checkup.findings) {
            console.out << DisplayText((finding.place.empty() ? "" : finding.place + ": ") + NameOf(finding.severity) +
                                       ": " + finding.message)
                        << '\n';
        }
    }
    const auto errors = Count(checkup, Severity::Error);
    const auto warnings = Count(checkup, Severity::Warning);
    if (errors + warnings != 0) {
        console.Note(Counted(errors, "error") + ", " + Counted(warnings, "warning"));
    }
    return errors != 0 || (options.strict && warnings != 0) ? kNegative : kDone;
}

} // namespace wqspcfg::tools
