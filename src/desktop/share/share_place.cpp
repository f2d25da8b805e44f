#include "desktop/share/share_place.h"

#include "desktop/shell/forms/record_form.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"
#include "share/shared_folders.h"
#include "share/web_place.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

namespace kavela::desktop {

namespace {

std::vector<std::string> keptFolders(const Workspace& workspace) {
    return workspace.preferences().rawList(share::SharedFoldersKey);
}

/// What was shared last.
SharePlace::Typed rememberedPlace(const Workspace& workspace) {
    const std::vector<share::SharedFolder> kept = share::sharedFolders(keptFolders(workspace));
    return kept.empty() ? SharePlace::Typed()
                        : SharePlace::Typed{kept.front().folder, kept.front().address};
}

} // namespace

SharePlace::SharePlace(Workspace& workspace)
    : m_workspace(workspace), m_typed(rememberedPlace(workspace)) {
    makeForm();
    auto* const choose = new QPushButton(tr("Choose the folder…"));
    connect(choose, &QPushButton::clicked, this, &SharePlace::folderWanted);
    auto* const line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(theme::Spacing);
    line->addWidget(m_form, 1);
    line->addWidget(choose, 0, Qt::AlignTop);
    m_form->show(&m_typed, true);
}

void SharePlace::makeForm() {
    m_form = new RecordForm<Typed>(
        [this](const QString& /*what*/, const RecordForm<Typed>::Change& change) { edit(change); });
    m_form->text({.name = "folder",
                  .label = tr("F&older"),
                  .tip = tr("On this computer, with everything below it but hidden files"),
                  .placeholder = tr("the folder that is shared")},
                 &Typed::folder);
    m_form->text({.name = "address",
                  .label = tr("&Address"),
                  .tip = tr("Of a folder on a WebDAV server: Nextcloud, ownCloud, a NAS, Apache…"),
                  .placeholder = "https://cloud.example.org/dav/team/"},
                 &Typed::address);
    for (const QLineEdit* const field : m_form->findChildren<QLineEdit*>()) // once it is taken
        connect(field, &QLineEdit::returnPressed, this, &SharePlace::entered, Qt::QueuedConnection);
}

/// One that was never shared stays with the address that is there.
std::string SharePlace::addressOf(const std::string& folder) const {
    return share::addressOfFolder(keptFolders(m_workspace), folder).value_or(m_typed.address);
}

void SharePlace::set(const Typed& place) {
    m_typed = place;
    m_form->show(&m_typed, true);
    emit changed();
}

void SharePlace::setFolder(const QString& folder) {
    const std::string path = folder.toStdString();
    set({path, addressOf(path)});
}

void SharePlace::edit(const std::function<void(Typed&)>& change) {
    const std::string before = m_typed.folder;
    change(m_typed);
    if (m_typed.folder != before)
        m_typed.address = addressOf(m_typed.folder);
    m_form->show(&m_typed);
    emit changed();
}

fetch::Address SharePlace::address() const {
    return share::folderAt(m_typed.address);
}

void SharePlace::editEmpty() {
    m_form->editField(m_typed.folder.empty() ? "folder" : "address");
}

void SharePlace::remember() {
    QStringList kept;
    for (const std::string& text :
         share::keptWith(keptFolders(m_workspace), {m_typed.folder, m_typed.address}))
        kept.append(qtText(text));
    m_workspace.remember(share::SharedFoldersKey, kept);
}

QString SharePlace::fault() const {
    if (m_typed.folder.empty())
        return tr("There is no folder to share yet.");
    if (!QFileInfo(qtText(m_typed.folder)).isDir())
        return tr("“%1” is no folder.").arg(qtText(m_typed.folder));
    return faultOfAddress();
}

QString SharePlace::faultOfAddress() const {
    const auto fault = share::faultOfPlace(m_typed.address);
    return fault ? qtText(*fault) : QString();
}

} // namespace kavela::desktop
