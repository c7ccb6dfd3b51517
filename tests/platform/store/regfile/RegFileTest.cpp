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

std::string Import(const std::string& content, Store& store, const RegFileOptions& options = {})
{
    std::istringstream file(content);
    ImportCounts counts;
    Error error;
    return ImportRegFile(store, file, "f.reg", counts, error, options) ? std::string() : error.message;
}

// What stands in a file that arrives in pieces of that size, or how far it was read and the error.
std::string Transcript(std::string_view file, std::size_t size)
{
    class Collector final : public RegFileVisitor
    {
      public:
        bool Key(Hive, std::wstring_view path, Error&) override { return Note("HKLM\\", path, "\n"); }
        bool DeleteKey(Hive, std::wstring_view path, Error&) override { return Note("-", path, "\n"); }
        bool DeleteValue(std::wstring_view name, Error&) override { return Note("-", name, "\n"); }
        bool Value(std::wstring_view name, const ValueView& value, Error&) override
        {
            return Note("", name, '=' + std::to_string(value.data.size()) + '\n');
        }
        bool Note(std::string_view before, std::wstring_view name, const std::string& after)
        {
            seen += before;
            AppendUtf8(name, seen);
            seen += after;
            return true;
        }
        std::string seen;
    };
    Collector collector;
    RegFileParser parser("f.reg", collector);
    Error error;
    bool good = true;
    for (std::size_t at = 0; good && at < file.size(); at += size) {
        good = parser.Feed(file.substr(at, size), error);
    }
    if (!good || !parser.Finish(error)) {
        collector.seen += error.message;
    }
    return collector.seen;
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

// The same of a REGEDIT4 file, below the key HKLM\a.
std::string ImportedAnsi(const std::string& lines, unsigned codePage = 0)
{
    const auto store = Open("memory:");
    const auto message = Import("REGEDIT4\r\n\r\n[HKEY_LOCAL_MACHINE\\a]\r\n" + lines, *store, {codePage, false});
    return message.empty() ? Dump(*store, L"a") : message;
}

// A stream that gives as much as it is asked for, and counts it.
class EndlessInput final : public std::streambuf
{
  public:
    explicit EndlessInput(std::string piece) : m_piece(std::move(piece)) {}
    std::size_t Given() const { return m_given; }

  protected:
    int_type underflow() override
    {
        // The end of endurance: a reader that is still there reads all it can get.
        constexpr std::size_t kMuch = std::size_t{64} << 20;
        if (m_given >= kMuch) {
            return traits_type::eof();
        }
        m_given += m_piece.size();
        setg(m_piece.data(), m_piece.data(), m_piece.data() + m_piece.size());
        return traits_type::to_int_type(m_piece[0]);
    }

  private:
    std::string m_piece;
    std::size_t m_given = 0;
};

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
    EXPECT_EQ(Transcript(file, file.size()), "HKLM\\a\n\u4e2d\U0001F4B6=4\nb=2\n");
    const std::string long4096(4096, 'x');
    for (const auto& each : std::vector<std::string>{
             file,
             "REGEDIT4\n[HKLM\\a]\n\"x\"=\"\xc3\xa9\"\n\"y\"=\"z\"\n",
             "REGEDIT4\n[HKLM\\a]\n\"x\"=\"\xc3\xa9\"\n\"y\"=\"\xe9\"\n\"z\"=dword:g\n",
             "REGEDIT4\n[HKLM\\a]\n\"x\"=dword:g\n\"y\"=\"\xe9\"",
             "\xEF\xBB\xBFREGEDIT4\n[HKLM\\a]\n\"y\"=\"\xe9\"\n",
             "\n\n  REGEDIT4\n[HKLM\\a]\n\"y\"=\"\xe9\"\n",
             "Windows Registry Editor Version 5.00\n[HKLM\\a]\n\"x\"=x\n\"y\"=\"\xe9\"\n",
             "\n\n" + long4096 + "x\n[HKLM\\a]\n",
             "\n" + long4096,
             "\n" + long4096 + "xx",
             "\xe9\n",
             std::string(5000, '\n') + "REGEDIT4\n",
             std::string(5000, ' '),
             Utf16File(long4096 + "x"),
             Utf16File("\n" + long4096 + "x\n"),
             "\"a\nb",
         }) {
        for (const std::size_t piece : {1U, 2U, 3U, 7U, 1000U}) {
            ASSERT_EQ(Transcript(each, piece), Transcript(each, each.size())) << piece;
        }
    }
}

