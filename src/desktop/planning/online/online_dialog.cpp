#include "desktop/planning/online/online_dialog.h"

#include "desktop/shell/fault_label.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

namespace kavela::desktop {

namespace {

constexpr const char* AddressKey = "onlinePlanningAddress";

} // namespace

OnlineAddress rememberedAddress(const Workspace& workspace) {
    const QStringList stored = workspace.remembered(AddressKey);
    return {QUrl(stored.value(0)), stored.value(1), QString()};
}

QString rememberedEntry(const Workspace& workspace) {
    if (const QString entry = workspace.remembered(AddressKey).value(2); !entry.isEmpty())
        return entry;
    const std::vector<std::string> entries = workspace.preferences().array(SharedPlanningsKey);
    return entries.empty() ? QString() : QString::fromStdString(entries.front());
}

OnlineDialog::OnlineDialog(Workspace& workspace, const QString& purpose, QWidget* parent)
    : QDialog(parent),
      m_workspace(workspace),
      m_entry(new QComboBox),
      m_folder(new QLineEdit),
      m_user(new QLineEdit),
      m_password(new QLineEdit),
      m_fault(new FaultLabel) {
    setWindowTitle(purpose);
    for (const std::string& entry : workspace.preferences().array(SharedPlanningsKey))
        m_entry->addItem(QString::fromStdString(entry));
    m_entry->setCurrentText(rememberedEntry(workspace));
    const OnlineAddress address = rememberedAddress(workspace);
    m_folder->setText(address.folder.toString());
    m_folder->setPlaceholderText("https://cloud.example.org/plans/");
    m_user->setText(address.user);
    m_password->setEchoMode(QLineEdit::Password);
    auto* note = new QLabel(tr("Any server that stores files by WebDAV will do. The password is "
                               "asked for each time and stored nowhere."));
    note->setFont(theme::captionFont(*this));
    note->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &OnlineDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* form = new QFormLayout(this);
    form->setContentsMargins(theme::LargeSpacing, theme::LargeSpacing, theme::LargeSpacing,
                             theme::LargeSpacing);
    form->setSpacing(theme::Spacing);
    form->addRow(tr("&Planning"), m_entry);
    form->addRow(tr("&Address"), m_folder);
    form->addRow(tr("&User name"), m_user);
    form->addRow(tr("Pass&word"), m_password);
    form->addRow(note);
    form->addRow(m_fault);
    form->addRow(buttons);
    setMinimumWidth(grown(*this, 460));
    (m_folder->text().isEmpty() ? m_folder : m_password)->setFocus();
}

OnlineAddress OnlineDialog::address() const {
    return {QUrl(m_folder->text().trimmed()), m_user->text().trimmed(), m_password->text()};
}

QString OnlineDialog::entry() const {
    return m_entry->currentText();
}

void OnlineDialog::accept() {
    const QString fault =
        m_entry->count() == 0 ? tr("The settings name no shared planning.") : address().fault();
    if (!fault.isEmpty()) {
        m_fault->tell(fault);
        return;
    }
    m_workspace.remember(AddressKey,
                         {address().folder.toString(), m_user->text().trimmed(), entry()});
    QDialog::accept();
}

} // namespace kavela::desktop
