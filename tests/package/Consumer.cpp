#include <wqspcfg/platform/store/Store.h>

#include <cstdio>

int main()
{
    wqspcfg::Error error;
    const auto store = wqspcfg::OpenStore("memory:", {}, error);
    if (!store) {
        std::fprintf(stderr, "%s\n", error.message.c_str());
        return 1;
    }
    return 0;
}
