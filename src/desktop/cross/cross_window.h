#pragma once

#include "desktop/cross/cross_page.h"
#include "desktop/shell/tool_window.h"
#include "desktop/splitfile/taking_document.h"

#include <functional>
#include <map>

class QLabel;
class QTabWidget;

namespace kavela::desktop {

class CourseStrip;
class CrossActions;
class FilmDeck;
class FilmSound;
class FilmView;
class HeatPage;
class ResultsPage;
class TickStrip;
class TrialPage;

/// The kayak cross of a split file: time trials, heats and results to the left, the film of what is
/// selected there with its marks to the right.
class CrossWindow : public ToolWindow {
    Q_OBJECT

public:
    /// The pages in the order of their tabs.
    enum class Page { Trials, Heats, Results };

    CrossWindow(Workspace& workspace, Autosave autosave);
    ~CrossWindow() override;

    /// Opens a split file, or a folder of films: one without a split file begins a new race with a
    /// time trial for each film. False, after a message, when that failed.
    [[nodiscard]] bool open(const QString& path) override;

    [[nodiscard]] TakingDocument& document() { return m_document; }
    [[nodiscard]] FilmDeck& deck() const { return *m_deck; }
    [[nodiscard]] FilmSound& sound() const { return *m_sound; }
    [[nodiscard]] CourseStrip& course() const { return *m_course; }
    [[nodiscard]] TrialPage& trials() const { return *m_trials; }
    [[nodiscard]] HeatPage& heats() const { return *m_heats; }
    [[nodiscard]] ResultsPage& results() const { return *m_results; }
    /// The one in front.
    [[nodiscard]] CrossPage& page() const;
    void showPage(Page page);

    // What the keys do, beside what they hand on to the page in front.
    void mark();
    void moveMarkHere();
    void nudgeMark(int frames);
    /// Moves a mark to the frame at a number of seconds of the film.
    void dropMark(std::size_t mark, double seconds);
    void goToMark(std::size_t mark); ///< in the order of the page's marks
    void stepMark(int step);
    /// Adds a trial for each chosen film; they are copied into the folder of the split file.
    void importFilms();
    /// Chooses the film of the selected trial or heat.
    void chooseFilm();
    /// Asks in which folder the films are now, and finds them there by their names.
    void findFilms();

    /// Where files come from in place of the platform's dialogs, as in tests.
    using ChooseFiles = std::function<QStringList(const QString& title, const QString& filter)>;
    void setChooseFiles(ChooseFiles choose) { m_chooseFiles = std::move(choose); }
    /// The same for a folder; empty for none.
    using ChooseFolder = std::function<QString(const QString& title)>;
    void setChooseFolder(ChooseFolder choose) { m_chooseFolder = std::move(choose); }

signals:
    void pageChanged();
    void analysisRequested(); ///< of the document as it is now, saved or not
    void takingRequested(const QString& path);

protected:
    /// Films become trials, or the film of the heat in front.
    void takeFiles(const QStringList& paths) override;
    [[nodiscard]] bool takePending() override;

private:
    [[nodiscard]] QWidget* makePages();
    void addPage(CrossPage& page, const QString& title);
    [[nodiscard]] QWidget* makeStage();
    void connectParts();
    void takeFolder();
    void showDocument();
    void showPageInFront();
    void showFilm();
    void showMarks();
    void showState();
    void showHealth();
    void tell(const QString& text);
    void refuse(const QString& why);
    void press(const std::function<void(CrossPage&, const CMTime&)>& act);
    void rememberFilmPlace();
    [[nodiscard]] QStringList copied(const QStringList& files);

    TakingDocument m_document;
    FilmDeck* m_deck;
    FilmSound* m_sound;
    CrossActions* m_actions = nullptr;
    ChooseFiles m_chooseFiles;
    ChooseFolder m_chooseFolder;
    std::map<QString, CMTime> m_places; ///< where a film was left
    bool m_isPressed = false; ///< a key acts: what a page tells meanwhile is why it did not

    QTabWidget* m_tabs = nullptr;
    CourseStrip* m_course = nullptr;
    TrialPage* m_trials = nullptr;
    HeatPage* m_heats = nullptr;
    ResultsPage* m_results = nullptr;
    CrossPage* m_front = nullptr; ///< that was shown last
    QLabel* m_told = nullptr;
    QWidget* m_stage = nullptr;
    FilmView* m_view = nullptr;
    QLabel* m_state = nullptr;
    QLabel* m_health = nullptr;
    TimeLine* m_line = nullptr;
    TickStrip* m_ticks = nullptr;
};

} // namespace kavela::desktop
