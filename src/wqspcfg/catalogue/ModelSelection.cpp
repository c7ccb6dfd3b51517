#include "wqspcfg/catalogue/ModelSelection.h"

#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/core/settings/Reference.h"
#include "wqspcfg/platform/store/Session.h"
#include "wqspcfg/platform/text/CaseFold.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace wqspcfg {

namespace {

constexpr std::size_t kShortestPart = 4; // a shorter name says too little to find it within another

std::wstring_view WithoutPrefix(std::wstring_view name, std::wstring_view prefix)
{
    return name.size() > prefix.size() && EqualNoCase(name.substr(0, prefix.size()), prefix)
               ? name.substr(prefix.size())
               : name;
}

std::wstring_view FileTitle(std::wstring_view path)
{
    const auto folder = path.find_last_of(L"\\/");
    if (folder != std::wstring_view::npos) {
        path.remove_prefix(folder + 1);
    }
    for (const auto* extension : {L".exe", L".dll"}) {
        if (path.size() > 4 && EqualNoCase(path.substr(path.size() - 4), extension)) {
            path.remove_suffix(4);
        }
    }
    return path;
}

// "WQSpCRDWQTYM1200.exe" and "CSpCRDWQTYM1200RegInfo" both give "CRDWQTYM1200", in upper case.
std::wstring Stem(std::wstring_view name)
{
    name = FileTitle(name);
    return UpCase(WithoutPrefix(WithoutPrefix(name, L"WQSp"), L"Sp"));
}

std::wstring StemOf(const ClassEntry& entry)
{
    std::wstring_view name(entry.table().className);
    name.remove_prefix(1);
    constexpr std::wstring_view kEnd = L"RegInfo";
    if (name.ends_with(kEnd)) {
        name.remove_suffix(kEnd.size());
    }
    return Stem(name);
}

// One object configures both faces of a cash module.
std::wstring DeviceClassFor(std::wstring_view xfsClass)
{
    auto deviceClass = UpCase(xfsClass);
    return deviceClass == L"CDM" || deviceClass == L"CIM" ? L"CRM" : deviceClass;
}

const ClassEntry* ClassBase(const std::wstring& deviceClass)
{
    for (const auto* each : AllClasses()) {
        const auto* own = each->table().deviceClass;
        if (!IsModel(*each) && own != nullptr && *own != 0 && deviceClass == own) {
            return each;
        }
    }
    return nullptr;
}

// A name that the service has in the registry.
struct Name
{
    const wchar_t* what;
    const std::wstring* text;
    std::wstring stem;
};

struct Model
{
    const ClassEntry* entry;
    std::wstring stem;
    bool fits; // the class value does not speak against it
};

bool Fits(const ClassEntry& entry, const std::wstring& stem, const std::wstring& xfsClass)
{
    const auto deviceClass = DeviceClassFor(xfsClass);
    const auto* own = DeviceClassOf(entry.table());
    return deviceClass.empty() || (own != nullptr && deviceClass == own) || stem.starts_with(UpCase(xfsClass));
}

using Models = std::vector<Model>;

Models AllModels(const std::wstring& xfsClass)
{
    Models models;
    for (const auto* each : AllClasses()) {
        if (IsModel(*each)) {
            auto stem = StemOf(*each);
            const bool fits = Fits(*each, stem, xfsClass);
            models.push_back({each, std::move(stem), fits});
        }
    }
    return models;
}

// One way to tell the model from a name: null where it does not.
struct Matcher
{
    const Model* (*find)(const Models& models, const std::wstring& stem, const std::wstring& deviceClass);
    const wchar_t* reason;
};

const Model* FindEqual(const Models& models, const std::wstring& stem, const std::wstring&)
{
    const auto found =
        std::find_if(models.begin(), models.end(), [&](const Model& model) { return model.stem == stem; });
    return found != models.end() ? &*found : nullptr;
}

const Model* FindWithinClass(const Models& models, const std::wstring& stem, const std::wstring& deviceClass)
{
    const auto found = std::find_if(models.begin(), models.end(), [&](const Model& model) {
        return model.fits && !stem.empty() && model.stem == deviceClass + stem;
    });
    return found != models.end() ? &*found : nullptr;
}

const Model* FindLongestPart(const Models& models, const std::wstring& stem, const std::wstring&)
{
    const Model* longest = nullptr;
    for (const auto& model : models) {
        if (model.fits && model.stem.size() >= kShortestPart && stem.find(model.stem) != std::wstring::npos &&
            (longest == nullptr || longest->stem.size() < model.stem.size())) {
            longest = &model;
        }
    }
    return longest;
}

const Model* FindOnlyWhole(const Models& models, const std::wstring& stem, const std::wstring&)
{
    const Model* only = nullptr;
    for (const auto& model : models) {
        if (model.fits && stem.size() >= kShortestPart && model.stem.find(stem) != std::wstring::npos) {
            if (only != nullptr) {
                return nullptr;
            }
            only = &model;
        }
    }
    return only;
}

// The surest first.
constexpr Matcher kMatchers[] = {
    {FindEqual, L"is the model's name"},
    {FindWithinClass, L"is the model's name within its class"},
    {FindLongestPart, L"holds the model's name"},
    {FindOnlyWhole, L"is part of this model's name only"},
};

} // namespace

