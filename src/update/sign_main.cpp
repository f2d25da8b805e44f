#include "common/error.h"
#include "common/safe_file.h"
#include "update/release_files.h"
#include "update/signature.h"

#include <CLI/CLI.hpp>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <system_error>

/// Signs what is given out. It is run where releases are made, and installed nowhere.
namespace {

using namespace kavela;
namespace fs = std::filesystem;

std::string wholeFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw FileError(path, std::generic_category().message(errno));
    return {std::istreambuf_iterator<char>(file), {}};
}

/// A file that only its owner may read, and that was not there before: keys are not written over.
void writeSecret(const fs::path& path, const std::string& content) {
    const int file =
        ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0)
        throw FileError(path, std::generic_category().message(errno));
    const bool isWritten =
        ::write(file, content.data(), content.size()) == static_cast<ssize_t>(content.size()) &&
        ::fsync(file) == 0;
    if (::close(file) != 0 || !isWritten)
        throw FileError(path, "The disk does not take it.");
}

void makeKey(const std::string& path) {
    const update::KeyPair pair = update::newKeyPair();
    writeSecret(path, pair.secretKey + '\n');
    std::printf("%s\n", pair.publicKey.c_str());
}

void signRelease(const update::Release& release, const std::string& keyFile,
                 const std::string& out) {
    const std::string text = update::manifestText(release);
    const std::string signature = update::signatureOf(wholeFile(keyFile), text);
    writeFileSafely(out, text);
    writeFileSafely(out + ".sig", signature + '\n');
}

void checkRelease(const std::string& manifest, const std::string& digits) {
    const auto key = update::parsedPublicKey(digits);
    if (!key)
        throw std::runtime_error("A public key has 64 hexadecimal digits.");
    const std::string text = wholeFile(manifest);
    if (!update::isSignedBy(*key, text, wholeFile(manifest + ".sig")))
        throw std::runtime_error("The signature is not of this manifest and this key.");
    const auto read = update::readManifest(text);
    std::printf("%s of %s, %zu files\n", read.version.c_str(), read.date.c_str(),
                read.files.size());
}

void addKeyCommands(CLI::App& app, std::string& key, std::string& digits) {
    CLI::App* const make = app.add_subcommand("key", "Makes a pair of keys; prints the public one");
    make->add_option("FILE", key, "Where the secret one is written")->required();
    make->callback([&key] { makeKey(key); });
    CLI::App* const show = app.add_subcommand("public", "Prints the public key of a secret one");
    show->add_option("FILE", key, "File of the secret key")->required();
    show->callback([&key] { std::printf("%s\n", update::publicKeyOf(wholeFile(key)).c_str()); });
    CLI::App* const check = app.add_subcommand("check", "Checks a manifest and its signature");
    check->add_option("MANIFEST", key, "Manifest; its signature lies beside it")->required();
    check->add_option("--key", digits, "Public key, 64 digits")->required();
    check->callback([&key, &digits] { checkRelease(key, digits); });
}

int signMain(int argc, char** argv) {
    CLI::App app("Makes and signs the list of versions that Kavela reads.", "kavela-sign");
    app.require_subcommand(1);
    std::string key;
    std::string digits;
    addKeyCommands(app, key, digits);
    update::Release release;
    std::string notes;
    std::string out;
    CLI::App* const make = app.add_subcommand("manifest", "Writes a manifest and its signature");
    make->add_option("--key", key, "File of the secret key")->required();
    make->add_option("--version", release.version, "Such as 0.32.0")->required();
    make->add_option("--date", release.date, "Such as 2026-11-22")->required();
    make->add_option("--notes", notes, "File of what is new, in plain text")->required();
    make->add_option("--base", release.base, "Address of the folder of the files")->required();
    make->add_option("-o,--out", out, "Manifest to write")->required();
    make->add_option("FILE", release.files, "Files of the release")->required();
    make->callback([&] {
        release.notes = wholeFile(notes);
        signRelease(release, key, out);
    });
    CLI11_PARSE(app, argc, argv);
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return signMain(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    return EXIT_FAILURE;
}
