#include "desktop/shell/login_dialog.h"

#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

namespace kavela::desktop {

LoginDialog::LoginDialog(const QString& server, const std::optional<fetch::WebLogin>& before,
                         QWidget* parent)
    : QDialog(parent),
      m_user(new QLineEdit),
      m_password(new QLineEdit),
      m_keep(new QCheckBox(tr("&Keep it in the password store of this computer"))) {
    setWindowTitle(tr("Sign in to %1").arg(server));
    setAttribute(Qt::WA_DeleteOnClose);
    m_user->setObjectName("user");
    m_password->setObjectName("password");
    m_password->setEchoMode(QLineEdit::Password);
    if (before)
        m_user->setText(before->user);
    auto* const note =
        new QLabel(tr("Only this server is shown the password. It is never written into a file."));
    note->setFont(theme::captionFont(*this));
    note->setWordWrap(true);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const form = new QFormLayout(this);
    form->setContentsMargins(theme::LargeSpacing, theme::LargeSpacing, theme::LargeSpacing,
                             theme::LargeSpacing);
    form->setSpacing(theme::Spacing);
    form->addRow(tr("&User name"), m_user);
    form->addRow(tr("Pass&word"), m_password);
    form->addRow(m_keep);
    form->addRow(note);
    form->addRow(buttons);
    setMinimumWidth(grown(*this, 420));
    (m_user->text().isEmpty() ? m_user : m_password)->setFocus();
}

fetch::WebLogin LoginDialog::login() const {
    return {m_user->text().trimmed(), m_password->text()};
}

bool LoginDialog::isToKeep() const {
    return m_keep->isChecked();
}

} // namespace kavela::desktop
