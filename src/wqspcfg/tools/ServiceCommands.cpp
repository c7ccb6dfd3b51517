#include "wqspcfg/tools/ServiceCommands.h"

#include "wqspcfg/catalogue/Catalogue.h"
#include "wqspcfg/catalogue/ModelSelection.h"
#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/core/settings/Reference.h"
#include "wqspcfg/platform/store/memory/MemoryStore.h"
#include "wqspcfg/platform/text/CaseFold.h"

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

bool CopyKey(Transaction& from, Transaction& to, Hive hive, const std::wstring& path, Error& error)
{
    KeyId source = 0;
    KeyId target = 0;
    std::vector<std::wstring> subkeys;
    bool written = true;
    auto outcome = from.OpenKey(hive, path, source);
    if (outcome == Outcome::Missing) {
        return true;
    }
    if (outcome == Outcome::Found && to.CreateKey(hive, path, target) == Outcome::Found) {
        outcome = from.EnumValues(source, [&](std::wstring_view name, const ValueView& value) {
            return written = to.SetValue(target, name, value) != Outcome::Failed;
        });
    }
    if (outcome != Outcome::Failed) {
        outcome = from.EnumKeys(source, [&](std::wstring_view name) {
            subkeys.emplace_back(name);
            return true;
        });
    }
    from.CloseKey(source);
    if (outcome == Outcome::Failed || !written) {
        error = written ? from.LastError() : to.LastError();
        return false;
    }
    for (const auto& subkey : subkeys) {
        if (!CopyKey(from, to, hive, path + L'\\' + subkey, error)) {
            return false;
        }
    }
    return true;
}

std::shared_ptr<Store> CopyInMemory(Store& store, Error& error)
{
    auto copy = std::make_shared<MemoryStore>(store.Address());
    const auto from = store.Begin(Access::Read, error);
    if (!from) {
        return nullptr;
    }
    const auto to = copy->Begin(Access::Write, error);
    if (!to || !CopyKey(*from, *to, Hive::LocalMachine, L"SOFTWARE", error) ||
        !CopyKey(*from, *to, Hive::Users, L".DEFAULT", error)) {
        return nullptr;
    }
    if (to->Commit(false) == Outcome::Failed) {
        error = to->LastError();
        return nullptr;
    }
    return copy;
}

// What a Load writes back on the way must not fail where the store cannot be written: from the first such write on, a
// copy takes the store's place.
class LoadableStore final : public Store
{
  public:
    explicit LoadableStore(std::shared_ptr<Store> store) : m_store(std::move(store)) {}

    std::unique_ptr<Transaction> Begin(Access access, Error& error) override
    {
        if (m_copy) {
            return m_copy->Begin(access, error);
        }
        auto transaction = m_store->Begin(access, error);
        if (!transaction && access == Access::Write && error.kind == ErrorKind::AccessDenied) {
            m_copy = CopyInMemory(*m_store, error);
            return m_copy ? m_copy->Begin(access, error) : nullptr;
        }
        return transaction;
    }
    const std::string& Address() const noexcept override { return m_store->Address(); }
    bool RollsBack() const noexcept override { return m_store->RollsBack(); }

  private:
    std::shared_ptr<Store> m_store; // outlives the copy's beginning: the Load still reads from it
    std::shared_ptr<Store> m_copy;
};

std::shared_ptr<Store> OpenForLoad(const StoreChoice& choice, Error& error)
{
    auto store = choice.Open(Access::Write, false, error);
    if (!store && error.kind == ErrorKind::AccessDenied) {
        store = choice.Open(Access::Read, false, error);
    }
    return store ? std::make_shared<LoadableStore>(std::move(store)) : nullptr;
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
            throw UsageError("there is no class \"" + choice.model + "\"; `wqspcfg models` lists them");
        }
        if (entry->create == nullptr) {
            throw UsageError(choice.model + " is part of other classes and is not loaded by itself");
        }
        if (!service.exists) {
            console.err << "wqspcfg: there is no " << KindOf(choice.physical) << " service \"" << choice.name << "\"\n";
        }
        return entry;
    }
    if (!service.exists) {
        const auto other = IdentifyService(CString(Wide(choice.name)), !choice.physical);
        std::string message = "there is no " + KindOf(choice.physical) + " service \"" + choice.name + "\"";
        if (other.exists) {
            message += choice.physical ? "; the logical service of that name is loaded without --physical"
                                       : "; the physical service of that name is loaded with --physical";
        }
        status = Checked(kDone, console);
        status = status == kDone ? console.Fail(kNegative, message) : status;
        return nullptr;
    }
    const auto selection = SelectModel(service);
    console.err << "wqspcfg: " << Utf8(selection.entry->table().className) << ": " << Utf8(selection.reason) << '\n';
    return selection.entry;
}

} // namespace

int ListServices(const StoreChoice& choice, const Console& console)
{
    Error error;
    auto store = choice.Open(Access::Read, false, error);
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
            console.out << Utf8(name.View()) << '\t' << KindOf(physical) << '\t' << Utf8(service.xfsClass) << '\t'
                        << Utf8(service.deviceKey) << '\t' << Utf8(selection.entry->table().className) << '\t'
                        << Utf8(selection.reason) << '\n';
        }
    };
    list(kLogicalRoot, false);
    list(kServiceRoot, true);
    return Checked(kDone, console);
}

int LoadService(const StoreChoice& choice, const ServiceChoice& service, const Console& console)
{
    Error error;
    auto store = OpenForLoad(choice, error);
    if (!store) {
        return console.Fail(error);
    }
    const CurrentStoreScope current(std::move(store));
    const CString name(Wide(service.name));
    int status = kDone;
    const auto* entry = ChooseClass(service, IdentifyService(name, service.physical), console, status);
    if (entry == nullptr) {
        return status;
    }
    StreamLog log(console.out);
    if (!Create(*entry, name, service.physical)->Load(&log)) {
        status = kNegative;
        console.err << "wqspcfg: " << Utf8(entry->table().className) << "::Load returned false\n";
    }
    return Checked(status, console);
}

int SaveService(const StoreChoice& choice, const ServiceChoice& service, const Console& console)
{
    Error error;
    auto store = choice.Open(Access::Write, false, error);
    if (!store) {
        return console.Fail(error);
    }
    const CurrentStoreScope current(std::move(store));
    const CString name(Wide(service.name));
    const auto identity = IdentifyService(name, service.physical);
    int status = kDone;
    const auto* entry = ChooseClass(service, identity, console, status);
    if (entry == nullptr) {
        return status;
    }
    if (identity.deviceKey.empty()) {
        return console.Fail(kNegative, "\"" + service.name + "\" has no device key that could be written");
    }
    const auto object = Create(*entry, name, service.physical);
    // A configuration that was read in part must not replace the one that is there.
    if (!object->Load(nullptr)) {
        return Checked(
            console.Fail(kNegative, Utf8(entry->table().className) + "::Load returned false; nothing is saved"),
            console);
    }
    if (LastStoreError()) {
        return console.Fail(LastStoreError());
    }
    object->Save();
    return Checked(kDone, console);
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
