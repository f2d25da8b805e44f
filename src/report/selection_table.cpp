#include "report/selection_table.h"

#include "common/number_text.h"
#include "report/list_styles.h"
#include "report/said.h"

#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <memory>

namespace kavela::report {

namespace {

constexpr TextStyle BoldStyle{8, true, Ink};
constexpr TextStyle DroppedStyle{8, false, Quiet};
constexpr TextStyle SelectionRaceStyle{7.5, true, Ink};
constexpr TextStyle SelectionTitleStyle{11, true, Accent};
constexpr qreal SelectionTitleHeight = 19 * Point;
constexpr qreal RaceLineHeight = 13 * Point;
constexpr qreal SelectionHeadHeight = 11 * Point;
constexpr qreal SelectionRowHeight = 13.5 * Point;
constexpr qreal TableGap = 16 * Point;
constexpr qreal SelectionCellGap = 6 * Point;
constexpr qreal LineSpacing = 12 * Point;
constexpr std::size_t SelectionFewestRows = 3; ///< below a heading
constexpr std::size_t RacesSideBySide = 4;

QString numberText(double value) {
    const std::string text = saidNumber(hundredthsText(value));
    constexpr std::size_t Longest = 10; // more digits only come from damaged files
    return text.size() > Longest ? QString::number(value, 'g', 3) : QString::fromStdString(text);
}

/// An athlete's result in a race as it is printed.
struct ResultCell {
    QString time;
    QString penalty;
    QString percentage;
    bool isDropped = false;
};

struct SelectionRow {
    QString rank;
    QString name;
    QString club;
    QString year;
    QString preselected;
    std::vector<ResultCell> races;
    ResultCell bonus;
    QString score;
};

struct Race {
    QString location;
    QString best;
};

/// A category's table, or a part of it with some of the races.
struct Table {
    QString title;
    std::vector<Race> races;
    std::vector<SelectionRow> rows;
    bool hasPreselected = false;
    bool hasBonus = false;
    bool isExpected = false;
};

ResultCell cellOf(const saRaceStruct& result, const ScorePart& part, SelectionTimes times) {
    const double time = times == SelectionTimes::Official ? result.resultTime : result.xTime;
    const bool hasTime = time != MissingTime && !isMissing(result);
    return {hasTime ? numberText(time) : Dash, hasTime ? QString::number(result.pen) : QString(),
            numberText(part.percentage), part.fate != ResultFate::Counted};
}

/// "P", or "P1 P3" where there are several groups.
QString preselectedText(const std::vector<bool>& flags) {
    QStringList groups;
    for (std::size_t i = 0; i < flags.size(); ++i)
        if (flags[i])
            groups << (flags.size() == 1 ? QStringLiteral("P") : QStringLiteral("P%1").arg(i + 1));
    return groups.join(' ');
}

SelectionRow selectionRowOf(const srAthleteStruct_v3& athlete, const Standing& standing,
                            SelectionTimes times) {
    SelectionRow row{QString::number(standing.rank),
                     reportText(athlete.name),
                     reportText(athlete.club),
                     athlete.year == 0 ? QString() : QString::number(athlete.year),
                     preselectedText(athlete.preselected),
                     {},
                     {},
                     numberText(standing.score.score)};
    for (std::size_t i = 0; i < standing.score.races.size(); ++i)
        row.races.push_back(
            cellOf(i < athlete.racedata.size() ? athlete.racedata[i] : missingResult(),
                   standing.score.races[i], times));
    if (const auto& bonus = standing.score.bonus)
        row.bonus = {{}, {}, numberText(bonus->percentage), bonus->fate != ResultFate::Counted};
    return row;
}

Race raceOf(const sRaceStruct& race, std::size_t category, SelectionTimes times) {
    const auto& bests = times == SelectionTimes::Official ? race.bestTimes : race.bestxTimes;
    const bool hasBest = category < bests.size() && bests[category] != BestOfNobody;
    return {reportText(race.location),
            hasBest ? said("best %1").arg(numberText(bests[category])) : QString()};
}

Table tableOf(const selectionracesStruct_v3& document, std::size_t index, SelectionTimes times,
              BonusKind bonus) {
    const srCategoryStruct_v3& category = document.categories[index];
    Table table{reportText(category.cat),         {}, {}, false, bonus.has_value(),
                times == SelectionTimes::Expected};
    for (const sRaceStruct& race : document.races)
        table.races.push_back(raceOf(race, index, times));
    for (const Standing& standing : standings(category, document.races.size(), bonus, times)) {
        table.rows.push_back(selectionRowOf(category.athletes[standing.athlete], standing, times));
        table.hasPreselected |= !table.rows.back().preselected.isEmpty();
    }
    return table;
}

/// The part of a table with the races from `first` on that fit side by side.
Table partOf(const Table& table, std::size_t first) {
    const std::size_t end = std::min(first + RacesSideBySide, table.races.size());
    const auto cut = [&](const auto& list) {
        return std::decay_t<decltype(list)>(list.begin() + static_cast<std::ptrdiff_t>(first),
                                            list.begin() + static_cast<std::ptrdiff_t>(end));
    };
    Table part = table;
    part.races = cut(table.races);
    for (SelectionRow& row : part.rows)
        row.races = cut(row.races);
    if (table.races.size() > RacesSideBySide)
        part.title += said(" · races %1 to %2").arg(first + 1).arg(end);
    return part;
}

/// A table as it is being painted. The pieces of the pages share it.
class SelectionSheet {
public:
    SelectionSheet(Table table, Typeface typeface)
        : m_table(std::move(table)), m_typeface(std::move(typeface)) {}

