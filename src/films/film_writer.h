#pragma once

#include "films/yuv_picture.h"

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>

namespace kavela::films {

/// A film that cannot be made on this computer, with the reason.
class FilmError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Makes a film of pictures, H.264 in a .MOV container, 50 a second, a key frame every 50. It is
/// kept in memory until it is whole.
class FilmWriter {
public:
    /// For pictures of this size, with stamps in ticks of 1/`timescale` seconds. Throws FilmError
    /// without the encoder.
    FilmWriter(int width, int height, std::int32_t timescale);
    ~FilmWriter();
    FilmWriter(const FilmWriter&) = delete;
    FilmWriter& operator=(const FilmWriter&) = delete;

    /// Throws FilmError when the encoder fails.
    void add(const YuvPicture& picture);

    /// Ends the film and gives the bytes of its file. To be called once.
    [[nodiscard]] std::string finish();

private:
    struct Encoder;
    std::unique_ptr<Encoder> m_encoder;
};

} // namespace kavela::films
