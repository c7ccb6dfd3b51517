#include "wqspcfg/platform/store/regfile/View32.h"

#include "wqspcfg/platform/text/CaseFold.h"

#include <algorithm>

namespace wqspcfg {

namespace {

std::wstring_view TakeComponent(std::wstring_view& path)
{
    const auto start = std::min(path.find_first_not_of(L'\\'), path.size());
    const auto end = std::min(path.find(L'\\', start), path.size());
    const auto component = path.substr(start, end - start);
    path.remove_prefix(end);
    return component;
}

} // namespace

std::optional<std::wstring_view> RestBelow(std::wstring_view key, Hive hive, std::wstring_view path)
{
    if (hive != Hive::LocalMachine) {
        return std::nullopt;
    }
    while (!key.empty()) {
        if (!EqualNoCase(TakeComponent(key), TakeComponent(path))) {
            return std::nullopt;
        }
    }
    return path;
}

} // namespace wqspcfg
