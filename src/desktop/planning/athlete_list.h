#pragma once

#include "desktop/planning/planning_document.h"

#include <QWidget>

#include <functional>
#include <limits>
#include <optional>
#include <vector>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;

namespace kavela::desktop {

/// The athletes of a planning, searched by name, with the seasons of the chosen one.
class AthleteList : public QWidget {
    Q_OBJECT

public:
    explicit AthleteList(PlanningDocument& document, QWidget* parent = nullptr);

    [[nodiscard]] std::optional<std::size_t> athlete() const { return m_athlete; }
    /// The chosen season; nothing where the athlete has none.
    [[nodiscard]] std::optional<PlannedSeason> season() const;
    void chooseAthlete(std::size_t athlete);
    void chooseSeason(std::size_t season);
    /// Asked before another athlete or season comes to the front: false keeps the one that is.
    void setMayLeave(std::function<bool()> mayLeave) { m_mayLeave = std::move(mayLeave); }

    [[nodiscard]] QLineEdit& search() const { return *m_search; }
    [[nodiscard]] QListWidget& list() const { return *m_list; }

signals:
    void seasonChosen();

private:
    void fill();
    void fillSeasons();
    void showCard();
    void showPhoto(const Blob& picture);
    void filter();
    [[nodiscard]] bool mayLeave();

    PlanningDocument& m_document;
    QLineEdit* m_search;
    QListWidget* m_list;
    QComboBox* m_seasons;
    QLabel* m_photo;
    Blob m_shownPicture; ///< what the picture was made of
    QLabel* m_contact;
    std::function<bool()> m_mayLeave;
    std::optional<std::size_t> m_athlete;
    std::size_t m_season = std::numeric_limits<std::size_t>::max(); ///< the latest, to begin with
};

} // namespace kavela::desktop
