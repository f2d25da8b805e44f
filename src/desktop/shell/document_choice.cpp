#include "desktop/shell/document_choice.h"

#include "desktop/shell/theme.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace kavela::desktop {

QString DocumentKind::openFilter() const {
    const QStringList suffixes = QStringList{suffix} + further;
    return DocumentChoiceDialog::tr("%1 (*.%2);;All files (*)")
        .arg(plural, suffixes.join(QStringLiteral(" *.")));
}

DocumentChoiceDialog::DocumentChoiceDialog(DocumentKind kind, const QStringList& recent,
                                           QWidget* parent)
    : QDialog(parent), m_kind(std::move(kind)), m_recent(new QListWidget) {
    setWindowTitle(m_kind.title);
    m_recent->setObjectName("recent");
    for (const QString& path : recent) {
        const QFileInfo file(path);
        auto* const item = new QListWidgetItem(
            tr("%1   in %2").arg(file.completeBaseName(), QDir::toNativeSeparators(file.path())),
            m_recent);
        item->setData(Qt::UserRole, path);
        item->setToolTip(path);
    }
    m_folder = recent.isEmpty()
                   ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                   : QFileInfo(recent.constFirst()).path();
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    auto* const add = buttons->addButton(tr("&New…"), QDialogButtonBox::ActionRole);
    auto* const other = buttons->addButton(tr("Open an&other…"), QDialogButtonBox::ActionRole);
    auto* const open = buttons->addButton(tr("&Open"), QDialogButtonBox::AcceptRole);
    add->setObjectName("new");
    other->setObjectName("other");
    open->setEnabled(!recent.isEmpty());
    connect(add, &QPushButton::clicked, this, &DocumentChoiceDialog::nameNew);
    connect(other, &QPushButton::clicked, this, &DocumentChoiceDialog::openOther);
    connect(buttons, &QDialogButtonBox::accepted, this, &DocumentChoiceDialog::takeRecent);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_recent, &QListWidget::itemDoubleClicked, this, &DocumentChoiceDialog::takeRecent);
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addWidget(
        new QLabel(recent.isEmpty() ? tr("None was opened yet.") : tr("Opened before:")));
    column->addWidget(m_recent, 1);
    column->addWidget(buttons);
    QPushButton* const likely = recent.isEmpty() ? add : open;
    likely->setDefault(true);
    if (recent.isEmpty())
        likely->setFocus(); // else the one that was made first has it, and Enter
    m_recent->setVisible(!recent.isEmpty());
    m_recent->setCurrentRow(0);
    resize(520, recent.isEmpty() ? sizeHint().height() : 320);
}

void DocumentChoiceDialog::takeRecent() {
    const QListWidgetItem* const item = m_recent->currentItem();
    if (!item)
        return;
    m_choice = {item->data(Qt::UserRole).toString(), false};
    accept();
}

/// A name that is taken already is asked about here, as wherever something is saved.
void DocumentChoiceDialog::nameNew() {
    QFileDialog dialog(this, tr("Name the new file"), m_folder,
                       tr("%1 (*.%2)").arg(m_kind.plural, m_kind.suffix));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(m_kind.suffix);
    dialog.selectFile(m_kind.proposed + '.' + m_kind.suffix);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return;
    m_choice = {dialog.selectedFiles().constFirst(), true};
    accept();
}

void DocumentChoiceDialog::openOther() {
    const QString path =
        QFileDialog::getOpenFileName(this, m_kind.title, m_folder, m_kind.openFilter());
    if (path.isEmpty())
        return;
    m_choice = {path, false};
    accept();
}

} // namespace kavela::desktop
