#pragma once

#include "analysis/race_set.h"

#include <QDialog>

#include <optional>

class QComboBox;
class QLineEdit;
class QListWidget;

namespace kavela::desktop {

class Workspace;

/// A race to take a run from.
struct OtherRace {
    QString title;
    RaceSet set;
};

/// Reads a race as it is, without rewriting a file of an older release; none, after an alert, when
/// it cannot be opened.
[[nodiscard]] std::optional<OtherRace> readOtherRace(Workspace& workspace, const QString& path,
                                                     QWidget* over);

/// Finds one run of another race: the race first, of those recently opened or of any file, then the
/// run by a few letters.
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
    void chooseFile();
    void filter();
    void updateButtons();

    Workspace& m_workspace;
    QComboBox* m_files;
    QLineEdit* m_name;
    QListWidget* m_runs;
    QWidget* m_take = nullptr;
    std::optional<OtherRace> m_race;
};

} // namespace kavela::desktop
