#include "wqspcfg/platform/store/AtomicFile.h"

#include "support/StoreTesting.h"

#include <algorithm>
#include <fstream>

namespace wqspcfg::test {

namespace {

namespace fs = std::filesystem;

// What holds on every system.
class AtomicFileContentTest : public testing::Test
{
  protected:
    AtomicFileContentTest() { WriteFile(Path(), "old"); }

    bool Write(const std::string& path, std::string_view content, const std::vector<std::string>& sources = {})
    {
        AtomicFile file;
        return file.Open(path, sources, error) && file.Write(content, error) && file.Commit(error);
    }

    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(temporary.Path())) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    std::string Path() const { return temporary.File("file"); }

    TemporaryDirectory temporary;
    Error error;
    const std::vector<std::string> onlyTheFile{"file"};
};

} // namespace

TEST_F(AtomicFileContentTest, TheTargetIsOldOrNewAndNothingIsLeft)
{
    const std::string large(300000, 'x');
    {
        AtomicFile file;
        ASSERT_TRUE(file.Open(Path(), {}, error)) << error.message;
        ASSERT_TRUE(file.Write(large, error));
        EXPECT_EQ(ReadFile(Path()), "old");
    }
    EXPECT_EQ(ReadFile(Path()), "old");
    EXPECT_EQ(Names(), onlyTheFile);

    // Two at once: each is whole, the last one stays.
    AtomicFile first;
    AtomicFile second;
    ASSERT_TRUE(first.Open(Path(), {}, error) && second.Open(Path(), {}, error));
    ASSERT_TRUE(first.Write("first", error) && second.Write(large, error));
    ASSERT_TRUE(second.Commit(error)) << error.message;
    EXPECT_EQ(ReadFile(Path()), large);
    ASSERT_TRUE(first.Commit(error)) << error.message;
    EXPECT_EQ(ReadFile(Path()), "first");
    EXPECT_FALSE(first.Commit(error));
    EXPECT_FALSE(first.Write("more", error));
    EXPECT_EQ(Names(), onlyTheFile);

    // While somebody reads it, some systems refuse. Then the old content stands.
    std::ifstream reader(Path());
    const bool isNew = Write(Path(), "new");
    EXPECT_EQ(ReadFile(Path()), isNew ? "new" : "first") << error.message;
    EXPECT_EQ(Names(), onlyTheFile);
}

TEST_F(AtomicFileContentTest, SaysWhichFileCannotBeWritten)
{
    fs::create_directory(temporary.Path() / "folder");
    for (const auto* name : {"folder", "missing/file"}) {
        const auto path = temporary.File(name);
        EXPECT_FALSE(Write(path, "new")) << path;
        EXPECT_NE(error.message.find(path), std::string::npos) << error.message;
    }
    EXPECT_FALSE(Write("", "new"));
    EXPECT_FALSE(Write(Path(), "new", {temporary.File("missing")}));
    EXPECT_EQ(ReadFile(Path()), "old");
    EXPECT_EQ(Names(), (std::vector<std::string>{"file", "folder"}));
}

TEST_F(AtomicFileContentTest, ItsNameIsInUtf8)
{
    const auto path = temporary.Path() / fs::path(u8"\u00e4\u4e2d.reg");
    const auto name = path.u8string();
    ASSERT_TRUE(Write({name.begin(), name.end()}, "new")) << error.message;
    std::ifstream file(path);
    std::string content;
    EXPECT_TRUE(std::getline(file, content));
    EXPECT_EQ(content, "new");
}

} // namespace wqspcfg::test