    [[nodiscard]] std::size_t rowCount() const { return m_table.rows.size(); }

    void paintHead(QPainter& painter, const QRectF& place, bool isContinued) const {
        QRectF line(place.left(), place.top(), place.width(), SelectionTitleHeight);
        const QString more = isContinued ? said(", continued") : QString();
        m_typeface.draw(painter, line, Qt::AlignLeft, m_table.title + more, SelectionTitleStyle);
        line = {line.left(), line.bottom(), line.width(), RaceLineHeight};
        for (std::size_t i = 0; i < m_table.races.size(); ++i)
            paintRaceHead(painter, places(line).races[i], m_table.races[i]);
        line = {line.left(), line.bottom(), line.width(), SelectionHeadHeight};
        paintColumnHead(painter, places(line));
        drawRule(painter, line, line.bottom(), Accent, 0.6);
    }

    void paintRow(QPainter& painter, const QRectF& line, std::size_t index) const {
        const SelectionRow& row = m_table.rows[index];
        const Places at = places(line);
        m_typeface.draw(painter, at.rank, Qt::AlignRight, row.rank, BoldStyle);
        m_typeface.draw(painter, at.name, Qt::AlignLeft, row.name, RowStyle);
        m_typeface.draw(painter, at.club, Qt::AlignLeft, row.club, DroppedStyle);
        m_typeface.draw(painter, at.year, Qt::AlignRight, row.year, RowStyle);
        m_typeface.draw(painter, at.preselected, Qt::AlignLeft, row.preselected, BoldStyle);
        for (std::size_t i = 0; i < row.races.size(); ++i)
            paintResult(painter, at.races[i], row.races[i]);
        paintNumber(painter, at.bonus, row.bonus.percentage, row.bonus.isDropped);
        m_typeface.draw(painter, at.score, Qt::AlignRight, row.score, BoldStyle);
        drawRule(painter, line, line.bottom(), Rule, 0.25);
    }

private:
    struct Places {
        QRectF rank, name, club, year, preselected, bonus, score;
        std::vector<QRectF> races;
    };
    struct RacePlaces {
        QRectF time, penalty, percentage;
    };

    /// The columns of a line, from both sides; the name takes what is left.
    [[nodiscard]] Places places(const QRectF& line) const {
        Places at;
        QRectF rest = line;
        const auto fromRight = [&](qreal points) {
            QRectF cell = rest;
            cell.setLeft(rest.right() - points * Point);
            rest.setRight(cell.left() - SelectionCellGap);
            return cell;
        };
        at.score = fromRight(38);
        if (m_table.hasBonus)
            at.bonus = fromRight(34);
        for (std::size_t i = 0; i < m_table.races.size(); ++i)
            at.races.insert(at.races.begin(), fromRight(92));
        if (m_table.hasPreselected)
            at.preselected = fromRight(20);
        at.year = fromRight(22);
        at.rank = rest;
        at.rank.setWidth(16 * Point);
        rest.setLeft(at.rank.right() + SelectionCellGap);
        at.club = fromRight(rest.width() / Point * 0.38);
        at.name = rest;
        return at;
    }

