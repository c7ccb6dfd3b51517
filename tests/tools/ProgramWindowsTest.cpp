// The program itself, on the registry of the machine.
#include "wqspcfg/platform/base/WinTypes.h"

#include "support/StoreTesting.h"
#include "wqspcfg/platform/store/regfile/RegFile.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace wqspcfg::test {

namespace {

constexpr wchar_t kMarker[] = L"SOFTWARE\\WQSpCfgProgramTest";
constexpr wchar_t kComm[] = L"HKLM\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSpCRDWQTYM1200\\Comm";

struct TerminalKey
{
    Hive hive;
    const wchar_t* path;
};
constexpr TerminalKey kTerminalKeys[] = {
    {Hive::LocalMachine, L"SOFTWARE\\XFS"}, {Hive::LocalMachine, L"SOFTWARE\\TARNO"}, {Hive::Users, L".DEFAULT\\XFS"}};

// As the C runtime and CommandLineToArgvW take it apart again.
std::wstring Quoted(const std::wstring& argument)
{
    std::wstring text = L"\"";
    std::size_t backslashes = 0;
    for (const auto ch : argument) {
        if (ch == L'"') {
            text.append(backslashes + 1, L'\\');
        }
        backslashes = ch == L'\\' ? backslashes + 1 : 0;
        text.push_back(ch);
    }
    return text.append(backslashes, L'\\') + L'"';
}

HANDLE OpenInheritable(const std::filesystem::path& path, DWORD access, DWORD creation)
{
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    return CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, creation,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

class ProgramTest : public testing::Test
{
  protected:
    // A machine that is a terminal keeps its configuration.
    void SetUp() override
    {
        SetEnvironmentVariableW(L"WQSPCFG_STORE", nullptr);
        if (!Exists(Hive::LocalMachine, kMarker)) {
            for (const auto& [hive, path] : kTerminalKeys) {
                if (Exists(hive, path)) {
                    GTEST_SKIP() << "this machine has a configuration of its own";
                }
            }
        }
        Wipe();
        Put(*store, kMarker, L"", DwordBytes(1));
        marked = true;
    }

    void TearDown() override
    {
        if (marked) {
            Wipe();
        }
    }

    void Wipe()
    {
        for (const auto& each : {store, Open("windows:32")}) {
            const auto transaction = Begin(*each, Access::Write);
            for (const auto& [hive, path] : kTerminalKeys) {
                EXPECT_NE(transaction->DeleteKey(hive, path), Outcome::Failed) << transaction->LastError().message;
            }
            EXPECT_NE(transaction->DeleteKey(Hive::LocalMachine, kMarker), Outcome::Failed);
            EXPECT_EQ(transaction->Commit(false), Outcome::Found);
        }
    }

    bool Exists(Hive hive, const wchar_t* path)
    {
        KeyId key = 0;
        return Begin(*store, Access::Read)->OpenKey(hive, path, key) == Outcome::Found;
    }

    // Runs the program to its end and returns its exit status; what it wrote is in `out` and `err`.
    int Run(const std::vector<std::wstring>& arguments, const std::filesystem::path& input = L"NUL")
    {
        wchar_t own[MAX_PATH] = {};
        GetModuleFileNameW(nullptr, own, MAX_PATH);
        const auto program = std::filesystem::path(own).parent_path() / L"wqspcfg.exe";
        std::wstring line = Quoted(program.wstring());
        for (const auto& argument : arguments) {
            line += L' ' + Quoted(argument);
        }
        STARTUPINFOW startup{};
        startup.cb = sizeof(startup);
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdInput = OpenInheritable(input, GENERIC_READ, OPEN_EXISTING);
        startup.hStdOutput = OpenInheritable(directory.Path() / "out", GENERIC_WRITE, CREATE_ALWAYS);
        startup.hStdError = OpenInheritable(directory.Path() / "err", GENERIC_WRITE, CREATE_ALWAYS);
        PROCESS_INFORMATION process{};
        DWORD status = STILL_ACTIVE;
        if (CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                           &process) != 0) {
            WaitForSingleObject(process.hProcess, INFINITE);
            GetExitCodeProcess(process.hProcess, &status);
            CloseHandle(process.hThread);
            CloseHandle(process.hProcess);
        } else {
            ADD_FAILURE() << "cannot start " << program << ": " << GetLastError();
        }
        for (const auto handle : {startup.hStdInput, startup.hStdOutput, startup.hStdError}) {
            CloseHandle(handle);
        }
        out = ReadFile(directory.File("out"));
        err = ReadFile(directory.File("err"));
        return static_cast<int>(status);
    }

    TemporaryDirectory directory;
    std::shared_ptr<Store> store = Open("windows:");
    std::string out;
    std::string err;
    bool marked = false;
};

} // namespace

