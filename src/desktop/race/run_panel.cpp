#include "desktop/race/run_panel.h"

#include "analysis/analysis_reasons.h"
#include "analysis/standing.h"
#include "desktop/race/race_document.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/why/why_label.h"
#include "desktop/why/why_popup.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr std::size_t ClosingFigures = 3; ///< total, sprint, real

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
      m_total(figureLabel(RunFigure::Total)),
      m_penalties(figureLabel(RunFigure::Penalties)),
      m_real(figureLabel(RunFigure::Real)),
      m_realPenalties(figureLabel(RunFigure::RealPenalties)),
      m_expected(figureLabel(RunFigure::Expected)),
      m_potential(figureLabel(RunFigure::Potential)),
      m_standing(wrapped(font())),
      m_gates(wrapped(font())),
      m_rows(columns(tr("To best"))),
      m_sections(new ColumnTable(m_rows, "")),
      m_empty(wrapped(theme::captionFont(*this))) {
    m_sections->keepOrder();
    m_sections->setSelectionMode(QAbstractItemView::SingleSelection); // the key asks for a cell
    m_sections->setAlternatingRowColors(false);
    m_sections->stretch({0});
    m_empty->setText(tr("Select a run to see its sections. Select two to compare them."));
    m_empty->setForegroundRole(QPalette::PlaceholderText);
    makeLayout();
    makeAnswers();
    setMinimumWidth(grown(*this, 240));
    showRun(std::nullopt, std::nullopt);
}

WhyLabel* RunPanel::figureLabel(RunFigure figure) {
    return new WhyLabel([this, figure] {
        return m_run ? explainRunFigure(m_document.shownSet(), *m_run, figure) : std::nullopt;
    });
}

void RunPanel::makeLayout() {
    auto* figures = new QVBoxLayout;
    figures->setSpacing(0);
    figures->addWidget(m_facts);
    const auto addPair = [figures](QLabel* time, QLabel* penalties) {
        auto* row = new QHBoxLayout;
        row->setSpacing(theme::SmallSpacing);
        row->addWidget(time);
        row->addWidget(penalties, 1);
        figures->addLayout(row);
    };
    addPair(m_total, m_penalties);
    addPair(m_real, m_realPenalties);
    for (QLabel* label : std::initializer_list<QLabel*>{m_expected, m_potential, m_standing})
        figures->addWidget(label);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_name);
    column->addLayout(figures);
    column->addWidget(m_gates);
    column->addWidget(m_sections, 1);
    column->addWidget(m_empty);
    column->addStretch(0);
}

void RunPanel::makeAnswers() {
    answerWhy(m_sections, [this](const QModelIndex& cell) {
        return whyOf(static_cast<std::size_t>(m_sections->placeAt(cell)), cell.column());
    });
}

void RunPanel::showRun(std::optional<std::size_t> run, const std::optional<RunAgainst>& against) {
    m_run = run;
    m_reference =
        against ? TableReference{ReferenceKind::Values, 0, {}, against->values} : TableReference{};
    for (QWidget* widget : std::initializer_list<QWidget*>{m_name, m_facts, m_gates, m_sections})
        widget->setVisible(run.has_value());
    m_empty->setVisible(!run);
    if (!run) {
        for (WhyLabel* label :
             {m_total, m_penalties, m_real, m_realPenalties, m_expected, m_potential})
            label->tell(QString());
        m_standing->hide();
        return;
    }
    fillHeading(*run, against);
    fillFigures(*run);
    fillSections(*run, against);
}

void RunPanel::fillHeading(std::size_t run, const std::optional<RunAgainst>& against) {
    const RaceSet& set = m_document.shownSet();
    const analyzerdata& record = set.alldata[run];
    QString name = qtText(record.name);
    if (against)
        name += tr(" against %1").arg(against->name);
    m_name->setText(name);
    QStringList facts{qtText(record.category), qtText(record.phase)};
    facts.removeAll(QString());
    m_facts->setText(facts.join(" · "));
    m_facts->setVisible(!facts.isEmpty());
    m_gates->setText(gateText(set, record));
    m_gates->setVisible(!m_gates->text().isEmpty());
}

