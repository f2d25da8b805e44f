#pragma once

#include "desktop/cross/heats/boat_looks.h"
#include "splitdata/cross_records.h"

#include <QWidget>

#include <functional>
#include <vector>

class QComboBox;
class QHBoxLayout;
class QLabel;
class QPushButton;

namespace kavela::desktop {

class AttackFields;
class DefenderButtons;

/// One attack in words: who attacked whom, from which side, where, and how it ended. Names that are
/// not of the heat are shown and stay until another is chosen.
class AttackForm : public QWidget {
    Q_OBJECT

public:
    explicit AttackForm(QWidget* parent = nullptr);

    /// Shows an attack, or none when it is null. Another attack than before gives up what was typed
    /// for that, which commit() takes.
    void show(const actiondata030* attack, const std::vector<BoatLook>& boats, bool isOther);
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
    void makeBoats();
    void makeWords();
    void makeMoments(QHBoxLayout& row);
    void showBoats(const actiondata030* attack, const std::vector<BoatLook>& boats);
    void showMoments(const actiondata030& attack);

    QComboBox* m_attacker;
    DefenderButtons* m_defenders;
    AttackFields* m_boats; ///< who attacked whom, and how it ended
    AttackFields* m_words; ///< from where, and what else there is to say
    QLabel* m_start;
    QLabel* m_end;
    QPushButton* m_noEnd;
};

/// Seconds of a moment to the hundredth; a dash for one that was not taken.
[[nodiscard]] QString momentText(const CMTime& moment);

} // namespace kavela::desktop
