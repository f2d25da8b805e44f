#pragma once

#include "compose/composition.h"
#include "desktop/compose/compare_candidates.h"
#include "desktop/compose/compare_document.h"
#include "desktop/compose/compare_request.h"
#include "desktop/compose/point_aligning.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/tool_window.h"

#include <QTimer>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

class QLabel;
class QPushButton;
class QToolButton;

namespace kavela::desktop {

class CompareFilmsPanel;
class CompareForm;
class ComparePlayer;
class CompareView;
class RangeLine;

/// Films of two to four runs or cameras in one picture: chosen to the left, seen in the middle as
/// the film will be, laid out to the right, and composed in the background.
class CompareWindow : public ToolWindow {
    Q_OBJECT

public:
    CompareWindow(Workspace& workspace, Autosave autosave);
    ~CompareWindow() override;

    /// A new comparison; the path is a folder, or a file that saving will propose.
    void startNew(const QString& path) override;
    /// A new comparison of what another window shows.
    void startWith(const CompareRequest& request);

    [[nodiscard]] CompareDocument& document() const { return *m_document; }
    [[nodiscard]] ComparePlayer& player() const { return *m_player; }
    [[nodiscard]] CompareFilmsPanel& films() const { return *m_films; }
    [[nodiscard]] CompareForm& form() const { return *m_form; }
    [[nodiscard]] CompareView& view() const { return *m_view; }
    [[nodiscard]] RangeLine& line() const { return *m_line; }
    /// What is told below the picture.
    [[nodiscard]] QString told() const;

    /// Reads what can be chosen from split files and films.
    void addFiles(const QStringList& paths);
    void chooseSplitFiles();
    void chooseFilms();

    void togglePlaying();
    /// The whole run is composed.
    void showWholeRun();
    /// The part that is composed begins, or ends, at the moment that is shown.
    void beginHere();
    void endHere();
    /// Lays the second film over the first one by two points that are clicked in both, or gives
    /// that up.
    void alignByPoints();
    void forgetPoints();
    [[nodiscard]] bool isAligning() const { return m_aligning.isOn(); }

    /// Asks where the film is to go, and composes it in the background.
    void askAndCompose();
    /// The same to a file; gives the id of its job.
    std::uint64_t composeTo(const QString& target);
    void showJobs();

protected:
    [[nodiscard]] FileReading readingOf(const QString& path) override;
    void takeFiles(const QStringList& paths) override;
    /// Asks what becomes of films that are still being composed.
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addFilesOfFilms();
    CompareWindow(Workspace& workspace, std::unique_ptr<CompareDocument> document);
    void makeParts();
    [[nodiscard]] QWidget* makeStage();
    void connectParts();
    void connectPlayer();
    void edit(const QString& what, const std::function<void(composejob002&)>& change);
    void showDocument();
    void showPreview();
    void showPrepared();
    void showPosition();
    void showFault(const QString& where, const QString& what);
    void showRenders();
    void takePoint(const QPointF& point);
    void setRange(double from, double to);
    [[nodiscard]] CommonRange chosenPart() const; ///< of what is prepared
    void tell(const QString& text);
    [[nodiscard]] QStringList splitTitles() const;
    [[nodiscard]] QString ownFolder() const;
    [[nodiscard]] QString proposedTarget() const;

    std::unique_ptr<CompareDocument> m_document;
    CompareFilmsPanel* m_films = nullptr;
    CompareForm* m_form = nullptr;
    CompareView* m_view = nullptr;
    RangeLine* m_line = nullptr;
    QLabel* m_time = nullptr;
    QLabel* m_told = nullptr;
    QPushButton* m_compose = nullptr;
    QToolButton* m_play = nullptr;
    QToolButton* m_renders = nullptr; ///< how far the films of this window are
    ComparePlayer* m_player = nullptr;
    QTimer m_soon;                     ///< several edits and sizes in a row make one preview
    std::vector<std::uint64_t> m_jobs; ///< of this window
    PointAligning m_aligning;
    bool m_isCutToFour = false; ///< more films were asked for
    BackgroundWork m_work;
};

} // namespace kavela::desktop
