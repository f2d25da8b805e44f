#include "desktop/race/run_panel.h"

#include "analysis/athlete_potential.h"
#include "analysis/standing.h"
#include "desktop/race/race_document.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "splitdata/run_timing.h"

#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

QString timeOrDash(double seconds) {
    return seconds == 0 ? "–" : shownHundredths(seconds);
}

QString signedOrDash(const std::optional<double>& seconds) {
    if (!seconds)
        return "–";
    return (*seconds > 0 ? "+" : "") + shownHundredths(*seconds);
}

QString gateText(const RaceSet& set, const analyzerdata& run) {
    if (!std::cmp_equal(run.gatePenalties.size(), set.gates))
        return {};
    QStringList touched;
    QStringList missed;
    for (std::size_t gate = 0; gate < run.gatePenalties.size(); ++gate) {
        if (run.gatePenalties[gate] >= 50)
            missed.append(QString::number(gate + 1));
        else if (run.gatePenalties[gate] > 0)
            touched.append(QString::number(gate + 1));
    }
    if (touched.isEmpty() && missed.isEmpty())
        return RunPanel::tr("A clean run.");
    QStringList parts;
    if (!touched.isEmpty())
        parts.append(RunPanel::tr("Touched: gate %1.").arg(touched.join(", ")));
    if (!missed.isEmpty())
        parts.append(RunPanel::tr("Missed: gate %1.").arg(missed.join(", ")));
    return parts.join(' ');
}

/// What the best sections of this crew's runs would give, where that is more than this run.
QString potentialText(const RaceSet& set, const analyzerdata& record) {
    const auto run = static_cast<std::size_t>(&record - set.alldata.data());
    for (const AthletePotential& athlete : athletePotentials(set))
        if (athlete.runs.size() > 1 && athlete.potential &&
            std::ranges::find(athlete.runs, run) != athlete.runs.end())
            return RunPanel::tr("\nBest own sections %1 s").arg(timeOrDash(*athlete.potential));
    return {};
}

QLabel* wrapped(const QFont& font) {
    auto* label = new QLabel;
    label->setFont(font);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

RunPanel::RunPanel(RaceDocument& document, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_name(wrapped(theme::titleFont(*this))),
      m_facts(wrapped(font())),
      m_gates(wrapped(font())),
      m_rows(columns(tr("To best"))),
      m_sections(new ColumnTable(m_rows, "")),
      m_empty(wrapped(theme::captionFont(*this))) {
    m_sections->setOnlyShown();
    m_sections->stretch({0});
    m_empty->setText(tr("Select a run to see its sections. Select two to compare them."));
    m_empty->setForegroundRole(QPalette::PlaceholderText);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_name);
    column->addWidget(m_facts);
    column->addWidget(m_gates);
    column->addWidget(m_sections, 1);
    column->addWidget(m_empty);
    column->addStretch(0);
    setMinimumWidth(240);
    showRun(std::nullopt, std::nullopt);
}

void RunPanel::showRun(std::optional<std::size_t> run, const std::optional<RunAgainst>& against) {
    for (QWidget* widget : std::initializer_list<QWidget*>{m_name, m_facts, m_gates, m_sections})
        widget->setVisible(run.has_value());
    m_empty->setVisible(!run);
    if (!run)
        return;
    fillHeading(*run, against);
    fillSections(*run, against);
}

void RunPanel::fillHeading(std::size_t run, const std::optional<RunAgainst>& against) {
    const RaceSet& set = m_document.shownSet();
    const analyzerdata& record = set.alldata[run];
    const sectionmaindata& section = record.sectioninfo;
    QString name = qtText(record.name);
    if (against)
        name += tr(" against %1").arg(against->name);
    m_name->setText(name);

    QStringList facts{qtText(record.category), qtText(record.phase)};
    facts.removeAll(QString());
    QString text = facts.join(" · ");
    text +=
        tr("\nTotal %1 s, penalties %2 s").arg(timeOrDash(section.totaltime)).arg(section.totalpen);
    if (section.realtime != 0)
        text += tr("\nReal %1 s, penalties %2 s")
                    .arg(timeOrDash(section.realtime))
                    .arg(section.realpen);
    if (section.xTime != 0)
        text += tr("\nExpected %1 s").arg(timeOrDash(section.xTime));
    text += potentialText(set, record);
    const TimeStanding standing = totalStanding(section, set.totalsplits);
    if (standing == TimeStanding::NotPositive)
        text += tr("\nA time must be above 0. Check the marks of this run.");
    else if (standing != TimeStanding::Counts)
        text += tr("\nNot the whole course");
    m_facts->setText(text);
    m_gates->setText(gateText(set, record));
    m_gates->setVisible(!m_gates->text().isEmpty());
}

void RunPanel::fillSections(std::size_t run, const std::optional<RunAgainst>& against) {
    const SplitTable& table = m_document.table();
    const TableReference reference =
        against ? TableReference{ReferenceKind::Values, 0, {}, against->values} : TableReference{};
    const std::vector<std::int64_t>& pens = table.rows[run].run->sectioninfo.pens;
    std::vector<Section> rows;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        Section row;
        row.title = qtText(table.columns[i].title);
        row.time = table.rows[run].cells[i].value;
        row.penalty = i + 3 < table.columns.size() ? entryOrZero(pens, i) : 0;
        if (const auto rank = m_document.figures().rank(run, i))
            row.rank = static_cast<std::int64_t>(*rank);
        row.gap = m_document.figures().gap(run, i, reference);
        rows.push_back(std::move(row));
    }
    m_rows.setColumns(columns(against ? tr("Gap") : tr("To best")));
    m_rows.show(std::move(rows), true);
}

/// `gap` is the title of the last one.
std::vector<Column<RunPanel::Section>> RunPanel::columns(const QString& gap) {
    std::vector<Column<Section>> columns;
    columns.push_back(
        textColumn<Section>(tr("Section"), [](const Section& row) { return row.title; }));
    const auto add = [&](const QString& title, std::function<Cell(const Section&)> show) {
        columns.push_back({.title = title, .kind = ColumnKind::Number, .show = std::move(show)});
    };
    add(tr("Time"), [](const Section& row) {
        Cell cell{.text = timeOrDash(row.time)};
        if (row.time != 0)
            cell.number = row.time;
        return cell;
    });
    add(tr("Pen"), [](const Section& row) {
        return row.penalty == 0 ? Cell()
                                : Cell{.text = QString::number(row.penalty),
                                       .number = static_cast<double>(row.penalty)};
    });
    add(tr("Place"), [](const Section& row) {
        return Cell{.text = row.rank ? QString::number(*row.rank) : QStringLiteral("–")};
    });
    add(gap,
        [](const Section& row) { return Cell{.text = signedOrDash(row.gap), .number = row.gap}; });
    return columns;
}

} // namespace kavela::desktop