void RunPanel::fillFigures(std::size_t run) {
    const RaceSet& set = m_document.shownSet();
    const auto seconds = [&](RunFigure figure) { return runFigure(set, run, figure); };
    const auto penalties = [&](RunFigure figure) {
        return tr("penalties %1 s").arg(static_cast<qint64>(seconds(figure).value_or(0)));
    };
    const auto tellTime = [&](WhyLabel* label, const QString& text, RunFigure figure) {
        const auto time = seconds(figure);
        label->tell(time ? text.arg(shownHundredths(*time)) : QString());
        return time.has_value();
    };
    if (!tellTime(m_total, tr("Total %1 s,"), RunFigure::Total))
        m_total->tell(tr("Total –,"));
    m_penalties->tell(penalties(RunFigure::Penalties));
    const bool isReal = tellTime(m_real, tr("Real %1 s,"), RunFigure::Real);
    m_realPenalties->tell(isReal ? penalties(RunFigure::RealPenalties) : QString());
    (void)tellTime(m_expected, tr("Expected %1 s"), RunFigure::Expected);
    (void)tellTime(m_potential, tr("Best own sections %1 s"), RunFigure::Potential);
    const TimeStanding standing = totalStanding(set.alldata[run].sectioninfo, set.totalsplits);
    m_standing->setText(standing == TimeStanding::NotPositive
                            ? tr("A time must be above 0. Check the marks of this run.")
                        : standing != TimeStanding::Counts ? tr("Not the whole course")
                                                           : QString());
    m_standing->setVisible(!m_standing->text().isEmpty());
}

void RunPanel::fillSections(std::size_t run, const std::optional<RunAgainst>& against) {
    const SplitTable& table = m_document.table();
    const RaceSet& set = m_document.shownSet();
    const sectionmaindata& whole = set.alldata[run].sectioninfo;
    const std::size_t sections = table.columns.size() - ClosingFigures;
    std::vector<Section> rows;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        Section row;
        row.title = qtText(table.columns[i].title);
        row.time = table.rows[run].cells[i].value;
        if (i < sections)
            row.penalty = sectionPenalty(set, run, i);
        else if (i != sections + 1) // a sprint has none
            row.penalty = i == sections ? whole.totalpen : whole.realpen;
        if (const auto rank = m_document.figures().rank(run, i))
            row.rank = static_cast<std::int64_t>(*rank);
        row.gap = m_document.figures().gap(run, i, m_reference);
        rows.push_back(std::move(row));
    }
    m_rows.setColumns(columns(against ? tr("Gap") : tr("To best")));
    m_rows.show(std::move(rows), true);
}

std::optional<Reason> RunPanel::whyOf(std::size_t section, int column) const {
    enum { TimeAt = 1, PenaltyAt, PlaceAt, GapAt };
    const SplitTable& table = m_document.table();
    if (!m_run || *m_run >= table.rows.size() || section >= table.columns.size() || column < TimeAt)
        return std::nullopt;
    const RaceSet& set = m_document.shownSet();
    const std::size_t sections = table.columns.size() - ClosingFigures;
    if (column == PenaltyAt && section >= sections)
        return section == sections + 1
                   ? std::nullopt
                   : explainRunFigure(set, *m_run,
                                      section == sections ? RunFigure::Penalties
                                                          : RunFigure::RealPenalties);
    if (column == PenaltyAt) {
        Why why;
        (void)sectionPenalty(set, *m_run, section, &why);
        return why.reason();
    }
    const CellContent content = column == PlaceAt ? CellContent::Rank
                                : column == GapAt ? CellContent::Gap
                                                  : CellContent::Time;
    const TableSettings settings = m_document.settings();
    return explainCell({set, settings, table, m_document.figures(), content, m_reference}, *m_run,
                       section);
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
