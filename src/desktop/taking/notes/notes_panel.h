#pragma once

#include "desktop/taking/notes/note_page.h"
#include "splitdata/annotation_labels.h"

#include <QWidget>

#include <array>
#include <functional>
#include <vector>

class QLabel;
class QStackedWidget;
class QTabBar;

namespace kavela::desktop {

class CameraPage;
class CommentPage;
class LaneStrip;
class LossPage;
class MarkList;
class NoteMarks;
class StrokePage;
class TagPage;
class TimeLine;

/// The modes of split taking: a bar to choose one from, its page beside the film, the list of all
/// marks of the run and their lanes under the time line. The splits, whose page it is given, are
/// the first of them.
class NotesPanel : public QWidget {
    Q_OBJECT

public:
    /// `splits` is the page of the splits.
    NotesPanel(const NoteDesk& desk, const TimeLine& line, QWidget& splits);

    [[nodiscard]] QTabBar& bar() const { return *m_bar; }
    [[nodiscard]] LaneStrip& lanes() const { return *m_lanes; }
    [[nodiscard]] MarkList& list() const { return *m_list; }

    [[nodiscard]] NoteMode mode() const { return m_mode; }
    /// Enters a mode; one that cannot be entered tells why, and the present one stays.
    void setMode(NoteMode mode);

    void showRun(int run);
    /// The run that is shown stands elsewhere in the list now.
    void runMoved(int run);
    /// The runs stand in another order, or are others: nothing of before stays in hand.
    void forget();
    /// Takes what is being typed.
    void commit();
    /// Says something below the page; nothing takes it away.
    void tell(const QString& text);

    /// The modes beside the splits, in their order.
    [[nodiscard]] std::vector<FilmMode*> modes() const;
    /// The one in front; null for the splits.
    [[nodiscard]] NotePage* page() const;
    /// The mark that keys act on; none while a split is selected.
    [[nodiscard]] const std::optional<LaneMark>& selected() const;
    void clearSelection();

    // What the keys of single modes do.
    /// Does what a key does in its mode; in another one it tells where it works.
    void actIn(NoteMode mode, const std::function<void()>& act);
    void markStroke(HandCode hand);
    void swapHand();
    void playTag();
    void goToOtherRun();
    void recordRadio();
    /// The clips of the marks chosen in the list, one after another.
    void playClips();

    /// The camera whose film is to be shown beside the run's own, of the run in front.
    [[nodiscard]] std::optional<std::size_t> fixedCamera() const { return m_desk.fixedCamera; }
    /// The film was attached to the run: it is shown.
    void showFixedFilm(const QString& name);
    /// The film beside was opened.
    void bringIntoStep();

signals:
    void attachWanted();  ///< of a fixed camera's film
    void besideChanged(); ///< another film is to be shown beside the run's own, or none
    void modeChanged();
    void noteSelected();                ///< a mark that is no split
    void splitChosen(std::size_t mark); ///< 0 is the start, 1 the first split
    void flashed(const QString& text);
    void refused(const QString& why); ///< a key could not do what it was pressed for
    void runRequested(int run);

private:
    void addPages(QWidget& splits);
    void addPage(NotePage* page);
    void connectMarks();
    void refresh();
    void showFrame();
    void refuse(const QString& why);
    void hear(const QString& told);

    NoteDesk m_desk;
    NoteMode m_mode = NoteMode::Splits;
    QTabBar* m_bar;
    QStackedWidget* m_stack;
    QLabel* m_told;
    MarkList* m_list;
    LaneStrip* m_lanes;
    NoteMarks* m_marks;
    std::array<NotePage*, NoteModes> m_pages{}; ///< by mode; none for the splits
    StrokePage* m_strokes = nullptr;
    TagPage* m_tags = nullptr;
    LossPage* m_losses = nullptr;
    CommentPage* m_comments = nullptr;
    CameraPage* m_cameras = nullptr;
};

} // namespace kavela::desktop
