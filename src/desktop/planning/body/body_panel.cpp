#include "desktop/planning/body/body_panel.h"

#include "common/error.h"
#include "common/text_file.h"
#include "desktop/charts/series_chart.h"
#include "desktop/planning/body/measure_charts.h"
#include "desktop/planning/body/measures.h"
#include "desktop/planning/body/variability_dialog.h"
#include "desktop/shell/dropped_files.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/tables/table_panel.h"
#include "desktop/shell/theme.h"
#include "planning/calendar_day.h"

#include <QAction>
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
constexpr int DateColumn = 0;   ///< the values follow

/// The indices of variability in the order of their columns.
std::vector<Measure<variabilitydataplanning_v2>> variabilityIndices() {
    using Record = variabilitydataplanning_v2;
    return {{&Record::AVNN, "AVNN", "ms", 3000},   {&Record::SDNN, "SDNN", "ms", 1000},
            {&Record::rMSSD, "rMSSD", "ms", 1000}, {&Record::pNN50, "pNN50", "%", 100},
            {&Record::LF, "LF", "ms²", 1e6},       {&Record::HF, "HF", "ms²", 1e6}};
}

bool isList(const QString& path) {
    return QStringList{"csv", "txt", "tsv"}.contains(QFileInfo(path).suffix().toLower());
}

} // namespace

BodyPanel::BodyPanel(PlanningDocument& document, Clock clock, QWidget* parent)
    : SeasonPanel(document, parent), m_clock(std::move(clock)), m_tabs(new QTabWidget) {
    using Weight = healthdataplanning_v1;
    using Rate = restingdataplanning_v1;
    m_tabs->setDocumentMode(true);
    m_tabs->tabBar()->setDrawBase(false);
    addPart<Weight>(
        Body, {"body", tr("Body"), tr("body data"), tr("Add weight")},
        [](auto& season) -> auto& { return season.healthdata; },
        {{&Weight::weight, tr("Weight"), "kg", 300}, {&Weight::fatper, tr("Body fat"), "%", 100}});
    addPart<Rate>(Resting,
                  {"resting", tr("Resting heart rate"), tr("heart rate"), tr("Add heart rate")},
                  [](auto& season) -> auto& { return season.heartdata.resting; },
                  {{&Rate::rhr, tr("Resting heart rate"), "bpm", 250}});
    addPart<variabilitydataplanning_v2>(
        Variability,
        {"variability", tr("Heart-rate variability"), tr("variability"), tr("Add measurement")},
        [](auto& season) -> auto& { return season.heartdata.variability; }, variabilityIndices());
    makeImport();
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, theme::Spacing, 0, 0);
    column->addWidget(m_tabs);
    setAcceptDrops(true);
}

template <class Record, class List>
void BodyPanel::addPart(Section section, const PartTexts& texts, List list,
                        const std::vector<Measure<Record>>& measures) {
    const auto set = [this, list](const QString& what, std::size_t place, const auto& change) {
        edit(what, [&](yearsplannings_v6& season) {
            if (place < list(season).size())
                change(list(season)[place]);
        });
    };
    typename ColumnModel<Record>::Columns columns{
        dateColumn<Record>([set](std::size_t place, ReferenceDate date) {
            set(tr("date"), place, [date](Record& record) { record.date = date; });
        })};
    for (const Measure<Record>& measure : measures)
        columns.push_back(
            measureColumn(measure, [set, texts, measure](std::size_t place, double value) {
                set(texts.what, place, [&](Record& record) { record.*measure.member = value; });
            }));
    auto* const model = new ColumnModel<Record>(std::move(columns), {}, this);
    Part& part = m_parts[section];
    part.show = [this, list, model] {
        model->show(season() ? list(*season()) : std::vector<Record>(), isOtherSeason());
    };
    part.dateAt = [model](int place) { return model->row(place).date; };
    layOut(section, texts, new ColumnTable(*model, texts.name));
    QAction& add = part.table->setAdd(texts.add, [this, section, list, texts] {
        std::size_t place = 0;
        edit(tr("new %1").arg(texts.what), [&](yearsplannings_v6& season) {
            place = insertByDate(list(season), Record{.date = today()});
        });
        m_parts[section].table->edit(static_cast<int>(place), 1);
    });
    QAction& remove =
        part.table->setRemove(tr("Remove"), [this, list, texts](const std::vector<int>& places) {
            edit(tr("removal of %1").arg(texts.what),
                 [&](yearsplannings_v6& season) { removePlaces(list(season), places); });
        });
    part.panel->addButton(buttonFor(add, texts.add, "add"));
    part.panel->addButton(buttonFor(remove, tr("Remove"), "remove"));
    part.add = &add;
}

void BodyPanel::layOut(Section section, const PartTexts& texts, ColumnTable* table) {
    Part& part = m_parts[section];
    part.table = table;
    table->sortBy(DateColumn, Qt::DescendingOrder); // the latest first
    table->keepOneChosen();
    table->stretchAll();
    part.panel = new TablePanel(table);
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
    halves->addWidget(part.panel);
    halves->addWidget(beside);
    halves->setStretchFactor(1, 1);
    halves->setChildrenCollapsible(false);
    halves->setSizes(section == Variability ? QList{590, 460} : QList{330, 720});
    m_tabs->addTab(halves, texts.title);
    connect(part.chart, &SeriesChart::pointActivated, this,
            [this, section](int series, int index) { choosePoint(section, series, index); });
}

/// The measurement of a day.
void BodyPanel::choosePoint(Section section, int series, int index) {
    const Part& part = m_parts[section];
    const double x = part.chart->content()
                         .series[static_cast<std::size_t>(series)]
                         .points[static_cast<std::size_t>(index)]
                         .x();
    for (const int place : part.table->shownPlaces())
        if (dayOfMoment(part.dateAt(place)) == dayOfMoment({x}))
            part.table->choose(place, DateColumn);
}

void BodyPanel::makeImport() {
    Part& part = m_parts[Variability];
    auto* const import = new QPushButton(tr("Import list…"));
    import->setObjectName("import");
    import->setToolTip(tr("A list with a header: Date and one or more of AVNN, SDNN, rMSSD, pNN50, "
                          "LF, HF. It can also be dropped here."));
    connect(import, &QPushButton::clicked, this, &BodyPanel::askForImport);
    part.panel->addButton(import);
    m_index = new QComboBox;
    m_index->setObjectName("index");
    m_index->setAccessibleName(tr("Index of the chart"));
    for (const auto& index : variabilityIndices())
        m_index->addItem(index.title);
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
        part.table->setEmptyText(emptyText(section));
        part.add->setEnabled(season() != nullptr);
        part.show();
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
    const auto column = variabilityIndices()[index];
    const std::vector<TrendDay> trend =
        heartTrend(variabilitySeries(shown.heartdata.variability, column.member));
    ChartContent variability = trendChart(trend, column.title, column.unit);
    variability.emptyText = tr("No %1 of this season. Add measurements, import a list or choose "
                               "another index.")
                                .arg(column.title);
    show(Variability, std::move(variability), standingText(trend, column.unit));
}

ReferenceDate BodyPanel::today() const {
    const auto day = dayOfMoment(m_clock());
    return day ? midnightOf(*day) : ReferenceDate();
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
