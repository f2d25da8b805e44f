#include "cli/completion_text.h"

#include <fmt/format.h>

namespace kavela::cli {

namespace {

/// One place in a call: the commands named so far, and what may come there.
struct CallPlace {
    std::string path; ///< "kavela planning show"
    const CommandOutline* command;
};

void addPlaces(const CommandOutline& command, const std::string& path,
               std::vector<CallPlace>& places) {
    places.push_back({path, &command});
    for (const CommandOutline& sub : command.commands)
        addPlaces(sub, path + ' ' + sub.name, places);
}

std::vector<CallPlace> placesOf(const CommandOutline& program) {
    std::vector<CallPlace> places;
    addPlaces(program, program.name, places);
    return places;
}

/// A text between single quotes, for a shell.
std::string shellQuoted(std::string_view text) {
    std::string quoted = "'";
    for (const char c : text)
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + '\'';
}

std::string spaced(const std::vector<std::string>& words) {
    return fmt::format("{}", fmt::join(words, " "));
}

/// What may be typed at a place besides names of files: its commands and options.
std::vector<std::string> wordsAt(const CommandOutline& command) {
    std::vector<std::string> words;
    for (const CommandOutline& sub : command.commands)
        words.push_back(sub.name);
    for (const OptionOutline& option : command.options) {
        words.insert(words.end(), option.names.begin(), option.names.end());
        if (option.names.empty())
            words.insert(words.end(), option.words.begin(), option.words.end());
    }
    return words;
}

/// The function that both bash and zsh complete by: it walks through the commands typed so far,
/// then gives the words of the place, or those of the option before the cursor.
constexpr std::string_view BashBegin = R"(_kavela() {
    local place=kavela current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]}
    local i next words
    for ((i = 1; i < COMP_CWORD; i++)); do
        next="$place ${COMP_WORDS[i]}"
        case $next in
)";

std::string bashText(const CommandOutline& program) {
    const std::vector<CallPlace> places = placesOf(program);
    std::string text(BashBegin);
    std::vector<std::string> paths;
    for (const CallPlace& place : places)
        if (place.command != &program)
            paths.push_back(shellQuoted(place.path));
    if (!paths.empty())
        text += fmt::format("        {}) place=$next ;;\n", fmt::join(paths, " | "));
    text += "        esac\n    done\n    case \"$place:$before\" in\n";
    for (const CallPlace& place : places)
        for (const OptionOutline& option : place.command->options)
            for (const std::string& name : option.names)
                if (option.takesValue)
                    text +=
                        fmt::format("    {}) words={} ;;\n", shellQuoted(place.path + ':' + name),
                                    shellQuoted(spaced(option.words)));
    text += "    *)\n        case $place in\n";
    for (const CallPlace& place : places)
        text += fmt::format("        {}) words={} ;;\n", shellQuoted(place.path),
                            shellQuoted(spaced(wordsAt(*place.command))));
    return text + R"(        esac
        ;;
    esac
    COMPREPLY=()
    while IFS= read -r next; do
        COMPREPLY+=("$next")
    done < <(compgen -W "$words" -- "$current")
}
)";
}

std::string fishText(const CommandOutline& program) {
    std::string text = "function __kavela_at\n"
                       "    set -l place kavela\n"
                       "    for word in (commandline -opc)[2..-1]\n"
                       "        switch \"$place $word\"\n";
    const std::vector<CallPlace> places = placesOf(program);
    for (const CallPlace& place : places)
        if (place.command != &program)
            text += fmt::format("            case {0}\n                set place {0}\n",
                                shellQuoted(place.path));
    text += "        end\n    end\n    test \"$place\" = \"$argv[1]\"\nend\n";
    for (const CallPlace& place : places) {
        const std::string at =
            "complete -c kavela -n " + shellQuoted("__kavela_at " + shellQuoted(place.path));
        for (const CommandOutline& sub : place.command->commands)
            text += fmt::format("{} -a {} -d {}\n", at, sub.name, shellQuoted(sub.help));
        for (const OptionOutline& option : place.command->options) {
            std::string names;
            for (const std::string& name : option.names)
                names +=
                    (name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1));
            const std::string words =
                option.words.empty() ? "" : " -a " + shellQuoted(spaced(option.words));
            // What takes one of a list takes no name of a file.
            const std::string value = !option.takesValue || names.empty() ? ""
                                      : option.words.empty()              ? " -r"
                                                                          : " -x";
            if (!names.empty() || !words.empty())
                text += at + names + value + words + " -d " + shellQuoted(option.help) + '\n';
        }
    }
    return text;
}

