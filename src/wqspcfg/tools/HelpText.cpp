#include "wqspcfg/tools/HelpText.h"

#include <CLI/CLI.hpp>

#include <sstream>

namespace wqspcfg::tools {

namespace {

std::string Roff(const std::string& text)
{
    std::string out;
    bool atStart = true;
    for (const char ch : text) {
        if (atStart && (ch == '.' || ch == '\'')) {
            out += "\\&";
        }
        if (ch == '\\') {
            out += "\\e";
        } else if (ch == '-') {
            out += "\\-";
        } else {
            out += ch;
        }
        atStart = ch == '\n';
    }
    return out;
}

std::vector<const CLI::Option*> Options(const CLI::App& app, bool positional)
{
    return app.get_options([positional](const CLI::Option* option) { return option->get_positional() == positional; });
}

// "FILE..." for one that may stand several times.
std::string ArgumentName(const CLI::Option& option)
{
    return option.get_name(true) + (option.get_items_expected_max() > 1 ? "..." : "");
}

std::vector<std::string> OptionNames(const CLI::Option& option)
{
    std::vector<std::string> names;
    for (const auto& name : option.get_snames()) {
        names.push_back('-' + name);
    }
    for (const auto& name : option.get_lnames()) {
        names.push_back("--" + name);
    }
    return names;
}

bool TakesArgument(const CLI::Option& option)
{
    return option.get_items_expected_max() > 0;
}

void WriteOptions(const CLI::App& app, std::ostream& out)
{
    for (const auto* option : Options(app, true)) {
        out << ".TP\n\\fI" << Roff(ArgumentName(*option)) << "\\fR\n" << Roff(option->get_description()) << '\n';
    }
    for (const auto* option : Options(app, false)) {
        if (&app != app.get_parent() && app.get_parent() != nullptr && option == app.get_help_ptr()) {
            continue; // every command has it
        }
        out << ".TP\n\\fB" << Roff(CLI::detail::join(OptionNames(*option), ", ")) << "\\fR";
        if (TakesArgument(*option)) {
            out << " \\fI" << Roff(option->get_option_text().empty() ? "VALUE" : option->get_option_text()) << "\\fR";
        }
        out << '\n' << Roff(option->get_description()) << '\n';
    }
}

std::string Words(const CLI::App& app)
{
    std::vector<std::string> words;
    for (const auto* option : Options(app, false)) {
        for (auto& name : OptionNames(*option)) {
            words.push_back(std::move(name));
        }
    }
    return CLI::detail::join(words, " ");
}

} // namespace

std::string ManPage(const CLI::App& app, const std::string& version)
{
    std::ostringstream out;
    out << ".TH WQSPCFG 1 \"\" \"wqspcfg " << version << "\"\n"
        << ".SH NAME\nwqspcfg \\- settings of XFS service providers\n"
        << ".SH SYNOPSIS\n\\fBwqspcfg\\fR [\\fIOPTIONS\\fR] \\fICOMMAND\\fR [\\fIARGUMENTS\\fR]\n"
        << ".SH DESCRIPTION\n"
        << Roff(app.get_description()) << "\n.SH OPTIONS\nThey may stand before or after the command.\n";
    WriteOptions(app, out);
    out << ".SH COMMANDS\n";
    for (const auto* command : app.get_subcommands({})) {
        out << ".SS " << command->get_name();
        for (const auto* argument : Options(*command, true)) {
            const auto name = Roff(ArgumentName(*argument));
            out << (argument->get_required() ? " " + name : " [" + name + "]");
        }
        out << '\n' << Roff(command->get_description()) << ".\n";
        WriteOptions(*command, out);
    }
    out << ".SH NOTES\n" << Roff(app.get_footer()) << '\n';
    return out.str();
}

std::string BashCompletion(const CLI::App& app)
{
    std::ostringstream out;
    std::vector<std::string> names;
    std::ostringstream cases;
    for (const auto* command : app.get_subcommands({})) {
        names.push_back(command->get_name());
        cases << "    " << command->get_name() << ") words=\"" << Words(*command) << "\" ;;\n";
    }
    const auto commands = CLI::detail::join(names, " ");
    out << "# Completion of wqspcfg for bash; made by `wqspcfg help --completion`.\n"
           "_wqspcfg()\n"
           "{\n"
           "    local word=${COMP_WORDS[COMP_CWORD]} command= words= i\n"
           "    for ((i = 1; i < COMP_CWORD; ++i)); do\n"
           "        case \" "
        << commands
        << " \" in\n"
           "        *\" ${COMP_WORDS[i]} \"*) command=${COMP_WORDS[i]}; break ;;\n"
           "        esac\n"
           "    done\n"
           "    case $command in\n"
        << cases.str()
        << "    esac\n"
           "    if [[ $word == -* ]]; then\n"
           "        COMPREPLY=($(compgen -W \""
        << Words(app)
        << " $words\" -- \"$word\"))\n"
           "    elif [[ -z $command || $command == help ]]; then\n"
           "        COMPREPLY=($(compgen -W \""
        << commands
        << "\" -- \"$word\"))\n"
           "    fi\n"
           "}\n"
           "complete -o default -F _wqspcfg wqspcfg\n";
    return out.str();
}

} // namespace wqspcfg::tools
