#include "wqspcfg/platform/text/NarrowText.h"
#include "wqspcfg/platform/utility/ModulePath.h"
#include "wqspcfg/platform/utility/Utility.h"

#include <cstdlib>
#include <dlfcn.h>
#include <link.h>
#include <memory>

namespace wqspcfg {
namespace {

const char kAnchor = 0;

std::wstring CanonicalPath(const char* path)
{
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(path, nullptr), &std::free);
    return real ? NarrowToWide(real.get()) : std::wstring();
}

std::wstring FindPath(const void* address)
{
    Dl_info info{};
    void* extra = nullptr;
    if (dladdr1(address, &info, &extra, RTLD_DL_LINKMAP) == 0 || extra == nullptr) {
        return {};
    }
    // The program itself has no name here, and the one in `info` is only what it was started by.
    const char* const name = static_cast<const link_map*>(extra)->l_name;
    return CanonicalPath(name == nullptr || *name == '\0' ? "/proc/self/exe" : name);
}

} // namespace

HINSTANCE ThisModule() noexcept
{
    return reinterpret_cast<HINSTANCE>(const_cast<char*>(&kAnchor)); // only ever taken as an address
}

std::wstring ModulePath(HINSTANCE module)
{
    if (module != nullptr && module != ThisModule()) {
        return FindPath(module);
    }
    // Once, as a path relative to the current directory holds only as long as that stays.
    static const std::wstring own = FindPath(&kAnchor);
    return own;
}

} // namespace wqspcfg
