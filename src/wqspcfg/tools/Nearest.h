#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wqspcfg::tools {

// The candidate that takes the fewest edits (a character more, less or other, two exchanged) to become `name`; the
// first of several. Empty without candidates.
std::string Nearest(std::string_view name, const std::vector<std::string>& candidates);

} // namespace wqspcfg::tools
