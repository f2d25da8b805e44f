#pragma once

#include "desktop/film/film_mode.h"
#include "splittaking/marking.h"

#include <QObject>

#include <functional>
#include <optional>

namespace kavela {
struct Alert;
}

namespace kavela::desktop {

class FilmStage;
class GateStrip;
class TakingDocument;
class Workspace;

/// The stamps of a mark, where 0 is the start and 1 the first split; null where it is not taken.
[[nodiscard]] const Stamps* stampsOf(const RunMarks& marks, std::size_t mark);

/// The splits of the run in front, as the first mode of split taking: what the keys do to the marks
/// on the time line. Every edit is one step that can be undone.
class SplitMode : public QObject, public FilmMode {
    Q_OBJECT

public:
    /// Belongs to the stage. The gate in front is that of the strip.
    SplitMode(TakingDocument& document, FilmStage& stage, GateStrip& gates, Workspace& workspace);

    /// Another run is in front, below 0 for none: nothing is selected.
    void showRun(int run);
    /// The run in front stands elsewhere in the list now.
    void runMoved(int run) { m_run = run; }
    /// The run has other marks: a selected one may be gone.
    void follow();
    /// Nothing is selected here any more, such as when a note is.
    void leave();

    [[nodiscard]] int run() const { return m_run; }
    /// Of the run in front; none without one.
    [[nodiscard]] RunMarks runMarks() const;
    [[nodiscard]] std::optional<std::size_t> lastMark() const;
    /// To where the next split is to be expected; tells why when nothing says where that is.
    void goToExpected();

    [[nodiscard]] bool hasSelection() const override { return m_selected.has_value(); }
    void markHere() override;
    void moveMarkHere() override;
    /// The selected mark, otherwise the last.
    void nudgeMark(int frames) override;
    void deleteMark() override;
    bool stepMark(int step) override;
    bool stepGate(int step) override;
    [[nodiscard]] std::vector<LineMark> marks() const override;
    [[nodiscard]] std::optional<std::size_t> selectedMark() const override { return m_selected; }
    void goToMark(std::size_t number) override;
    /// On all cameras by the same time.
    void dropMark(std::size_t number, double seconds) override;

signals:
    void chosen();                  ///< a split is selected, so that no note is
    void changed();                 ///< the selection, or a mark that must be shown where it was
    void told(const QString& text); ///< to be shown below the page

private:
    void select(std::size_t mark);
    void whenMeant(const std::function<void(Stamps)>& act);
    void markSplit(Stamps stamps);
    [[nodiscard]] bool mayMarkAnew(const RunMarks& marks) const;
    void moveTo(std::size_t mark, Stamps stamps);
    void nudge(std::size_t mark, int frames);
    void dropAt(std::size_t mark, const CMTime& moment);
    void refuse(const QString& why);
    void refuseMark(const Alert& why);
    void refuseWithoutFilm();
    void refuseWithoutMark();

    TakingDocument& m_document;
    FilmStage& m_stage;
    GateStrip& m_gates;
    Workspace& m_workspace;
    int m_run = -1;
    std::optional<std::size_t> m_selected; ///< 0 is the start, 1 the first split
};

} // namespace kavela::desktop
