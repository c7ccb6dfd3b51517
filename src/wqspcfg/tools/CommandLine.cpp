#include "wqspcfg/tools/CommandLine.h"

#include "wqspcfg/tools/MaintenanceCommands.h"
#include "wqspcfg/tools/ReferenceText.h"
#include "wqspcfg/tools/ServiceCommands.h"
#include "wqspcfg/tools/StoreCommands.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <fstream>
#include <functional>

namespace wqspcfg::tools {

namespace {

constexpr char kKeyHelp[] = "A path with its hive, such as HKLM\\SOFTWARE\\XFS\\SERVICE_PROVIDERS";

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
            return console.Fail(kFailed, directory + "/" + name + ": cannot be written");
        }
    }
    return kDone;
}

int Execute(std::vector<std::string> arguments, const Console& console)
{
    CLI::App app("Settings of XFS service providers: shows, changes, imports and exports them, and loads them as a "
                 "service provider does.",
                 "wqspcfg");
    app.set_version_flag("--version", std::string("wqspcfg ") + WQSPCFG_VERSION);
    app.require_subcommand(1);
    app.allow_windows_style_options(false); // "/x" may be a path or data
    app.failure_message(CLI::FailureMessage::help);
    app.footer("Exit status: 0 done; 1 a negative answer; 2 wrong usage; 3 the store or a file failed.");

    StoreChoice store;
    app.add_option(
        "--store", store.address,
        "lmdb:DIRECTORY, reg:FILE, memory:, windows:, windows:32 or windows:64; else $WQSPCFG_STORE, else the "
        "platform's own store");
    app.add_flag("--view32", store.view32,
                 "See the keys of 32-bit programs: a reg: store's SOFTWARE\\WOW6432Node\\XFS as SOFTWARE\\XFS");

    std::function<int()> command;
    const auto add = [&](const char* name, const char* description, std::function<int()> run) {
        auto* sub = app.add_subcommand(name, description);
        sub->callback([&command, run = std::move(run)] { command = run; });
        return sub;
    };

    std::vector<std::string> files;
    auto* import = add("import", "Merge registry exports into the store, each file whole or not at all",
                       [&] { return Import(store, files, console); });
    import->add_option("FILE", files, "Registry exports; - is standard input")->required();

    std::string key;
    std::string file;
    auto* exporting = add("export", "Write a key and all below it, or the whole store, as a registry export",
                          [&] { return Export(store, key, file, console); });
    exporting->add_option("KEY", key, kKeyHelp);
    exporting->add_option("-o", file, "The file to write, in place of standard output")->option_text("FILE");

    add("backup", "Write a consistent copy of the embedded store, which may be in use, to a file",
        [&] { return BackUp(store, file, console); })
        ->add_option("FILE", file, "The file to write; what it held is replaced once the copy is complete")
        ->required();
    add("restore", "Check a backup and replace the embedded store's whole content by it, in one step",
        [&] { return Restore(store, file, console); })
        ->add_option("FILE", file, "A file that backup has written")
        ->required();

    add("compact", "Give the space that the embedded store, which may be in use, no longer needs back",
        [&] { return Compact(store, console); });
    bool verify = false;
    add("status", "Show the embedded store's size, its free space, its readers and its last writer", [&] {
        return ShowStatus(store, verify, console);
    })->add_flag("--verify", verify, "Check every page and value too; exit status 1 when one is damaged");

    std::string name;
    auto* get = add("get", "Print one value", [&] { return Get(store, key, name, console); });
    get->add_option("KEY", key, kKeyHelp)->required();
    get->add_option("NAME", name, "The value name; empty for the key's default value")->required();

    std::string data;
    std::string type;
    auto* set = add("set", "Set one value", [&] {
        return Set(store, key, name, data,
                   type.empty()   ? DataType::Auto
                   : type == "sz" ? DataType::Sz
                                  : DataType::Dword,
                   console);
    });
    set->add_option("KEY", key, kKeyHelp)->required();
    set->add_option("NAME", name, "The value name; empty for the key's default value")->required();
    set->add_option("DATA", data, "A text, or a number in decimal or as 0x...; after -- it may begin with a dash")
        ->required();
    set->add_option("--type", type,
                    "sz or dword. Without it a value keeps its type; a new one is a dword when DATA is a number, and "
                    "else a sz")
        ->check(CLI::IsMember({"sz", "dword"}));

    auto* remove = app.add_subcommand("delete", "Delete one value, or a key and all below it");
    remove->add_option("KEY", key, kKeyHelp)->required();
    auto* removeName = remove->add_option("NAME", name, "The value name; empty for the key's default value");
    remove->callback([&] {
        command = [&] {
            return Delete(store, key, removeName->count() != 0 ? std::optional(name) : std::nullopt, console);
        };
    });

    auto* list =
        add("ls", "List the subkeys and values of a key, or the hives", [&] { return List(store, key, console); });
    list->add_option("KEY", key, kKeyHelp);

    add("services",
        "List the services, tab-separated: name, logical or physical, class, device key, model class, what told it",
        [&] { return ListServices(store, console); });

    ServiceChoice service;
    const auto addService = [&](CLI::App* sub) {
        sub->add_option("SERVICE", service.name, "The service name")->required();
        sub->add_flag("--physical", service.physical, "SERVICE is a physical name");
        sub->add_option("--model", service.model, "The class, a class base too; else what the service tells")
            ->option_text("CLASS");
    };
    addService(add("load", "Load the service's configuration and print each log line",
                   [&] { return LoadService(store, service, console); }));
    addService(add("save", "Load the service's configuration and save it",
                   [&] { return SaveService(store, service, console); }));

    add("models", "List every class, tab-separated: name, base, device class", [&] { return ListModels(console); });

    std::string className;
    std::string format = "text";
    std::string pages;
    auto* reference =
        add("reference", "Print every setting of every class, or of one class with what it inherits", [&]() -> int {
            if (!pages.empty()) {
                return WritePages(pages, console);
            }
            const ClassEntry* only = nullptr;
            if (!className.empty() && (only = FindClass(Wide(className))) == nullptr) {
                return console.Fail(kNegative, "there is no class \"" + className + "\"; `wqspcfg models` lists them");
            }
            WriteReference(only,
                           format == "json"       ? ReferenceFormat::Json
                           : format == "markdown" ? ReferenceFormat::Markdown
                                                  : ReferenceFormat::Text,
                           console.out);
            return kDone;
        });
    reference->add_option("CLASS", className, "A class's name");
    reference->add_option("--format", format, "text, markdown or json")
        ->check(CLI::IsMember({"text", "markdown", "json"}))
        ->default_str("text");
    reference->add_option("--pages", pages, "Write Markdown pages, one for each device class, into this directory")
        ->option_text("DIRECTORY");

    try {
        std::reverse(arguments.begin(), arguments.end()); // as CLI11 takes them
        app.parse(std::move(arguments));
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) { // --help, --version
            app.exit(error, console.out, console.err);
            return kDone;
        }
        return console.Fail(kUsage, error.what());
    }
    return command();
}

} // namespace

int Run(const std::vector<std::string>& arguments, std::istream& in, std::ostream& out, std::ostream& err)
{
    const Console console{in, out, err};
    int status = kDone;
    try {
        status = Execute(arguments, console);
    } catch (const UsageError& error) {
        return console.Fail(kUsage, error.what());
    } catch (const std::exception& error) {
        return console.Fail(kFailed, error.what());
    }
    out.flush();
    return out ? status : console.Fail(kFailed, "standard output cannot be written");
}

} // namespace wqspcfg::tools
