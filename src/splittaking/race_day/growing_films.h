#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace kavela {

/// Tells which films of a folder are whole. A film that is still being copied or recorded grows,
/// and often cannot be read before its end is written: it is left alone until it has the same size
/// and date over two looks, some time apart, and can be read.
class GrowingFilms {
public:
    /// A file as a look finds it.
    struct Found {
        std::uintmax_t bytes = 0;
        std::int64_t changed = 0; ///< when, in whatever unit; another one means another content

        friend bool operator==(const Found&, const Found&) = default;
    };

    /// `rest` is in seconds: how long a film must have kept its size.
    explicit GrowingFilms(double rest) : m_rest(rest) {}

    /// Takes a look at a moment, in seconds of a clock that only goes on. Gives the films that came
    /// to rest and are to be read now; those that could not be read are given again when they have
    /// rested as long once more, or have changed.
    [[nodiscard]] std::vector<std::string> look(const std::map<std::string, Found>& films,
                                                double now);
    /// What became of reading a film that look() gave.
    void noteRead(const std::string& film, bool couldBeRead);
    /// A film has another name now: that does not make it another one.
    void rename(const std::string& film, const std::string& now);

    [[nodiscard]] bool isWhole(const std::string& film) const;
    /// Whether it came to rest and could not be read, and did not change since.
    [[nodiscard]] bool isBroken(const std::string& film) const;
    /// Films that are there and not whole.
    [[nodiscard]] std::vector<std::string> growing() const;

private:
    struct Known {
        Found found;
        double since = 0; ///< when it was seen so first, or could not be read last
        bool isWhole = false;
        bool isBroken = false;
    };

    double m_rest;
    double m_now = 0;
    std::map<std::string, Known> m_known;
};

} // namespace kavela
