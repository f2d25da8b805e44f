#pragma once

struct AVFrame;

namespace kavela {

/// The colour matrix of a frame as the scaler of the libraries numbers it: the one that the frame
/// names, otherwise the one usual for its size.
[[nodiscard]] int colourMatrixOf(const AVFrame& frame);

/// Whether its samples go from 0 to 255. Some formats of old have that in their name, beside what
/// the frame says.
[[nodiscard]] bool hasFullRange(const AVFrame& frame);

} // namespace kavela
