// Keys and values as the program reads and shows them.
#pragma once

#include "wqspcfg/diagnosis/StoredText.h"
#include "wqspcfg/platform/store/Store.h"

#include <string>
#include <string_view>

namespace wqspcfg::tools {

struct FullKey
{
    Hive hive = Hive::LocalMachine;
    std::wstring path;
};

// Throws UsageError where the text does not begin with a hive.
FullKey ParseKey(const std::string& text);
// With the hive's long name.
std::wstring KeyText(const FullKey& key);

using diagnosis::DataText;
using diagnosis::ParseNumber;
using diagnosis::TypeName;

// `the default value`, or `the value "NAME"`.
std::string ValueText(std::wstring_view name);

} // namespace wqspcfg::tools
