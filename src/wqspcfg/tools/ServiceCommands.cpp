#include "wqspcfg/tools/ServiceCommands.h"

#include "wqspcfg/catalogue/Catalogue.h"
#include "wqspcfg/catalogue/ModelSelection.h"
#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/core/settings/Reference.h"
#include "wqspcfg/platform/store/regfile/View32.h"
#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/tools/Preview.h"
#include "wqspcfg/tools/ScratchStore.h"

namespace wqspcfg::tools {

namespace {

// The current store for as long as a command runs.
class CurrentStoreScope
{
  public:
    explicit CurrentStoreScope(std::shared_ptr<Store> store)
    {
        SetCurrentStore(std::move(store));
        ClearStoreError();
    }
    ~CurrentStoreScope() { SetCurrentStore(nullptr); }
    CurrentStoreScope(const CurrentStoreScope&) = delete;
    CurrentStoreScope& operator=(const CurrentStoreScope&) = delete;
};

// Status 3 when a registry operation has failed, else `status`.
int Checked(int status, const Console& console)
{
    return LastStoreError() ? console.Fail(LastStoreError()) : status;
}

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

// Opens the store for a command that works with services. One that was filled from a 64-bit Windows, without --view32,
// has no keys where service providers read them.
std::shared_ptr<Store> OpenForServices(const StoreChoice& choice, Access access, Error& error)
{
    auto store = choice.Open(access, error);
    const auto transaction = store ? store->Begin(Access::Read, error) : nullptr;
    if (!transaction) {
        return nullptr;
    }
    KeyId key = 0;
    if (transaction->OpenKey(Hive::LocalMachine, kXfsKey, key) == Outcome::Missing &&
        transaction->OpenKey(Hive::LocalMachine, kXfsKey32, key) == Outcome::Found) {
        const bool isWindows = store->Address().starts_with("windows:");
        error = {ErrorKind::BadArgument,
                 store->Address() +
                     ": the service providers of this terminal are 32-bit programs, whose keys stand "
                     "under SOFTWARE\\WOW6432Node\\XFS; " +
                     (isWindows ? "give --view32" : "import the registry export again with `import --view32`")};
        return nullptr;
    }
    return store;
}

std::string KindOf(bool physical)
{
    return physical ? "physical" : "logical";
}

// The class of the service, or null with `status` set. What it is and why goes to standard error.
const ClassEntry* ChooseClass(const ServiceChoice& choice, const ServiceIdentity& service, const Console& console,
                              int& status)
{
    if (!choice.model.empty()) {
        const auto* entry = FindClass(Wide(choice.model));
        if (entry == nullptr) {
            throw UsageError(NoClass(choice.model));
        }
        if (entry->create == nullptr) {
            throw UsageError(choice.model + " is a part of other classes and cannot be loaded by itself");
        }
        if (!service.exists) {
            console.Note("there is no " + KindOf(choice.physical) + " service \"" + choice.name +
                         "\"; this is what the class makes of missing keys");
        } else if (const auto warning = ContradictionOf(service, *entry); !warning.empty()) {
            console.Note("warning: " + Utf8(warning));
        }
        return entry;
    }
    if (!service.exists) {
        const auto other = IdentifyService(CString(Wide(choice.name)), !choice.physical);
        std::string message = "there is no " + KindOf(choice.physical) + " service \"" + choice.name + "\"";
        if (other.exists) {
            message += choice.physical ? "; leave out --physical for the logical service of that name"
                                       : "; give --physical for the physical service of that name";
        }
        status = Checked(kDone, console);
        status = status == kDone ? console.Fail(kNegative, message) : status;
        return nullptr;
    }
    const auto selection = SelectModel(service);
    console.Note(Utf8(selection.entry->table().className) + std::string(": ") + Utf8(selection.reason));
    return selection.entry;
}

} // namespace

std::string NoClass(const std::string& name)
{
    return "there is no class \"" + name + "\"; `wqspcfg models` lists them";
}

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
    return Checked(status, console);
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
                     console);
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
