#include "report/drawn_course.h"

#include "report/list_styles.h"
#include "report/said.h"
#include "report/small_lists.h"

#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <map>

namespace kavela::report {

namespace {

constexpr qreal DrawnTitleHeight = 17 * Point;
constexpr qreal DrawnNoteHeight = 12 * Point;
constexpr qreal TallestCourse = 190 * Point;
constexpr qreal LowestCourse = 90 * Point; ///< less room than this is for the next page
constexpr QColor TouchedPatch(0xf2, 0xa9, 0x1c);
constexpr QColor MissedPatch(0xb8, 0x2a, 0x2a);
constexpr std::int64_t MissedPenalty = 50;

qreal fittingHeight(const CoursePainting& course, const QRectF& space) {
    return std::min(TallestCourse, space.width() * course.heightOfWidth());
}

void putPicture(PageBuilder& pages, const SharedCourse& drawn, const CourseLook& look) {
    const qreal height = std::min(fittingHeight(*drawn, pages.space()), pages.space().height());
    pages.put(height, [drawn, look](QPainter& painter, const QRectF& place) {
        const QRectF picture = drawn->pictureIn(place);
        drawn->paint(painter, picture, look);
        painter.setPen(QPen(Rule, 0.5 * Point));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(picture);
    });
}

/// What stands above and below goes with the picture, which is cut less than in half at most.
void makeRoomForCourse(PageBuilder& pages, const SharedCourse& drawn, qreal beside) {
    const qreal wanted = std::min(LowestCourse, fittingHeight(*drawn, pages.space())) + beside;
    if (pages.space().height() < wanted)
        pages.newPage();
}

bool isDrawn(const coursedesign001& design, std::int64_t gate) {
    return std::ranges::find(design.gates, gate, &coursegate001::number) != design.gates.end();
}

QString notDrawnText(const QStringList& gates) {
    return gates.isEmpty() ? QString()
                           : said("Not drawn: %1").arg(gates.join(QStringLiteral(", ")));
}

void putUndrawn(PageBuilder& pages, const QString& text, const Typeface& typeface) {
    if (!text.isEmpty() && pages.space().height() >= DrawnNoteHeight)
        pages.put(DrawnNoteHeight, [=](QPainter& painter, const QRectF& place) {
            typeface.draw(painter, place, Qt::AlignLeft, text, Caption);
        });
}

QString penaltyText(std::int64_t penalty) {
    return QStringLiteral("+%1").arg(penalty);
}

} // namespace

SharedCourse sharedCourse(const infodata031& info) {
    std::optional<CoursePainting> drawn = drawnCourse(info);
    return drawn ? std::make_shared<const CoursePainting>(std::move(*drawn)) : nullptr;
}

void putDrawnCourse(PageBuilder& pages, const SharedCourse& drawn, const RunCourse& course,
                    const Typeface& typeface) {
    std::map<std::int64_t, std::int64_t> penalties;
    QStringList elsewhere;
    for (const RunGate& gate : course.gates) {
        if (gate.penalty <= 0)
            continue;
        penalties[gate.number] = gate.penalty;
        if (!isDrawn(drawn->design(), gate.number))
            elsewhere << said("gate %1: %2").arg(gate.number).arg(penaltyText(gate.penalty));
    }
    makeRoomForCourse(pages, drawn, DrawnTitleHeight + DrawnNoteHeight);
    pages.put(DrawnTitleHeight, [=](QPainter& painter, const QRectF& place) {
        typeface.draw(painter, place, Qt::AlignLeft, said("Penalties by gate"), ListTitleStyle);
        typeface.draw(painter, place.adjusted(place.width() * 0.4, 0, 0, 0), Qt::AlignRight,
                      course.remark, Caption);
    });
    CourseLook look;
    look.mark = [penalties](std::int64_t gate) -> std::optional<CourseGateMark> {
        const auto found = penalties.find(gate);
        if (found == penalties.end())
            return {};
        const bool isMissed = found->second >= MissedPenalty;
        return CourseGateMark{isMissed ? MissedPatch : TouchedPatch,
                              isMissed ? QColor(Qt::white) : Ink, penaltyText(found->second)};
    };
    putPicture(pages, drawn, look);
    putUndrawn(pages, notDrawnText(elsewhere), typeface);
}

void putDrawnCourse(PageBuilder& pages, const SharedCourse& drawn, const CoursePenalties& penalties,
                    const Typeface& typeface) {
    if (penalties.gates.empty())
        return;
    std::map<std::int64_t, std::int64_t> counts;
    std::int64_t most = 1;
    for (const GatePenalties& gate : penalties.gates) {
        counts[gate.gate] = gate.touches + gate.missed;
        most = std::max(most, gate.touches + gate.missed);
    }
    makeRoomForCourse(pages, drawn, SectionHeadingHeight);
    const QString remark = said("touches and missed gates of %1 runs")
                               .arg(static_cast<qulonglong>(penalties.countedRuns));
    pages.put(SectionHeadingHeight, [typeface, remark](QPainter& painter, const QRectF& place) {
        paintSectionHeading(painter, place, said("Penalties on the course"), remark, typeface);
    });
    CourseLook look;
    look.hasLines = false;
    look.mark = [counts, most](std::int64_t gate) -> std::optional<CourseGateMark> {
        const auto found = counts.find(gate);
        if (found == counts.end() || found->second == 0)
            return {};
        return touchedGate(static_cast<double>(found->second) / static_cast<double>(most),
                           QStringLiteral("%1 ×").arg(found->second));
    };
    putPicture(pages, drawn, look);
}

CourseGateMark touchedGate(double share, const QString& word) {
    const double strength = std::isfinite(share) ? std::clamp(share, 0.0, 1.0) : 0;
    const auto mixed = [strength](int full) {
        return 255 - static_cast<int>(std::lround(strength * (255 - full)));
    };
    return {
        QColor(mixed(TouchedPatch.red()), mixed(TouchedPatch.green()), mixed(TouchedPatch.blue())),
        Ink, word};
}

} // namespace kavela::report
