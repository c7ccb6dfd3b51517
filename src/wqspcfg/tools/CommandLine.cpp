#include "wqspcfg/tools/CommandLine.h"

#include "wqspcfg/core/SavePolicy.h"
#include "wqspcfg/diagnosis/Nearest.h"
#include "wqspcfg/platform/store/LockWait.h"
#include "wqspcfg/tools/ChangeCommand.h"
#include "wqspcfg/tools/CheckCommand.h"
#include "wqspcfg/tools/DiffCommand.h"
#include "wqspcfg/tools/ExplainCommand.h"
#include "wqspcfg/tools/HelpText.h"
#include "wqspcfg/tools/MaintenanceCommands.h"
#include "wqspcfg/tools/ReferenceText.h"
#include "wqspcfg/tools/ReportCommand.h"
#include "wqspcfg/tools/ServiceCommands.h"
#include "wqspcfg/tools/StoreCommands.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <optional>

namespace wqspcfg::tools {

namespace {

constexpr char kKeyHelp[] = "A path that begins with its hive, such as HKLM\\SOFTWARE\\XFS\\SERVICE_PROVIDERS";
constexpr char kNameHelp[] = "The value name; an empty one is the key's default value";
constexpr char kJsonHelp[] = "Print JSON, for other programs";
constexpr char kDryRunHelp[] = "Print what would be added (+), changed (~) and deleted (-), and change nothing";

// Of an option or argument that names a file.
const CLI::Validator kNamed([](const std::string& text) { return text.empty() ? "the name is empty" : ""; }, "");

// The library passes over what it does not understand; whoever runs the program is told.
void NoteVariables(const Console& console)
{
    const auto note = [&console](const char* name, const char* value, const std::string& allowed) {
        console.Note("warning: the environment variable " + std::string(name) + " is \"" + value + "\", which is not " +
                     allowed + "; it has no effect");
    };
    constexpr char kTimeout[] = "WQSPCFG_LOCK_TIMEOUT";
    constexpr char kPolicy[] = "WQSPCFG_SAVE_POLICY";
    std::chrono::milliseconds timeout{};
    if (const auto* text = std::getenv(kTimeout); text != nullptr && !ParseLockTimeout(text, timeout)) {
        note(kTimeout, text, "a number of seconds from 0 to 1000000");
    }
    SavePolicy policy{};
    if (const auto* text = std::getenv(kPolicy); text != nullptr && !ParseSavePolicy(text, policy)) {
        note(kPolicy, text, "own-changes or all");
    }
}

int WritePages(const std::string& directory, const Console& console)
{
    const std::filesystem::path folder(std::u8string(directory.begin(), directory.end()));
    std::error_code code;
    std::filesystem::create_directories(folder, code);
    for (const auto& [name, text] : ReferencePages()) {
        std::ofstream file(folder / name, std::ios::binary | std::ios::trunc);
        file << text;
        file.close();
        if (!file) {
            return console.Fail(kFailed, "cannot write " + directory + "/" + name);
        }
    }
    return kDone;
}

// Whether a command opens a store; the options that tell how are wrong usage elsewhere.
enum class Uses
{
    Store,
    Nothing,
};

// --dry-run and --json of a command that prints nothing without them.
struct DryRun
{
    bool isOn = false;
    bool json = false;
};

// The command line: a function for each command declares it. What its options are stored in belongs to the command.
class Program
{
  public:
    explicit Program(const Console& console);

    int Run(std::vector<std::string> arguments);

  private:
    CLI::App& Add(const char* name, const char* description, std::function<int()> run, Uses uses = Uses::Store);

    void AddImport();
    void AddExport();
    void AddBackup();
    void AddRestore();
    void AddCompact();
    void AddStatus();
    void AddGet();
    void AddSet();
    void AddDelete();
    void AddList();
    void AddServices();
    void AddLoad();
    void AddSave();
    void AddExplain();
    void AddCheck();
    void AddDiff();
    void AddChange();
    void AddReport();
    void AddModels();
    void AddReference();
    void AddHelp();
    static void AddServiceOptions(CLI::App& command, ServiceChoice& service);
    static void AddDryRun(CLI::App& command, DryRun& options);
    std::optional<PreviewOptions> Preview(const DryRun& options) const;

