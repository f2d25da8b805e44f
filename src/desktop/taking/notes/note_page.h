#pragma once

#include "common/alerts.h"
#include "desktop/film/film_mode.h"
#include "splittaking/annotations/gate_marks.h"
#include "splittaking/annotations/lanes.h"
#include "splittaking/marking.h"

#include <QWidget>

#include <functional>

namespace kavela::desktop {

class ClipPlayer;
class ColumnTable;
class FilmDeck;
class GateStrip;
class NoteMarks;
class RowModel;
class TakingDocument;
class Workspace;

/// What the marking key marks. The number of a mode is its place in the mode bar.
enum class NoteMode {
    Splits,
    Penalties,
    Upstreams,
    Strokes,
    MicroSplits,
    Tags,
    TimeLosses,
    Comments,
    Strategies,
    Cameras
};

inline constexpr int NoteModes = 10;

[[nodiscard]] QString titleOf(NoteMode mode);

/// The mode that takes the marks of a kind; none for start and splits.
[[nodiscard]] std::optional<NoteMode> modeOf(MarkKind kind);

/// What the pages of all modes work on.
struct NoteDesk {
    TakingDocument& document;
    FilmDeck& deck;
    Workspace& workspace;
    GateStrip& gates; ///< its current gate is the gate in front
    ClipPlayer& clips;
    int run = -1;                           ///< in front; below 0 without one
    std::optional<std::size_t> fixedCamera; ///< whose film is shown beside the run's
    /// Where the fixed camera's film stands for the key that acts now; nothing without one.
    std::optional<CMTime> fixedMoment = {};
    NoteMarks* marks = nullptr; ///< of all modes

    /// The run in front; null without one.
    [[nodiscard]] const athletedata031* record() const;
    /// The frame of the first camera on the screen; nothing without one.
    [[nodiscard]] std::optional<CMTime> moment() const;
};

/// What a key does with the frames that are meant by it, one of each camera.
using FrameAct = std::function<void(const Stamps&)>;

/// The page of one mode: what it shows of the run in front, and what its keys do. Every edit is one
/// step that can be undone. What the splits have too, such as the marks on the time line, it leaves
/// to them.
class NotePage : public QWidget, public FilmMode {
    Q_OBJECT

public:
    explicit NotePage(NoteDesk& desk) : m_desk(desk) {}

    /// Why the mode cannot be entered; nothing when it can.
    [[nodiscard]] virtual std::optional<Alert> refusal() const { return std::nullopt; }
    virtual void enter() {}
    /// Takes what is being typed, before another run or mode comes.
    virtual void commit();
    /// The runs stand in another order, or are others: nothing of before stays in hand.
    virtual void forget() {}
    /// Another run, another gate in front, or another content of the run.
    virtual void refresh() = 0;
    /// Another frame on the screen.
    virtual void showFrame() {}

    /// The marks that the mode takes, among which its keys jump.
    [[nodiscard]] virtual std::optional<MarkKind> kind() const { return std::nullopt; }
    /// What the marking key does, with the stamps of all cameras.
    virtual void mark(const Stamps& stamps) = 0;
    /// Whether marking needs a frame on the screen; without it the stamps may be empty.
    [[nodiscard]] virtual bool needsFrame() const { return true; }
    /// A mark of this mode was chosen in the list of marks or on the lanes.
    virtual void choose(const LaneMark&) {}
    /// No mark is chosen any more.
    virtual void unchoose() {}
    /// What the removing key does when no mark is selected; false where nothing is in hand.
    [[nodiscard]] virtual bool removeCurrent() { return false; }

    [[nodiscard]] bool hasSelection() const override;
    void markHere() override;
    void moveMarkHere() override;
    void nudgeMark(int frames) override;
    void deleteMark() override;
    /// Among the marks of the mode, where it has a kind of its own.
    bool stepMark(int step) override;

signals:
    /// A mark was taken at a moment, in the record of the run in front or beside it.
    void marked(MarkKind kind, CMTime moment);
    /// A mark was clicked, which is to be shown and selected.
    void picked(const MarkHandle& handle);
    /// Something without a mark of its own was clicked, and is what the keys mean now.
    void rowChosen();
    void flashed(const QString& text); ///< to be shown on the film for a moment
    void told(const QString& text);    ///< to be shown below the page
    void refused(const QString& why);  ///< a key did nothing: to be shown where the coach looks
    void runRequested(int run);
    /// A button was pressed that acts with the frames that are meant by it.
    void pressed(const FrameAct& act);

protected:
    /// Whether a note is refused, which is told then.
    bool refuses(const std::optional<std::string>& why);
    void edit(const QString& what, const std::function<void(athletedata031&)>& change);
    /// The table of what the mode has taken: after a click, which calls `take`, the keys mean that
    /// row, and its menu removes it as the removing key does.
    [[nodiscard]] ColumnTable* noteTable(RowModel& rows, const char* name,
                                         const std::function<void(int place)>& take);

    NoteDesk& m_desk;
};

/// The crew and the phase of a run, as runs are told apart.
[[nodiscard]] QString runName(const athletedata031& run);

/// The titles of the course's sections, "S1" and so on for those without one.
[[nodiscard]] QStringList sectionNames(const infodata031& info);

} // namespace kavela::desktop
