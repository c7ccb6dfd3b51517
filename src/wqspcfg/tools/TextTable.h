// Aligned columns of text for a terminal.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace wqspcfg::tools {

// Cells are UTF-8 and are escaped for terminals when they are printed.
class TextTable
{
  public:
    explicit TextTable(std::vector<std::string> head);

    // A row has as many cells as the head.
    void Add(std::vector<std::string> cells);
    // Nothing where no row was added.
    void Print(std::ostream& out) const;

  private:
    std::vector<std::vector<std::string>> m_rows;
};

} // namespace wqspcfg::tools
