#pragma once

#include "wqspcfg/platform/base/Export.h"
#include "wqspcfg/platform/base/WinTypes.h"
#include "wqspcfg/platform/framework/String.h"

#include <string>
#include <vector>

// Builds an aligned text table for a log. Columns and rows count from 0.
class CInfoTableDecorator
{
  public:
    // A title that is not blank becomes the first line. Every line is indented by that many fill characters.
    WQSPCFG_API CInfoTableDecorator(LPCWSTR title, int indent);

    // Inserts before the one that has this index, or at the end where there is none; returns the index.
    WQSPCFG_API int InsertColumn(int column, LPCWSTR heading);
    WQSPCFG_API int InsertItem(int row, LPCWSTR text);
    // FALSE when there is no such cell.
    WQSPCFG_API BOOL SetItemText(int row, int column, LPCWSTR text);

    // The headings and at most `maxRows` rows (-1: all of them), with CRLF between lines. Cells are filled to the width
    // of their column, the last one excepted; control characters in them show as blanks.
    WQSPCFG_API CString Format(int maxRows, char fill, char separator) const;

  private:
    using Row = std::vector<std::wstring>;

    std::wstring m_title;
    std::size_t m_indent;
    Row m_headings;
    std::vector<Row> m_rows;
};
