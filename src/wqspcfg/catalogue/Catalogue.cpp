#include "wqspcfg/catalogue/Catalogue.h"

#include "wqspcfg/core/settings/Reference.h"
#include "wqspcfg/platform/text/CaseFold.h"

#include <algorithm>
#include <array>

namespace wqspcfg {

namespace entry {
#define CLASS(Class) ClassEntry Class##Entry();
#include "wqspcfg/catalogue/all.inc"
#undef CLASS
} // namespace entry

std::span<const ClassEntry* const> AllClasses() noexcept
{
    static const std::array entries{
#define CLASS(Class) entry::Class##Entry(),
#include "wqspcfg/catalogue/all.inc"
#undef CLASS
    };
    static const auto all = [] {
        std::array<const ClassEntry*, entries.size()> found;
        std::transform(entries.begin(), entries.end(), found.begin(), [](const ClassEntry& entry) { return &entry; });
        return found;
    }();
    return all;
}

const ClassEntry* FindClass(std::wstring_view className) noexcept
{
    for (const auto* each : AllClasses()) {
        if (EqualNoCase(each->table().className, className)) {
            return each;
        }
    }
    return nullptr;
}

std::vector<const ClassEntry*> ClassesOf(std::wstring_view deviceClass)
{
    std::vector<const ClassEntry*> found;
    for (const auto* each : AllClasses()) {
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
