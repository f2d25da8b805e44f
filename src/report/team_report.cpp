#include "report/team_report.h"

#include "report/list_flow.h"
#include "report/page_frame.h"
#include "report/said.h"
#include "report/sheet_report.h"

#include <QPainter>

#include <array>
#include <map>

namespace kavela::report {

namespace {

constexpr TextStyle NameStyle{11, true, Ink};
constexpr TextStyle LabelStyle{8.5, true, Accent};
constexpr TextStyle CountStyle{8.5, false, Ink};
constexpr TextStyle TeamRaceStyle{8, false, Ink};
constexpr TextStyle TeamQuietStyle{8, false, Quiet};
constexpr qreal NameHeight = 17 * Point;
constexpr qreal TeamLineHeight = 12.5 * Point;
constexpr qreal RuleGap = 5 * Point;
constexpr qreal RaceHeight = 12.5 * Point;
constexpr qreal BlockGap = 20 * Point;
constexpr qreal TeamColumnGap = 28 * Point;
constexpr std::size_t ColumnCount = 2;
constexpr std::size_t CountLines = 4;

constexpr qreal SquareSide = 8 * Point;
constexpr qreal ExtraWidth = 5 * Point; ///< of the last band's
constexpr qreal Opacity = 0.75;

struct BandLook {
    PositionBand band;
    const char* words;
    QColor colour;
};

constexpr std::array Bands{
    BandLook{PositionBand::Medal, "1–3", QColor(0xd9, 0x9a, 0x00)},
    BandLook{PositionBand::Top6, "4–6", QColor(0x1f, 0x8a, 0x4c)},
    BandLook{PositionBand::Top9, "7–9", QColor(0x2b, 0x74, 0xb8)},
    BandLook{PositionBand::Top15, "10–15", QColor(0x8b, 0x5f, 0xa8)},
};

/// Paints a band's square at the left of a line, in the middle of its height.
void paintSquare(QPainter& painter, const QRectF& line, const BandLook& look) {
    const qreal width = look.band == PositionBand::Top15 ? SquareSide + ExtraWidth : SquareSide;
    painter.save();
    painter.setOpacity(Opacity);
    painter.fillRect(QRectF(line.left(), line.center().y() - SquareSide / 2, width, SquareSide),
                     look.colour);
    painter.restore();
}

/// Blocks of athletes as they are being painted. The pieces of the pages share it.
class Blocks {
public:
    Blocks(std::vector<Categorization> athletes, Typeface typeface)
        : m_athletes(std::move(athletes)), m_typeface(std::move(typeface)) {
        for (const Categorization& athlete : m_athletes)
            for (const CategorizedRace& race : athlete.races)
                m_eventWidth =
                    std::max(m_eventWidth, m_typeface.width(reportText(race.event), TeamRaceStyle));
        m_eventWidth = std::min(m_eventWidth, 70 * Point);
    }

    [[nodiscard]] std::vector<std::size_t> raceCounts() const {
        std::vector<std::size_t> counts;
        for (const Categorization& athlete : m_athletes)
            counts.push_back(athlete.races.size());
        return counts;
    }

    void paint(QPainter& painter, const QRectF& place, const ListPart& part) const {
        const Categorization& athlete = m_athletes[part.list];
        QRectF line(place.left(), place.top(), place.width(), NameHeight);
        paintHead(painter, line, athlete, part.firstRow > 0);
        for (std::size_t row = part.firstRow; row < part.endRow; ++row) {
            line = {line.left(), line.bottom(), line.width(), RaceHeight};
            paintRace(painter, line, athlete.races[row]);
        }
    }

private:
    /// Leaves in `line` the last line that was written.
    void paintHead(QPainter& painter, QRectF& line, const Categorization& athlete,
                   bool isContinued) const {
        const QString more = isContinued ? said(", continued") : QString();
        m_typeface.draw(painter, line, Qt::AlignLeft, reportText(athlete.name) + more, NameStyle);
        const auto write = [&](const std::string& text, const TextStyle& style) {
            line = {line.left(), line.bottom(), line.width(), TeamLineHeight};
            m_typeface.draw(painter, line, Qt::AlignLeft, QString::fromStdString(text), style);
        };
        write(athlete.label, LabelStyle);
        for (const std::string& text : athlete.lines)
            write(text, CountStyle);
        line.setHeight(line.height() + RuleGap);
        drawRule(painter, line, line.bottom() - RuleGap / 2, Rule);
    }

