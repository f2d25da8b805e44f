#include "desktop/find/search_places.h"

#include "desktop/shell/file_names.h"
#include "desktop/shell/theme.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

constexpr int SeenPlaces = 3; ///< without scrolling

} // namespace

SearchPlaces::SearchPlaces(QWidget* parent)
    : QWidget(parent),
      m_list(new QListWidget),
      m_content(new QLabel),
      m_failed(new QPushButton),
      m_remove(new QPushButton(tr("Remove"))) {
    m_list->setObjectName("searchPlaces");
    m_list->setAccessibleName(tr("Folders and files that are searched"));
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setFixedHeight(SeenPlaces * (fontMetrics().lineSpacing() + theme::SmallSpacing) +
                           theme::Spacing);
    m_content->setTextFormat(Qt::PlainText);
    m_content->setWordWrap(true);
    m_failed->setObjectName("failed");
    m_failed->setFlat(true);
    m_failed->hide();
    auto* const folder = new QPushButton(tr("Add folder…"));
    m_remove->setToolTip(tr("The chosen folder or file is not searched any more"));
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(folder);
    buttons->addWidget(m_remove);
    buttons->addStretch();
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addWidget(m_list);
    column->addLayout(buttons);
    column->addWidget(m_content);
    column->addWidget(m_failed, 0, Qt::AlignLeft);
    connect(folder, &QPushButton::clicked, this, &SearchPlaces::chooseFolder);
    connect(m_remove, &QPushButton::clicked, this, &SearchPlaces::removeChosen);
    connect(m_failed, &QPushButton::clicked, this, &SearchPlaces::failuresRequested);
    connect(m_list, &QListWidget::currentRowChanged, this,
            [this](int row) { m_remove->setEnabled(row >= 0); });
    m_remove->setEnabled(false);
}

void SearchPlaces::show(const QStringList& paths) {
    m_paths = paths;
    m_list->clear();
    const QStringList names = namesToldApart(paths);
    for (qsizetype i = 0; i < paths.size(); ++i) {
        const bool isFolder = QFileInfo(paths[i]).isDir();
        auto* const item = new QListWidgetItem(
            isFolder ? QDir::toNativeSeparators(paths[i]) : names.value(i), m_list);
        item->setToolTip(QDir::toNativeSeparators(paths[i]));
    }
}

void SearchPlaces::setContent(const QString& content) {
    m_content->setText(content);
}

void SearchPlaces::setFailed(int count) {
    m_failed->setText(count == 1 ? tr("⚠ One could not be read…")
                                 : tr("⚠ %n could not be read…", nullptr, static_cast<int>(count)));
    m_failed->setVisible(count > 0);
}

void SearchPlaces::add(const QStringList& paths) {
    QStringList all = m_paths;
    for (const QString& path : paths)
        if (!path.isEmpty() && !all.contains(path))
            all.append(path);
    if (all != m_paths)
        emit edited(all);
}

void SearchPlaces::chooseFolder() {
    add({QFileDialog::getExistingDirectory(this, tr("Search a folder"), m_paths.value(0))});
}

void SearchPlaces::chooseFiles() {
    add(QFileDialog::getOpenFileNames(this, tr("Search files"), m_paths.value(0),
                                      tr("Split files (*.kvx);;All files (*)")));
}

void SearchPlaces::removeChosen() {
    const int row = m_list->currentRow();
    if (row < 0)
        return;
    QStringList all = m_paths;
    all.removeAt(row);
    emit edited(all);
}

} // namespace kavela::desktop
