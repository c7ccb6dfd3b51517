#include "wqspcfg/tools/ServiceCommands.h"

#include "wqspcfg/catalogue/Catalogue.h"
#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/core/settings/Reference.h"
#include "wqspcfg/diagnosis/Check.h"
#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/tools/JsonText.h"
#include "wqspcfg/tools/ScratchStore.h"

#include <algorithm>

namespace wqspcfg::tools {

namespace {

// The text of log lines for a terminal.
class LineLog final : public CLog
{
  public:
    explicit LineLog(std::ostream& out) : m_out(out) {}

    int Write(wqspcfg::Severity, DWORD, std::wstring_view text) override
    {
        // The line ends of a table are its own, and its cells have none. Elsewhere they stand in a stored text.
        const bool isTable = text.starts_with(L"[CST]");
        for (std::size_t end; isTable && (end = text.find(L"\r\n")) != std::wstring_view::npos;) {
            m_out << DisplayText(text.substr(0, end)) << "\r\n";
            text.remove_prefix(end + 2);
        }
        m_out << DisplayText(text) << '\n';
        return m_out.good() ? 1 : 0;
    }

  private:
    std::ostream& m_out;
};

// The log lines as JSON.
class JsonLog final : public CLog
{
  public:
    int Write(wqspcfg::Severity, DWORD, std::wstring_view text) override
    {
        ordered_json line;
        line["text"] = Utf8(text);
        TakeApart(text, line);
        m_lines.push_back(std::move(line));
        return 1;
    }

    ordered_json Lines() && { return std::move(m_lines); }

  private:
    // Only a line "[CFG]   LABEL : VALUE[MEANING]" that can be read in one way: neither text has a bracket.
    static void TakeApart(std::wstring_view text, ordered_json& line)
    {
        constexpr std::wstring_view kTag = L"[CFG] ";
        constexpr std::wstring_view kIs = L" : ";
        constexpr auto kNone = std::wstring_view::npos;
        if (!text.starts_with(kTag)) {
            return;
        }
        text.remove_prefix(std::min(text.find_first_not_of(L' ', kTag.size()), text.size()));
        const auto is = text.find(kIs);
        if (is == kNone || text.find(L'[') < is) {
            return;
        }
        auto value = text.substr(is + kIs.size());
        const auto meaning = value.find(L'[');
        if (meaning != kNone && (!value.ends_with(L']') || value.find(L'[', meaning + 1) != kNone)) {
            return;
        }
        line["label"] = Utf8(text.substr(0, is));
        line["value"] = Utf8(value.substr(0, meaning));
    }

