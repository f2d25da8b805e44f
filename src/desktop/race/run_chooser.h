#pragma once

#include "analysis/race_likeness.h"
#include "analysis/race_set.h"
#include "common/reference_date.h"
#include "desktop/shell/background_work.h"

#include <QDialog>

#include <optional>

class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;

namespace kavela::desktop {

class Workspace;

/// A race to take a run from.
struct OtherRace {
    QString title;
    ReferenceDate date;
    RaceTraits traits;
    RaceSet set;
};

/// Reads a race as it is, without rewriting a file of an older release; none, after an alert, when
/// it cannot be opened.
[[nodiscard]] std::optional<OtherRace> readOtherRace(Workspace& workspace, const QString& path,
                                                     QWidget* over);

/// Finds one run of another race: the race first, of those in the folder of the open one, those
/// recently opened, or of any file; then the run by a few letters. What the races are called, their
/// day and number of runs are read beside the dialog, which is there at once. The race that is most
/// like the open one is proposed, until another one is chosen.
class RunChooser : public QDialog {
    Q_OBJECT

public:
    /// `without` is the path of the race that is open already.
    RunChooser(Workspace& workspace, const QString& without, QWidget* parent);

    /// What was chosen, once the dialog is accepted.
    [[nodiscard]] const analyzerdata& run() const;
    [[nodiscard]] const QString& race() const { return m_race->title; }

    /// Shows the runs of a file; false, after an alert, when it cannot be opened.
    bool showRace(const QString& path);

private:
    [[nodiscard]] QWidget* makeRaces();
    [[nodiscard]] QWidget* makeRuns();
    void offerRaces(const QString& without);
    QListWidgetItem* offer(const QString& path);
    void readNext();
    void takeOwn(const std::optional<OtherRace>& own);
    void takeFacts(const QString& path, std::optional<OtherRace> race);
    void takeRace(OtherRace race);
    /// Whether it is to be shown in place of what is proposed so far.
    [[nodiscard]] bool isBetter(const OtherRace& race) const;
    [[nodiscard]] QListWidgetItem* itemOf(const QString& path) const;
    void chooseRace(const QListWidgetItem* item);
    void chooseFile();
    void filter();
    void updateButtons();

    Workspace& m_workspace;
    QListWidget* m_files;
    QLineEdit* m_name;
    QListWidget* m_runs;
    QWidget* m_take = nullptr;
    QString m_own;           ///< path of the open race
    QString m_shown;         ///< path of the race whose runs are shown
    RaceTraits m_traits;     ///< of the open race
    bool m_isChosen = false; ///< what is shown is not only proposed
    std::optional<OtherRace> m_race;
    QStringList m_unread;
    BackgroundWork m_reading; // last: what it brings needs all the rest
};

} // namespace kavela::desktop
