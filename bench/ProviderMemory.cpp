// A service provider of one model that tells what it costs in memory that no other process shares: after its Load, the
// changed pages of the file that holds this library, and the bytes of the tables that were made.
#include "wqspcfg/models/crd/SpCRDWQTYM1200RegInfo.h"
#include "wqspcfg/platform/store/Session.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <malloc.h>
#include <memory>
#include <string>

int main(int argc, char** argv)
{
    wqspcfg::Error error;
    const auto store = argc == 2 ? wqspcfg::OpenStore("memory:", {}, error) : nullptr;
    if (!store) {
        std::fprintf(stderr, "%s\n", argc != 2 ? "usage: FILE-THAT-HOLDS-THE-LIBRARY" : error.message.c_str());
        return 1;
    }
    wqspcfg::SetCurrentStore(store);
    // The first object makes the tables, the second costs itself.
    std::array<std::unique_ptr<CSpCRDWQTYM1200RegInfo>, 2> objects;
    std::array<std::size_t, 2> used{};
    for (std::size_t i = 0; i < objects.size(); ++i) {
        const auto before = mallinfo2().uordblks;
        objects[i] = std::make_unique<CSpCRDWQTYM1200RegInfo>(L"CardDispenser", false);
        objects[i]->Load(nullptr);
        used[i] = mallinfo2().uordblks - before;
    }

    std::ifstream smaps("/proc/self/smaps");
    bool isOfFile = false;
    unsigned long dirty = 0;
    for (std::string line; std::getline(smaps, line);) {
        // The head of a mapping. Memory without a name behind that of a file is for its own data.
        if (line.find('-') < line.find(' ')) {
            const auto name = line.rfind(' ') + 1;
            isOfFile = line.find(argv[1]) != std::string::npos || (isOfFile && name == line.size());
        } else if (isOfFile && line.starts_with("Private_Dirty:")) {
            dirty += std::stoul(line.substr(line.find(':') + 1));
        }
    }
    std::printf("%lu %zu\n", dirty, used[0] - used[1]);
    return dirty == 0 ? 1 : 0;
}
