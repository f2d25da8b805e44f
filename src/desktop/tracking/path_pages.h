#pragma once

#include "desktop/shell/background_work.h"
#include "desktop/shell/tables/column_model.h"
#include "desktop/tracking/track_figures.h"

#include <QTabWidget>

#include <vector>

namespace kavela::desktop {

class ColumnTable;
class KnownPointsPage;
class SeriesChart;
class TrackDocument;

/// What stands beside the film: the speed along the path, its figures frame by frame, and the known
/// points. The figures are computed beside the window; what is shown is always of the latest path.
class PathPages : public QTabWidget {
    Q_OBJECT

public:
    enum Page { Speed, Figures, KnownPoints };

    /// The document outlives it.
    explicit PathPages(TrackDocument& document, QWidget* parent = nullptr);

    /// Shows the document as it is now, the figures as soon as they are computed.
    void showDocument();

    [[nodiscard]] SeriesChart& chart() const { return *m_chart; }
    [[nodiscard]] ColumnTable& pointTable() const;
    /// Those that are shown.
    [[nodiscard]] const std::vector<PathFigure>& figures() const { return m_shown; }

signals:
    /// Other figures are shown.
    void figuresShown();
    /// A row of the figures was chosen by hand.
    void frameChosen(qint64 frame);
    /// They could not be computed, in a sentence.
    void failed(const QString& why);

private:
    struct Computed {
        std::vector<PathFigure> figures;
        QString fault; ///< why there are no metres; empty where there are, or none are wanted
        bool isScaleOnly = false;
    };
    void computeFigures();
    void showFigures(const Computed& computed);

    TrackDocument& m_document;
    ColumnModel<PathFigure> m_figures;
    SeriesChart* m_chart = nullptr;
    ColumnTable* m_table = nullptr;
    KnownPointsPage* m_points = nullptr;
    std::vector<PathFigure> m_shown;
    int m_asked = 0; ///< number of the latest computation
    BackgroundWork m_work;
};

} // namespace kavela::desktop
