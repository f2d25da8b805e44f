#include "desktop/planning/body/body_panel.h"

#include "common/error.h"
#include "common/text_file.h"
#include "desktop/charts/series_chart.h"
#include "desktop/planning/body/measure_charts.h"
#include "desktop/planning/body/measure_table.h"
#include "desktop/planning/body/variability_dialog.h"
#include "desktop/shell/dropped_files.h"
#include "desktop/shell/theme.h"
#include "planning/calendar_day.h"

#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int DefaultIndex = 2; ///< rMSSD, which trainers mostly follow

bool isList(const QString& path) {
    return QStringList{"csv", "txt", "tsv"}.contains(QFileInfo(path).suffix().toLower());
}

} // namespace

BodyPanel::BodyPanel(PlanningDocument& document, Clock clock, QWidget* parent)
    : SeasonPanel(document, parent), m_clock(std::move(clock)), m_tabs(new QTabWidget) {
    m_parts[Body].measures = bodyMeasures();
    m_parts[Resting].measures = restingMeasures();
    m_parts[Variability].measures = variabilityMeasures();
    m_tabs->setDocumentMode(true);
    m_tabs->tabBar()->setDrawBase(false);
    addPart(Body, tr("Body"), tr("body data"), tr("Add weight"));
    addPart(Resting, tr("Resting heart rate"), tr("heart rate"), tr("Add heart rate"));
    addPart(Variability, tr("Heart-rate variability"), tr("variability"), tr("Add measurement"));
    makeImport();
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, theme::Spacing, 0, 0);
    column->addWidget(m_tabs);
    setAcceptDrops(true);
}

void BodyPanel::addPart(Section section, const QString& title, const QString& what,
                        const QString& addText) {
    Part& part = m_parts[section];
    part.what = what;
    part.table = new MeasureTable(part.measures->columns(), addText);
    part.chart = new SeriesChart;
    part.words = new QLabel;
    part.words->setObjectName("standing");
    part.words->setWordWrap(true);
    part.words->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* const beside = new QWidget;
    auto* const column = new QVBoxLayout(beside);
    column->setContentsMargins(theme::Spacing, 0, 0, 0);
    column->setSpacing(theme::Spacing);
    part.words->setContentsMargins(0, theme::SmallSpacing, 0, theme::SmallSpacing);
    column->addWidget(part.words);
    column->addWidget(part.chart, 1);
    auto* const halves = new QSplitter;
    halves->setContentsMargins(0, theme::Spacing, 0, 0);
    halves->addWidget(part.table);
    halves->addWidget(beside);
    halves->setStretchFactor(1, 1);
    halves->setChildrenCollapsible(false);
    halves->setSizes(section == Variability ? QList{590, 460} : QList{330, 720});
    m_tabs->addTab(halves, title);
    connectPart(section);
}

void BodyPanel::connectPart(Section section) {
    const Part& part = m_parts[section];
    connect(part.table, &MeasureTable::addAsked, this,
            [this, section] { addMeasurement(section); });
    connect(part.table, &MeasureTable::removalAsked, this,
            [this, &part](const std::vector<std::size_t>& places) {
                edit(tr("removal of %1").arg(part.what),
                     [&](yearsplannings_v6& season) { part.measures->remove(season, places); });
            });
    MeasureModel* const model = &part.table->model();
    connect(model, &MeasureModel::dateTyped, this,
            [this, &part](std::size_t place, ReferenceDate date) {
                edit(tr("date"), [&](yearsplannings_v6& season) {
                    part.measures->setDate(season, place, date);
                });
            });
    connect(model, &MeasureModel::valueTyped, this,
            [this, &part](std::size_t place, std::size_t column, double value) {
                edit(part.what, [&](yearsplannings_v6& season) {
                    part.measures->setValue(season, place, column, value);
                });
            });
    connect(part.chart, &SeriesChart::pointActivated, this, [this, section](int series, int index) {
        const auto& points = m_parts[section].chart->content().series;
        const double x =
            points[static_cast<std::size_t>(series)].points[static_cast<std::size_t>(index)].x();
        for (const MeasureRow& row : m_parts[section].measures->rows(*this->season()))
            if (dayOfMoment(row.date) == dayOfMoment({x}))
                m_parts[section].table->choose(row.place);
    });
}

void BodyPanel::makeImport() {
    Part& part = m_parts[Variability];
    auto* const import = new QPushButton(tr("Import list…"));
    import->setObjectName("import");
    import->setToolTip(tr("A list with a header: Date and one or more of AVNN, SDNN, rMSSD, pNN50, "
                          "LF, HF. It can also be dropped here."));
    connect(import, &QPushButton::clicked, this, &BodyPanel::askForImport);
    part.table->addButton(import);
    m_index = new QComboBox;
    m_index->setObjectName("index");
    m_index->setAccessibleName(tr("Index of the chart"));
    for (const MeasureColumn& column : part.measures->columns())
        m_index->addItem(column.title);
    m_index->setCurrentIndex(DefaultIndex);
    auto* const row = new QHBoxLayout;
    row->setSpacing(theme::Spacing);
    auto* const label = new QLabel(tr("&Index"));
    label->setBuddy(m_index);
    auto* const column = static_cast<QVBoxLayout*>(part.words->parentWidget()->layout());
    column->removeWidget(part.words);
    row->addWidget(label);
    row->addWidget(m_index);
    row->addSpacing(theme::Spacing);
    row->addWidget(part.words, 1);
    row->addStretch();
    column->insertLayout(0, row);
    connect(m_index, &QComboBox::currentIndexChanged, this, &BodyPanel::refresh);
}

