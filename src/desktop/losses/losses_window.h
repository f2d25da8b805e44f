#pragma once

#include "desktop/facts/watched_facts.h"
#include "desktop/losses/loss_state.h"
#include "desktop/shell/tool_window.h"
#include "performance/loss_clips.h"

#include <optional>

class QLabel;
class QProgressBar;
class QPushButton;
class QSplitter;
class QTabWidget;

namespace kavela::desktop {

class AthletePages;
class PhonePages;
class ClipPair;
class LossChartsPanel;
class LossHeader;
class LossTables;
class SeasonPage;
struct Clip;

/// Where runs lose time against one another: of a race, of several, or of a folder of them, as they
/// are on the disk; and where an athlete loses it over a season.
class LossesWindow : public ToolWindow {
    Q_OBJECT

public:
    explicit LossesWindow(Workspace& workspace);
    ~LossesWindow() override;

    /// Shows split files and folders in place of those from before. `run` is one of the first file,
    /// counted from 0, that is shown as soon as it is read.
    void setPaths(const QStringList& paths, std::optional<std::size_t> run = std::nullopt);
    /// The season of an athlete among them, as lists write the name.
    void showSeasonOf(const QString& athlete);
    [[nodiscard]] bool open(const QString& path) override;
    [[nodiscard]] QStringList paths() const override { return m_facts.paths(); }

    [[nodiscard]] QString shownView() const override;
    /// Goes back to what shownView() told, as soon as it is read and if nothing else was chosen.
    void showAgain(const QString& view);

    [[nodiscard]] WatchedFacts& facts() { return m_facts; }
    [[nodiscard]] LossState& state() { return m_state; }
    [[nodiscard]] LossHeader& header() const { return *m_header; }
    [[nodiscard]] LossChartsPanel& charts() const { return *m_charts; }
    [[nodiscard]] LossTables& tables() const { return *m_tables; }
    [[nodiscard]] SeasonPage& season() const { return *m_season; }
    [[nodiscard]] ClipPair& clips() const { return *m_clips; }
    /// What was last told, such as that there is no film.
    [[nodiscard]] QString status() const;

    void chooseFiles();
    void chooseFolder();
    /// Shows the losses of a run, or the season of its athlete.
    void setSeasonShown(bool isShown);
    [[nodiscard]] bool isSeasonShown() const;
    /// Plays the chosen section of both.
    void playChosen();
    void hideClips();
    /// Compares the films of both runs over the chosen section.
    void filmLoss();
    /// Another run of the group.
    void goToRun(int step);
    void saveTable();
    /// Asks whose A4 page is to be looked at or saved.
    void askForAthletePage();
    /// Asks whose page for a telephone is to be made.
    void askForPhonePage();
    [[nodiscard]] PhonePages& phonePages() const { return *m_phonePages; }
    [[nodiscard]] AthletePages& athletePages() const { return *m_athletePages; }

signals:
    void pathsChanged();

protected:
    void takeFiles(const QStringList& paths) override;

private:
    void makeParts();
    [[nodiscard]] QWidget* makeRunPage();
    void makeStatus();
    void connectParts();
    void takeFacts();
    void tellGone(const QString& run, const QString& rival);
    void showReading();
    void showTitle();
    void playStretch(std::size_t stretch);
    void play(const std::optional<FilmSpan>& own, const std::optional<FilmSpan>& other,
              const QString& where, const QString& otherCaption);
    [[nodiscard]] Clip clipOf(const std::optional<FilmSpan>& span, const QString& caption) const;
    void tell(const QString& text);
    void offerToOpen(const QString& path);
    void tellNotSaved(const QString& reason);

    WatchedFacts m_facts;
    LossState m_state;
    bool m_isOther = false; ///< other files were asked for: what they have not is not missed
    std::optional<std::size_t> m_wanted; ///< run of the first file that is to be shown
    QStringList m_view;                  ///< to be gone back to
    LossHeader* m_header;
    QTabWidget* m_pages;
    QSplitter* m_films;
    LossChartsPanel* m_charts;
    LossTables* m_tables;
    SeasonPage* m_season;
    QWidget* m_clipSide;
    ClipPair* m_clips;
    QLabel* m_status;
    QProgressBar* m_progress;
    QPushButton* m_stop;
    QPushButton* m_openPage; ///< opens what was written last
    QString m_writtenPage;
    AthletePages* m_athletePages;
    PhonePages* m_phonePages;
};

} // namespace kavela::desktop
