#include "cli/command_line.h"

int main(int argc, char** argv) {
    return kavela::cli::runCommandLine(argc, argv, KAVELA_VERSION, nullptr);
}
