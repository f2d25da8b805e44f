#pragma once

#include "analysis/gate_penalties.h"
#include "report/course_drawing.h"
#include "report/course_picture.h"
#include "report/page_builder.h"
#include "report/typeface.h"

#include <memory>

/// The course as it was drawn, on the pages of a report, with what happened at its gates.
namespace kavela::report {

using SharedCourse = std::shared_ptr<const CoursePainting>;

/// The drawing of a race for the functions below; null where there is none with gates.
[[nodiscard]] SharedCourse sharedCourse(const infodata031& info);

/// Puts the course with the penalties of a run beside its gates, in place of a schematic river;
/// penalties at gates that were not drawn are listed below.
void putDrawnCourse(PageBuilder& pages, const SharedCourse& drawn, const RunCourse& course,
                    const Typeface& typeface);

/// Puts the course with the number of penalties at each gate, as many as all counted runs have.
/// Nothing where no run is counted.
void putDrawnCourse(PageBuilder& pages, const SharedCourse& drawn, const CoursePenalties& penalties,
                    const Typeface& typeface);

/// How a gate looks that is touched so often, from 0 for never to 1 for at the most of all gates:
/// darker the more, from white to the colour of a touch.
[[nodiscard]] CourseGateMark touchedGate(double share, const QString& word);

} // namespace kavela::report