    [[nodiscard]] static RacePlaces racePlaces(const QRectF& race) {
        RacePlaces at{race, race, race};
        at.time.setWidth(36 * Point);
        at.penalty.setLeft(at.time.right());
        at.penalty.setWidth(16 * Point);
        at.percentage.setLeft(at.penalty.right());
        return at;
    }

    void paintRaceHead(QPainter& painter, const QRectF& place, const Race& race) const {
        const QRectF inner = place.adjusted(6 * Point, 0, 0, 0);
        QRectF location = inner;
        location.setRight(inner.right() - m_typeface.width(race.best, HeadStyle) - 4 * Point);
        m_typeface.draw(painter, location, Qt::AlignLeft, race.location, SelectionRaceStyle);
        m_typeface.draw(painter, inner, Qt::AlignRight, race.best, HeadStyle);
        drawRule(painter, inner, inner.bottom(), Rule);
    }

    void paintColumnHead(QPainter& painter, const Places& at) const {
        const auto write = [&](const QRectF& place, Qt::Alignment alignment, const char* text) {
            m_typeface.draw(painter, place, alignment, said(text), HeadStyle);
        };
        write(at.rank, Qt::AlignRight, KAVELA_TEXT("Pos"));
        write(at.name, Qt::AlignLeft, KAVELA_TEXT("SURNAME Name"));
        write(at.club, Qt::AlignLeft, KAVELA_TEXT("Club"));
        write(at.year, Qt::AlignRight, KAVELA_TEXT("Year"));
        for (const QRectF& race : at.races) {
            const RacePlaces in = racePlaces(race);
            write(in.time, Qt::AlignRight,
                  m_table.isExpected ? KAVELA_TEXT("xTime") : KAVELA_TEXT("Time"));
            write(in.penalty, Qt::AlignRight, KAVELA_TEXT("Pen"));
            write(in.percentage, Qt::AlignRight, m_table.isExpected ? "x %" : "%");
        }
        if (m_table.hasBonus)
            write(at.bonus, Qt::AlignRight, KAVELA_TEXT("Bonus"));
        write(at.score, Qt::AlignRight,
              m_table.isExpected ? KAVELA_TEXT("x Score") : KAVELA_TEXT("Score"));
    }

    void paintResult(QPainter& painter, const QRectF& place, const ResultCell& cell) const {
        const RacePlaces in = racePlaces(place);
        paintNumber(painter, in.time, cell.time, cell.isDropped);
        paintNumber(painter, in.penalty, cell.penalty, cell.isDropped);
        paintNumber(painter, in.percentage, cell.percentage, cell.isDropped);
    }

    /// A number at the right of its place, struck through where it does not count.
    void paintNumber(QPainter& painter, const QRectF& place, const QString& text,
                     bool isStruck) const {
        const TextStyle& style = isStruck ? DroppedStyle : RowStyle;
        m_typeface.draw(painter, place, Qt::AlignRight, text, style);
        if (!isStruck || text.isEmpty())
            return;
        QRectF line = place;
        line.setLeft(std::max(place.left(), place.right() - m_typeface.width(text, style)));
        drawRule(painter, line.adjusted(-Point, 0, Point, 0), line.center().y(), Quiet, 0.7);
    }

