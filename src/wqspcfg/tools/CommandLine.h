// The program `wqspcfg` without its process.
#pragma once

#include <istream>
#include <ostream>
#include <string>
#include <vector>

namespace wqspcfg::tools {

// Runs one command line, given without the program's name and in UTF-8, and returns the exit status: 0 done, 1 a
// negative answer, 2 wrong usage, 3 the store or a file failed. `outIsTerminal`: a person looks at `out`.
int Run(const std::vector<std::string>& arguments, std::istream& in, std::ostream& out, std::ostream& err,
        bool outIsTerminal = false);

} // namespace wqspcfg::tools
