#pragma once

#include "splitdata/records.h"

namespace kavela::sample {

/// The course of a race as somebody drew it: banks, gates and lines of the splits along a river
/// that winds down the picture, with the drawing in it. The numbers are painted where a program
/// opens it.
[[nodiscard]] Blob drawnCourse(const infodata031& info);

} // namespace kavela::sample