TEST_F(ProgramTest, TheExampleTerminalIsImportedLoadedAndExported)
{
    const auto terminal = std::filesystem::path(WQSPCFG_SOURCE_DIR) / "examples" / "terminal.reg";
    ASSERT_EQ(Run({L"import", terminal.wstring()}), 0) << err;
    ASSERT_EQ(Run({L"services"}), 0) << err;
    std::istringstream services(out);
    int count = 0;
    for (std::string name; std::getline(services, name, '\t'); ++count) {
        std::string kind;
        std::string rest;
        std::getline(services, kind, '\t');
        std::getline(services, rest);
        std::vector<std::wstring> arguments{L"load", std::wstring(name.begin(), name.end())};
        if (kind == "physical") {
            arguments.emplace_back(L"--physical");
        }
        EXPECT_EQ(Run(arguments), 0) << name << '\n' << err;
        EXPECT_EQ(out.substr(0, 6), "[CFG] ") << name;
    }
    EXPECT_EQ(count, 27);

    // An export holds what is in the registry, in a file of any name or on standard output.
    const auto file = directory.Path() / L"\u7ec8\u7aef.reg";
    ASSERT_EQ(Run({L"export", L"HKLM\\SOFTWARE\\XFS", L"-o", file.wstring()}), 0) << err;
    ASSERT_EQ(Run({L"export", L"HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS"}), 0) << err;
    std::ifstream written(file, std::ios::binary);
    const std::string exported(std::istreambuf_iterator<char>(written), {});
    EXPECT_TRUE(out == exported);
    const auto before = Dump(*store, L"SOFTWARE\\XFS");
    ASSERT_EQ(Run({L"delete", L"HKLM\\SOFTWARE\\XFS", L"--recursive"}), 0) << err;
    EXPECT_FALSE(Exists(Hive::LocalMachine, L"SOFTWARE\\XFS"));
    ASSERT_EQ(Run({L"import", L"-"}, file), 0) << err;
    EXPECT_EQ(Dump(*store, L"SOFTWARE\\XFS"), before);
}

TEST_F(ProgramTest, ValuesAreSetReadAndSavedInTheRegistry)
{
    ASSERT_EQ(Run({L"set", L"HKU\\.DEFAULT\\XFS\\LOGICAL_SERVICES\\Dispenser", L"Provider", L"Phys"}), 0) << err;
    ASSERT_EQ(Run({L"set", L"HKLM\\SOFTWARE\\XFS\\SERVICE_PROVIDERS\\Phys", L"Executable", L"WQSpCRDWQTYM1200.exe"}),
              0);
    ASSERT_EQ(Run({L"set", kComm, L"BaudRate", L"38400"}), 0);
    DWORD number = 0;
    DWORD size = sizeof(number);
    EXPECT_EQ(RegGetValueW(HKEY_LOCAL_MACHINE, kComm + 5, L"BaudRate", RRF_RT_REG_DWORD, nullptr, &number, &size),
              ERROR_SUCCESS);
    EXPECT_EQ(number, 38400U);
    ASSERT_EQ(Run({L"load", L"Dispenser"}), 0) << err;
    EXPECT_NE(out.find("BaudRate : 38400["), std::string::npos);
    ASSERT_EQ(Run({L"save", L"Dispenser"}), 0) << err;
    EXPECT_EQ(RegGetValueW(HKEY_LOCAL_MACHINE, kComm + 5, L"Port", RRF_RT_REG_DWORD, nullptr, &number, &size),
              ERROR_SUCCESS);
    EXPECT_EQ(number, 1U);

    // Any text, whatever the code page; a slash begins no option.
    ASSERT_EQ(Run({L"set", L"HKLM\\SOFTWARE\\XFS", L"Path", L"/dev/null"}), 0) << err;
    const std::wstring name = L"\u540d \"x\" \\";
    ASSERT_EQ(Run({L"set", L"HKLM\\SOFTWARE\\XFS\\\u952e", name, L"\u503c \U0001F4B6"}), 0) << err;
    ASSERT_EQ(Run({L"get", L"HKLM\\SOFTWARE\\XFS\\\u952e", name}), 0) << err;
    EXPECT_EQ(out, "\xe5\x80\xbc \xf0\x9f\x92\xb6\n");
    EXPECT_EQ(Get(*store, L"SOFTWARE\\XFS\\\u952e", name), "1:3c5020003dd8b6dc0000");
    EXPECT_EQ(Run({L"get", L"HKLM\\SOFTWARE\\XFS\\\u952e", L"none"}), 1);
    EXPECT_EQ(Run({L"get", L"HKLM"}), 2);
    EXPECT_EQ(Run({L"--store", L"lmdb:C:\\none", L"get", kComm, L"Port"}), 3);
    EXPECT_NE(err.find("not available on Windows"), std::string::npos) << err;
}

TEST_F(ProgramTest, TheViewOf32BitProgramsIsChosen)
{
    ASSERT_EQ(Run({L"--view32", L"set", kComm, L"Port", L"7"}), 0) << err;
    ASSERT_EQ(Run({L"--store", L"windows:32", L"get", kComm, L"Port"}), 0) << err;
    EXPECT_EQ(out, "7\n");
    EXPECT_EQ(Run({L"--store", L"windows:64", L"get", kComm, L"Port"}), 1);
    EXPECT_EQ(Run({L"--store", L"windows:64", L"get",
                   L"HKLM\\SOFTWARE\\WOW6432Node\\XFS\\PHYSICAL_SERVICES\\WQSpCRDWQTYM1200\\Comm", L"Port"}),
              0);
    EXPECT_EQ(Run({L"--store", L"windows:64", L"--view32", L"get", kComm, L"Port"}), 2);
    // What the 64-bit view exports is a terminal's file, and reads as a 32-bit program sees it.
    const auto file = directory.Path() / "export.reg";
    ASSERT_EQ(Run({L"--store", L"windows:64", L"export", L"HKLM\\SOFTWARE\\WOW6432Node\\XFS", L"-o", file.wstring()}),
              0);
    ASSERT_EQ(Run({L"--store", L"reg:" + file.wstring(), L"--view32", L"get", kComm, L"Port"}), 0) << err;
    EXPECT_EQ(out, "7\n");
}

} // namespace wqspcfg::test
