#include "wqspcfg/catalogue/Catalogue.h"

#include "wqspcfg/core/settings/Reference.h"
#include "wqspcfg/platform/text/CaseFold.h"

namespace wqspcfg {

namespace entry {
#define CLASS(Class) extern const ClassEntry Class##Entry;
#include "wqspcfg/catalogue/all.inc"
#undef CLASS
} // namespace entry

namespace {

constexpr const ClassEntry* kClasses[] = {
#define CLASS(Class) &entry::Class##Entry,
#include "wqspcfg/catalogue/all.inc"
#undef CLASS
};

} // namespace

std::span<const ClassEntry* const> AllClasses() noexcept
{
    return kClasses;
}

const ClassEntry* FindClass(std::wstring_view className) noexcept
{
    for (const auto* each : kClasses) {
        if (EqualNoCase(each->table().className, className)) {
            return each;
        }
    }
    return nullptr;
}

std::vector<const ClassEntry*> ClassesOf(std::wstring_view deviceClass)
{
    std::vector<const ClassEntry*> found;
    for (const auto* each : kClasses) {
        const auto* own = DeviceClassOf(each->table());
        if (own != nullptr && EqualNoCase(own, deviceClass)) {
            found.push_back(each);
        }
    }
    return found;
}

std::unique_ptr<CRegInfo> Create(const ClassEntry& entry, const CString& strName, bool bPhysicalName)
{
    return std::unique_ptr<CRegInfo>(entry.create != nullptr ? entry.create(strName, bPhysicalName) : nullptr);
}

} // namespace wqspcfg
