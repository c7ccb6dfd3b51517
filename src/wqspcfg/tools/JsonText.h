// What the commands that print JSON have in common.
#pragma once

#include "wqspcfg/platform/store/Store.h"

#include <nlohmann/json.hpp>

#include <ostream>

namespace wqspcfg::tools {

using nlohmann::ordered_json;

// Prints one value and a line end. Bytes that are no UTF-8, which a file's name may have, become U+FFFD.
void PrintJson(const ordered_json& json, std::ostream& out);

// {"type": "REG_SZ", "data": "..."}: text as it is, the strings of a REG_MULTI_SZ on lines of their own.
ordered_json StoredJson(const ValueView& value, bool isMasked);

} // namespace wqspcfg::tools
