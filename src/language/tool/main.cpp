#include "language/tool/pseudo_language.h"
#include "language/tool/source_texts.h"
#include "language/tool/tables.h"
#include "language/tool/ts_file.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

/// Keeps the catalogues while Kavela is built.
namespace {

namespace fs = std::filesystem;
using namespace kavela::catalogue;

constexpr int BadUse = 2;
constexpr const char* Usage =
    "kavela-texts extract SOURCES OUT          marks the texts of the plain libraries\n"
    "kavela-texts pseudo CATALOGUE OUT         writes the catalogue of long texts\n"
    "kavela-texts windows CATALOGUE OUT        writes the catalogue as the windows ask it\n"
    "kavela-texts tables COMPLETE OUT FILE…    writes the tables that are built in\n";

void write(const fs::path& file, const std::string& content) {
    std::ofstream stream(file, std::ios::binary);
    stream << content;
    if (!stream.flush())
        throw std::runtime_error(file.string() + ": cannot be written");
}

/// The codes of the languages that are complete: one a line, behind # what is to be known.
std::vector<std::string> completeLanguages(const fs::path& file) {
    std::ifstream stream(file);
    std::vector<std::string> codes;
    for (std::string line; std::getline(stream, line);)
        if (!line.empty() && line.front() != '#')
            codes.push_back(line);
    return codes;
}

/// "de" of kavela_de.ts.
std::string codeOf(const fs::path& file) {
    const std::string name = file.stem().string();
    return name.substr(name.rfind('_') + 1);
}

void writeTables(const fs::path& complete, const fs::path& target,
                 const std::vector<fs::path>& files) {
    const std::vector<std::string> codes = completeLanguages(complete);
    std::vector<BuiltIn> catalogues;
    for (const fs::path& file : files) {
        const std::string code = codeOf(file);
        catalogues.push_back(
            {code, std::ranges::find(codes, code) != codes.end(), readCatalogue(file)});
    }
    write(target, tablesSource(catalogues));
}

bool run(const std::vector<std::string>& arguments) {
    const std::string work = arguments.empty() ? "" : arguments.front();
    if (work == "extract" && arguments.size() == 3)
        write(arguments[2], markedTexts(textsBelow(arguments[1])));
    else if (work == "pseudo" && arguments.size() == 3)
        writeCatalogue(pseudoCatalogue(readCatalogue(arguments[1])), arguments[2]);
    else if (work == "windows" && arguments.size() == 3)
        writeCatalogue(withAnyContext(readCatalogue(arguments[1])), arguments[2]);
    else if (work == "tables" && arguments.size() > 3)
        writeTables(arguments[1], arguments[2], {arguments.begin() + 3, arguments.end()});
    else
        return false;
    return true;
}

} // namespace

int main(int argc, char** argv) {
    try {
        if (run({argv + 1, argv + argc}))
            return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return EXIT_FAILURE;
    }
    std::fputs(Usage, stderr);
    return BadUse;
}
