#include "wqspcfg/platform/store/LockWait.h"
#include "wqspcfg/platform/text/DisplayText.h"
#include "wqspcfg/tools/CommandLine.h"

#include <iostream>

#if defined(_WIN32)
#include "wqspcfg/platform/text/Utf.h"

#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>
#else
#include <fcntl.h>
#include <unistd.h>

namespace {

// Where a standard file was closed when the program was started, another file must not get its number: a store would
// be overwritten by a message. Reading and writing data fail as they would with the closed file; messages are lost.
void FillStandardFiles()
{
    constexpr int kModes[] = {O_WRONLY, O_RDONLY, O_WRONLY};
    for (int fd = 0; fd < 3; ++fd) {
        if (fcntl(fd, F_GETFD) < 0 && open("/dev/null", kModes[fd]) < 0) {
            _exit(3);
        }
    }
}

} // namespace
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
    const bool outIsTerminal = _isatty(_fileno(stdout)) != 0;
#else
    FillStandardFiles();
    arguments.assign(argv + (argc > 0 ? 1 : 0), argv + argc);
    std::ios::sync_with_stdio(false);
    const bool outIsTerminal = isatty(STDOUT_FILENO) != 0;
#endif
    wqspcfg::SetLockWaitHandler([](const wqspcfg::LockWait& wait) {
        std::cerr << "wqspcfg: waiting for "
                  << (wait.process == 0 ? "another process" : "process " + std::to_string(wait.process))
                  << ", which is writing to " << wqspcfg::DisplayText(wait.address) << '\n';
    });
    return wqspcfg::tools::Run(arguments, std::cin, std::cout, std::cerr, outIsTerminal);
}
