#pragma once

#include "cli/call_outline.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

/// The call of `kavela`: its commands and what each takes. The library that parses it is known to
/// call.cpp alone, since it takes longer to compile than any command.
namespace kavela::cli {

/// Says what is wrong with the text of an option; an empty text when nothing is.
using Complaint = std::function<std::string(const std::string& text)>;

/// Something that a command takes.
class Option {
public:
    explicit Option(CLI::Option& option) : m_option(&option) {}

    Option& required();
    /// Refuses, with the complaint, a text that there is one about.
    Option& check(Complaint complaint);
    /// Takes these words alone.
    Option& oneOf(std::vector<std::string> words);
    /// Keeps it out of help, completion and manual: it is for programs.
    Option& hidden();

private:
    CLI::Option* m_option;
};

/// A command, or a group of commands. Names with dashes are options, others stand for operands. The
/// values that are filled must outlive the call.
class Command {
public:
    explicit Command(CLI::App& app) : m_app(&app) {}

    [[nodiscard]] Command command(const std::string& name, const std::string& help);
    /// Makes it a group: one of its commands has to be named.
    void needsCommand();
    void footer(const std::string& text);
    /// What the command does once the call has been read.
    void onRun(std::function<void()> work);

    Option option(const std::string& name, std::string& value, const std::string& help);
    Option option(const std::string& name, std::vector<std::string>& values,
                  const std::string& help);
    Option option(const std::string& name, std::optional<std::size_t>& value,
                  const std::string& help);
    Option option(const std::string& name, std::int64_t& value, const std::string& help);
    Option option(const std::string& name, double& value, const std::string& help);
    /// An option whose text is handed to `take`.
    Option option(const std::string& name, std::function<void(const std::string& text)> take,
                  const std::string& help);
    Option flag(const std::string& name, bool& value, const std::string& help);
    /// A flag "--name,!--no-name": counted up, or down.
    void flag(const std::string& names, int& count, const std::string& help);

private:
    CLI::App* m_app;
};

/// A whole call.
class Call {
public:
    Call(const std::string& name, const std::string& help, const std::string& version);
    ~Call();

    /// The program itself, whose commands are to be added.
    [[nodiscard]] Command program();
    /// Reads the arguments and runs the command that they name. Returns an exit status when that is
    /// all, since help was asked for or the call is wrong; both have then been told.
    [[nodiscard]] std::optional<int> run(int argc, char** argv);
    [[nodiscard]] bool namesCommand() const;
    /// All that can be called, as it stands now; without what is hidden.
    [[nodiscard]] CommandOutline outline() const;

private:
    std::unique_ptr<CLI::App> m_app;
};

} // namespace kavela::cli
