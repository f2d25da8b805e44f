#include "desktop/season/figures_panel.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/why/why_popup.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

using FigureColumn = Column<FigureLine, std::string>;

constexpr int FigureNameColumn = 0;

Cell::Look lookOfLine(const FigureLine& line) {
    return line.figure.isSure ? Cell::Look::Bold : Cell::Look::Plain;
}

FigureColumn figureNumber(const QString& title, std::function<Cell(const FigureLine&)> show) {
    return {.title = title, .kind = ColumnKind::Number, .show = std::move(show)};
}

Cell rangeCell(const FigureLine& line, int decimals, bool isSigned) {
    Cell cell{.text = shownRange(line.figure.interval, decimals, isSigned),
              .look = line.figure.interval ? lookOfLine(line) : Cell::Look::Quiet};
    if (line.figure.interval)
        cell.sortValue = line.figure.interval->low;
    return cell;
}

/// Rows from before may have less beside them while the columns change.
FigureColumn besideColumn(const QString& title, std::size_t place) {
    return figureNumber(title, [place](const FigureLine& line) {
        if (place >= line.beside.size())
            return Cell{};
        const BesideFigure& beside = line.beside[place];
        return Cell{.text = beside.text, .number = beside.number, .look = lookOfLine(line)};
    });
}

} // namespace

FiguresPanel::FiguresPanel(Workspace& workspace, const char* name, QWidget* parent)
    : QWidget(parent),
      m_rows(columnsOf({}), [](const FigureLine& line) { return line.figure.id; }),
      m_choiceRow(new QWidget),
      m_choice(new QComboBox),
      m_chart(new IntervalChart),
      m_table(new ColumnTable(m_rows, name)) {
    makeLayout(workspace, name);
    m_table->stretch({FigureNameColumn});
    connect(m_choice, &QComboBox::currentIndexChanged, this, &FiguresPanel::choiceChanged);
    connect(m_table, &ColumnTable::chosen, this, &FiguresPanel::markCurrent);
    connect(m_chart, &IntervalChart::markActivated, this, [this](std::size_t mark) {
        m_table->choose(static_cast<int>(m_lines.at(mark)));
        m_table->setFocus();
    });
    answerWhy(m_table, [this](const QModelIndex& cell) {
        return whyOf(m_table->placeAt(cell), cell.column());
    });
    answerWhy(m_chart->focusProxy(), [this](const QPoint& at) -> std::optional<Reason> {
        const auto mark = at.x() < 0 ? m_chart->current() : m_chart->markAt(at);
        constexpr int ValueColumn = 2;
        return mark && *mark < m_lines.size() ? whyOf(static_cast<int>(m_lines[*mark]), ValueColumn)
                                              : std::nullopt;
    });
}

void FiguresPanel::makeLayout(Workspace& workspace, const char* name) {
    m_choice->setObjectName(QString::fromLatin1(name) + QStringLiteral("Choice"));
    m_choice->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    auto* const row = new QHBoxLayout(m_choiceRow);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_choice);
    row->addStretch();
    m_choiceRow->hide();
    auto* const splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_chart);
    splitter->addWidget(m_table);
    shareSizes(*splitter, {340, 280});
    rememberSizes(*splitter, workspace, QStringLiteral("season/") + QString::fromLatin1(name));
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_choiceRow);
    column->addWidget(splitter, 1);
}

