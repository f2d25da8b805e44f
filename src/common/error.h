#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace kavela {

/// What is wrong with a document, and where: `path` is a place such as
/// `athletes[3].sectioninfo.times[7]`, empty for the document as a whole.
struct Fault {
    std::string path;
    std::string text;

    /// "PATH: TEXT", or only the text for the document as a whole.
    [[nodiscard]] std::string message() const { return path.empty() ? text : path + ": " + text; }

    /// Puts one more member in front of the path, as the reader climbs back out of a document.
    void prependMember(std::string_view name) {
        std::string longer(name);
        if (!path.empty() && path.front() != '[')
            longer += '.';
        path = longer + path;
    }

    /// Puts the place in an array in front of the path.
    void prependIndex(std::size_t index) {
        const char* const joint = path.empty() || path.front() == '[' ? "" : ".";
        path = '[' + std::to_string(index) + ']' + joint + path;
    }
};

/// A record type that a document was tried as in vain, and the first thing that spoke against it.
struct FailedAttempt {
    std::string_view record;
    Fault fault;
};

/// A document that does not hold what its record type asks for, or is no JSON at all.
class DecodeError : public std::runtime_error {
public:
    explicit DecodeError(Fault fault)
        : std::runtime_error(fault.message()), m_fault(std::move(fault)) {}
    [[nodiscard]] const Fault& fault() const { return m_fault; }

private:
    Fault m_fault;
};

/// A value that the format cannot hold, such as a number that is not finite.
class EncodeError : public std::runtime_error {
public:
    explicit EncodeError(const Fault& fault) : std::runtime_error(fault.message()) {}
};

/// A file that could not be read or written, with the system's reason.
class FileError : public std::runtime_error {
public:
    FileError(std::filesystem::path path, const std::string& reason)
        : std::runtime_error(path.string() + ": " + reason),
          m_path(std::move(path)),
          m_reason(reason) {}
    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }
    [[nodiscard]] const std::string& reason() const { return m_reason; }

private:
    std::filesystem::path m_path;
    std::string m_reason;
};

} // namespace kavela
