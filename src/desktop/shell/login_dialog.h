#pragma once

#include "fetch/web_rules.h"

#include <QDialog>

class QCheckBox;
class QLineEdit;

namespace kavela::desktop {

/// Asks for the user name and password of a server.
class LoginDialog : public QDialog {
    Q_OBJECT

public:
    /// `before` is what was tried last.
    LoginDialog(const QString& server, const std::optional<fetch::WebLogin>& before,
                QWidget* parent);

    [[nodiscard]] fetch::WebLogin login() const;
    /// It is to be kept in the password store.
    [[nodiscard]] bool isToKeep() const;

private:
    QLineEdit* m_user;
    QLineEdit* m_password;
    QCheckBox* m_keep;
};

} // namespace kavela::desktop
