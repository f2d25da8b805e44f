#pragma once

#include "desktop/race/race_document.h"
#include "desktop/race/split_table_model.h"
#include "desktop/shell/tool_window.h"
#include "desktop/splitfile/film_files.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/taking/race_exchange.h"
#include "desktop/taking/run_list.h"
#include "splittaking/penalties.h"

class QAction;
class QLabel;
class QLineEdit;
class QStackedWidget;

namespace kavela::desktop {

class ClipPlayer;
class ColumnTable;
class DayDesk;
class DayPanel;
class FilmDeck;
class FilmStage;
class FrozenTable;
class GateStrip;
class NotesPanel;
class RecordingDialog;
class RunFilms;
class RunForm;
class SlitStrip;
class SplitBar;
class SplitMode;
class SplitsShown;
class TakingActions;

/// Split taking: the runs to the left, the film of the selected one with its marks and gates in the
/// middle, what is known of it to the right, and every run of the race in the coloured table below.
class TakingWindow : public ToolWindow {
    Q_OBJECT

public:
    TakingWindow(Workspace& workspace, Autosave autosave);
    ~TakingWindow() override;

    [[nodiscard]] TakingDocument& document() { return m_document; }
    /// The films, and the keys of marking, which are those of the mode in front.
    [[nodiscard]] FilmStage& stage() const { return *m_stage; }
    [[nodiscard]] FilmDeck& deck() const;
    /// The marks on the time line, whose mode is the first.
    [[nodiscard]] SplitMode& splits() const { return *m_splits; }
    [[nodiscard]] NotesPanel& notes() const { return *m_notes; }
    [[nodiscard]] RunFilms& films() const { return *m_films; }
    [[nodiscard]] RaceExchange& exchange() { return m_exchange; }
    [[nodiscard]] DayDesk& day() const { return *m_day; }
    [[nodiscard]] DayPanel& dayPanel() const { return *m_dayPanel; }
    /// Shows the race day in place of the coloured table, or the table again.
    void showDay(bool isShown);
    /// Its action, checked while the day is shown.
    [[nodiscard]] QAction& dayShown() const { return *m_dayShown; }
    [[nodiscard]] const GateStrip& gates() const { return *m_gates; }
    [[nodiscard]] int currentRun() const { return m_run; }

    // What the keys do, beside those of the stage.
    void selectRun(int run); ///< a number beyond the runs changes nothing
    void stepRun(int step);
    void removeRun();
    void moveRun(int step);
    void findRun();
    void reset();
    void setPenalty(GatePenalty penalty); ///< at the gate in front, which the next one follows
    /// Makes the film larger: without the table, then alone, then with all beside it again.
    void makeFilmLarger();
    /// Shows the recording of the run beside the film, to be aligned and attached.
    void openRecording(const QString& path = {});
    [[nodiscard]] RecordingDialog& recording();

    /// Where files come from in place of the platform's dialogs, as in tests.
    void setChooseFiles(FilmFiles::ChooseFiles choose) {
        m_files.setChooseFiles(std::move(choose));
    }
    void setChooseFolder(FilmFiles::ChooseFolder choose) {
        m_files.setChooseFolder(std::move(choose));
    }

signals:
    void analysisRequested(); ///< of the document as it is now, saved or not
    void crossRequested(const QString& path);
    void slitRequested(const QString& film); ///< marks made there go into the document

protected:
    /// A folder of films, or a split file in its folder.
    [[nodiscard]] FileReading readingOf(const QString& path) override;
    /// Films become runs, a recording belongs to the run in front.
    void takeFiles(const QStringList& paths) override;
    /// Ends a recording of the team radio too.
    [[nodiscard]] bool takePending() override;

private:
    [[nodiscard]] QWidget* makeRuns();
    void makeStage();
    void makeModes();
    [[nodiscard]] QWidget* makeTable();
    void makeDay();
    void takeStartList();
    void chooseDayFolder();
    void connectParts();
    void connectNotes();
    void beginWork();
    void showRun(int run);
    void followRun();
    void showRuns();
    void showDocument();
    void showGates();
    void showNextSplit();
    void goOn();
    void playTableCell(const QModelIndex& index);

    TakingDocument m_document;
    FilmFiles m_files;
    RaceExchange m_exchange;
    ColumnModel<RunInList> m_runs;
    RaceDocument m_race; ///< of the table below
    SplitTableModel m_tableModel;
    FilmStage* m_stage;
    SlitStrip* m_slit = nullptr; ///< over the time line
    TakingActions* m_actions = nullptr;
    int m_run = -1;
    RunIdentity m_identity; ///< of the run in front
    bool m_wasPlaying = false;
    int m_larger = 0; ///< 0 to 2: how much has made room for the film

    QWidget* m_list = nullptr; ///< the runs to the left
    QLineEdit* m_name = nullptr;
    ColumnTable* m_runTable = nullptr;
    SplitBar* m_times = nullptr;
    GateStrip* m_gates = nullptr;
    RunForm* m_form = nullptr;
    ClipPlayer* m_clips = nullptr;
    NotesPanel* m_notes = nullptr;
    SplitMode* m_splits = nullptr;
    SplitsShown* m_shown = nullptr;
    RunFilms* m_films = nullptr;
    FrozenTable* m_table = nullptr;
    DayDesk* m_day = nullptr;
    DayPanel* m_dayPanel = nullptr;
    QAction* m_dayShown = nullptr;
    QStackedWidget* m_below = nullptr;      ///< the coloured table, and the race day
    RecordingDialog* m_recording = nullptr; ///< made when it is first wanted
};

} // namespace kavela::desktop