    void paintRace(QPainter& painter, const QRectF& line, const CategorizedRace& race) const {
        const PositionBand band = positionBand(race.finalPos);
        for (const BandLook& look : Bands)
            if (look.band == band)
                paintSquare(painter, line, look);
        QRectF cell = line;
        const auto write = [&](qreal width, Qt::Alignment alignment, const QString& text,
                               const TextStyle& style) {
            cell.setWidth(width);
            m_typeface.draw(painter, cell, alignment, text, style);
            cell.moveLeft(cell.right() + 7 * Point);
        };
        cell.moveLeft(cell.left() + SquareSide + ExtraWidth + 2 * Point);
        write(20 * Point, Qt::AlignRight, QString::number(race.finalPos), {8, true, Ink});
        write(22 * Point, Qt::AlignLeft, QString::number(race.year), TeamQuietStyle);
        write(m_eventWidth, Qt::AlignLeft, reportText(race.event), TeamRaceStyle);
        write(line.right() - cell.left(), Qt::AlignLeft, reportText(race.location), TeamQuietStyle);
    }

    std::vector<Categorization> m_athletes;
    Typeface m_typeface;
    qreal m_eventWidth = 0;
};

/// How many athletes are in each level, by the words of the label: "Medalist 2".
std::vector<HeadingFact> levelFacts(const std::vector<Categorization>& athletes) {
    constexpr std::array Levels{"Medalist", "Medal ready", "Final ready", "Senior development"};
    std::vector<HeadingFact> facts;
    for (const char* level : Levels) {
        const auto count = std::ranges::count_if(athletes, [&](const Categorization& athlete) {
            return athlete.label.find(std::string(": ") + level) != std::string::npos;
        });
        facts.push_back({QString::fromLatin1(level), QString::number(count)});
    }
    return facts;
}

ReportHeading teamHeadingOf(std::string_view category,
                            const std::vector<Categorization>& athletes) {
    ReportHeading heading;
    heading.title = QStringLiteral("2025 Categorization");
    heading.subtitle = reportText(category);
    heading.facts = {{said("Athletes"), QString::number(athletes.size())}};
    for (HeadingFact& fact : levelFacts(athletes))
        heading.facts.push_back(std::move(fact));
    heading.line = heading.subtitle;
    return heading;
}

void putLegend(PageBuilder& pages, const Typeface& typeface) {
    pages.put(22 * Point, [typeface](QPainter& painter, const QRectF& place) {
        QRectF line(place.left(), place.top(), place.width(), TeamLineHeight);
        const auto write = [&](const QString& text) {
            typeface.draw(painter, line, Qt::AlignLeft, text, {7.5, false, Quiet});
            line.setLeft(line.left() + typeface.width(text, {7.5, false, Quiet}) + 6 * Point);
        };
        write(said("Final position"));
        for (const BandLook& look : Bands) {
            paintSquare(painter, line, look);
            line.setLeft(line.left() + SquareSide + ExtraWidth + 2 * Point);
            write(QString::fromUtf8(look.words));
            line.setLeft(line.left() + 6 * Point);
        }
    });
}

void putBlocks(PageBuilder& pages, std::vector<Categorization> athletes, const Typeface& typeface) {
    const auto blocks = std::make_shared<const Blocks>(std::move(athletes), typeface);
    const QRectF first = pages.space();
    const qreal width =
        (first.width() + TeamColumnGap) / static_cast<qreal>(ColumnCount) - TeamColumnGap;
    const FlowSizes sizes{NameHeight + (CountLines + 1) * TeamLineHeight + RuleGap, RaceHeight,
                          BlockGap, first.height(), bodyPlace(pages.orientation()).height()};
    std::size_t page = 0;
    for (const ListPart& part : flowLists(blocks->raceCounts(), ColumnCount, sizes)) {
        for (; page < part.column / ColumnCount; ++page)
            pages.newPage();
        const qreal x = static_cast<qreal>(part.column % ColumnCount) * (width + TeamColumnGap);
        const QPointF corner = pages.space().topLeft() + QPointF(x, part.top);
        pages.putAt({corner, QSizeF(width, sizes.height(part.endRow - part.firstRow))},
                    [blocks, part](QPainter& painter, const QRectF& place) {
                        blocks->paint(painter, place, part);
                    });
    }
}

} // namespace

std::unique_ptr<PagedReport> categorizationReport(std::string_view category,
                                                  std::vector<Categorization> athletes) {
    const Typeface typeface;
    ReportHeading heading = teamHeadingOf(category, athletes);
    PageBuilder pages(QPageLayout::Portrait);
    putTitleBlock(pages, heading, typeface);
    if (athletes.empty()) {
        pages.put(20 * Point, [typeface](QPainter& painter, const QRectF& place) {
            typeface.draw(painter, place, Qt::AlignLeft,
                          said("No athlete of this category comes into question."),
                          {9, false, Quiet});
        });
    } else {
        putLegend(pages, typeface);
        putBlocks(pages, std::move(athletes), typeface);
    }
    return std::make_unique<SheetReport>(std::move(heading), std::move(pages));
}

} // namespace kavela::report
