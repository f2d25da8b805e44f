#pragma once

#include "desktop/shell/document.h"
#include "results/team_records.h"

namespace kavela::desktop {

template <>
struct LargeParts<myTeamToSaveStruct> {
    static constexpr auto lists = std::tuple([](auto& team) -> auto& { return team.realMyTeam; });
    static constexpr auto wholes = std::tuple();
};

/// A team file that is being edited. The averages of an athlete follow the results of every edit;
/// those of athletes who were not edited stay as the file has them.
class TeamDocument : public Document<myTeamToSaveStruct> {
    Q_OBJECT

public:
    using Document::Document;
    ~TeamDocument() override { keepPending(); }

    /// What is wrong where is told in an alert.
    [[nodiscard]] FileReading reading(const QString& path, QWidget* over);
    /// A new team; the path is where saving will propose to put it.
    void startNew(const QString& path, QWidget* over);
    /// The same under a name that is free in a folder.
    void createNew(const QString& folder, QWidget* over);

    /// The team as it is now, for work beside the window; it never changes.
    [[nodiscard]] const std::shared_ptr<const myTeamToSaveStruct>& team() const { return shared(); }
    [[nodiscard]] const std::vector<myTeamStruct>& athletes() const { return value().realMyTeam; }

    /// Edits who an athlete is.
    void editAthlete(std::size_t athlete, const QString& what,
                     const std::function<void(myTeamStruct&)>& change);
    /// Edits the results of an athlete in a category, which is added where it is missing.
    void editResults(std::size_t athlete, const std::string& category, const QString& what,
                     const std::function<void(mtCatsStruct&)>& change);
    /// Computes the averages of every athlete, also of those who were not edited.
    void recomputeAllAverages();

protected:
    [[nodiscard]] QString summary() const override;
    [[nodiscard]] Content contentNow() const override;
    [[nodiscard]] bool recover(const std::string& content) override;
};

} // namespace kavela::desktop
