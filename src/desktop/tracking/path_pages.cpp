#include "desktop/tracking/path_pages.h"

#include "desktop/charts/series_chart.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/tracking/known_points_page.h"
#include "desktop/tracking/track_document.h"
#include "vision/track_error.h"

#include <cstddef>
#include <exception>
#include <optional>

namespace kavela::desktop {

PathPages::PathPages(TrackDocument& document, QWidget* parent)
    : QTabWidget(parent),
      m_document(document),
      m_figures(pathColumns(),
                [](const PathFigure& figure) { return static_cast<std::size_t>(figure.frame); }),
      m_chart(new SeriesChart),
      m_table(new ColumnTable(m_figures, "pathFigures")),
      m_points(new KnownPointsPage(document)) {
    m_table->setEmptyText(tr("Draw a box round what is to be followed."));
    m_table->keepOrder();
    addTab(m_chart, tr("Speed"));
    addTab(m_table, tr("Figures"));
    addTab(m_points, tr("Known points"));
    connect(m_table, &ColumnTable::chosen, this, [this] {
        const int place = m_table->currentPlace();
        if (place >= 0 && m_table->hasFocus())
            emit frameChosen(m_figures.row(place).frame);
    });
}

ColumnTable& PathPages::pointTable() const {
    return m_points->table();
}

void PathPages::showDocument() {
    m_points->showPoints();
    computeFigures();
}

/// Two hundred draws of clicks take their time on a long path.
void PathPages::computeFigures() {
    const int asked = ++m_asked;
    const auto compute = [track = m_document.track(), plane = planeOf(m_document.value())] {
        Computed computed;
        try {
            computed.figures = pathFigures(track, plane);
            computed.isScaleOnly = plane && WaterPlane(plane->points).isScaleOnly();
        } catch (const TrackError& error) {
            computed.fault = QString::fromUtf8(error.what());
            computed.figures = pathFigures(track, std::nullopt);
        }
        return computed;
    };
    m_work.run(compute,
               [this, asked](const Computed& computed) {
                   if (asked == m_asked)
                       showFigures(computed);
               },
               {.failed = [this](const std::exception_ptr& fault) {
                   emit failed(QString::fromStdString(messageOf(fault)));
               }});
}

void PathPages::showFigures(const Computed& computed) {
    m_shown = computed.figures;
    const bool hasPlane = !m_document.value().plane.points.empty();
    m_figures.show(m_shown);
    m_chart->show(
        speedContent(m_shown, hasPlane && computed.fault.isEmpty(), computed.isScaleOnly));
    QString told = computed.fault;
    if (told.isEmpty() && computed.isScaleOnly)
        told =
            tr("Two points give a scale only: lengths and speeds hold near them and along the line "
               "between them. Four give the perspective too.");
    if (hasPlane && !m_document.value().isOnWater)
        told += (told.isEmpty() ? QString() : QStringLiteral("\n")) +
                tr("What is followed is not on the water, such as a head: its metres are off.");
    m_points->tell(told);
    emit figuresShown();
}

} // namespace kavela::desktop