    Table m_table;
    Typeface m_typeface;
};

void putSelectionHead(PageBuilder& pages, const std::shared_ptr<const SelectionSheet>& sheet,
                      bool isContinued) {
    pages.put(SelectionTitleHeight + RaceLineHeight + SelectionHeadHeight,
              [sheet, isContinued](QPainter& painter, const QRectF& place) {
                  sheet->paintHead(painter, place, isContinued);
              });
}

void putTable(PageBuilder& pages, Table table, const Typeface& typeface) {
    const auto sheet = std::make_shared<const SelectionSheet>(std::move(table), typeface);
    const auto heightOf = [](std::size_t rows) {
        return SelectionTitleHeight + RaceLineHeight + SelectionHeadHeight +
               static_cast<qreal>(rows) * SelectionRowHeight;
    };
    // A category is cut only when a page is too short for it.
    const qreal whole = heightOf(sheet->rowCount());
    const qreal page = bodyPlace(pages.orientation()).height();
    const qreal least = whole <= page ? whole : heightOf(SelectionFewestRows);
    if (pages.space().height() < least)
        pages.newPage();
    putSelectionHead(pages, sheet, false);
    for (std::size_t row = 0; row < sheet->rowCount(); ++row) {
        if (pages.space().height() < SelectionRowHeight) {
            pages.newPage();
            putSelectionHead(pages, sheet, true);
        }
        pages.put(SelectionRowHeight, [sheet, row](QPainter& painter, const QRectF& place) {
            sheet->paintRow(painter, place, row);
        });
    }
    pages.skip(TableGap);
}

/// Breaks a paragraph at blanks into lines of a width.
QStringList wrapped(const QString& paragraph, const Typeface& typeface, const TextStyle& style,
                    qreal width) {
    QStringList lines{QString()};
    for (const QString& word : paragraph.split(' ', Qt::SkipEmptyParts)) {
        const QString longer = lines.back().isEmpty() ? word : lines.back() + ' ' + word;
        if (lines.back().isEmpty() || typeface.width(longer, style) <= width)
            lines.back() = longer;
        else
            lines << word;
    }
    return lines;
}

void putText(PageBuilder& pages, const QString& text, const TextStyle& style,
             const Typeface& typeface) {
    for (const QString& line : wrapped(text, typeface, style, pages.space().width()))
        pages.put(LineSpacing, [=](QPainter& painter, const QRectF& place) {
            typeface.draw(painter, place, Qt::AlignLeft, line, style);
        });
}

QString noteText(SelectionTimes times, BonusKind bonus) {
    QString note = times == SelectionTimes::Official
                       ? said("Percent behind the best of the race and category. ")
                       : said("Percent behind the best expected time of the race and "
                              "category. ");
    note += said("The worst result is struck through and does not count");
    note += bonus ? said("; with a bonus the two worst. ") : QStringLiteral(". ");
    return note + said("Score: the sum of the others divided by three. %1: no result, "
                       "P: preselected.")
                      .arg(Dash);
}

} // namespace

ReportHeading selectionHeading(const QString& title, const selectionracesStruct_v3& document,
                               BonusKind bonus) {
    std::size_t athletes = 0;
    for (const srCategoryStruct_v3& category : document.categories)
        athletes += category.athletes.size();
    ReportHeading heading;
    heading.title = title;
    heading.subtitle = said("Season %1").arg(document.year);
    heading.facts = {{said("Races"), QString::number(document.races.size())},
                     {said("Categories"), QString::number(document.categories.size())},
                     {said("Athletes"), QString::number(athletes)},
                     {said("Bonus"), bonus ? said("Kind %1").arg(*bonus + 1) : said("None")}};
    heading.line = heading.subtitle;
    return heading;
}

void putRules(PageBuilder& pages, const selectionracesStruct_v3& document,
              const Typeface& typeface) {
    constexpr qsizetype MostLines = 20;
    const QString rules = QString::fromStdString(document.rules.substr(0, 8000));
    const QStringList paragraphs = rules.split('\n', Qt::SkipEmptyParts).mid(0, MostLines);
    for (const QString& paragraph : paragraphs)
        putText(pages, reportText(paragraph.toStdString()), {8.5, false, Ink}, typeface);
    if (!paragraphs.isEmpty())
        pages.skip(6 * Point);
}

void putSelectionTables(PageBuilder& pages, const selectionracesStruct_v3& document,
                        SelectionTimes times, BonusKind bonus, const Typeface& typeface) {
    putText(pages, noteText(times, bonus), NoteStyle, typeface);
    pages.skip(8 * Point);
    for (std::size_t i = 0; i < document.categories.size(); ++i) {
        const Table table = tableOf(document, i, times, bonus);
        std::size_t first = 0;
        do {
            putTable(pages, partOf(table, first), typeface);
            first += RacesSideBySide;
        } while (first < table.races.size());
    }
}

void putSignature(PageBuilder& pages, const Typeface& typeface) {
    constexpr qreal Height = 58 * Point;
    if (pages.space().height() < Height)
        pages.newPage();
    pages.put(Height, [typeface](QPainter& painter, const QRectF& place) {
        qreal left = place.left();
        for (const char* what : {KAVELA_TEXT("Place and date"), KAVELA_TEXT("Signature")}) {
            const QRectF line(left, place.bottom() - 20 * Point, 200 * Point, 14 * Point);
            drawRule(painter, line, line.top(), Ink);
            typeface.draw(painter, line, Qt::AlignLeft, said(what), NoteStyle);
            left = line.right() + 40 * Point;
        }
    });
}

} // namespace kavela::report