FiguresPanel::Rows::Columns FiguresPanel::columnsOf(const FiguresShown& shown) {
    Rows::Columns columns{{.title = shown.titles.row, .show = [](const FigureLine& line) {
                               bool isNumber = false;
                               const QString name = qtText(line.figure.label);
                               Cell cell{.text = name, .tip = name, .look = lookOfLine(line)};
                               if (const double number = name.toDouble(&isNumber); isNumber)
                                   cell.sortValue = number;
                               return cell;
                           }}};
    columns.push_back(figureNumber(shown.titles.count, [](const FigureLine& line) {
        return Cell{.text = QString::number(line.figure.runs),
                    .number = static_cast<double>(line.figure.runs),
                    .look = lookOfLine(line)};
    }));
    columns.push_back(
        figureNumber(shown.titles.value, [decimals = shown.decimals,
                                          isSigned = shown.isSigned](const FigureLine& line) {
            return Cell{.text = shownFigure(line.figure.value, decimals, isSigned),
                        .number = line.figure.value,
                        .look = lookOfLine(line)};
        }));
    if (!shown.titles.range.isEmpty())
        columns.push_back(
            figureNumber(shown.titles.range, [decimals = shown.decimals,
                                              isSigned = shown.isSigned](const FigureLine& line) {
                return rangeCell(line, decimals, isSigned);
            }));
    for (qsizetype i = 0; i < shown.titles.beside.size(); ++i)
        columns.push_back(besideColumn(shown.titles.beside[i], static_cast<std::size_t>(i)));
    return columns;
}

void FiguresPanel::offer(const QString& label, const QStringList& choices) {
    QStringList before;
    for (int i = 0; i < m_choice->count(); ++i)
        before << m_choice->itemText(i);
    m_choiceRow->setVisible(!choices.isEmpty());
    m_choice->setAccessibleName(label);
    m_choice->setToolTip(label);
    if (before == choices)
        return;
    const QSignalBlocker quiet(m_choice);
    const QString chosen = m_choice->currentText();
    m_choice->clear();
    m_choice->addItems(choices);
    m_choice->setCurrentIndex(std::max(m_choice->findText(chosen), choices.isEmpty() ? -1 : 0));
}

int FiguresPanel::choice() const {
    return m_choice->currentIndex();
}

QString FiguresPanel::choiceText() const {
    return m_choice->currentText();
}

void FiguresPanel::choose(int choice) {
    m_choice->setCurrentIndex(choice);
}

/// Rows of another question have nothing to do with those from before, though some ids are alike.
void FiguresPanel::show(const SharedSeason& season, FiguresShown shown) {
    const bool hasOtherColumns = !(shown.titles == m_shown.titles) ||
                                 shown.decimals != m_shown.decimals ||
                                 shown.isSigned != m_shown.isSigned;
    const bool isOther = hasOtherColumns || shown.title != m_shown.title;
    m_season = season;
    m_shown = std::move(shown);
    m_table->setEmptyText(m_shown.emptyText);
    if (hasOtherColumns)
        m_rows.setColumns(columnsOf(m_shown));
    FigureMarks marks = marksOf(m_shown);
    m_lines = std::move(marks.lines);
    m_rows.show(m_shown.lines, isOther);
    m_chart->show(std::move(marks.content));
    markCurrent();
}

const FigureLine* FiguresPanel::current() const {
    const int place = m_table->currentPlace();
    return place >= 0 && place < static_cast<int>(m_rows.rows().size()) ? &m_rows.row(place)
                                                                        : nullptr;
}

std::optional<std::size_t> FiguresPanel::markOf(int place) const {
    const auto mark = std::ranges::find(m_lines, static_cast<std::size_t>(place));
    return place < 0 || mark == m_lines.end()
               ? std::nullopt
               : std::optional(static_cast<std::size_t>(mark - m_lines.begin()));
}

void FiguresPanel::markCurrent() {
    m_chart->showChosen(markOf(m_table->currentPlace()));
}

std::optional<Reason> FiguresPanel::whyOf(int place, int column) const {
    if (!m_season || place < 0 || column <= FigureNameColumn)
        return {};
    const FigureLine& line = m_rows.row(place);
    const auto figures = static_cast<std::size_t>(m_shown.titles.range.isEmpty() ? 3 : 4);
    const auto at = static_cast<std::size_t>(column);
    if (at < figures)
        return m_season->why(line.figure.value ? line.figure.id : std::string());
    return at - figures < line.beside.size() ? m_season->why(line.beside[at - figures].id)
                                             : std::nullopt;
}

} // namespace kavela::desktop
