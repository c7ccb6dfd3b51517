#include "wqspcfg/tools/TextTable.h"

#include "wqspcfg/platform/text/DisplayText.h"

#include <algorithm>
#include <utility>

namespace wqspcfg::tools {

namespace {

// Characters outside the first planes of the alphabets take two columns.
std::size_t WidthOf(const std::string& utf8)
{
    std::size_t width = 0;
    for (const char ch : utf8) {
        const auto byte = static_cast<unsigned char>(ch);
        width += byte < 0x80 || (byte >= 0xC0 && byte < 0xE0) ? 1U : byte >= 0xE0 ? 2U : 0U;
    }
    return width;
}

} // namespace

TextTable::TextTable(std::vector<std::string> head)
{
    m_rows.push_back(std::move(head));
}

void TextTable::Add(std::vector<std::string> cells)
{
    for (auto& cell : cells) {
        cell = DisplayText(cell);
    }
    m_rows.push_back(std::move(cells));
}

void TextTable::Print(std::ostream& out) const
{
    if (m_rows.size() < 2) {
        return;
    }
    std::vector<std::size_t> widths(m_rows.front().size());
    for (const auto& row : m_rows) {
        for (std::size_t i = 0; i < widths.size(); ++i) {
            widths[i] = std::max(widths[i], WidthOf(row[i]));
        }
    }
    for (const auto& row : m_rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            line += row[i];
            line.append(widths[i] + 2 - WidthOf(row[i]), ' ');
        }
        line.erase(line.find_last_not_of(' ') + 1);
        out << line << '\n';
    }
}

} // namespace wqspcfg::tools