    [[noreturn]] void FailUnknownCommand(const std::string& name) const;
    [[noreturn]] void FailWithoutCommand() const;

    const Console& m_console;
    CLI::App m_app{"Shows, changes, imports and exports the settings of XFS service providers, and loads them as a "
                   "service provider does.",
                   "wqspcfg"};
    StoreChoice m_store;
    std::function<int()> m_command;
};

Program::Program(const Console& console) : m_console(console)
{
    m_store.note = [this](const std::string& message) { m_console.Note(message); };
    m_app.set_version_flag("--version", std::string("wqspcfg ") + WQSPCFG_VERSION, "Print the version");
    m_app.set_help_flag("-h,--help", "Print this help");
    m_app.require_subcommand(1);
    m_app.fallthrough();                      // the options below may stand after the command
    m_app.allow_windows_style_options(false); // "/x" may be a path or data
    m_app.get_formatter()->label("SUBCOMMAND", "COMMAND");
    m_app.footer("Data goes to standard output, messages go to standard error.\n"
                 "Exit status: 0 done; 1 a negative answer (there are findings or differences, there is no such key, "
                 "value, service or setting, or Load returned false); 2 wrong usage; 3 the store or a file failed.");
    m_app
        .add_option_function<std::string>(
            "--store", [this](const std::string& address) { m_store.address = address; },
            "lmdb:DIRECTORY, reg:FILE, hive:DIRECTORY, hive:FILE, memory:, windows:, windows:32 or windows:64. "
            "Default: the environment variable WQSPCFG_STORE, else the store of the platform")
        ->option_text("ADDRESS");
    m_app.add_flag("--view32", m_store.view32,
                   "Take the keys of 32-bit programs: SOFTWARE\\WOW6432Node of a reg: or hive: store or an imported "
                   "file as SOFTWARE, and the 32-bit view of windows:");
    m_app
        .add_option("--codepage", m_store.codePage,
                    "Code page of REGEDIT4 text in a reg: store or an imported file, such as 936 or 1252. Default: the "
                    "text must be ASCII or UTF-8")
        ->check(CLI::Range(1U, 65535U))
        ->option_text("N");
    m_app.add_flag("--secrets", m_store.secrets,
                   "Show keys and passwords, which are masked without it in all that is printed; only load "
                   "and export hold them always");
    AddServices();
    AddExplain();
    AddReport();
    AddCheck();
    AddDiff();
    AddChange();
    AddLoad();
    AddSave();
    AddImport();
    AddExport();
    AddGet();
    AddSet();
    AddDelete();
    AddList();
    AddBackup();
    AddRestore();
    AddCompact();
    AddStatus();
    AddModels();
    AddReference();
    AddHelp();
    for (auto* command : m_app.get_subcommands({})) {
        command->footer("`wqspcfg --help` lists the options of all commands, such as --store, and the exit status.");
        for (auto* option : command->get_options()) {
            if (option->get_positional()) {
                option->type_name(""); // its name says it
            }
        }
    }
}

CLI::App& Program::Add(const char* name, const char* description, std::function<int()> run, Uses uses)
{
    auto* command = m_app.add_subcommand(name, description);
    command->group("Commands");
    command->callback([this, name, uses, run = std::move(run)] {
        if (uses == Uses::Nothing && (m_store.view32 || m_store.codePage != 0)) {
            throw UsageError(std::string(m_store.view32 ? "--view32" : "--codepage") + " does not apply to " + name);
        }
        if (uses == Uses::Store) {
            NoteVariables(m_console);
        }
        m_command = run;
    });
    return *command;
}

void Program::AddDryRun(CLI::App& command, DryRun& options)
{
    auto* dryRun = command.add_flag("--dry-run", options.isOn, kDryRunHelp);
    command.add_flag("--json", options.json, "Print what --dry-run tells as JSON, for other programs")->needs(dryRun);
}

std::optional<PreviewOptions> Program::Preview(const DryRun& options) const
{
    return options.isOn ? std::optional(PreviewOptions{m_store.secrets, options.json, SourceOf(m_store)})
                        : std::nullopt;
}

void Program::AddImport()
{
    struct Options
    {
        std::vector<std::string> files;
        DryRun dryRun;
    };
    const auto options = std::make_shared<Options>();
    auto& command = Add("import", "Merge registry exports into the store, each file whole or not at all",
                        [=, this] { return Import(m_store, options->files, Preview(options->dryRun), m_console); });
    command.add_option("FILE", options->files, "Registry exports; - is standard input")->required()->check(kNamed);
    AddDryRun(command, options->dryRun);
}

void Program::AddExport()
{
    struct Options
    {
        std::string key;
        std::string file;
        bool utf8 = false;
    };
    const auto options = std::make_shared<Options>();
    auto& command = Add("export", "Write a key and all below it, or the whole store, as a registry export", [=, this] {
        return Export(m_store, options->key, options->file,
                      options->utf8 ? ExportEncoding::Utf8 : ExportEncoding::Utf16, m_console);
    });
    command.add_option("KEY", options->key, kKeyHelp);
    command.add_option("-o", options->file, "The file to write. Default: standard output")
        ->check(kNamed)
        ->option_text("FILE");
    command.add_flag("--utf8", options->utf8,
                     "Write UTF-8, for other programs than regedit. Default: UTF-16, as regedit writes it");
}

void Program::AddBackup()
{
    const auto file = std::make_shared<std::string>();
    auto& command = Add("backup", "Write a consistent copy of the embedded store to a file, also while it is in use",
                        [=, this] { return BackUp(m_store, *file, m_console); });
    command.add_option("FILE", *file, "The file to write; it is replaced once the copy is complete")
        ->required()
        ->check(kNamed);
}

void Program::AddRestore()
{
    struct Options
    {
        std::string file;
        DryRun dryRun;
    };
    const auto options = std::make_shared<Options>();
    auto& command = Add("restore", "Check a backup, and replace the whole content of the embedded store by it",
                        [=, this] { return Restore(m_store, options->file, Preview(options->dryRun), m_console); });
    command.add_option("FILE", options->file, "A file that backup has written")->required()->check(kNamed);
    AddDryRun(command, options->dryRun);
}

void Program::AddCompact()
{
    Add("compact", "Give the space that the embedded store no longer needs back, also while it is in use",
        [this] { return Compact(m_store, m_console); });
}

void Program::AddStatus()
{
    const auto options = std::make_shared<StatusOptions>();
    auto& command = Add("status", "Show the embedded store's size, free space, readers and last writer",
                        [=, this] { return ShowStatus(m_store, *options, m_console); });
    command.add_flag("--verify", options->verify, "Check every page and value too; exit status 1 when one is damaged");
    command.add_flag("--json", options->json, kJsonHelp);
}

void Program::AddGet()
{
    struct Options
    {
        std::string key;
        std::string name;
        bool json = false;
    };
    const auto options = std::make_shared<Options>();
    auto& command = Add("get",
                        "Print one value: a text as it stands, escaped on a terminal only; a key or password only with "
                        "--secrets",
                        [=, this] { return Get(m_store, options->key, options->name, options->json, m_console); });
    command.add_option("KEY", options->key, kKeyHelp)->required();
    command.add_option("NAME", options->name, kNameHelp)->required();
    command.add_flag("--json", options->json, kJsonHelp);
}

void Program::AddSet()
{
    struct Options
    {
        std::string key;
        std::string name;
        std::string data;
        std::string type;
    };
    const auto options = std::make_shared<Options>();
    auto& command = Add("set", "Set one value", [=, this] {
        const auto& type = options->type;
        return Set(m_store, options->key, options->name, options->data,
                   type.empty()   ? DataType::Auto
                   : type == "sz" ? DataType::Sz
                                  : DataType::Dword,
                   m_console);
    });
    command.add_option("KEY", options->key, kKeyHelp)->required();
    command.add_option("NAME", options->name, kNameHelp)->required();
    command
        .add_option("DATA", options->data,
                    "A text, or a number in decimal or as 0x...; put -- before DATA that starts with a dash")
        ->required();
    command
        .add_option("--type", options->type,
                    "sz or dword. Default: the type of the value that is there; for a new value the type that a "
                    "service reads, else dword when DATA is a number, else sz")
        ->check(CLI::IsMember({"sz", "dword"}))
        ->option_text("TYPE");
}

void Program::AddDelete()
{
    struct Options
    {
        std::string key;
        std::string name;
        CLI::Option* nameOption = nullptr;
        DeleteOptions what;
        DryRun dryRun;
    };
    const auto options = std::make_shared<Options>();
    auto& command = Add("delete", "Delete one value, or a key with its values", [=, this] {
        auto what = options->what;
        if (options->nameOption->count() != 0) {
            what.name = options->name;
        }
        what.preview = Preview(options->dryRun);
        return Delete(m_store, options->key, what, m_console);
    });
    command.add_option("KEY", options->key, kKeyHelp)->required();
    options->nameOption = command.add_option("NAME", options->name, kNameHelp);
    command.add_flag("--recursive", options->what.recursive, "Delete the subkeys of the key too");
    AddDryRun(command, options->dryRun);
}

void Program::AddList()
{
    struct Options
    {
        std::string key;
        ListOptions how;
    };
    const auto options = std::make_shared<Options>();
    auto& command = Add("ls", "List the subkeys and values of a key, or the hives; values as name, type and data",
                        [=, this] { return List(m_store, options->key, options->how, m_console); });
    command.add_option("KEY", options->key, kKeyHelp);
    command.add_flag("-R,--recursive", options->how.recursive, "List all below the key, each line with its path");
    command.add_flag("--json", options->how.json, kJsonHelp);
}

void Program::AddServices()
{
    const auto json = std::make_shared<bool>(false);
    auto& command =
        Add("services",
            "List the services, separated by tabs: name, logical or physical, class, device key, model class, reason "
            "for the model class",
            [=, this] { return ListServices(m_store, *json, m_console); });
    command.add_flag("--json", *json, kJsonHelp);
}

void Program::AddServiceOptions(CLI::App& command, ServiceChoice& service)
{
    command.add_option("SERVICE", service.name, "The service name")->required();
    command.add_flag("--physical", service.physical, "SERVICE is a physical name");
    command
        .add_option("--model", service.model,
                    "The class to load; class bases are allowed. Default: detected from the service")
        ->option_text("CLASS");
}

void Program::AddLoad()
{
    struct Options
    {
        ServiceChoice service;
        LoadOptions how;
    };
    const auto options = std::make_shared<Options>();
    auto& command = Add("load", "Load the configuration of a service and print each log line; the store is not changed",
                        [=, this] { return LoadService(m_store, options->service, options->how, m_console); });
    AddServiceOptions(command, options->service);
    command.add_flag("--write-back", options->how.writeBack, "Write to the store what the class writes while it loads");
    command.add_flag("--json", options->how.json, kJsonHelp);
}

void Program::AddSave()
{
    struct Options
    {
        ServiceChoice service;
        DryRun dryRun;
    };
    const auto options = std::make_shared<Options>();
    auto& command = Add("save", "Load the configuration of a service and save it, in one write transaction", [=, this] {
        return SaveService(m_store, options->service, Preview(options->dryRun), m_console);
    });
    AddServiceOptions(command, options->service);
    AddDryRun(command, options->dryRun);
}

void Program::AddExplain()
{
    struct Options
    {
        ServiceChoice service;
        ExplainOptions what;
    };
    const auto options = std::make_shared<Options>();
    auto& command =
        Add("explain", "Show each setting of a service: its value in effect, where that comes from, and why",
            [=, this] { return Explain(m_store, options->service, options->what, m_console); });
    AddServiceOptions(command, options->service);
    command.add_option("SETTING", options->what.setting, "A setting's name, or Key\\Name. Default: all");
    command.add_flag("--changed", options->what.changed, "Show only what differs from the default, as a table");
    command.add_flag("--json", options->what.json, kJsonHelp);
}

void Program::AddCheck()
{
    const auto options = std::make_shared<CheckCommandOptions>();
    auto& command = Add("check", "Tell what is wrong with the configuration of the terminal, or of some services",
                        [=, this] { return CheckTerminal(m_store, *options, m_console); });
    command.add_option(
        "SERVICE", options->services,
        "Services by name, or by their service providers' names where no service has that name. Default: "
        "the whole terminal");
    command.add_flag("--physical", options->physical, "SERVICE is the name of a service provider");
    command.add_flag("--strict", options->strict, "Let warnings count for the exit status too");
    command.add_flag("--json", options->json, kJsonHelp);
}

void Program::AddDiff()
{
    const auto options = std::make_shared<DiffOptions>();
    auto& command = Add("diff", "Compare two terminals by the values in effect, defaults included",
                        [=, this] { return Diff(m_store, *options, m_console); });
    command.add_option("LEFT", options->left, "The address of a store, as --store takes it")->required();
    command.add_option("RIGHT", options->right, "The address of the other one")->required();
    command.add_option("SERVICE", options->services, "Services by name. Default: all");
    command.add_flag("--raw", options->raw, "Compare the stored values, key by key");
    command.add_flag("--json", options->json, kJsonHelp);
}

void Program::AddChange()
{
    struct Options
    {
        ServiceChoice service;
        ChangeOptions what;
    };
    const auto options = std::make_shared<Options>();
    auto& command = Add("change", "Set settings of a service by their names, all in one write transaction or none",
                        [=, this] { return Change(m_store, options->service, options->what, m_console); });
    AddServiceOptions(command, options->service);
    command.add_option(
        "SETTING", options->what.values,
        "NAME=VALUE: a setting's name, or Key\\Name, and its new value: a text, a number in decimal or as 0x..., or "
        "the word of an allowed value");
    command.add_option("--unset", options->what.unset, "Delete the value of this setting; may be given several times")
        ->allow_extra_args(false)
        ->option_text("NAME");
    command.add_flag("--dry-run", options->what.dryRun, "Print the changes and change nothing");
    command.add_flag("--json", options->what.json, kJsonHelp);
}

void Program::AddReport()
{
    const auto options = std::make_shared<ReportCommandOptions>();
    auto& command = Add("report", "Write the terminal's settings and findings as a page for a browser",
                        [=, this] { return Report(m_store, *options, m_console); });
    command.add_option("-o", options->file, "The file to write. Default: standard output")
        ->check(kNamed)
        ->option_text("FILE");
    command
        .add_option_function<std::string>(
            "--against", [=](const std::string& address) { options->against = address; },
            "Show how the settings differ from those of another store")
        ->option_text("ADDRESS");
}

void Program::AddModels()
{
    const auto json = std::make_shared<bool>(false);
    auto& command = Add(
        "models", "List every class, separated by tabs: name, base, device class",
        [=, this] { return ListModels(*json, m_console); }, Uses::Nothing);
    command.add_flag("--json", *json, kJsonHelp);
}

void Program::AddReference()
{
    struct Options
    {
        std::string className;
        std::string format = "text";
        std::string pages;
    };
    const auto options = std::make_shared<Options>();
    auto& command = Add(
        "reference", "Print every setting of every class, or of one class with what it inherits",
        [=, this]() -> int {
            if (!options->pages.empty()) {
                return WritePages(options->pages, m_console);
            }
            const ClassEntry* only = nullptr;
            if (!options->className.empty() && (only = FindClass(Wide(options->className))) == nullptr) {
                throw UsageError(NoClass(options->className));
            }
            WriteReference(only,
                           options->format == "json"       ? ReferenceFormat::Json
                           : options->format == "html"     ? ReferenceFormat::Html
                           : options->format == "markdown" ? ReferenceFormat::Markdown
                                                           : ReferenceFormat::Text,
                           m_console.out);
            return kDone;
        },
        Uses::Nothing);
    command.add_option("CLASS", options->className, "The name of a class");
    command.add_option("--format", options->format, "text, markdown, json or html. Default: text")
        ->check(CLI::IsMember({"text", "markdown", "json", "html"}))
        ->option_text("FORMAT");
    command.add_option("--pages", options->pages, "Write a Markdown page for each device class into this directory")
        ->check(kNamed)
        ->option_text("DIRECTORY");
}

void Program::AddHelp()
{
    struct Options
    {
        std::string name;
        bool man = false;
        bool completion = false;
    };
    const auto options = std::make_shared<Options>();
    auto& command = Add(
        "help", "Print the help of a command, or this help",
        [=, this]() -> int {
            if (options->man) {
                m_console.out << ManPage(m_app, WQSPCFG_VERSION);
            } else if (options->completion) {
                m_console.out << BashCompletion(m_app);
            } else if (options->name.empty()) {
                m_console.out << m_app.help();
            } else {
                const auto commands =
                    m_app.get_subcommands([&](const CLI::App* each) { return each->get_name() == options->name; });
                if (commands.empty()) {
                    FailUnknownCommand(options->name);
                }
                m_console.out << commands[0]->help("wqspcfg");
            }
            return kDone;
        },
        Uses::Nothing);
    command.add_option("COMMAND", options->name, "The name of a command");
    command.add_flag("--man", options->man, "Print the manual page");
    command.add_flag("--completion", options->completion, "Print the completion script for bash");
}

void Program::FailUnknownCommand(const std::string& name) const
{
    std::vector<std::string> commands;
    for (const auto* command : m_app.get_subcommands({})) {
        commands.push_back(command->get_name());
    }
    throw UsageError("unknown command \"" + name + "\"; did you mean \"" + diagnosis::Nearest(name, commands) +
                     "\"? `wqspcfg --help` lists the commands");
}

// After a command line that names none.
void Program::FailWithoutCommand() const
{
    for (const auto& rest : m_app.remaining()) {
        if (rest.starts_with('-')) {
            throw UsageError("unknown option " + rest + "; `wqspcfg --help` lists the options");
        }
        FailUnknownCommand(rest);
    }
    throw UsageError("no command is given; `wqspcfg --help` lists the commands");
}

int Program::Run(std::vector<std::string> arguments)
{
    try {
        std::reverse(arguments.begin(), arguments.end()); // as CLI11 takes them
        m_app.parse(std::move(arguments));
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) { // --help, --version
            m_app.exit(error, m_console.out, m_console.err);
            return kDone;
        }
        const auto commands = m_app.get_subcommands();
        if (commands.empty() && dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) {
            FailWithoutCommand();
        }
        const auto help = commands.empty() ? std::string("wqspcfg --help") : "wqspcfg help " + commands[0]->get_name();
        throw UsageError(error.what() + ("; see `" + help + '`'));
    }
    return m_command();
}

} // namespace

int Run(const std::vector<std::string>& arguments, std::istream& in, std::ostream& out, std::ostream& err,
        bool outIsTerminal)
{
    const Console console{in, out, err, outIsTerminal};
    int status = kDone;
    try {
        status = Program(console).Run(arguments);
    } catch (const UsageError& error) {
        return console.Fail(kUsage, error.what());
    } catch (const std::exception& error) {
        return console.Fail(kFailed, error.what());
    }
    out.flush();
    // A command that failed has said why.
    return out || status == kFailed ? status : console.Fail(kFailed, "cannot write to standard output");
}

} // namespace wqspcfg::tools
