#include "wqspcfg/tools/ValueText.h"

#include "wqspcfg/platform/store/FlatKey.h"
#include "wqspcfg/platform/store/regfile/RegFile.h"
#include "wqspcfg/tools/Console.h"

namespace wqspcfg::tools {

FullKey ParseKey(const std::string& text)
{
    const auto wide = Wide(text);
    FullKey key;
    std::wstring_view path;
    if (!SplitHive(wide, key.hive, path)) {
        throw UsageError("invalid key \"" + text + "\": it must begin with a hive, such as HKLM\\SOFTWARE\\XFS");
    }
    // Backslashes at either end do not count.
    while (path.starts_with(L'\\')) {
        path.remove_prefix(1);
    }
    while (path.ends_with(L'\\')) {
        path.remove_suffix(1);
    }
    key.path = path;
    return key;
}

std::wstring KeyText(const FullKey& key)
{
    std::wstring text(HiveName(key.hive));
    if (!key.path.empty()) {
        text += L'\\';
        text += key.path;
    }
    return text;
}

std::string ValueText(std::wstring_view name)
{
    return name.empty() ? std::string("the default value") : "the value \"" + Utf8(name) + '"';
}

} // namespace wqspcfg::tools
