#pragma once

#include "desktop/shell/document.h"
#include "planning/planning_records.h"

#include <optional>

namespace kavela::desktop {

template <>
struct LargeParts<planningdatac_v6> {
    static constexpr auto lists = std::tuple([](auto& plan) -> auto& { return plan.athletes; });
    static constexpr auto wholes = std::tuple();
};

/// Which season of which athlete, by their places in the file.
struct PlannedSeason {
    std::size_t athlete = 0;
    std::size_t season = 0;

    friend bool operator==(const PlannedSeason&, const PlannedSeason&) = default;
};

/// A planning file that is being edited. Saving asks before it replaces the file.
class PlanningDocument : public Document<planningdatac_v6> {
    Q_OBJECT

public:
    using Document::Document;
    ~PlanningDocument() override { keepPending(); }

    /// Opens a file of any version; one of an older version is converted in memory, and saving it
    /// first keeps the file as it was. It is told in an alert when no version decodes.
    [[nodiscard]] FileReading reading(const QString& path, QWidget* over);
    [[nodiscard]] bool open(const QString& path, QWidget* over) { return reading(path, over)()(); }
    /// Whether a text is a planning of any version.
    [[nodiscard]] bool isPlanning(const std::string& text) const;
    /// A planning that came from elsewhere as text, to be saved under a path; false when no version
    /// decodes. The document then stays as it is.
    [[nodiscard]] bool startFromText(const std::string& text, const QString& path, QWidget* over);
    /// A new planning; the path is where saving will propose to put it.
    void startNew(const QString& path, QWidget* over);

    [[nodiscard]] const std::vector<athletesplanning_v6>& athletes() const {
        return value().athletes;
    }
    /// Null when there is none of that place.
    [[nodiscard]] const athletesplanning_v6* athleteAt(std::size_t athlete) const;
    [[nodiscard]] const yearsplannings_v6* seasonAt(const PlannedSeason& place) const;

    /// One step of the undo stack each; nothing for a place that is not there.
    void editAthlete(std::size_t athlete, const QString& what,
                     const std::function<void(athletesplanning_v6&)>& change);
    void editSeason(const PlannedSeason& place, const QString& what,
                    const std::function<void(yearsplannings_v6&)>& change);

    /// How many variability measurements of an older version found no place in this one.
    [[nodiscard]] std::size_t withoutPlace() const { return m_withoutPlace; }

protected:
    [[nodiscard]] QString summary() const override;
    [[nodiscard]] Content contentNow() const override;
    [[nodiscard]] bool recover(const std::string& content) override;
    [[nodiscard]] std::string failure() const override;
    [[nodiscard]] bool mayReplace(QWidget* over) const override;

private:
    std::size_t m_withoutPlace = 0;
};

} // namespace kavela::desktop
