#pragma once

#include "desktop/barrier/crossing_search.h"
#include "desktop/barrier/slit_front.h"
#include "desktop/barrier/slit_keeping.h"
#include "desktop/barrier/slit_loader.h"
#include "desktop/barrier/slit_marking.h"
#include "desktop/barrier/slit_race.h"
#include "desktop/barrier/slit_saving.h"
#include "desktop/barrier/slit_steps.h"
#include "desktop/shell/tool_window.h"

#include <optional>

namespace kavela::desktop {

class ColumnTable;
class FilmDeck;
class LineOverlay;
class SlitActions;
class SlitPanel;
class SlitStage;
class SlitView;

/// The film of a fixed camera with lines over it, the slit picture of one of them below, and the
/// runs that are marked there.
class SlitWindow : public ToolWindow {
    Q_OBJECT

public:
    explicit SlitWindow(Workspace& workspace);
    ~SlitWindow() override;

    [[nodiscard]] QStringList paths() const override;
    /// A film. False, after an alert, where none is.
    [[nodiscard]] bool open(const QString& path) override;
    void chooseFilm();
    /// Marks go into this race from now on, which split taking has open.
    void setRace(TakingDocument& document, ToolWindow& owner);
    /// The split file beside the film, or its folder where none is.
    [[nodiscard]] QString raceOfFilm() const { return raceFileOf(m_film); }

    [[nodiscard]] SlitKeeping& keeping() { return m_keeping; }
    [[nodiscard]] const SlitMarking& marking() const { return m_marking; }
    [[nodiscard]] SlitLoader& loader() { return m_loader; }
    [[nodiscard]] SlitRace& race() { return m_race; }
    [[nodiscard]] const SlitSteps& steps() const { return m_steps; }
    [[nodiscard]] CrossingSearch& search() { return m_search; }
    [[nodiscard]] FilmDeck& deck() const;
    [[nodiscard]] SlitView& view() const;
    [[nodiscard]] LineOverlay& overlay() const;
    [[nodiscard]] SlitStage& stage() const { return *m_stage; }
    [[nodiscard]] ColumnTable& runTable() const;
    [[nodiscard]] ColumnTable& proposalTable() const;
    [[nodiscard]] const QString& film() const { return m_film; }
    [[nodiscard]] QString told() const;
    /// The line that is in front; null where none is drawn.
    [[nodiscard]] const slitline001* line() const { return m_marking.line(); }
    [[nodiscard]] std::size_t lineNumber() const { return m_marking.number(); }
    /// What is proposed on it, without what was refused, in the order of time.
    [[nodiscard]] std::vector<Proposal> proposals() const { return m_marking.proposals(); }

    // Lines.
    void drawLine();
    void drawBoat();
    /// Those of another film of the folder, drawn over as large a picture; why not is told.
    void takeLinesOver();
    void setTimingPoint(TimingPoint point);
    void chooseLine(std::size_t line); ///< a number beyond the lines changes nothing
    void stepLine(int step);
    void removeLine();
    void turnArrow();
    void setSplit(std::size_t split);

    void stepProposal(int step);
    void stepRun(int step) { m_front->stepRun(step); }

    // Marks.
    /// Marks the run in front at the hair line, and goes on to the next one without a mark. Whose
    /// marks stand on that frame already is told; one of the run itself stays as it is.
    void mark();
    void unmark();
    void setFiner(bool isFiner);
    /// Refuses the proposal at the hair line for good.
    void refuseProposal();
    void forgetRefusals();
    /// Takes back, or does again, the last that was done to lines, refusals and marks.
    void undoStep();
    void redoStep();
    void searchBoats();
    /// Why proposals cannot be accepted all at once; empty where they can.
    [[nodiscard]] QString lockOfAcceptAll() const { return m_marking.lock(); }
    void acceptAll();

    /// Saves the part of the picture that is seen as PNG, with a time scale; why not is told.
    void exportTo(const QString& file);

    /// Keeps the water round the marks and refusals in a file, which teaches the search; what
    /// becomes of it is told. Returns why not where there is none.
    [[nodiscard]] QString saveBandsTo(const QString& file);

    /// Why something was not done: over the film, and beside it.
    void refuse(const QString& why);
    void tell(const QString& text); ///< beside the film; empty for nothing

signals:
    /// The race beside the film is to be opened in split taking, and handed over by setRace().
    void raceRequested(const QString& path);
    void pathsChanged();

protected:
    void takeFiles(const QStringList& paths) override;

private:
    void makeParts();
    void connectParts();
    void connectLines();
    void followFilm();
    void showLines();
    void showPicture();
    void showRuns();
    void showState();
    void drawn(std::size_t line, const QPointF& first, const QPointF& second);
    void takeStep(void (SlitSteps::*step)());
    void moveMark(int run, double column);

    QString m_film;
    SlitKeeping m_keeping;
    SlitLoader m_loader;
    SlitRace m_race;
    SlitSteps m_steps{m_keeping, m_race};
    CrossingSearch m_search;
    SlitSaving m_saving;
    SlitMarking m_marking;
    std::optional<SlitFront> m_front; ///< once its parts are there
    bool m_isFiner = false;
    QString m_told;
    SlitStage* m_stage;
    SlitPanel* m_panel = nullptr;
    SlitActions* m_actions = nullptr;
};

} // namespace kavela::desktop
