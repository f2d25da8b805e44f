#pragma once

#include "desktop/team/season_model.h"

#include <QtCharts/QChartView>

#include <filesystem>

class QLineSeries;

namespace kavela::desktop {

/// A chart of the team tool in the colours of the window. A click on an entry of the legend hides
/// its series; a click on a point chooses its race.
class TeamChart : public QChartView {
    Q_OBJECT

public:
    explicit TeamChart(QWidget* parent = nullptr);

    /// What is drawn, as semicolon-separated text.
    [[nodiscard]] const QString& csv() const { return m_csv; }
    /// Whether there is anything to draw.
    [[nodiscard]] bool hasData() const { return !chart()->series().isEmpty(); }

signals:
    void raceClicked(const kavela::desktop::SeasonPlace& race);

protected:
    void changeEvent(QEvent* event) override;

    /// Takes everything off; `hint` is told where nothing is drawn afterwards.
    void clear(const QString& hint);
    void setTitle(const QString& title) { chart()->setTitle(title); }
    void setCsv(const QString& csv) { m_csv = csv; }
    /// Gives a line the colour and the shape of a slot, stronger where it is chosen.
    void setStyle(QLineSeries& line, std::size_t slot, bool isChosen = false) const;
    /// Colours axes and legend; after everything was put on the chart.
    void finish();

private:
    void paintInColours();

    QString m_csv;
};

/// Saves a chart as its file name asks: a picture as ".png" or ".svg", its data as ".csv". Throws
/// FileError, also for any other extension.
void saveTeamChart(TeamChart& chart, const std::filesystem::path& path);

} // namespace kavela::desktop