bool IsModel(const ClassEntry& entry) noexcept
{
    return entry.create != nullptr && std::wstring_view(entry.table().className).size() > 3 &&
           EqualNoCase(std::wstring_view(entry.table().className).substr(0, 3), L"CSp");
}

bool IsXfsClass(std::wstring_view name)
{
    constexpr const wchar_t* kClasses[] = {L"ALM", L"BCR", L"BIO", L"CAM", L"CDM", L"CEU", L"CHK", L"CIM", L"CRD",
                                           L"DEP", L"IDC", L"IPM", L"PIN", L"PTR", L"SIU", L"TTU", L"VDM"};
    return std::any_of(std::begin(kClasses), std::end(kClasses),
                       [&](const wchar_t* each) { return EqualNoCase(each, name); }) ||
           ClassBase(DeviceClassFor(name)) != nullptr;
}

ServiceIdentity IdentifyService(const CString& strName, bool bPhysicalName)
{
    const ReadScope scope;
    ServiceIdentity service;
    const CRegInfo object(strName, bPhysicalName);
    const CString strPhysical = object.GetPhysicalName();
    service.logicalName = object.GetLogicalName().Std();
    service.physicalName = strPhysical.Std();
    CString strClass = object.GetClassNameW(nullptr);
    if (strClass.IsEmpty()) {
        CRegKeyEx::QueryValue(strClass, L"Class", L"%s%s", kServiceRoot, strPhysical);
    }
    service.xfsClass = strClass.Std();
    service.deviceKey = object.GetExeDllMother(1, nullptr).Std();
    service.executable = FileTitle(object.GetExeFileTitle(0).View());
    CString strModule;
    CRegKeyEx::QueryValue(strModule, L"DLLName", L"%s%s", kServiceRoot, strPhysical);
    service.module = FileTitle(strModule.View());
    service.classModule = object.GetDeviceClassName(nullptr, 0).Std();
    const auto exists = [&](const wchar_t* root, const std::wstring& name) {
        return !name.empty() && scope->Exists(scope->Open(root + name));
    };
    service.exists = bPhysicalName
                         ? exists(kServiceRoot, service.physicalName) || exists(kDeviceRoot, service.deviceKey)
                         : exists(kLogicalRoot, service.logicalName);
    return service;
}

ModelSelection SelectModel(const ServiceIdentity& service)
{
    const std::array<Name, 5> names{{{L"device key name", &service.deviceKey, Stem(service.deviceKey)},
                                     {L"executable", &service.executable, Stem(service.executable)},
                                     {L"module", &service.module, Stem(service.module)},
                                     {L"class module", &service.classModule, Stem(service.classModule)},
                                     {L"physical name", &service.physicalName, Stem(service.physicalName)}}};
    const auto deviceClass = DeviceClassFor(service.xfsClass);
    const auto models = AllModels(service.xfsClass);
    for (const auto& matcher : kMatchers) {
        for (const auto& name : names) {
            if (const auto* model = matcher.find(models, name.stem, deviceClass)) {
                return {model->entry, std::wstring(name.what) + L" \"" + *name.text + L"\" " + matcher.reason};
            }
        }
    }
    if (const auto* base = ClassBase(deviceClass)) {
        return {base, L"class base of class value \"" + service.xfsClass + L"\"; no model matches the service's names"};
    }
    return {FindClass(L"CRegInfo"), service.xfsClass.empty()
                                        ? L"the service has no class value"
                                        : L"class value \"" + service.xfsClass + L"\" has no class base"};
}

std::wstring ContradictionOf(const ServiceIdentity& service, const ClassEntry& entry)
{
    const auto* own = DeviceClassOf(entry.table());
    if (own == nullptr || Fits(entry, StemOf(entry), service.xfsClass)) {
        return {};
    }
    return std::wstring(entry.table().className) + L" is a class of device class " + own +
           L", and the class value of the service is \"" + service.xfsClass + L'"';
}

} // namespace wqspcfg
