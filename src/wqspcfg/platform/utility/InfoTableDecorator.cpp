#include "wqspcfg/platform/utility/InfoTableDecorator.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace {

std::wstring Cell(LPCWSTR text)
{
    std::wstring cell = text != nullptr ? text : L"";
    std::replace_if(
        cell.begin(), cell.end(), [](wchar_t ch) { return static_cast<std::uint32_t>(ch) < 0x20 || ch == 0x7F; }, L' ');
    return cell;
}

std::size_t InsertionIndex(int index, std::size_t size)
{
    return index < 0 ? size : std::min(static_cast<std::size_t>(index), size);
}

// A cell that is longer than this stands out of its column: padding all others to it would make a table that grows with
// the number of rows times the longest text.
constexpr std::size_t kWidestColumn = 256;

std::ptrdiff_t Offset(std::size_t index)
{
    return static_cast<std::ptrdiff_t>(index);
}

} // namespace

CInfoTableDecorator::CInfoTableDecorator(LPCWSTR title, int indent)
    : m_title(Cell(title)), m_indent(indent > 0 ? static_cast<std::size_t>(indent) : 0)
{}

int CInfoTableDecorator::InsertColumn(int column, LPCWSTR heading)
{
    const std::size_t index = InsertionIndex(column, m_headings.size());
    m_headings.insert(m_headings.begin() + Offset(index), Cell(heading));
    for (Row& row : m_rows) {
        row.insert(row.begin() + Offset(index), std::wstring());
    }
    return static_cast<int>(index);
}

int CInfoTableDecorator::InsertItem(int row, LPCWSTR text)
{
    const std::size_t index = InsertionIndex(row, m_rows.size());
    m_rows.insert(m_rows.begin() + Offset(index), Row(m_headings.size()));
    SetItemText(static_cast<int>(index), 0, text);
    return static_cast<int>(index);
}

BOOL CInfoTableDecorator::SetItemText(int row, int column, LPCWSTR text)
{
    if (row < 0 || column < 0 || static_cast<std::size_t>(row) >= m_rows.size() ||
        static_cast<std::size_t>(column) >= m_headings.size()) {
        return FALSE;
    }
    m_rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = Cell(text);
    return TRUE;
}

CString CInfoTableDecorator::Format(int maxRows, char fill, char separator) const
{
    const std::size_t shown = maxRows < 0 ? m_rows.size() : std::min(static_cast<std::size_t>(maxRows), m_rows.size());
    const auto fillChar = static_cast<wchar_t>(static_cast<unsigned char>(fill));
    const auto separatorChar = static_cast<wchar_t>(static_cast<unsigned char>(separator));

    std::vector<std::size_t> widths;
    for (std::size_t column = 0; column < m_headings.size(); ++column) {
        std::size_t width = m_headings[column].size();
        for (std::size_t row = 0; row < shown; ++row) {
            width = std::max(width, m_rows[row][column].size());
        }
        widths.push_back(std::min(width, kWidestColumn));
    }

    std::wstring table;
    const auto beginLine = [&] {
        if (!table.empty()) {
            table += L"\r\n";
        }
        table.append(m_indent, fillChar);
    };
    const auto addRow = [&](const Row& row) {
        beginLine();
        for (std::size_t column = 0; column < row.size(); ++column) {
            table += row[column];
            if (column + 1 < row.size()) {
                table.append(widths[column] - std::min(row[column].size(), widths[column]), fillChar);
                table += separatorChar;
            }
        }
    };

    if (m_title.find_first_not_of(L' ') != std::wstring::npos) {
        beginLine();
        table += m_title;
    }
    addRow(m_headings);
    for (std::size_t row = 0; row < shown; ++row) {
        addRow(m_rows[row]);
    }
    return table;
}
