// Forms of the program's help, made from the declaration of its commands.
#pragma once

#include <string>

namespace CLI {
class App;
} // namespace CLI

namespace wqspcfg::tools {

// In the language of man(7).
std::string ManPage(const CLI::App& app, const std::string& version);

// A script for bash that completes commands and options, and everything else as file names.
std::string BashCompletion(const CLI::App& app);

} // namespace wqspcfg::tools
