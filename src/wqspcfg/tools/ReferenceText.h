// The reference of all settings as text, Markdown and JSON.
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
};

// Every class, or with `only` that class and those that it inherits from.
void WriteReference(const ClassEntry* only, ReferenceFormat format, std::ostream& out);

// The pages of docs/reference by file name: one for each device class, one for what all share, and an index.
std::map<std::string, std::string> ReferencePages();

} // namespace wqspcfg::tools
