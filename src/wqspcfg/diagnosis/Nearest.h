#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace wqspcfg::diagnosis {

// How many edits (a character more, less or other, two exchanged) it takes to make one of the other. Case counts.
std::size_t Distance(std::string_view left, std::string_view right);
// The same without regard to the case of ASCII letters.
std::size_t DistanceNoCase(std::string_view left, std::string_view right);

// The candidate that takes the fewest edits (a character more, less or other, two exchanged) to become `name`; the
// first of several. Empty without candidates.
std::string Nearest(std::string_view name, const std::vector<std::string>& candidates);
// The same without regard to the case of ASCII letters.
std::string NearestNoCase(std::string_view name, const std::vector<std::string>& candidates);

} // namespace wqspcfg::diagnosis
