#pragma once

#include "desktop/shell/tool_window.h"
#include "desktop/tracking/track_document.h"
#include "vision/path_figures.h"

#include <memory>
#include <optional>
#include <vector>

class QAction;
class QLabel;
class QProgressBar;

namespace kavela::desktop {

class ColumnTable;
class FilmDeck;
class FilmView;
class PathPages;
class SeriesChart;
class TrackLine;
class TrackOverlay;
class TrackRun;

/// Follows boat, gate or head through a film: a box is drawn, the path grows while the film runs,
/// and where it is lost a new box is asked for. Beside the film its speed, figures and the known
/// points on the water.
class TrackingWindow : public ToolWindow {
    Q_OBJECT

public:
    TrackingWindow(Workspace& workspace, Autosave autosave);
    ~TrackingWindow() override;

    /// The film as long as its path was never saved.
    [[nodiscard]] QStringList paths() const override;

    [[nodiscard]] TrackDocument& document() const { return *m_document; }
    [[nodiscard]] FilmDeck& deck() const { return *m_deck; }
    [[nodiscard]] TrackOverlay& overlay() const { return *m_overlay; }
    [[nodiscard]] TrackRun& run() const { return *m_run; }
    [[nodiscard]] ColumnTable& pointTable() const;
    [[nodiscard]] SeriesChart& chart() const;
    /// What is told below the film.
    [[nodiscard]] QString told() const;
    /// Those that are shown.
    [[nodiscard]] const std::vector<PathFigure>& figures() const;

    /// Goes to a frame.
    void goTo(qint64 frame);
    /// Draws a box in the frame that is shown, and follows it.
    void drawBox(const TrackBox& box);
    /// Takes the box of the frame that is shown away.
    void removeBox();
    void goToGap();
    void stopFollowing();
    void setTakesPoints(bool takesPoints);
    void forgetPoints();
    void exportCsv();
    /// The same to a file, beside the window.
    void writeCsv(const QString& path);

signals:
    /// Other figures are shown.
    void figuresShown();

protected:
    /// Of a film, with the path that lies beside it, or of a path.
    [[nodiscard]] FileReading readingOf(const QString& path) override;
    void takeFiles(const QStringList& paths) override;

private:
    TrackingWindow(Workspace& workspace, std::unique_ptr<TrackDocument> document);
    [[nodiscard]] QWidget* makeStage();
    void makeMenus();
    void connectParts();
    void chooseFile();
    void showDocument();
    void showFilm();
    void showFrame();
    [[nodiscard]] std::optional<FrameNumber> shownFrame() const;
    void editTrack(const QString& what, const FilmTrack& track);
    void startRun(std::size_t key);
    void takeRun(const FilmTrack& track, FrameNumber lostAt);
    void takeFailure(const QString& why);
    void takePoint(const PicturePlace& place);
    void tell(const QString& text);
    [[nodiscard]] QString secondsText(FrameNumber frame) const;

    std::unique_ptr<TrackDocument> m_document;
    FilmDeck* m_deck = nullptr;
    FilmView* m_view = nullptr;
    TrackOverlay* m_overlay = nullptr;
    TrackLine* m_line = nullptr;
    PathPages* m_pages = nullptr;
    TrackRun* m_run = nullptr;
    QLabel* m_told = nullptr;
    QLabel* m_time = nullptr;
    QProgressBar* m_progress = nullptr;
    QAction* m_takesPoints = nullptr;
    QAction* m_stopAction = nullptr;
    QAction* m_isOnWater = nullptr;
    std::vector<TrackKey> m_runKeys; ///< boxes of the run that goes on
    bool m_isBoxNew = false;         ///< the run began with a box that was just drawn
    QString m_film;                  ///< that is open
};

} // namespace kavela::desktop
