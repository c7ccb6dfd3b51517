#include "wqspcfg/tools/ServiceCommands.h"

#include "wqspcfg/catalogue/Catalogue.h"
#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/core/settings/Reference.h"
#include "wqspcfg/diagnosis/Check.h"
#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/tools/Preview.h"
#include "wqspcfg/tools/ScratchStore.h"

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

std::string KindOf(bool physical)
{
    return physical ? "physical" : "logical";
}

// How many findings a check of the service has.
void NoteFindings(const StoreChoice& choice, const std::string& name, const Console& console)
{
    diagnosis::Places places({});
    const auto checkup = diagnosis::Check({.services = {Wide(name)}, .alone = true, .view32 = choice.view32}, places);
    if (!checkup.findings.empty()) {
        console.Note(Counted(checkup.findings.size(), "finding") + "; see `wqspcfg check " + name + "`");
    }
}

} // namespace

int ListServices(const StoreChoice& choice, const Console& console)
{
    Error error;
    auto store = OpenForServices(choice, Access::Read, error);
    if (!store) {
        return console.Fail(error);
    }
    const CurrentStoreScope current(std::move(store));
    const ReadScope scope;
    const auto list = [&](const wchar_t* root, bool physical) {
        CStringArray names;
        CRegKeyEx::EnumSubKeyName(names, L"%s", root);
        for (const auto& name : names) {
            if (physical && EqualNoCase(name.View(), L"WQCmnCfg")) {
                continue;
            }
            const auto service = IdentifyService(name, physical);
            const auto selection = SelectModel(service);
            console.out << DisplayText(name.View()) << '\t' << KindOf(physical) << '\t' << DisplayText(service.xfsClass)
                        << '\t' << DisplayText(service.deviceKey) << '\t' << Utf8(selection.entry->table().className)
                        << '\t' << DisplayText(selection.reason) << '\n';
        }
    };
    list(kLogicalRoot, false);
    list(kServiceRoot, true);
    return Checked(kDone, console);
}

int LoadService(const StoreChoice& choice, const ServiceChoice& service, bool writeBack, const Console& console)
{
    Error error;
    auto store = OpenForServices(choice, writeBack ? Access::Write : Access::Read, error);
    if (!store) {
        return console.Fail(error);
    }
    if (!writeBack) {
        store = std::make_shared<ScratchStore>(std::move(store));
    }
    const CurrentStoreScope current(std::move(store));
    const CString name(Wide(service.name));
    int status = kDone;
    const auto* entry = ChooseClass(service, IdentifyService(name, service.physical), console, status);
    if (entry == nullptr) {
        return status;
    }
    LineLog log(console.out);
    if (!Create(*entry, name, service.physical)->Load(&log)) {
        status = kNegative;
        console.Note(Utf8(entry->table().className) + "::Load returned false");
    }
    status = Checked(status, console);
    if (service.model.empty() && status != kFailed) {
        NoteFindings(choice, service.name, console);
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

int SaveService(const StoreChoice& choice, const ServiceChoice& service, bool dryRun, const Console& console)
{
    Error error;
    auto store = OpenForServices(choice, dryRun ? Access::Read : Access::Write, error);
    if (!store) {
        return console.Fail(error);
    }
    const auto scratch = dryRun ? std::make_shared<ScratchStore>(store) : nullptr;
    int status = kDone;
    {
        const CurrentStoreScope current(scratch != nullptr ? scratch : store);
        status = LoadAndSave(service, console);
    }
    return status != kDone || scratch == nullptr
               ? status
               : PreviewChanges(
                     *store, [&](RegFileVisitor& visitor, Error& failure) { return scratch->Visit(visitor, failure); },
                     choice.secrets, console);
}

int ListModels(const Console& console)
{
    for (const auto* entry : AllClasses()) {
        const auto& table = entry->table();
        const auto* deviceClass = DeviceClassOf(table);
        console.out << Utf8(table.className) << '\t' << (table.base != nullptr ? Utf8(table.base().className) : "-")
                    << '\t' << (deviceClass != nullptr ? Utf8(deviceClass) : "-") << '\n';
    }
    return kDone;
}

} // namespace wqspcfg::tools
