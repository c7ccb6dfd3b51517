#include "wqspcfg/diagnosis/Terminal.h"

#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/platform/store/Session.h"
#include "wqspcfg/platform/text/CaseFold.h"

#include <algorithm>
#include <set>

namespace wqspcfg::diagnosis {

namespace {

std::vector<std::wstring> SubkeysOf(std::wstring_view path)
{
    std::vector<std::wstring> names;
    const ReadScope scope;
    scope->EnumKeys(scope->Open(path), [&](std::wstring_view name) {
        names.emplace_back(name);
        return true;
    });
    return names;
}

// The keys that a class reads by their full path, below that of the service providers: they belong to other programs.
const NameSet& KeysOfOthers()
{
    static const auto& keys = *[] {
        auto* names = new NameSet; // lives as long as the process
        const std::wstring_view root(kServiceRoot);
        const auto add = [&](const auto& self, const auto& rows) -> void {
            for (const auto& row : rows) {
                const std::wstring_view key(row.key.subkey);
                if (row.IsValue() && row.key.root == Root::Absolute && key.size() > root.size() &&
                    EqualNoCase(key.substr(0, root.size()), root)) {
                    names->emplace(key.substr(root.size(), key.find(L'\\', root.size()) - root.size()));
                }
                self(self, row.rows);
            }
        };
        for (const auto* entry : AllClasses()) {
            add(add, entry->table().rows);
        }
        return names;
    }();
    return keys;
}

// Something there tells of a service provider.
bool HasProvider(const std::wstring& name)
{
    const ReadScope scope;
    const auto key = scope->Open(kServiceRoot + name);
    ValueView view;
    const auto has = [&](const wchar_t* value) { return scope->Query(key, value, view) == Outcome::Found; };
    return scope->Exists(scope->Open(kDeviceRoot + name)) || has(L"Class") || has(L"ExeDllMother") ||
           has(L"Executable") || has(L"DLLName");
}

} // namespace

std::vector<ServiceIdentity> IdentifyServices()
{
    const ReadScope scope;
    std::vector<ServiceIdentity> services;
    std::set<std::wstring> named; // providers that a logical service names
    for (const auto& name : SubkeysOf(kLogicalRoot)) {
        services.push_back(IdentifyService(CString(name), false));
        named.insert(UpCase(services.back().physicalName));
    }
    const std::wstring_view common(kCommonKey);
    for (const auto& name : SubkeysOf(kServiceRoot)) {
        if (!EqualNoCase(name, common.substr(0, common.size() - 1)) && !named.contains(UpCase(name)) &&
            (!KeysOfOthers().contains(name) || HasProvider(name))) {
            services.push_back(IdentifyService(CString(name), true));
        }
    }
    return services;
}

const std::wstring& NameOf(const ServiceIdentity& service) noexcept
{
    return service.logicalName.empty() ? service.physicalName : service.logicalName;
}

bool IsAmong(const ServiceIdentity& service, const std::vector<std::wstring>& names)
{
    return names.empty() || std::any_of(names.begin(), names.end(),
                                        [&](const std::wstring& name) { return EqualNoCase(name, NameOf(service)); });
}

Terminal ExamineTerminal(const std::vector<std::wstring>& names)
{
    CRegInfo::ForgetProcess();
    const ReadScope scope;
    Terminal terminal;
    for (const auto& service : IdentifyServices()) {
        if (IsAmong(service, names)) {
            terminal.services.push_back(Examine(service, *SelectModel(service).entry));
            if (!terminal.failure) {
                terminal.failure = terminal.services.back().failure;
            }
        }
    }
    if (!terminal.failure) {
        terminal.failure = scope->Failure();
    }
    return terminal;
}

} // namespace wqspcfg::diagnosis