/// What `man` would take for commands of its own is masked.
std::string manualLine(std::string_view text) {
    std::string line;
    for (const char c : text) {
        if (c == '\\')
            line += "\\e";
        else if (c == '-')
            line += "\\-";
        else
            line += c == '\n' ? ' ' : c;
    }
    if (line.starts_with('.') || line.starts_with('\''))
        line.insert(0, "\\&");
    return line;
}

std::string namesOf(const OptionOutline& option) {
    if (option.names.empty())
        return option.operand;
    std::string text = fmt::format("{}", fmt::join(option.names, ", "));
    if (!option.words.empty())
        return text + ' ' + fmt::format("{}", fmt::join(option.words, "|"));
    return option.takesValue ? text + " VALUE" : text;
}

std::string callLine(const CallPlace& place) {
    std::string line = place.path;
    bool hasOptions = false;
    for (const OptionOutline& option : place.command->options)
        hasOptions |= !option.names.empty() && !option.isRequired;
    if (hasOptions)
        line += " [OPTION…]";
    for (const OptionOutline& option : place.command->options) {
        if (!option.names.empty() && option.isRequired)
            line += ' ' + namesOf(option);
        if (!option.names.empty())
            continue;
        const std::string name = option.operand + (option.isRepeated ? "…" : "");
        line += option.isRequired ? ' ' + name : " [" + name + ']';
    }
    return line;
}

std::string placeOfManual(const CallPlace& place) {
    const CommandOutline& command = *place.command;
    std::string text = ".SS " + manualLine(callLine(place)) + '\n' + manualLine(command.help);
    text += text.ends_with('.') ? "\n" : ".\n";
    for (const OptionOutline& option : command.options)
        text += ".TP\n.B " + manualLine(namesOf(option)) + '\n' + manualLine(option.help) + '\n';
    if (!command.footer.empty())
        text += ".PP\n" + manualLine(command.footer) + '\n';
    return text;
}

} // namespace

std::string completionText(const CommandOutline& program, std::string_view shell) {
    if (shell == "bash")
        return bashText(program) + "complete -o default -F _kavela kavela\n";
    // Its own way of loading reads the first line, and calls the file as a function.
    if (shell == "zsh")
        return "#compdef kavela\nautoload -U +X bashcompinit && bashcompinit\n" +
               bashText(program) + "complete -o default -F _kavela kavela\n";
    return shell == "fish" ? fishText(program) : std::string();
}

std::string manualText(const CommandOutline& program, std::string_view version) {
    std::string text = fmt::format(
        ".TH KAVELA 1 \"\" \"Kavela {}\" \"User commands\"\n.SH NAME\nkavela \\- splits, "
        "results and recordings of canoe slalom\n.SH SYNOPSIS\n.B kavela\n[FILE…]\n.br\n"
        ".B kavela\nCOMMAND [OPTION…]\n.SH DESCRIPTION\n",
        version);
    text += manualLine(program.help) + "\n.PP\n" + manualLine(program.footer) + "\n";
    for (const OptionOutline& option : program.options)
        text += ".TP\n.B " + manualLine(namesOf(option)) + '\n' + manualLine(option.help) + '\n';
    text += ".SH COMMANDS\n";
    for (const CallPlace& place : placesOf(program))
        if (place.command != &program && place.command->commands.empty())
            text += placeOfManual(place);
    return text + ".SH EXIT STATUS\n0 when it was done, 1 when it was not, 2 for a wrong call.\n";
}

} // namespace kavela::cli
