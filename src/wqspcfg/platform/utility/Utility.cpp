#include "wqspcfg/platform/utility/Utility.h"

#include "wqspcfg/platform/store/ForkSafe.h"
#include "wqspcfg/platform/utility/ModulePath.h"

#include <mutex>
#include <string>

namespace {

struct Override
{
    std::mutex& mutex = wqspcfg::ForkSafeMutex(wqspcfg::ForkSafe::ModuleDirectory);
    std::wstring directory;
};

Override& TheOverride()
{
    static Override instance;
    return instance;
}

// "C:\" and "\" keep their backslash: without it they would name something else.
bool IsRoot(const std::wstring& directory)
{
    return directory == L"\\" || (directory.size() == 3 && directory[1] == L':' && directory[2] == L'\\');
}

} // namespace

CString CUtility::GetModuleDir(int trailingBackslash, HINSTANCE module, [[maybe_unused]] bool ownModule)
{
    std::wstring directory;
    {
        Override& override = TheOverride();
        const std::lock_guard lock(override.mutex);
        directory = override.directory;
    }
    if (directory.empty()) {
        directory = wqspcfg::ModulePath(module);
        const std::size_t slash = directory.find_last_of(L"\\/");
        directory.resize(slash == std::wstring::npos ? 0 : slash + 1);
    }
    if (directory.empty()) {
        return {};
    }
    for (wchar_t& ch : directory) {
        if (ch == L'/') {
            ch = L'\\';
        }
    }
    if (directory.back() != L'\\') {
        directory += L'\\';
    }
    if (trailingBackslash == 0 && !IsRoot(directory)) {
        directory.pop_back();
    }
    return directory;
}

namespace wqspcfg {

void OverrideModuleDir(const CString& directory)
{
    Override& override = TheOverride();
    const std::lock_guard lock(override.mutex);
    override.directory = directory.Std();
}

} // namespace wqspcfg
