// The reference of all settings as text, Markdown, JSON and a page for a browser.
#pragma once

#include "wqspcfg/catalogue/Catalogue.h"

#include <map>
#include <ostream>
#include <span>
#include <string>

namespace wqspcfg::tools {

enum class ReferenceFormat
{
    Text,
    Markdown,
    Json,
    Html,
};

// Every class, or with `only` that class and those that it inherits from.
void WriteReference(const ClassEntry* only, ReferenceFormat format, std::ostream& out);

// The pages of docs/reference by file name: one for each device class, one for what all share, and an index.
std::map<std::string, std::string> ReferencePages();

} // namespace wqspcfg::tools
