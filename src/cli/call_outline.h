#pragma once

#include <string>
#include <vector>

/// What a call of the program can say, as its parser knows it: whatever is made from it stays true
/// when commands come and go.
namespace kavela::cli {

struct OptionOutline {
    std::vector<std::string> names; ///< "--out", "-o"; empty for an operand
    std::string operand;            ///< "FILE" for an operand
    std::string help;
    std::vector<std::string> words; ///< all that it takes, where that is a list
    bool takesValue = false;
    bool isRequired = false;
    bool isRepeated = false;
};

struct CommandOutline {
    std::string name;
    std::string help;
    std::string footer;
    std::vector<OptionOutline> options;
    std::vector<CommandOutline> commands;
};

} // namespace kavela::cli
