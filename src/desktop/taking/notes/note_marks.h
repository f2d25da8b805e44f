#pragma once

#include "desktop/taking/notes/note_page.h"

#include <QObject>

#include <functional>
#include <optional>

namespace kavela::desktop {

class LaneStrip;
class MarkList;

/// The marks of all notes of the run in front: they stand in a list and on lanes, one of them may
/// be selected, and what the keys and the mouse do to them is the same in every mode.
class NoteMarks : public QObject {
    Q_OBJECT

public:
    NoteMarks(NoteDesk& desk, MarkList& list, LaneStrip& lanes, QObject* parent);

    /// What the pages know of the films on which marks lie.
    struct OtherFilms {
        /// Where on the run's film a moment of a fixed camera's film lies, in seconds.
        std::function<std::optional<double>(std::int64_t camera, double seconds)> ownSeconds;
        /// Shows the other run of the selected time loss; false when it is not in the file.
        std::function<bool()> showOtherRun;
    };
    void setOtherFilms(OtherFilms films) { m_films = std::move(films); }
    /// The page of the mode in front; null for the splits.
    void setPage(NotePage* page) { m_page = page; }

    /// Reads the marks of the run in front.
    void read();
    /// Shows them, once the pages know of the run too.
    void show();

    [[nodiscard]] const std::optional<LaneMark>& selected() const { return m_selected; }
    void clearSelection();
    /// Selects the mark of a kind at a moment of the run's first film.
    void selectAt(MarkKind kind, const CMTime& moment);
    /// Selects a mark and shows its frame. One of another mode brings its mode with it.
    void goTo(const MarkHandle& handle);

    /// Acts with the frames that are meant now, as soon as they are known, or tells why it does
    /// not.
    void press(const FrameAct& act);
    /// A key acts: what a page tells meanwhile is why it did not.
    [[nodiscard]] bool isPressed() const { return m_isPressed; }

    // What the keys do in whatever mode.
    void moveMarkHere();
    void nudgeMark(int frames);
    void deleteMark();
    /// To the mark of a kind before or after the frame that is meant; without a film, beside the
    /// selected one.
    void stepMark(MarkKind kind, int step);
    /// The clips of the marks chosen in the list, one after another.
    void playClips();

signals:
    void cleared();      ///< no mark is selected any more
    void noteSelected(); ///< a mark that is no split
    void splitChosen(std::size_t mark);
    void modeWanted(NoteMode mode);
    void refreshWanted(); ///< what is shown has to be shown as it was
    void told(const QString& text);
    void refused(const QString& why);

private:
    void actPressed(const FrameAct& act, const Stamps& stamps);
    void keepSelection();
    void showSelection();
    void select(const LaneMark& mark);
    void seek(const LaneMark& mark);
    void refuse(const QString& why) { emit refused(why); }
    void tell(const QString& text) { emit told(text); }
    [[nodiscard]] std::optional<std::size_t> shownCamera(const FilmOfRun& film) const;
    void moveSelected(const CMTime& moment);
    void nudgeSelected(int frames);
    void dropMark(const MarkHandle& handle, double seconds);

    NoteDesk& m_desk;
    MarkList& m_list;
    LaneStrip& m_lanes;
    OtherFilms m_films;
    NotePage* m_page = nullptr;
    bool m_isPressed = false;
    AnnotationLanes m_marks;
    std::optional<LaneMark> m_selected;
};

} // namespace kavela::desktop
