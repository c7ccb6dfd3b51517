#include "wqspcfg/platform/utility/ModulePath.h"
#include "wqspcfg/platform/utility/Utility.h"

namespace wqspcfg {

HINSTANCE ThisModule() noexcept
{
    static const char anchor = 0;
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&anchor), &module);
    return module;
}

std::wstring ModulePath(HINSTANCE module)
{
    if (module == nullptr) {
        module = ThisModule();
    }
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD size = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
        if (size < path.size()) {
            path.resize(size);
            return path;
        }
        path.resize(path.size() * 2); // it was cut
    }
}

} // namespace wqspcfg
