#include "cli/command_line.h"
#include "painting/own_painting.h"

int main(int argc, char** argv) {
    const kavela::painting::OwnPainting painting;
    return kavela::cli::runCommandLine(argc, argv, KAVELA_VERSION, &painting);
}
