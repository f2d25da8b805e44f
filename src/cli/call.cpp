#include "cli/call.h"

#include "cli/console.h"
#include "common/text.h"

#include <CLI/CLI.hpp>

#include <utility>

namespace kavela::cli {

namespace {

/// Helps are marked by being the last argument of what describes an option.
std::string helpText(const std::string& help) {
    return std::string(translated(help));
}

/// Columns of the names in a help text.
constexpr std::size_t NameColumns = 34;

/// The words of a list, as the parser writes it behind the kind of an option: "TEXT:{csv,json}".
std::vector<std::string> wordsOf(const CLI::Option& option) {
    const std::string kind = option.get_type_name();
    const std::size_t begin = kind.find('{');
    const std::size_t end = kind.find('}');
    if (begin == std::string::npos || end == std::string::npos || end <= begin)
        return {};
    return CLI::detail::split(kind.substr(begin + 1, end - begin - 1), ',');
}

OptionOutline outlineOf(const CLI::Option& option) {
    OptionOutline outline;
    for (const std::string& name : option.get_lnames())
        outline.names.push_back("--" + name);
    for (const std::string& name : option.get_snames())
        outline.names.push_back('-' + name);
    if (outline.names.empty())
        outline.operand = option.get_name(true);
    outline.help = option.get_description();
    outline.words = wordsOf(option);
    outline.takesValue = option.get_expected_max() > 0;
    outline.isRequired = option.get_required();
    outline.isRepeated = option.get_items_expected_max() > 1;
    return outline;
}

CommandOutline outlineOf(const CLI::App& app) {
    CommandOutline outline{app.get_name(), app.get_description(), app.get_footer(), {}, {}};
    for (const CLI::Option* const option : app.get_options())
        if (!option->get_group().empty())
            outline.options.push_back(outlineOf(*option));
    for (const CLI::App* const command : app.get_subcommands([](const CLI::App*) { return true; }))
        if (!command->get_group().empty())
            outline.commands.push_back(outlineOf(*command));
    return outline;
}

} // namespace

Option& Option::required() {
    m_option->required();
    return *this;
}

Option& Option::check(Complaint complaint) {
    m_option->check(std::move(complaint), "");
    return *this;
}

Option& Option::oneOf(std::vector<std::string> words) {
    m_option->check(CLI::IsMember(std::move(words)));
    return *this;
}

Option& Option::hidden() {
    m_option->group("");
    return *this;
}

Command Command::command(const std::string& name, const std::string& help) {
    return Command(*m_app->add_subcommand(name, helpText(help)));
}

void Command::needsCommand() {
    m_app->require_subcommand(1);
}

void Command::footer(const std::string& text) {
    m_app->footer(helpText(text));
}

void Command::onRun(std::function<void()> work) {
    m_app->callback(std::move(work));
}

Option Command::option(const std::string& name, std::string& value, const std::string& help) {
    return Option(*m_app->add_option(name, value, helpText(help)));
}

Option Command::option(const std::string& name, std::vector<std::string>& values,
                       const std::string& help) {
    return Option(*m_app->add_option(name, values, helpText(help)));
}

Option Command::option(const std::string& name, std::optional<std::size_t>& value,
                       const std::string& help) {
    return Option(*m_app->add_option(name, value, helpText(help)));
}

Option Command::option(const std::string& name, std::int64_t& value, const std::string& help) {
    return Option(*m_app->add_option(name, value, helpText(help)));
}

Option Command::option(const std::string& name, double& value, const std::string& help) {
    return Option(*m_app->add_option(name, value, helpText(help)));
}

Option Command::option(const std::string& name, std::function<void(const std::string& text)> take,
                       const std::string& help) {
    return Option(*m_app->add_option_function<std::string>(name, take, helpText(help)));
}

Option Command::flag(const std::string& name, bool& value, const std::string& help) {
    return Option(*m_app->add_flag(name, value, helpText(help)));
}

void Command::flag(const std::string& names, int& count, const std::string& help) {
    m_app->add_flag(names, count, helpText(help));
}

Call::Call(const std::string& name, const std::string& help, const std::string& version)
    : m_app(std::make_unique<CLI::App>(helpText(help), name)) {
    m_app->set_version_flag("--version", version);
    m_app->require_subcommand(0, 1);
    m_app->get_formatter()->column_width(NameColumns);
}

Call::~Call() = default;

Command Call::program() {
    return Command(*m_app);
}

std::optional<int> Call::run(int argc, char** argv) {
    try {
        m_app->parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return m_app->exit(error) == 0 ? Done : WrongCall;
    }
    return std::nullopt;
}

CommandOutline Call::outline() const {
    return outlineOf(*m_app);
}

bool Call::namesCommand() const {
    return !m_app->get_subcommands().empty();
}

} // namespace kavela::cli
