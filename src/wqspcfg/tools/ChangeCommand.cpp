#include "wqspcfg/tools/ChangeCommand.h"

#include "wqspcfg/diagnosis/Change.h"
#include "wqspcfg/diagnosis/SettingText.h"
#include "wqspcfg/tools/JsonText.h"
#include "wqspcfg/tools/ScratchStore.h"

#include <algorithm>
#include <iterator>

namespace wqspcfg::tools {

namespace {

using diagnosis::ChangePlan;
using diagnosis::PlannedChange;
using diagnosis::StoredValue;

std::vector<diagnosis::WantedChange> WantedBy(const ChangeOptions& options)
{
    std::vector<diagnosis::WantedChange> wanted;
    for (const auto& text : options.values) {
        const auto split = text.find('=');
        if (split == std::string::npos || split == 0) {
            throw UsageError("\"" + text + "\" is not NAME=VALUE");
        }
        wanted.push_back({Wide(text.substr(0, split)), Wide(text.substr(split + 1))});
    }
    for (const auto& name : options.unset) {
        if (name.empty()) {
            throw UsageError("--unset is given an empty name");
        }
        wanted.push_back({Wide(name), std::nullopt});
    }
    if (wanted.empty()) {
        throw UsageError("change is given neither NAME=VALUE nor --unset NAME");
    }
    return wanted;
}

int Refuse(const ChangePlan& plan, const Console& console)
{
    for (const auto& refusal : plan.refusals) {
        console.Note(refusal.message);
    }
    console.Note("nothing is changed");
    return std::all_of(plan.refusals.begin(), plan.refusals.end(), [](const auto& each) { return each.isUnknown; })
               ? kNegative
               : kUsage;
}

// Notes what the class makes of the new values, on the copy in memory.
bool TryOut(ChangePlan& plan, ScratchStore& scratch, const diagnosis::Examination& before, bool showSecrets,
            Error& error)
{
    ChangePlan sets;
    std::copy_if(plan.changes.begin(), plan.changes.end(), std::back_inserter(sets.changes),
                 [](const PlannedChange& change) { return change.after.has_value(); });
    {
        const auto transaction = scratch.Begin(Access::Write, error);
        if (!transaction || !diagnosis::Apply(sets, *transaction, true, error)) {
            return false;
        }
        if (transaction->Commit(false) == Outcome::Failed) {
            error = transaction->LastError();
            return false;
        }
    }
    const auto after = diagnosis::Examine(before.service, *before.entry);
    error = after.failure;
    diagnosis::NoteEffects(plan, after, showSecrets);
    return !error;
}

// Writes the plan, or reads only what stands there.
bool Carry(ChangePlan& plan, Store& store, bool write, Error& error)
{
    const auto transaction = store.Begin(write ? Access::Write : Access::Read, error);
    if (!transaction || !diagnosis::Apply(plan, *transaction, write, error)) {
        return false;
    }
    if (write && plan.refusals.empty() && transaction->Commit(true) == Outcome::Failed) {
        error = transaction->LastError();
        return false;
    }
    return true;
}

ordered_json ToJson(const PlannedChange& change, const StoreChoice& choice, diagnosis::Places& places)
{
    const auto& setting = *change.setting;
    const auto put = [&](const std::optional<StoredValue>& value) -> ordered_json {
        return value ? StoredJson({value->type, value->data}, setting.secret && !choice.secrets)
                     : ordered_json(nullptr);
    };
    ordered_json out;
    out["root"] = NameOf(setting.root);
    out["key"] = Utf8(setting.key);
    out["name"] = Utf8(change.name);
    out["path"] = diagnosis::FullPath(change.path);
    if (const auto place = places.Of(change.path, &change.name); !place.empty()) {
        out["place"] = place;
    }
    out["before"] = put(change.before);
    out["after"] = put(change.after);
    out["changed"] = !change.IsNone();
    out["notes"] = change.notes;
    return out;
}

void Print(const PlannedChange& change, const StoreChoice& choice, diagnosis::Places& places, std::ostream& out)
{
    auto line = diagnosis::KeyText(change.setting->root, change.setting->key) + '\\' + Utf8(change.name) + "  " +
                diagnosis::TextOf(change, change.before, choice.secrets) + " -> " +
                diagnosis::TextOf(change, change.after, choice.secrets) + "   " + diagnosis::FullPath(change.path) +
                '\\' + Utf8(change.name);
    if (const auto place = places.Of(change.path, &change.name); !place.empty()) {
        line += ", " + place;
    }
    std::string notes = change.IsNone() ? "unchanged" : "";
    for (const auto& note : change.notes) {
        notes += (notes.empty() ? "" : "; ") + note;
    }
    out << DisplayText(notes.empty() ? line : line + "   (" + notes + ')') << '\n';
}

} // namespace

int Change(const StoreChoice& choice, const ServiceChoice& service, const ChangeOptions& options,
           const Console& console)
{
    const auto wanted = WantedBy(options);
    Error error;
    const auto store = OpenForServices(choice, options.dryRun ? Access::Read : Access::Write, error);
    if (!store) {
        return console.Fail(error);
    }
    const auto scratch = std::make_shared<ScratchStore>(store);
    const CurrentStoreScope current(scratch);
    const auto identity = IdentifyService(CString(Wide(service.name)), service.physical);
    int status = kDone;
    // Without a service, even a given class has no keys to write to.
    auto detected = service;
    detected.model = identity.exists ? service.model : "";
    const auto* entry = ChooseClass(detected, identity, console, status);
    if (entry == nullptr) {
        return status;
    }
    const auto examination = diagnosis::Examine(identity, *entry);
    if (examination.failure) {
        return console.Fail(examination.failure);
    }
    auto plan = diagnosis::PlanChanges(examination, wanted);
    if (!plan.refusals.empty()) {
        return Refuse(plan, console);
    }
    if (!TryOut(plan, *scratch, examination, choice.secrets, error) || !Carry(plan, *store, !options.dryRun, error)) {
        return console.Fail(error);
    }
    if (!plan.refusals.empty()) {
        return Refuse(plan, console);
    }
    diagnosis::Places places(SourceOf(choice));
    if (options.json) {
        ordered_json out;
        out["service"] = service.name;
        out["class"] = Utf8(entry->table().className);
        out["dryRun"] = options.dryRun;
        out["changes"] = ordered_json::array();
        for (const auto& change : plan.changes) {
            out["changes"].push_back(ToJson(change, choice, places));
        }
        PrintJson(out, console.out);
    } else {
        for (const auto& change : plan.changes) {
            Print(change, choice, places, console.out);
        }
    }
    if (options.dryRun) {
        console.Note("nothing is changed: --dry-run");
    } else if (!console.out.flush()) {
        return console.Fail(kFailed, "the change was made; only its lines cannot be written to standard output");
    }
    return Checked(kDone, console);
}

} // namespace wqspcfg::tools
