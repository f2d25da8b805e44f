#pragma once

#include "desktop/race/race_document.h"
#include "desktop/race/split_table_model.h"
#include "desktop/shell/tool_window.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/taking/run_table_model.h"
#include "splittaking/penalties.h"

#include <functional>
#include <map>

class QLabel;
class QLineEdit;
class QTableView;

namespace kavela::desktop {

class ClipPlayer;
class FilmDeck;
class FilmGrid;
class FilmSound;
class FilmView;
class FrozenTable;
class GateStrip;
class NotesPanel;
class RecordingDialog;
class RunForm;
class SplitBar;
class TimeLine;
class TakingActions;

/// Split taking: the runs to the left, the film of the selected one with its marks and gates in the
/// middle, what is known of it to the right, and every run of the race in the coloured table below.
class TakingWindow : public ToolWindow {
    Q_OBJECT

public:
    TakingWindow(Workspace& workspace, Autosave autosave);
    ~TakingWindow() override;

    /// Opens a folder of films, or a split file in its folder; false, after a message, when that
    /// failed.
    [[nodiscard]] bool open(const QString& path) override;

    [[nodiscard]] TakingDocument& document() { return m_document; }
    [[nodiscard]] FilmDeck& deck() const { return *m_deck; }
    [[nodiscard]] FilmSound& sound() const { return *m_sound; }
    [[nodiscard]] int currentRun() const { return m_run; }
    [[nodiscard]] const GateStrip& gates() const { return *m_gates; }
    [[nodiscard]] NotesPanel& notes() const { return *m_notes; }
    [[nodiscard]] std::optional<std::size_t> selectedMark() const { return m_selected; }

    // What the keys do.
    void selectRun(int run); ///< a number beyond the runs changes nothing
    void stepRun(int step);
    void mark();
    void moveMarkHere();
    void nudgeMark(int frames);
    void deleteMark();
    /// Moves a mark to the frame at so many seconds of the film, on all cameras by the same time.
    void dropMark(std::size_t mark, double seconds);
    void goToMark(std::size_t mark); ///< 0 is the start, 1 the first split
    /// To where the next split is to be expected; tells why when nothing says where that is.
    void goToExpected();
    void stepMark(int step);
    void setPenalty(GatePenalty penalty);
    void stepGate(int step);
    void setUpCourse();
    /// Asks how the films are named, and reads the runs from their names again.
    void readFilmNames();
    void importVideos();
    void addCamera();
    void attachFixedCamera();
    /// Asks in which folder the films are now, and finds them there by their names.
    void findFilms();
    void importSplitFile();
    void importResults();
    void collectTraining();
    void removeRun();
    void moveRun(int step);
    void reset();
    void exportData();
    void findRun();
    /// Makes the film larger: without the table, then alone, then with all beside it again.
    void makeFilmLarger();
    /// Shows the recording of the run beside the film, to be aligned and attached.
    void openRecording(const QString& path = {});
    [[nodiscard]] RecordingDialog& recording();

    /// Where files come from in place of the platform's dialogs, as in tests.
    using ChooseFiles = std::function<QStringList(const QString& title, const QString& filter)>;
    void setChooseFiles(ChooseFiles choose) { m_chooseFiles = std::move(choose); }
    /// The same for a folder; empty for none.
    using ChooseFolder = std::function<QString(const QString& title)>;
    void setChooseFolder(ChooseFolder choose) { m_chooseFolder = std::move(choose); }

signals:
    void analysisRequested(); ///< of the document as it is now, saved or not
    void crossRequested(const QString& path);

protected:
    /// Films become runs, a recording belongs to the run in front.
    void takeFiles(const QStringList& paths) override;
    /// Ends a recording of the team radio too.
    [[nodiscard]] bool takePending() override;

private:
    [[nodiscard]] QWidget* makeRuns();
    [[nodiscard]] QWidget* makeStage();
    [[nodiscard]] QWidget* makeTable();
    void connectParts();
    void connectNotes();
    void showRun(int run);
    void followRun();
    void showDocument();
    void showFilms();
    void showBeside();
    void askForFilms(const QStringList& films);
    [[nodiscard]] std::optional<CMTime> placeToShow(int run) const;
    void rememberFilmPlace();
    void showMarks();
    void showExpected();
    void showRunning();
    void showState();
    void showHealth();
    void select(std::optional<std::size_t> mark);
    void importResults(const QString& name, const ResultsList& list);
    void refuseMark(const Alert& why);
    void moveTo(std::size_t mark, Stamps stamps);
    void tell(const std::string& message);
    void refuse(const QString& why);
    void refuseWithoutFilm();
    void markSplit(Stamps stamps);
    void moveMarkTo(Stamps stamps);
    void nudge(std::size_t mark, int frames);
    void dropMarkAt(std::size_t mark, const CMTime& moment);
    void playTableCell(const QModelIndex& index);
    [[nodiscard]] QStringList filmsOf(int run) const;
    [[nodiscard]] std::optional<std::size_t> lastMark() const;
    [[nodiscard]] const Stamps* stampsOf(const RunMarks& marks, std::size_t mark) const;
    [[nodiscard]] QStringList copied(const QStringList& files);

    TakingDocument m_document;
    RunTableModel m_runs;
    RaceDocument m_race; ///< of the table below
    SplitTableModel m_tableModel;
    FilmDeck* m_deck;
    FilmSound* m_sound;
    TakingActions* m_actions = nullptr;
    ChooseFiles m_chooseFiles;
    ChooseFolder m_chooseFolder;
    QStringList m_filmsShown;               ///< of the run in front, found or not
    std::map<RunIdentity, CMTime> m_places; ///< where the film of a run was left
    int m_run = -1;
    RunIdentity m_identity;                ///< of the run in front
    std::optional<std::size_t> m_selected; ///< mark: 0 is the start, 1 the first split
    bool m_hasAlignedCameras = false;
    bool m_wasPlaying = false;

    QTableView* m_runTable = nullptr;
    QLineEdit* m_name = nullptr;
    FilmGrid* m_films = nullptr;
    QWidget* m_list = nullptr; ///< the runs to the left
    int m_larger = 0;          ///< 0 to 2: how much has made room for the film
    std::vector<FilmView*> m_views;
    QLabel* m_state = nullptr;
    QLabel* m_health = nullptr;
    QLabel* m_typing = nullptr; ///< how the keys come back from a field to the film
    TimeLine* m_line = nullptr;
    SplitBar* m_splits = nullptr;
    GateStrip* m_gates = nullptr;
    RunForm* m_form = nullptr;
    ClipPlayer* m_clips = nullptr;
    NotesPanel* m_notes = nullptr;
    FrozenTable* m_table = nullptr;
    RecordingDialog* m_recording = nullptr; ///< made when it is first wanted
};

} // namespace kavela::desktop