TEST(RegFileTest, DeletesKeysAndValues)
{
    const auto store = Open("memory:");
    Imported("Windows Registry Editor Version "
             "5.00\n[HKLM\\a]\n\"x\"=dword:1\n\"y\"=dword:1\n[HKLM\\a\\b\\c]\n@=\"\"\n",
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

TEST(RegFileTest, ReadsVersion4InTheCodePageThatIsGiven)
{
    // Code page 936; the last byte of the third character is a backslash in ASCII.
    EXPECT_EQ(ImportedAnsi("\"\xd6\xd0\"=\"\xce\xc4\xd5\x5c\"\r\n", 936), "[a]\n\u4e2d=1:8765a08a0000\n");
    EXPECT_EQ(ImportedAnsi("\"x\"=\"100 \x80 \xc2\xa9\"\r\n", 1252), "[a]\nx=1:3100300030002000ac202000c200a9000000\n");
    EXPECT_EQ(ImportedAnsi("\"x\"=\"\xc3\xa9\"\r\n", 65001), "[a]\nx=1:e9000000\n");
    // Texts written as bytes are in the same encoding.
    EXPECT_EQ(ImportedAnsi("\"x\"=hex(1):d6,d0,00\r\n\"y\"=hex(7):e9,00,00\r\n", 936),
              "f.reg:5: the text is not in the code page that was given");
    EXPECT_EQ(ImportedAnsi("\"x\"=hex(1):d6,d0,00\r\n\"b\"=hex:d6\r\n", 936), "[a]\nb=3:d6\nx=1:2d4e0000\n");
    EXPECT_EQ(ImportedAnsi("\"x\"=\"\xce\xc4\"\r\n\"y\"=\"\xce\"\r\n", 936),
              "f.reg:5: the text is not in the code page that was given");
    const auto store = Open("memory:");
    EXPECT_EQ(Import("REGEDIT4\n", *store, {1200, false}), "code page 1200 is not known on this system");

    TemporaryDirectory directory;
    WriteFile(directory.File("t.reg"), "REGEDIT4\r\n[HKEY_LOCAL_MACHINE\\a]\r\n\"x\"=\"\xd6\xd0\"\r\n");
    EXPECT_EQ(Get(*Open("reg:" + directory.File("t.reg"), {.codePage = 936}), L"a", L"x"), "1:2d4e0000");
    Error error;
    EXPECT_FALSE(OpenStore("reg:" + directory.File("t.reg"), {}, error));
    EXPECT_NE(error.message.find("t.reg:3: "), std::string::npos) << error.message;
}

TEST(RegFileTest, GuessesNoCodePage)
{
    EXPECT_EQ(ImportedAnsi("\"e\"=hex(2):25,41,00\r\n\"m\"=hex(7):61,00,62,00,00\r\n\"b\"=hex:41\r\n"),
              "[a]\nb=3:41\ne=2:250041000000\nm=7:61000000620000000000\n");
    EXPECT_EQ(ImportedAnsi("\"x\"=\"\xc3\xa9\"\r\n\"y\"=hex(1):c3,a9,00\r\n"), "[a]\nx=1:e9000000\ny=1:e9000000\n");
    // One line that is no UTF-8 makes the file one of a code page, whatever its other lines look like.
    for (const std::string lines : {"\"x\"=\"\xc3\xa9\"\r\n\"y\"=\"\xe9\"\r\n", "\"x\"=\"\"\r\n\"y\"=hex(1):e9,00\r\n",
                                    "\"x\"=\"\xc3\xa9\"\r\n\"y\"=\"\xe9\""}) {
        const auto message = ImportedAnsi(lines);
        EXPECT_EQ(message.find("f.reg:5: the text is neither ASCII nor UTF-8"), 0U) << message;
        EXPECT_NE(message.find("--codepage"), std::string::npos) << message;
    }
    // What is wrong before that is told first.
    EXPECT_EQ(ImportedAnsi("\"x\"=dword:g\r\n\"y\"=\"\xe9\"\r\n").find("f.reg:4: column 11: a dword"), 0U);
}

TEST(RegFileTest, ReadsNoMoreOfAFileThatIsNoExport)
{
    std::string utf16(8192, 'x');
    for (std::size_t i = 1; i < utf16.size(); i += 2) {
        utf16[i] = '\0';
    }
    for (const auto& piece : {std::string(4096, '\0'), std::string(4096, ' '), std::string(4096, 'x'),
                              std::string(4096, '"'), std::string(4096, '\n'), "\"a\n" + std::string(4096, 'b'), utf16,
                              std::string("\xff\xd8\xff\xe0 no text\n")}) {
        EndlessInput buffer(piece);
        std::istream input(&buffer);
        RegFileContent content;
        Error error;
        EXPECT_FALSE(content.Read(input, "f.reg", {}, error));
        EXPECT_NE(error.message.find("this is not a registry export"), std::string::npos) << error.message;
        EXPECT_LE(buffer.Given(), std::size_t{1} << 20) << error.message;
    }
}

TEST(RegFileTest, RefusesKeysThatNoRegistryHas)
{
    std::string deep;
    for (int level = 0; level < 512; ++level) {
        deep += "\\k";
    }
    EXPECT_EQ(ImportedLines("[HKLM" + deep + "]\n\n").find("f.reg"), std::string::npos);
    EXPECT_EQ(ImportedLines("[HKLM" + deep + "\\k]\n"), "f.reg:3: the key lies 513 levels deep; the registry has 512");
    EXPECT_EQ(ImportedLines("\n[HKLM\\a\\" + std::string(256, 'k') + "]\n"),
              "f.reg:4: the key name \"" + std::string(60, 'k') + "...\" is longer than 255 characters");
    EXPECT_EQ(ImportedLines("[HKLM\\a\\b\x1b]\n"), "f.reg:3: the key name \"b<U+001B>\" has a control character");
    EXPECT_EQ(ImportedLines("[HKLM\\a\\b\rc]\n"), "f.reg:3: the key name \"b<U+000D>c\" has a control character");
    // One that a store has nevertheless can be deleted.
    EXPECT_EQ(ImportedLines("[-HKLM\\a\\b\x1b]\n"), "[a]\n");
}

// A writer gets the lock while the input stalls, and a read-only store is not even asked for one.
TEST(RegFileTest, LocksTheStoreOnlyOnceAllIsRead)
{
    const auto store = Open("memory:");
    class Stalling final : public std::streambuf
    {
      public:
        explicit Stalling(Store& store) : m_store(store) {}

      protected:
        int_type underflow() override
        {
            if (m_step == 2) {
                return traits_type::eof();
            }
            Put(m_store, L"other", L"n", DwordBytes(m_step));
            m_text = m_step++ == 0 ? "REGEDIT4\n[HKLM\\a]\n\"x\"=dword:1\n" : "\"y\"=dword:2\n";
            setg(m_text.data(), m_text.data(), m_text.data() + m_text.size());
            return traits_type::to_int_type(m_text[0]);
        }

      private:
        Store& m_store;
        std::string m_text;
        unsigned m_step = 0;
    };
    Stalling buffer(*store);
    std::istream input(&buffer);
    ImportCounts counts;
    Error error;
    ASSERT_TRUE(ImportRegFile(*store, input, "f.reg", counts, error)) << error.message;
    EXPECT_EQ(Get(*store, L"other", L"n"), "4:01000000");
    EXPECT_EQ(Dump(*store, L"a"), "[a]\nx=4:01000000\ny=4:02000000\n");
}

TEST(RegFileTest, AnImportTakesTheKeysOf32BitPrograms)
{
    const std::string file = "Windows Registry Editor Version 5.00\n"
                             "[HKEY_LOCAL_MACHINE\\Software\\WOW6432Node\\xfs\\Dev]\n\"n\"=dword:32\n"
                             "[-HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\XFS\\Old]\n"
                             "[-HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\Old2]\n"
                             "[HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\Dev]\n\"m\"=dword:64\n\"k\"=-\n"
                             "[HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\Other]\n\"n\"=dword:1\n";
    const auto store = Open("memory:");
    Put(*store, L"SOFTWARE\\XFS\\Old", L"n", DwordBytes(1));
    Put(*store, L"SOFTWARE\\XFS\\Old2", L"n", DwordBytes(1));
    Put(*store, L"SOFTWARE\\XFS\\Dev", L"k", DwordBytes(1));
    EXPECT_EQ(Import(file, *store, {0, true}), "");
    EXPECT_EQ(Dump(*store, L"SOFTWARE"), "[SOFTWARE]\n[SOFTWARE\\Other]\n"
                                         "n=4:01000000\n[SOFTWARE\\XFS]\n[SOFTWARE\\XFS\\Dev]\nk=4:01000000\n"
                                         "n=4:32000000\n[SOFTWARE\\XFS\\Old2]\nn=4:01000000\n");
    // The keys of other programs stand in both, or in one of them; those that service providers read are of one kind.
    const std::string both = "REGEDIT4\n[HKLM\\SOFTWARE\\TARNO\\Driver]\n\"n\"=dword:64\n"
                             "[HKLM\\SOFTWARE\\Only64]\n\"n\"=dword:64\n[HKLM\\SOFTWARE\\Vexo]\n\"n\"=dword:64\n"
                             "[HKLM\\SOFTWARE\\wow6432node]\n[HKLM\\SOFTWARE\\WOW6432Node\\vexo]\n\"n\"=dword:32\n"
                             "[HKLM\\SOFTWARE\\WOW6432Node\\XFS]\n[-HKLM\\SOFTWARE\\WOW6432Node]\n";
    const auto mixed = Open("memory:");
    EXPECT_EQ(Import(both, *mixed, {0, true}), "");
    EXPECT_EQ(Dump(*mixed, L"SOFTWARE"), "[SOFTWARE]\n[SOFTWARE\\Only64]\nn=4:64000000\n[SOFTWARE\\vexo]\n"
                                         "n=4:32000000\n[SOFTWARE\\XFS]\n");
    // The file of a program that has one kind of keys only.
    const auto other = Open("memory:");
    EXPECT_EQ(Import("REGEDIT4\n[HKLM\\SOFTWARE\\XFS]\n\"n\"=dword:1\n", *other, {0, true}), "");
    EXPECT_EQ(Get(*other, L"SOFTWARE\\XFS", L"n"), "4:01000000");
}

TEST(RegFileTest, SaysWhatIsWrongAndWhere)
{
    const std::pair<std::string, std::string> lines[] = {
        {"\"x\"=dword:", "3: column 11: a dword has 1 to 8"},
        {"\"x\"=dword:123456789", "3: column 11: a dword has 1 to 8"},
        {"\"x\"=dword:12g", "3: column 13: text after the value's data"},
        {"\"x\"=hex:1g", "3: column 10: ',' is missing"},
        {"\"x\"=hex:g", "3: column 9: not a hexadecimal byte"},
        {"\"x\"=hex:01,02,", "3: the hexadecimal bytes end with a ','"},
        {"\"x\"=hex:01,\\\n  02,\\\n  zz\n", "5: column 3: not a hexadecimal byte"},
        {"\"x\"=hex:01,\\\n\n\"y\"=dword:1", "3: the hexadecimal bytes end"},
        {"\"x\"=hex(:01", "3: column 5: the type is not written"},
        {"\"x\"=hex(123456789):01", "3: column 5: the type is not written"},
        {"\"x\"=qword:1", "3: column 5: unknown kind of data; expected a quoted text, dword:, hex: or hex(NUMBER):"},
        {"\"x\"=", "3: the value's data is missing"},
        {"\"x\"", "3: '=' is missing"},
        {"\"x=dword:1", "3: a quoted text that begins here is not closed"},
        {"\n\n\"x\"=\"abc\n\"y\"=dword:1", "5: "},
        {"\"x\"=\"C:\\temp\"", "3: unknown escape \"\\t\""},
        {"\"x\"=\"a\" b", "3: column 9: text after the value's data"},
        {"\"x\"=\"a\"\"b\"", "3: column 8: text after"},
        {"\"x\"=-1", "3: column 6: text after"},
        {"x=dword:1", "3: expected a key in brackets, a value or a comment, not \"x\""},
        {"\"ProtectKey\"=hex:01,02\n  aa,bb\n", "4: column 3: expected a key in brackets, a value or a comment"},
        {"[HKLM\\a", "3: the bracket of the key is not closed"},
        {"[HKXX\\a]", "3: the key does not begin with a known hive"},
        {"[]", "3: the key does not begin with a known hive"},
        {"[HKLM\\a] x", "3: text after the key's closing bracket"},
        {"[-HKLM\\a]\n\"x\"=dword:1", "4: a value without a key"},
        {std::string("\"a\0b\"=dword:1", 13), "3: the value's name holds a NUL"},
        {std::string("\"a\"=\"\0\"", 7), "3: the value's text holds a NUL"},
        {"\"\xFF\"=dword:1", "3: the text is not well-formed UTF-8"},
        {"\"x\"=dword\n\"\xFF\"=dword:1", "3: column 5: unknown kind of data"}, // the first one counts
        {"[HKLM\\" + std::string(300, 'k') + "]", "3: the key name \"kkk"},
    };
    for (const auto& [line, message] : lines) {
        EXPECT_EQ(ImportedLines(line + "\n").find("f.reg:" + message), 0U) << line << " gave " << ImportedLines(line);
    }
    const std::pair<std::string, std::string> files[] = {
        {"", "f.reg:1: this is not a registry export"},
        {"\"quoted\nfile\"\n", "f.reg:1: this is not a registry export: it begins with \"\"quoted\""},
        {"\n\n", "f.reg:3: this is not a registry export"},
        {"\n[HKLM\\a]\n", "f.reg:2: this is not a registry export: it begins with \"[HKLM\\a]\""},
        {"Windows Registry Editor Version 6.00\n", "f.reg:1: this is not a registry export"},
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
    std::ostringstream utf8;
    Put(*store, L"u", L"\u4e2d", SzBytes(L"\U0001F4B6"), ValueType::Sz);
    ASSERT_TRUE(ExportRegFile(*store, Hive::LocalMachine, L"u", utf8, error, ExportEncoding::Utf8)) << error.message;
    EXPECT_EQ(utf8.str(), "Windows Registry Editor Version 5.00\r\n\r\n[HKEY_LOCAL_MACHINE\\u]\r\n"
                          "\"\xe4\xb8\xad\"=\"\xf0\x9f\x92\xb6\"\r\n\r\n");
    EXPECT_EQ(Import(utf8.str(), *Open("memory:")), "");
    Put(*store, L"u", std::wstring{static_cast<wchar_t>(0xD83D)}, DwordBytes(1));
    EXPECT_FALSE(ExportRegFile(*store, Hive::LocalMachine, L"u", utf8, error, ExportEncoding::Utf8));
    EXPECT_EQ(error.kind, ErrorKind::BadText) << error.message;
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

    // All of SOFTWARE: what is there for 32-bit programs, and what the export has for none.
    WriteFile(path, "REGEDIT4\n[HKLM\\SOFTWARE\\WOW6432Node\\TARNO\\Driver]\n\"n\"=dword:32\n"
                    "[HKLM\\SOFTWARE\\TARNO\\Driver]\n\"n\"=dword:64\n[HKLM\\SOFTWARE\\TARNO\\Other]\n\"n\"=dword:64\n"
                    "[HKLM\\SOFTWARE\\XFS\\Dev]\n\"n\"=dword:64\n[HKLM\\SOFTWARE\\Vexo]\n\"n\"=dword:64\n");
    const auto both = Open("reg:" + path, {.view32 = true});
    EXPECT_EQ(Get(*both, L"software\\tarno\\Driver", L"n"), "4:32000000");
    EXPECT_EQ(Get(*both, L"SOFTWARE\\TARNO\\Other", L"n"), "missing");
    EXPECT_EQ(Get(*both, L"SOFTWARE\\XFS\\Dev", L"n"), "missing");
    EXPECT_EQ(Get(*both, L"SOFTWARE\\Vexo", L"n"), "4:64000000");
    EXPECT_EQ(Get(*Open("reg:" + path), L"SOFTWARE\\TARNO\\Driver", L"n"), "4:64000000");

    // Without the option, its service providers would all seem to have no settings.
    WriteFile(path, "REGEDIT4\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\XFS\\Dev]\n\"n\"=dword:32\n");
    Error error;
    EXPECT_FALSE(OpenStore("reg:" + path, {}, error));
    EXPECT_NE(error.message.find("--view32"), std::string::npos) << error.message;
    EXPECT_EQ(Get(*Open("reg:" + path, {.view32 = true}), L"SOFTWARE\\XFS\\Dev", L"n"), "4:32000000");

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

TEST(RegFileTest, ALineWithoutAnEndIsNotReadOn)
{
    class Nothing final : public RegFileVisitor
    {
        bool Key(Hive, std::wstring_view, Error&) override { return true; }
        bool DeleteKey(Hive, std::wstring_view, Error&) override { return true; }
        bool Value(std::wstring_view, const ValueView&, Error&) override { return true; }
        bool DeleteValue(std::wstring_view, Error&) override { return true; }
    };
    const std::string piece(std::size_t{1} << 20, 'x');
    struct Case
    {
        std::string begin;
        std::size_t most; // pieces
        const char* line;
    };
    std::string wide;
    for (const char unit : std::string_view("Windows Registry Editor Version 5.00\n\n[HKEY_USERS\\a]\n\"x\"=\"")) {
        wide += unit;
        wide += '\0';
    }
    const auto most = kLongestRegFileLine / piece.size();
    for (const auto& [begin, pieces, line] :
         {Case{"REGEDIT4\n[HKEY_USERS\\a]\n\"x\"=\"", most, "file:3:"},
          Case{"REGEDIT4\n;\n[HKEY_USERS\\a]\n; \xe4\n\n;", most, "file:6:"}, Case{wide, 2 * most, "file:4:"}}) {
        Nothing visitor;
        RegFileParser parser("file", visitor);
        Error error;
        EXPECT_TRUE(parser.Feed(begin, error)) << error.message;
        std::size_t fed = 1;
        while (fed <= pieces && parser.Feed(piece, error)) {
            ++fed;
        }
        EXPECT_EQ(fed, pieces) << line;
        EXPECT_EQ(error.message, line + std::string(" the line is longer than 33554432 characters"));
    }
}

} // namespace wqspcfg::test
