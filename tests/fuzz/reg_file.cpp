// Registry exports: whatever is read without an error comes out of an export as it went in.
#include "fuzz/Fuzzing.h"
#include "wqspcfg/platform/store/regfile/RegFile.h"

#include <sstream>

using namespace wqspcfg;
using namespace wqspcfg::test;

namespace {

std::string DumpAll(Store& store)
{
    std::string text;
    for (const auto hive :
         {Hive::LocalMachine, Hive::Users, Hive::CurrentUser, Hive::ClassesRoot, Hive::CurrentConfig}) {
        text += Dump(store, {}, hive);
    }
    return text;
}

// Writes down what stands in a file.
class Transcript final : public RegFileVisitor
{
  public:
    bool Key(Hive hive, std::wstring_view path, Error&) override { return Note(L'[', hive, path); }
    bool DeleteKey(Hive hive, std::wstring_view path, Error&) override { return Note(L'-', hive, path); }
    bool Value(std::wstring_view name, const ValueView& value, Error&) override
    {
        m_text += name;
        m_text += L'=' + std::to_wstring(static_cast<std::uint32_t>(value.type)) + L':';
        for (const auto byte : value.data) {
            m_text += static_cast<wchar_t>(std::to_integer<int>(byte));
        }
        return true;
    }
    bool DeleteValue(std::wstring_view name, Error&) override
    {
        m_text += name;
        m_text += L"=-\n";
        return true;
    }

    std::wstring m_text;

  private:
    bool Note(wchar_t what, Hive hive, std::wstring_view path)
    {
        m_text += what + std::to_wstring(static_cast<int>(hive)) + L'\\';
        m_text += path;
        return true;
    }
};

// What stands in the file, or the error, when it arrives in pieces of that size.
std::wstring Transcribe(std::string_view file, std::size_t piece)
{
    Transcript transcript;
    Error error;
    RegFileParser parser("f", transcript);
    bool good = true;
    for (std::size_t at = 0; good && at < file.size(); at += piece) {
        good = parser.Feed(file.substr(at, piece), error);
    }
    if (good && parser.Finish(error)) {
        return transcript.m_text;
    }
    EXPECT_FALSE(error.message.empty());
    return {error.message.begin(), error.message.end()};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string file(reinterpret_cast<const char*>(data), size);
    const auto whole = Transcribe(file, std::max<std::size_t>(size, 1));
    EXPECT_EQ(Transcribe(file, 1), whole);
    EXPECT_EQ(Transcribe(file, 7), whole);

    const auto first = Open("memory:");
    std::istringstream input(file);
    ImportCounts counts;
    Error error;
    const bool imported = ImportRegFile(*first, input, "f", counts, error);
    const auto content = DumpAll(*first);
    if (!imported) {
        EXPECT_TRUE(error.message.starts_with("f:")) << error.message;
        const auto empty = Open("memory:");
        EXPECT_EQ(content, DumpAll(*empty));
        return 0;
    }
    std::ostringstream exported;
    if (!ExportRegFile(*first, exported, error)) {
        // A key whose name has a line break cannot be written.
        EXPECT_EQ(error.kind, ErrorKind::BadText) << error.message;
        return 0;
    }
    const auto second = Open("memory:");
    std::istringstream again(exported.str());
    EXPECT_TRUE(ImportRegFile(*second, again, "f", counts, error)) << error.message;
    EXPECT_EQ(DumpAll(*second), content);
    std::ostringstream exportedAgain;
    EXPECT_TRUE(ExportRegFile(*second, exportedAgain, error)) << error.message;
    EXPECT_EQ(exportedAgain.str(), exported.str());
    return 0;
}
