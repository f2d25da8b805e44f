#pragma once

#include "performance/loss_season.h"

#include <QDialog>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

class QComboBox;
class QLabel;
class QPushButton;

namespace kavela::desktop {

class LossState;

/// Whose page, and from which runs.
struct AthletePageChoice {
    SeasonLossQuery query;
    std::optional<std::size_t> file; ///< of the store, for one race alone; none for all of them
    QString crew;                    ///< as lists write it
    /// The store that is meant: another one may take its place while a file is asked for.
    std::shared_ptr<const FactStore> facts;
};

/// Asks whose page is to be made, and whether of the race that is shown or of all that is open.
class AthletePageDialog : public QDialog {
    Q_OBJECT

public:
    /// `shown` is what the window's season shows: its crew stands first, and its reference is the
    /// page's.
    AthletePageDialog(const LossState& state, const SeasonLossQuery& shown, QWidget* parent);

    /// Nothing where no crew is chosen.
    [[nodiscard]] std::optional<AthletePageChoice> choice() const;

signals:
    void previewRequested();
    void saveRequested();

private:
    /// A crew in one category.
    struct Entry {
        std::string crewKey;
        std::string categoryKey;
        QString crew;
        QString category;
    };

    void makeLayout();
    void makeButtons();
    void fillCrews();
    void showChoice();
    [[nodiscard]] bool isOneRace() const;
    [[nodiscard]] std::vector<Entry> entries() const;

    const LossState& m_state;
    SeasonLossQuery m_shown;
    std::vector<Entry> m_entries; ///< by place in the list
    QComboBox* m_crews;
    QComboBox* m_scope;
    QLabel* m_remark;
    QPushButton* m_preview = nullptr;
    QPushButton* m_save = nullptr;
};

} // namespace kavela::desktop
