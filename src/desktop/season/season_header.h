#pragma once

#include "performance/season_data.h"

#include <QStringList>
#include <QWidget>

#include <memory>
#include <optional>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

namespace kavela::desktop {

/// Which part of a team's seasons is shown, of which athlete, and what it was read from.
class SeasonHeader : public QWidget {
    Q_OBJECT

public:
    explicit SeasonHeader(QWidget* parent = nullptr);

    /// Offers a team's categories and years. What was chosen stays chosen where the team has it.
    void offer(const std::shared_ptr<const myTeamToSaveStruct>& team);
    /// Offers the athletes by their places; who was chosen by name stays chosen.
    void offerAthletes(const QStringList& names);

    [[nodiscard]] SeasonChoice choice() const;
    /// Only the races in which the athlete that is shown starts, or all.
    void setOwnStarts(bool isOwn);
    [[nodiscard]] bool isOwnStarts() const;
    /// A category that the team does not have changes nothing; years it does not have neither.
    void choose(const SeasonChoice& choice);
    /// The place among the athletes that are offered; none before there is any.
    [[nodiscard]] std::optional<std::size_t> athlete() const;
    [[nodiscard]] QString athleteName() const;
    [[nodiscard]] QStringList athletes() const;
    void chooseAthlete(std::size_t athlete);
    /// However the name is written; also before the athletes are offered.
    void chooseAthlete(const QString& name);
    /// The next one, or with -1 the one before.
    void stepAthlete(int step);

    /// Says what the races are read from; `isMissing` offers to add some.
    void tellRaces(const QString& text, bool isMissing);

signals:
    /// Another category, other years, or other races.
    void changed();
    void athleteChanged();
    void racesRequested();

private:
    void makeLayout();
    void fillYears();
    void keepYearsInOrder(bool isFirst);

    std::shared_ptr<const myTeamToSaveStruct> m_team;
    QString m_wanted; ///< athlete
    QComboBox* m_category;
    QComboBox* m_first;
    QComboBox* m_last;
    QComboBox* m_athlete;
    QCheckBox* m_ownStarts;
    QLabel* m_races;
    QPushButton* m_add;
};

} // namespace kavela::desktop
