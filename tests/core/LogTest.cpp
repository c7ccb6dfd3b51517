#include "wqspcfg/core/Log.h"

#include "support/StoreTesting.h"

#include <sstream>

namespace wqspcfg::test {

// A stored text that tries to look like an entry, with each kind of line end and an escape sequence.
constexpr wchar_t kForging[] =
    L"[CFG] Path : a\n[CFG] Port : 9\r\n2026-01-01 00:00:00 INFO  [CFG] x\r[CFG] y\x1b[2J\x2028z";

TEST(LogTest, NoStoredTextPassesForAnEntry)
{
    std::ostringstream stream;
    StreamLog log(stream);
    EXPECT_EQ(log.Info(kLogCategory, L"%s", kForging), 1);
    log.Info(kLogCategory, L"[CST]title\r\nhead\r\n");
    EXPECT_EQ(stream.str(), "[CFG] Path : a\n"
                            "  | [CFG] Port : 9\n"
                            "  | 2026-01-01 00:00:00 INFO  [CFG] x<U+000D>[CFG] y<U+001B>[2J<U+2028>z\n"
                            "[CST]title\n"
                            "  | head\n"
                            "  | \n");

    TemporaryDirectory directory;
    FileLog file(directory.File("log"));
    file.Error(kLogCategory, L"%s", kForging);
    file.Info(kLogCategory, L"end");
    std::istringstream lines(ReadFile(directory.File("log")));
    std::vector<std::string> heads;
    for (std::string line; std::getline(lines, line);) {
        heads.push_back(line.starts_with("  | ") ? "more" : line.substr(line.find(' ', 11) + 1, 5));
    }
    EXPECT_EQ(heads, (std::vector<std::string>{"ERROR", "more", "more", "INFO "}));
}

} // namespace wqspcfg::test
