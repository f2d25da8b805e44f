#pragma once

#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>

namespace kavela {

/// A film that cannot be made on this computer, with the reason.
class FilmError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Thrown out of the writing of a film that somebody stopped.
struct FilmStopped {};

/// Takes the bytes of a film while it is made. Containers go back to fill in what they know late.
class FilmSink {
public:
    FilmSink() = default;
    FilmSink(const FilmSink&) = delete;
    FilmSink& operator=(const FilmSink&) = delete;
    virtual ~FilmSink() = default;

    /// Takes bytes at the present place and stands behind them. Throws FileError, or FilmStopped.
    virtual void write(std::span<const std::uint8_t> bytes) = 0;
    /// Goes to a place, counted in bytes from the start.
    virtual void seek(std::int64_t place) = 0;
    /// Where the place is in the file system, for reading back; empty for one in memory.
    [[nodiscard]] virtual std::string readablePath() const = 0;
};

/// A film in memory, for small ones.
class MemorySink final : public FilmSink {
public:
    void write(std::span<const std::uint8_t> bytes) override;
    void seek(std::int64_t place) override { m_place = static_cast<std::size_t>(place); }
    [[nodiscard]] std::string readablePath() const override { return {}; }
    [[nodiscard]] std::string take() { return std::move(m_bytes); }

private:
    std::string m_bytes;
    std::size_t m_place = 0;
};

} // namespace kavela
