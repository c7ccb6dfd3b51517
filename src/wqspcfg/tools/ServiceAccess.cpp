#include "wqspcfg/tools/ServiceAccess.h"

#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/diagnosis/Terminal.h"
#include "wqspcfg/platform/store/Session.h"
#include "wqspcfg/platform/store/regfile/View32.h"
#include "wqspcfg/platform/text/CaseFold.h"
#include "wqspcfg/tools/ScratchStore.h"

namespace wqspcfg::tools {

CurrentStoreScope::CurrentStoreScope(std::shared_ptr<Store> store)
{
    SetCurrentStore(std::move(store));
    ClearStoreError();
}

CurrentStoreScope::~CurrentStoreScope()
{
    SetCurrentStore(nullptr);
}

int Checked(int status, const Console& console)
{
    return LastStoreError() ? console.Fail(LastStoreError()) : status;
}

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
                 store->Address() + Only32BitKeys(isWindows ? "give --view32"
                                                            : "import the registry export again with `import "
                                                              "--view32`")};
        return nullptr;
    }
    return store;
}

std::shared_ptr<Store> OpenForExamination(const StoreChoice& choice, Error& error)
{
    auto store = OpenForServices(choice, Access::Read, error);
    return store ? std::make_shared<ScratchStore>(std::move(store)) : nullptr;
}

diagnosis::StoreSource SourceOf(const StoreChoice& choice)
{
    constexpr std::string_view kFile = "reg:";
    const auto address = choice.Address();
    return {address.starts_with(kFile) ? address.substr(kFile.size()) : std::string(), choice.codePage, choice.view32};
}

std::vector<std::wstring> NamesOfServices(const std::wstring& name, bool physical)
{
    CRegInfo::ForgetProcess();
    std::vector<std::wstring> ofProvider;
    for (const auto& service : diagnosis::IdentifyServices()) {
        const auto& own = diagnosis::NameOf(service);
        if (!physical && EqualNoCase(own, name)) {
            return {own};
        }
        if (EqualNoCase(service.physicalName, name)) {
            ofProvider.push_back(own);
        }
    }
    return ofProvider;
}

std::string NoClass(const std::string& name)
{
    return "there is no class \"" + name + "\"; `wqspcfg models` lists them";
}

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
            console.Note(std::string("there is no ") + (choice.physical ? "physical" : "logical") + " service \"" +
                         choice.name + "\"; this is what the class makes of missing keys");
        } else if (const auto warning = ContradictionOf(service, *entry); !warning.empty()) {
            console.Note("warning: " + Utf8(warning));
        }
        return entry;
    }
    if (!service.exists) {
        const auto other = IdentifyService(CString(Wide(choice.name)), !choice.physical);
        std::string message = std::string("there is no ") + (choice.physical ? "physical" : "logical") + " service \"" +
                              choice.name + "\"";
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

} // namespace wqspcfg::tools
