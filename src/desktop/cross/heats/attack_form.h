#pragma once

#include "desktop/cross/heats/boat_looks.h"
#include "splitdata/cross_records.h"

#include <QWidget>

#include <functional>

class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace kavela::desktop {

/// One attack in words: who attacked whom, from which side, where, and how it ended. Names that are
/// not of the heat are shown and stay until another is chosen.
class AttackForm : public QWidget {
    Q_OBJECT

public:
    explicit AttackForm(QWidget* parent = nullptr);

    /// Shows an attack, or none when it is null.
    void show(const actiondata030* attack, const std::vector<BoatLook>& boats);
    /// The texts that are offered.
    void offer(const std::vector<std::string>& sides, const std::vector<std::string>& places);
    /// Takes what is being typed.
    void commit();

signals:
    /// The coach changed something; `what` names the step.
    void edited(const QString& what, const std::function<void(actiondata030&)>& change);
    void startWanted(); ///< at the frame shown
    void endWanted();
    void endCleared();
    void removalWanted();

private:
    void makeNames(QHBoxLayout& row);
    void makeWords(QHBoxLayout& row);
    void makeMoments(QHBoxLayout& row);
    void showDefenders();
    void takeText(const QString& what, std::string actiondata030::*member, const QString& text);

    QComboBox* m_attacker;
    QHBoxLayout* m_defenders;
    std::vector<QToolButton*> m_defenderButtons;
    QCheckBox* m_success;
    QComboBox* m_side;
    QComboBox* m_place;
    QLineEdit* m_comment;
    QLabel* m_start;
    QLabel* m_end;
    QPushButton* m_noEnd;
    std::vector<BoatLook> m_boats;
    std::optional<actiondata030> m_attack;
};

/// Seconds of a moment to the hundredth; a dash for one that was not taken.
[[nodiscard]] QString momentText(const CMTime& moment);

} // namespace kavela::desktop