    ordered_json m_lines = ordered_json::array();
};

std::string KindOf(bool physical)
{
    return physical ? "physical" : "logical";
}

// How many findings a check of the service has.
void NoteFindings(const StoreChoice& choice, const ServiceChoice& service, const Console& console)
{
    diagnosis::CheckOptions options;
    options.services = NamesOfServices(Wide(service.name), service.physical);
    options.alone = true;
    options.view32 = choice.view32;
    if (options.services.empty()) {
        return; // a device key alone
    }
    diagnosis::Places places({});
    const auto checkup = diagnosis::Check(options, places);
    if (!checkup.findings.empty()) {
        console.Note(Counted(checkup.findings.size(), "finding") + "; see `wqspcfg check " +
                     (service.physical ? "--physical " : "") + (service.name.starts_with('-') ? "-- " : "") +
                     ShellWord(service.name) + '`');
    }
}

} // namespace

int ListServices(const StoreChoice& choice, bool json, const Console& console)
{
    Error error;
    auto store = OpenForServices(choice, Access::Read, error);
    if (!store) {
        return console.Fail(error);
    }
    const CurrentStoreScope current(std::move(store));
    const ReadScope scope;
    auto all = ordered_json::array();
    const auto list = [&](const wchar_t* root, bool physical) {
        CStringArray names;
        CRegKeyEx::EnumSubKeyName(names, L"%s", root);
        for (const auto& name : names) {
            if (physical && EqualNoCase(name.View(), L"WQCmnCfg")) {
                continue;
            }
            const auto service = IdentifyService(name, physical);
            const auto selection = SelectModel(service);
            if (json) {
                ordered_json out;
                out["service"] = Utf8(name.View());
                out["physical"] = physical;
                out["provider"] = Utf8(service.physicalName);
                out["classValue"] = Utf8(service.xfsClass);
                out["deviceKey"] = Utf8(service.deviceKey);
                out["class"] = Utf8(selection.entry->table().className);
                out["reason"] = Utf8(selection.reason);
                all.push_back(std::move(out));
                continue;
            }
            console.out << DisplayText(name.View()) << '\t' << KindOf(physical) << '\t' << DisplayText(service.xfsClass)
                        << '\t' << DisplayText(service.deviceKey) << '\t' << Utf8(selection.entry->table().className)
                        << '\t' << DisplayText(selection.reason) << '\n';
        }
    };
    list(kLogicalRoot, false);
    list(kServiceRoot, true);
    const int status = Checked(kDone, console);
    if (status == kDone && json) {
        PrintJson({{"services", std::move(all)}}, console.out);
    }
    return status;
}

int LoadService(const StoreChoice& choice, const ServiceChoice& service, const LoadOptions& options,
                const Console& console)
{
    Error error;
    auto store = OpenForServices(choice, options.writeBack ? Access::Write : Access::Read, error);
    if (!store) {
        return console.Fail(error);
    }
    if (!options.writeBack) {
        store = std::make_shared<ScratchStore>(std::move(store));
    }
    const CurrentStoreScope current(std::move(store));
    const CString name(Wide(service.name));
    int status = kDone;
    const auto* entry = ChooseClass(service, IdentifyService(name, service.physical), console, status);
    if (entry == nullptr) {
        return status;
    }
    LineLog lines(console.out);
    JsonLog json;
    const bool isLoaded =
        Create(*entry, name, service.physical)->Load(options.json ? static_cast<CLog*>(&json) : &lines);
    if (options.json) {
        ordered_json out;
        out["service"] = service.name;
        out["class"] = Utf8(entry->table().className);
        out["loaded"] = isLoaded;
        out["lines"] = std::move(json).Lines();
        PrintJson(out, console.out);
    }
    if (!isLoaded) {
        status = kNegative;
        console.Note(Utf8(entry->table().className) + "::Load returned false");
    }
    status = Checked(status, console);
    // check looks at the service as the class that is found for it.
    const bool isOwnClass =
        service.model.empty() || entry == SelectModel(IdentifyService(name, service.physical)).entry;
    if (isOwnClass && status != kFailed) {
        NoteFindings(choice, service, console);
    }
    return status;
}

namespace {

// In one write transaction, so that nothing that another process writes meanwhile is undone.
int LoadAndSave(const ServiceChoice& service, const Console& console)
{
    WriteScope write;
    if (write->Failure()) {
        return console.Fail(write->Failure());
    }
    const CString name(Wide(service.name));
    const auto identity = IdentifyService(name, service.physical);
    int status = kDone;
    const auto* entry = ChooseClass(service, identity, console, status);
    if (entry != nullptr && identity.deviceKey.empty()) {
        status = console.Fail(kNegative, "\"" + service.name + "\" has no device key to save to");
    } else if (entry != nullptr) {
        const auto object = Create(*entry, name, service.physical);
        // A configuration that was read in part must not replace the one that is there.
        if (!object->Load(nullptr)) {
            status = Checked(
                console.Fail(kNegative, Utf8(entry->table().className) + "::Load returned false; nothing is saved"),
                console);
        } else if (LastStoreError()) {
            status = console.Fail(LastStoreError());
        } else {
            object->Save();
            write.Commit();
            return Checked(kDone, console);
        }
    }
    write->Refuse({ErrorKind::BadArgument, "nothing is saved"}); // what Load wrote goes with the scope
    return status;
}

} // namespace

int SaveService(const StoreChoice& choice, const ServiceChoice& service, const std::optional<PreviewOptions>& preview,
                const Console& console)
{
    Error error;
    auto store = OpenForServices(choice, preview ? Access::Read : Access::Write, error);
    if (!store) {
        return console.Fail(error);
    }
    const auto scratch = preview ? std::make_shared<ScratchStore>(store) : nullptr;
    int status = kDone;
    {
        const CurrentStoreScope current(scratch != nullptr ? scratch : store);
        status = LoadAndSave(service, console);
    }
    return status != kDone || scratch == nullptr
               ? status
               : PreviewChanges(
                     *store, [&](RegFileVisitor& visitor, Error& failure) { return scratch->Visit(visitor, failure); },
                     *preview, console);
}

int ListModels(bool json, const Console& console)
{
    auto all = ordered_json::array();
    for (const auto* entry : AllClasses()) {
        const auto& table = entry->table();
        const auto* deviceClass = DeviceClassOf(table);
        if (json) {
            const auto orNull = [](const wchar_t* text) {
                return text != nullptr ? ordered_json(Utf8(text)) : ordered_json(nullptr);
            };
            ordered_json out;
            out["class"] = Utf8(table.className);
            out["base"] = orNull(table.base != nullptr ? table.base().className : nullptr);
            out["deviceClass"] = orNull(deviceClass);
            all.push_back(std::move(out));
            continue;
        }
        console.out << Utf8(table.className) << '\t' << (table.base != nullptr ? Utf8(table.base().className) : "-")
                    << '\t' << (deviceClass != nullptr ? Utf8(deviceClass) : "-") << '\n';
    }
    if (json) {
        PrintJson({{"models", std::move(all)}}, console.out);
    }
    return kDone;
}

} // namespace wqspcfg::tools
