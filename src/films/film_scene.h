#pragma once

#include "films/boat_picture.h"
#include "films/boat_way.h"
#include "films/course_strip.h"
#include "films/run_on_film.h"

#include <memory>
#include <string>
#include <vector>

namespace kavela::films {

/// Who is seen on a film, in which run.
struct FilmedBoat {
    BoatLook look;
    QString caption;
};

/// One run as a camera above the course sees it. The camera is turned after the boat; the
/// clock and the number of the frame, from 0, are burnt in. A line lights up at the frame of its
/// mark.
class FilmScene {
public:
    /// Needs a QGuiApplication for the caption; drawing does not.
    FilmScene(std::shared_ptr<const CourseStrip> strip, RunOnFilm run, const FilmedBoat& boat);

    [[nodiscard]] const RunOnFilm& run() const { return m_run; }
    [[nodiscard]] const CourseLayout& course() const { return m_strip->course(); }
    [[nodiscard]] BoatPlace boatAt(Frames frame) const { return m_way.at(frame); }
    /// Hundredths of a second that the clock shows.
    [[nodiscard]] std::int64_t clockAt(Frames frame) const;
    /// Where a place of the course is on the picture of a frame.
    [[nodiscard]] QPointF onPicture(QPointF onCourse, Frames frame) const;

    /// Draws a frame from 0 to run().length - 1 over all of the picture. May be called from any
    /// thread.
    void draw(Frames frame, YuvPicture& picture) const;

private:
    void followBoat();
    void drawLitLines(Frames frame, YuvPicture& picture) const;
    void drawPoles(Frames frame, YuvPicture& picture) const;
    void drawBoat(Frames frame, YuvPicture& picture) const;
    [[nodiscard]] double swing(std::size_t gate, Frames frame) const;
    [[nodiscard]] int touchedPole(std::size_t gate) const;

    std::shared_ptr<const CourseStrip> m_strip;
    RunOnFilm m_run;
    BoatWay m_way;
    BoatLook m_look;
    YuvPicture m_caption;
    PoleImages m_poles;
    std::vector<int> m_left; ///< the strip's column at the left of the picture, by frame
};

} // namespace kavela::films
