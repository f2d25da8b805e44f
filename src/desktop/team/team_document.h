#pragma once

#include "desktop/shell/edited_file.h"
#include "results/team_records.h"

namespace kavela::desktop {

/// A team file that is being edited. The averages of an athlete follow the results of every edit;
/// those of athletes who were not edited stay as the file has them.
class TeamDocument : public EditedValue<myTeamToSaveStruct> {
    Q_OBJECT

public:
    using EditedValue::EditedValue;
    ~TeamDocument() override { keepWork(); }

    /// False, after an alert that says what is wrong where, when it cannot be opened; the document
    /// then stays as it is.
    [[nodiscard]] bool open(const QString& path, QWidget* over);
    /// A new team; the path is where saving will propose to put it.
    void startNew(const QString& path, QWidget* over);
    /// The same under a name that is free in a folder.
    void createNew(const QString& folder, QWidget* over);

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
    [[nodiscard]] std::string content() const override;
    [[nodiscard]] bool recover(const std::string& content) override;
};

} // namespace kavela::desktop
