#pragma once

#include "desktop/planning/online/online_store.h"

#include <QDialog>

class QComboBox;
class QLineEdit;

namespace kavela::desktop {

class FaultLabel;

class Workspace;

/// The preference that holds the names of the shared plannings.
inline constexpr const char* SharedPlanningsKey = "planningOnline";

/// Which shared planning, and where. Address and user are remembered, the password is not.
class OnlineDialog : public QDialog {
    Q_OBJECT

public:
    OnlineDialog(Workspace& workspace, const QString& purpose, QWidget* parent);

    [[nodiscard]] OnlineAddress address() const;
    /// "Team"
    [[nodiscard]] QString entry() const;

    void accept() override;

private:
    Workspace& m_workspace;
    QComboBox* m_entry;
    QLineEdit* m_folder;
    QLineEdit* m_user;
    QLineEdit* m_password;
    FaultLabel* m_fault;
};

/// The address as it was entered last, without a password; nothing when none was.
[[nodiscard]] OnlineAddress rememberedAddress(const Workspace& workspace);
/// The shared planning that was saved or opened last, or the first of those that there are.
[[nodiscard]] QString rememberedEntry(const Workspace& workspace);

} // namespace kavela::desktop
