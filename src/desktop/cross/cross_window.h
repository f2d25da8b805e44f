#pragma once

#include "desktop/cross/cross_page.h"
#include "desktop/shell/tool_window.h"
#include "desktop/splitfile/film_files.h"
#include "desktop/splitfile/taking_document.h"

class QLabel;
class QTabWidget;

namespace kavela::desktop {

class CourseStrip;
class CrossActions;
class FilmDeck;
class FilmStage;
class HeatPage;
class ResultsPage;
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

    [[nodiscard]] TakingDocument& document() { return m_document; }
    /// The film, and the keys of marking, which are the page's in front.
    [[nodiscard]] FilmStage& stage() const { return *m_stage; }
    [[nodiscard]] FilmDeck& deck() const;
    [[nodiscard]] CourseStrip& course() const { return *m_course; }
    [[nodiscard]] TrialPage& trials() const { return *m_trials; }
    [[nodiscard]] HeatPage& heats() const { return *m_heats; }
    [[nodiscard]] ResultsPage& results() const { return *m_results; }
    /// The one in front.
    [[nodiscard]] CrossPage& page() const;
    void showPage(Page page);

    /// Adds a trial for each chosen film; they are copied into the folder of the split file.
    void importFilms();
    /// Chooses the film of the selected trial or heat.
    void chooseFilm();
    /// Asks in which folder the films are now, and finds them there by their names.
    void findFilms();

    /// Where files come from in place of the platform's dialogs, as in tests.
    void setChooseFiles(FilmFiles::ChooseFiles choose) {
        m_files.setChooseFiles(std::move(choose));
    }
    void setChooseFolder(FilmFiles::ChooseFolder choose) {
        m_files.setChooseFolder(std::move(choose));
    }

signals:
    void pageChanged();
    void analysisRequested(); ///< of the document as it is now, saved or not
    void takingRequested(const QString& path);

protected:
    /// A split file, or a folder of films: one without a split file begins a new race with a time
    /// trial for each film.
    [[nodiscard]] FileReading readingOf(const QString& path) override;
    /// Films become trials, or the film of the heat in front.
    void takeFiles(const QStringList& paths) override;
    [[nodiscard]] bool takePending() override;

private:
    [[nodiscard]] QWidget* makePages();
    void addPage(CrossPage& page, const QString& title);
    void connectParts();
    void beginWork(bool isFolder);
    void takeFolder();
    void showDocument();
    void showPageInFront();
    void showFilm();
    void showMarks();
    void tell(const QString& text);
    void refuse(const QString& why);
    [[nodiscard]] bool isInFront(const CrossPage& page) const { return &this->page() == &page; }

    TakingDocument m_document;
    FilmFiles m_files;
    FilmStage* m_stage;
    CrossActions* m_actions = nullptr;

    QTabWidget* m_tabs = nullptr;
    CourseStrip* m_course = nullptr;
    TrialPage* m_trials = nullptr;
    HeatPage* m_heats = nullptr;
    ResultsPage* m_results = nullptr;
    CrossPage* m_front = nullptr; ///< that was shown last
    QLabel* m_told = nullptr;
};

} // namespace kavela::desktop
