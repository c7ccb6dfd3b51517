// What the pages that are made for a browser have in common: one self-contained file that loads nothing, runs nothing
// but its own script, and reads without it.
#pragma once

#include "wqspcfg/diagnosis/report/Html.h"

#include <string>
#include <vector>

namespace wqspcfg::diagnosis {

// A box that shows only the rows of tables of settings that have the class.
struct PageFilter
{
    std::string rowClass;
    std::string label;
    std::size_t count = 0; // of such rows
};

struct PageLink
{
    std::string target; // the id of an element
    std::string text;   // this and the rest are UTF-8 that may hold anything
    std::string note;
    std::size_t errors = 0;
    std::size_t warnings = 0;
};

struct PageLinks
{
    std::string title; // empty: none
    std::vector<PageLink> links;
};

struct PageFrame
{
    std::string title;
    std::vector<PageFilter> filters;
    std::vector<std::string> deviceClasses; // to choose from
    std::vector<PageLinks> contents;
    std::size_t settings = 0;
};

// Between them stands what the page shows. The script knows: the rows of the bodies of tables, of which those of the
// class "key" are headings of those below them; tables of the class "settings", to whose rows the filters apply; and
// sections and rows with the attribute data-class, a device class.
void BeginPage(const PageFrame& frame, Html& page);
void EndPage(Html& page);

} // namespace wqspcfg::diagnosis
