#include "wqspcfg/diagnosis/Nearest.h"

#include <algorithm>
#include <limits>

namespace wqspcfg::diagnosis {

std::size_t Distance(std::string_view left, std::string_view right)
{
    // The last three rows of the table of distances between the beginnings of both.
    std::vector<std::size_t> rows[3];
    for (auto& row : rows) {
        row.assign(right.size() + 1, 0);
    }
    for (std::size_t j = 0; j <= right.size(); ++j) {
        rows[0][j] = j;
    }
    for (std::size_t i = 1; i <= left.size(); ++i) {
        auto& row = rows[i % 3];
        const auto& above = rows[(i + 2) % 3];
        row[0] = i;
        for (std::size_t j = 1; j <= right.size(); ++j) {
            row[j] = std::min({above[j] + 1, row[j - 1] + 1, above[j - 1] + (left[i - 1] == right[j - 1] ? 0 : 1)});
            if (i > 1 && j > 1 && left[i - 1] == right[j - 2] && left[i - 2] == right[j - 1]) {
                row[j] = std::min(row[j], rows[(i + 1) % 3][j - 2] + 1);
            }
        }
    }
    return rows[left.size() % 3][right.size()];
}

namespace {

std::string LowerCase(std::string_view text)
{
    std::string lower(text);
    for (auto& ch : lower) {
        ch = ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch - 'A' + 'a') : ch;
    }
    return lower;
}

template <class Measure>
std::string NearestBy(const std::vector<std::string>& candidates, Measure distanceOf)
{
    std::string nearest;
    auto least = std::numeric_limits<std::size_t>::max();
    for (const auto& candidate : candidates) {
        const auto distance = distanceOf(candidate);
        if (distance < least) {
            least = distance;
            nearest = candidate;
        }
    }
    return nearest;
}

} // namespace

std::size_t DistanceNoCase(std::string_view left, std::string_view right)
{
    return Distance(LowerCase(left), LowerCase(right));
}

std::string Nearest(std::string_view name, const std::vector<std::string>& candidates)
{
    return NearestBy(candidates, [&](const std::string& candidate) { return Distance(name, candidate); });
}

std::string NearestNoCase(std::string_view name, const std::vector<std::string>& candidates)
{
    return NearestBy(candidates, [&](const std::string& candidate) { return DistanceNoCase(name, candidate); });
}

} // namespace wqspcfg::diagnosis
