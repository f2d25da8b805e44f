#pragma once

#include "desktop/cross/trials/trial_marks.h"

#include <QWidget>

class QCheckBox;
class QTableWidget;

namespace kavela::desktop {

class CodeCombo;

/// The upstream gates of a time trial: their times, and direction and style of the gate in front.
/// Changes nothing itself.
class GateForm : public QWidget {
    Q_OBJECT

public:
    explicit GateForm(QWidget* parent = nullptr);

    /// The gates of the course with what the trial has of them; null for no trial.
    void setTrial(const ttdata030* trial, const std::vector<std::int64_t>& gates);
    void setFront(std::optional<std::int64_t> gate);
    /// Whether the pole line is to be marked too.
    [[nodiscard]] bool wantsMiddle() const;

signals:
    void gateChosen(std::int64_t gate);
    void directionChosen(std::int64_t code);
    void styleChosen(std::int64_t code);
    void middleToggled();

private:
    void showCodes();

    QCheckBox* m_middle;
    CodeCombo* m_direction;
    CodeCombo* m_style;
    QTableWidget* m_table;
    std::vector<ttupstream030> m_upstreams; ///< of the trial, one for each row of the table
    std::vector<bool> m_hasEntry;           ///< by row: the trial knows the gate
};

} // namespace kavela::desktop
