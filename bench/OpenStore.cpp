// Opens a store and exits: what a program that uses one costs at the least.
#include "wqspcfg/platform/store/Store.h"

#include <cstdio>

int main(int argc, char** argv)
{
    wqspcfg::Error error;
    if (argc != 2 || !wqspcfg::OpenStore(argv[1], {}, error)) {
        std::fprintf(stderr, "%s\n", argc != 2 ? "usage: bench_open STORE" : error.message.c_str());
        return 1;
    }
    return 0;
}
