#include "wqspcfg/platform/store/LockWait.h"
#include "wqspcfg/tools/CommandLine.h"

#include <iostream>

#if defined(_WIN32)
#include "wqspcfg/platform/text/Utf.h"

#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>
#else
#include "wqspcfg/platform/store/PosixFile.h"
#endif

int main(int argc, char** argv)
{
    std::vector<std::string> arguments;
#if defined(_WIN32)
    // argv is in the code page of the system, which cannot hold every key.
    static_cast<void>(argc);
    static_cast<void>(argv);
    int count = 0;
    auto** wide = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 1; i < count; ++i) {
        auto& argument = arguments.emplace_back();
        if (!wqspcfg::AppendUtf8(wide[i], argument)) {
            std::cerr << "wqspcfg: an argument is not well-formed UTF-16\n";
            return 2;
        }
    }
    LocalFree(wide);
    SetConsoleOutputCP(CP_UTF8);
    // Registry exports pass through unchanged.
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
#else
    // No file that is opened later takes the place of a standard file that is missing.
    if (wqspcfg::FillStandardDescriptors() != 0) {
        return 3;
    }
    arguments.assign(argv + (argc > 0 ? 1 : 0), argv + argc);
    std::ios::sync_with_stdio(false);
#endif
    wqspcfg::SetLockWaitHandler([](const wqspcfg::LockWait& wait) {
        std::cerr << "wqspcfg: waiting for "
                  << (wait.process == 0 ? "another process" : "process " + std::to_string(wait.process))
                  << ", which is writing to " << wait.address << '\n';
    });
    return wqspcfg::tools::Run(arguments, std::cin, std::cout, std::cerr);
}