void BodyPanel::showSection(Section section) {
    m_tabs->setCurrentIndex(section);
}

void BodyPanel::chooseIndex(int index) {
    m_index->setCurrentIndex(index);
}

QString BodyPanel::emptyText(Section section) const {
    if (!athlete())
        return tr("Choose an athlete.");
    if (!season())
        return tr("Add a season for this athlete first.");
    switch (section) {
    case Body:
        return tr("No weight of this season yet.\nPress Insert to add today's.");
    case Resting:
        return tr("No heart rate of this season yet.\nPress Insert to add this morning's.");
    case Variability:
        break;
    }
    return tr("No measurement of this season yet.\nPress Insert to add one, or import a list.");
}

void BodyPanel::refresh() {
    for (const Section section : {Body, Resting, Variability}) {
        Part& part = m_parts[section];
        part.table->setEmptyText(emptyText(section), season() != nullptr);
        part.table->show(season() ? part.measures->rows(*season()) : std::vector<MeasureRow>());
    }
    showCharts(season() ? *season() : yearsplannings_v6());
}

void BodyPanel::showCharts(const yearsplannings_v6& shown) {
    const auto show = [this](Section section, ChartContent content, const QString& words) {
        if (!season())
            content.emptyText = emptyText(section);
        m_parts[section].chart->show(std::move(content));
        m_parts[section].words->setText(words);
        m_parts[section].words->setVisible(!words.isEmpty());
    };
    show(Body, bodyChart(shown), {});

    const std::vector<TrendDay> resting = heartTrend(restingSeries(shown.heartdata.resting));
    ChartContent heart = trendChart(resting, tr("Resting heart rate"), tr("bpm"));
    heart.emptyText = tr("Add a few mornings' heart rates to see the mean of the week against "
                         "what is usual.");
    show(Resting, std::move(heart), standingText(resting, tr("bpm")));

    const auto index = static_cast<std::size_t>(std::max(m_index->currentIndex(), 0));
    const MeasureColumn column = m_parts[Variability].measures->columns()[index];
    const std::vector<TrendDay> trend =
        heartTrend(variabilitySeries(shown.heartdata.variability, variabilityIndices()[index]));
    ChartContent variability = trendChart(trend, column.title, column.unit);
    variability.emptyText = tr("No %1 of this season. Add measurements, import a list or choose "
                               "another index.")
                                .arg(column.title);
    show(Variability, std::move(variability), standingText(trend, column.unit));
}

void BodyPanel::addMeasurement(Section section) {
    if (!season())
        return;
    const auto today = dayOfMoment(m_clock());
    const ReferenceDate date = today ? midnightOf(*today) : ReferenceDate();
    Part& part = m_parts[section];
    std::size_t place = 0;
    edit(tr("new %1").arg(part.what),
         [&](yearsplannings_v6& season) { place = part.measures->add(season, date); });
    part.table->edit(place);
}

void BodyPanel::askForImport() {
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Import variability"), {}, tr("Lists (*.csv *.txt *.tsv);;All files (*)"));
    if (!path.isEmpty())
        importVariability(path);
}

void BodyPanel::importVariability(const QString& path) {
    if (!season()) {
        emit refused(emptyText(Variability));
        return;
    }
    try {
        const VariabilityList list = parseVariability(readTextFile(path.toStdU16String()));
        std::vector<variabilitydataplanning_v2> after = season()->heartdata.variability;
        const std::size_t added = addMeasurements(after, list.measurements);
        showSection(Variability);
        VariabilityDialog dialog(QFileInfo(path).fileName(), list, added, this);
        if (dialog.exec() != QDialog::Accepted || added == 0)
            return;
        edit(tr("import of variability"),
             [&](yearsplannings_v6& season) { season.heartdata.variability = std::move(after); });
    } catch (const std::runtime_error& error) {
        emit refused(tr("The list cannot be read: %1").arg(QString::fromStdString(error.what())));
    }
}

/// Other files than lists go on to the window.
void BodyPanel::dragEnterEvent(QDragEnterEvent* event) {
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.size() == 1 && isList(urls.constFirst().toLocalFile()))
        acceptFiles(*event);
    else
        event->ignore();
}

void BodyPanel::dropEvent(QDropEvent* event) {
    const QStringList paths = droppedFiles(*event);
    if (!paths.isEmpty())
        importVariability(paths.constFirst());
}

} // namespace kavela::desktop
