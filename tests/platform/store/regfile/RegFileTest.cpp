#include "wqspcfg/platform/store/regfile/RegFile.h"
#include "support/StoreTesting.h"

#include <sstream>

namespace wqspcfg::test {

namespace {

std::string Utf16File(std::u16string_view text)
{
    std::string file = "\xFF\xFE";
    file.append(reinterpret_cast<const char*>(text.data()), text.size() * 2);
    return file;
}

std::string Utf16File(std::string_view ascii)
{
    return Utf16File(std::u16string(ascii.begin(), ascii.end()));
}

std::string Import(const std::string& content, Store& store)
{
    std::istringstream file(content);
    ImportCounts counts;
    Error error;
    return ImportRegFile(store, file, "f.reg", counts, error) ? std::string() : error.message;
}

// The error's message, or all below HKEY_LOCAL_MACHINE\a.
std::string Imported(const std::string& content, Store& store)
{
    const auto message = Import(content, store);
    return message.empty() ? Dump(store, L"a") : message;
}

std::string Imported(const std::string& content)
{
    const auto store = Open("memory:");
    return Imported(content, *store);
}

// In version 5.00 below the key HKLM\a, whose line is the second.
std::string ImportedLines(const std::string& lines)
{
    return Imported("Windows Registry Editor Version 5.00\n[HKLM\\a]\n" + lines);
}

} // namespace

TEST(RegFileTest, ReadsEveryFormOfData)
{
    const std::string lines = "; a comment\r\n"
                              "\r\n"
                              "@=\"default\"\r\n"
                              "  \"dword\" = dword:0000001F ; so\r\n"
                              "\"short\"=dword:1\r\n"
                              "\"quo\\\"te\\\\\"=\"C:\\\\x \\\"y\\\" ; [no comment]\"\r\n"
                              "\"breaks\"=\"one\\r\\ntwo\"\r\n"
                              "\"bin\"=hex:01,2,\\\r\n"
                              "  Ff,\\ \r\n"
                              "\t00 ; and a comment\r\n"
                              "\"none\"=hex(0):\r\n"
                              "\"qword\"=hex(b):01,00,00,00,00,00,00,00\r\n"
                              "\"odd\"=hex(ffff0001):AB\r\n"
                              "\"unterminated\"=hex(1):41,00,42\r\n";
    const std::string expected = "[a]\n"
                                 "=1:640065006600610075006c0074000000\n"
                                 "bin=3:0102ff00\n"
                                 "breaks=1:6f006e0065000d000a00740077006f000000\n"
                                 "dword=4:1f000000\n"
                                 "none=0:\n"
                                 "odd=4294901761:ab\n"
                                 "quo\"te\\=1:43003a005c0078002000220079002200200"
                                 "03b0020005b006e006f00200063006f006d006d0065006e0074005d000000\n"
                                 "qword=11:0100000000000000\n"
                                 "short=4:01000000\n"
                                 "unterminated=1:410042\n";
    const auto file = "Windows Registry Editor Version 5.00\r\n\r\n[HKEY_LOCAL_MACHINE\\a]\r\n" + lines;
    EXPECT_EQ(Imported(file), expected);
    EXPECT_EQ(Imported("\xEF\xBB\xBF" + file), expected);
    EXPECT_EQ(Imported(Utf16File(file)), expected);
    EXPECT_EQ(Imported(Utf16File(file).substr(2)), expected) << "without the mark";
    auto unixFile = file;
    std::erase(unixFile, '\r');
    EXPECT_EQ(Imported(unixFile.substr(0, unixFile.size() - 1)), expected) << "without the last line's end";
    // A line break within quotes is the text's own.
    EXPECT_EQ(ImportedLines("\"x\"=\"a\r\nb\"\r\n\"y\"=dword:2\r\n"), "[a]\nx=1:61000d000a0062000000\ny=4:02000000\n");
}

TEST(RegFileTest, ReadsPiecesOfAnySize)
{
    const auto file = Utf16File(u"Windows Registry Editor Version 5.00\r\n\r\n[HKEY_LOCAL_MACHINE\\a]\r\n"
                                u"\"\u4e2d\U0001F4B6\"=\"\\\\\"\r\n\"b\"=hex:01,\\\r\n  02\r\n");
    class Collector final : public RegFileVisitor
    {
      public:
        bool Key(Hive, std::wstring_view, Error&) override { return true; }
        bool DeleteKey(Hive, std::wstring_view, Error&) override { return true; }
        bool DeleteValue(std::wstring_view, Error&) override { return true; }
        bool Value(std::wstring_view name, const ValueView& value, Error&) override
        {
            AppendUtf8(name, seen);
            seen += '0' + std::to_string(value.data.size());
            return true;
        }
        std::string seen;
    };
    for (std::size_t piece = 1; piece <= file.size(); ++piece) {
        Collector collector;
        RegFileParser parser("f.reg", collector);
        Error error;
        for (std::size_t at = 0; at < file.size(); at += piece) {
            ASSERT_TRUE(parser.Feed(std::string_view(file).substr(at, piece), error)) << error.message;
        }
        ASSERT_TRUE(parser.Finish(error)) << error.message;
        ASSERT_EQ(collector.seen, "\u4e2d\U0001F4B604b02") << piece;
    }
}

TEST(RegFileTest, DeletesKeysAndValues)
{
    const auto store = Open("memory:");
    Imported("Windows Registry Editor Version 5.00\n[HKLM\\a]\n\"x\"=dword:1\n\"y\"=dword:1\n[HKLM\\a\\b\\c]\n@=\"\"\n",
             *store);
    EXPECT_EQ(Imported("Windows Registry Editor Version 5.00\n[-HKLM\\A\\B]\n[-HKLM\\absent]\n"
                       "[hklm\\A]\n\"X\"=-\n\"absent\"=-\n@=-\n",
                       *store),
              "[a]\ny=4:01000000\n");
}

TEST(RegFileTest, KnowsTheHives)
{
    const std::pair<const char*, Hive> hives[] = {
        {"HKEY_LOCAL_MACHINE", Hive::LocalMachine},
        {"HKLM", Hive::LocalMachine},
        {"HKEY_USERS", Hive::Users},
        {"HKU", Hive::Users},
        {"hkcu", Hive::CurrentUser},
        {"HKEY_CURRENT_USER", Hive::CurrentUser},
        {"HKEY_CLASSES_ROOT", Hive::ClassesRoot},
        {"HKCR", Hive::ClassesRoot},
        {"HKEY_CURRENT_CONFIG", Hive::CurrentConfig},
        {"HKCC", Hive::CurrentConfig},
    };
    for (const auto& [name, hive] : hives) {
        const auto store = Open("memory:");
        Import("Windows Registry Editor Version 5.00\n[" + std::string(name) + "\\.DEFAULT\\k]\n\"x\"=dword:1\n",
               *store);
        EXPECT_EQ(Get(*store, L".default\\K", L"x", hive), "4:01000000") << name;
    }
}

TEST(RegFileTest, ReadsVersion4InItsEncoding)
{
#if defined(_WIN32)
    EXPECT_NE(Imported("REGEDIT4\r\n\r\n[HKEY_LOCAL_MACHINE\\a]\r\n\"x\"=\"\xE9\"\r\n").find("x=1:"),
              std::string::npos);
#else
    EXPECT_EQ(Imported("REGEDIT4\r\n\r\n[HKEY_LOCAL_MACHINE\\a]\r\n\"latin\"=\"\xE9\"\r\n\"utf8\"=\"\xC3\xA9\"\r\n"),
              "[a]\nlatin=1:e9000000\nutf8=1:e9000000\n");
#endif
    // Texts written as bytes are in the same encoding.
    EXPECT_EQ(Imported("REGEDIT4\n[HKLM\\a]\n\"e\"=hex(2):25,41,00\n\"m\"=hex(7):61,00,62,00,00\n\"b\"=hex:41\n"),
              "[a]\nb=3:41\ne=2:250041000000\nm=7:61000000620000000000\n");
}

TEST(RegFileTest, SaysWhatIsWrongAndWhere)
{
    const std::pair<std::string, std::string> lines[] = {
        {"\"x\"=dword:", "3: a dword has 1 to 8"},
        {"\"x\"=dword:123456789", "3: a dword has 1 to 8"},
        {"\"x\"=dword:12g", "3: text after the value's data"},
        {"\"x\"=hex:1g", "3: ',' is missing"},
        {"\"x\"=hex:g", "3: not a hexadecimal byte"},
        {"\"x\"=hex:01,02,", "3: the hexadecimal bytes end with a ','"},
        {"\"x\"=hex:01,\\\n  02,\\\n  zz\n", "5: not a hexadecimal byte: \"zz\""},
        {"\"x\"=hex:01,\\\n\n\"y\"=dword:1", "3: the hexadecimal bytes end"},
        {"\"x\"=hex(:01", "3: the type is not written"},
        {"\"x\"=hex(123456789):01", "3: the type is not written"},
        {"\"x\"=qword:1", "3: unknown kind of data: \"qword:1\""},
        {"\"x\"=", "3: the value's data is missing"},
        {"\"x\"", "3: '=' is missing"},
        {"\"x=dword:1", "3: a quoted text that begins here is not closed"},
        {"\n\n\"x\"=\"abc\n\"y\"=dword:1", "5: "},
        {"\"x\"=\"C:\\temp\"", "3: unknown escape \"\\t\""},
        {"\"x\"=\"a\" b", "3: text after the value's data: \"b\""},
        {"\"x\"=\"a\"\"b\"", "3: text after"},
        {"\"x\"=-1", "3: text after"},
        {"x=dword:1", "3: neither a key in brackets"},
        {"[HKLM\\a", "3: the bracket of the key is not closed"},
        {"[HKXX\\a]", "3: the key begins with no known hive"},
        {"[]", "3: the key begins with no known hive"},
        {"[HKLM\\a] x", "3: text after the key's closing bracket"},
        {"[-HKLM\\a]\n\"x\"=dword:1", "4: a value without a key"},
        {std::string("\"a\0b\"=dword:1", 13), "3: the value's name holds a NUL"},
        {std::string("\"a\"=\"\0\"", 7), "3: the value's text holds a NUL"},
        {"\"\xFF\"=dword:1", "3: the text is not well-formed UTF-8"},
        {"\"x\"=dword\n\"\xFF\"=dword:1", "3: unknown kind of data"}, // the first one counts
        {"[HKLM\\" + std::string(300, 'k') + "]", "3: memory:: the key name \"kkk"},
    };
    for (const auto& [line, message] : lines) {
        EXPECT_EQ(ImportedLines(line + "\n").find("f.reg:" + message), 0U) << line << " gave " << ImportedLines(line);
    }
    const std::pair<std::string, std::string> files[] = {
        {"", "f.reg:1: this is no registry export"},
        {"\n\n", "f.reg:3: this is no registry export"},
        {"\n[HKLM\\a]\n", "f.reg:2: this is no registry export: it begins with \"[HKLM\\a]\""},
        {"Windows Registry Editor Version 6.00\n", "f.reg:1: this is no registry export"},
        {"Windows Registry Editor Version 5.00\n\"x\"=dword:1\n", "f.reg:2: a value without a key"},
        {std::string("\xFE\xFF\0W", 4), "f.reg:1: UTF-16 with the high byte first"},
        {Utf16File("Windows Registry Editor Version 5.00\n") + "x", "f.reg:2: the file ends in the middle"},
    };
    for (const auto& [file, message] : files) {
        EXPECT_EQ(Imported(file).find(message), 0U) << file << " gave " << Imported(file);
    }
    Error error;
    ImportCounts counts;
    const auto store = Open("memory:");
    TemporaryDirectory directory;
    EXPECT_FALSE(ImportRegFile(*store, directory.File("absent.reg"), counts, error));
    EXPECT_EQ(error.kind, ErrorKind::NotFound);
    EXPECT_NE(error.message.find("absent.reg"), std::string::npos);
    EXPECT_FALSE(ImportRegFile(*store, directory.Path().string(), counts, error));
}

TEST(RegFileTest, WritesAsRegeditDoes)
{
    const auto store = Open("memory:");
    Put(*store, L"a", L"", SzBytes(L"d"), ValueType::Sz);
    Put(*store, L"a", L"Bin", Bytes(60, std::byte{0xAB}), ValueType::Binary);
    Put(*store, L"a", L"n", DwordBytes(0xBEEF));
    Put(*store, L"a\\B", L"x", SzBytes(L"\\\""), ValueType::Sz);
    Put(*store, L"a\\c", L"e", {}, ValueType::ExpandSz);
    std::ostringstream out;
    Error error;
    ASSERT_TRUE(ExportRegFile(*store, Hive::LocalMachine, L"a", out, error)) << error.message;
    EXPECT_EQ(out.str(),
              Utf16File("Windows Registry Editor Version 5.00\r\n\r\n"
                        "[HKEY_LOCAL_MACHINE\\a]\r\n"
                        "@=\"d\"\r\n"
                        "\"Bin\"=hex:ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,\\\r\n"
                        "  ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,\\\r\n"
                        "  ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab,ab\r\n"
                        "\"n\"=dword:0000beef\r\n\r\n"
                        "[HKEY_LOCAL_MACHINE\\a\\B]\r\n\"x\"=\"\\\\\\\"\"\r\n\r\n"
                        "[HKEY_LOCAL_MACHINE\\a\\c]\r\n\"e\"=hex(2):\r\n\r\n"));
    EXPECT_FALSE(ExportRegFile(*store, Hive::LocalMachine, L"absent", out, error));
    EXPECT_EQ(error.kind, ErrorKind::NotFound);
    out.setstate(std::ios::badbit);
    EXPECT_FALSE(ExportRegFile(*store, Hive::LocalMachine, L"a", out, error));
    EXPECT_EQ(error.kind, ErrorKind::Io);
}

TEST(RegFileTest, ShowsThe32BitViewOnRequest)
{
    TemporaryDirectory directory;
    const auto path = directory.File("terminal.reg");
    WriteFile(path, Utf16File("Windows Registry Editor Version 5.00\r\n"
                              "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Wow6432Node\\XFS\\Dev]\r\n\"n\"=dword:32\r\n"
                              "[HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\Dev]\r\n\"n\"=dword:64\r\n"
                              "[HKEY_USERS\\SOFTWARE\\XFS]\r\n\"n\"=dword:1\r\n"));
    const auto wide = Open("reg:" + path);
    EXPECT_EQ(Get(*wide, L"SOFTWARE\\XFS\\Dev", L"n"), "4:64000000");
    const auto narrow = Open("reg:" + path, {.view32 = true});
    EXPECT_EQ(Get(*narrow, L"\\software\\\\xfs\\Dev", L"n"), "4:32000000");
    EXPECT_EQ(Subkeys(*narrow, L"SOFTWARE\\XFS"), std::vector<std::wstring>{L"Dev"});
    EXPECT_EQ(Get(*narrow, L"SOFTWARE\\XFS", L"n", Hive::Users), "4:01000000");
    EXPECT_EQ(Get(*narrow, L"SOFTWARE\\XFSX", L"n"), "missing");

    Error error;
    EXPECT_FALSE(OpenStore("reg:" + directory.File("absent"), {}, error));
    EXPECT_EQ(error.kind, ErrorKind::NotFound);
    WriteFile(path, "no export");
    EXPECT_FALSE(OpenStore("reg:" + path, {}, error));
    EXPECT_NE(error.message.find(path), std::string::npos) << error.message;
}

TEST(OpenStoreTest, NamesWhatItDoesNotKnow)
{
    for (const auto* address : {"", "lmdb:", "reg:", "memory:x", "windows:16", "sqlite:x", "terminal.reg"}) {
        Error error;
        EXPECT_FALSE(OpenStore(address, {}, error)) << address;
        EXPECT_NE(error.message.find(address), std::string::npos) << error.message;
    }
}

} // namespace wqspcfg::test
