#include "desktop/shell/home_window.h"

#include "desktop/shell/dropped_files.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/help_menu.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/tile_columns.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"

#include <QAction>
#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

constexpr int LeastRecentHeight = 96; ///< some lines, also where the page scrolls

QLabel* label(const QString& text, const QFont& font) {
    auto* made = new QLabel(text);
    made->setFont(font);
    return made;
}

} // namespace

HomeWindow::HomeWindow(Workspace& workspace, const Tools& tools) : m_workspace(workspace) {
    setWindowTitle("Kavela");
    setAcceptDrops(true);
    makeMenus();

    auto* page = new QWidget;
    m_column = new QVBoxLayout(page);
    m_column->setContentsMargins(theme::PageMargin, theme::PageMargin, theme::PageMargin,
                                 theme::PageMargin);
    m_column->setSpacing(theme::LargeSpacing);
    m_column->addWidget(header());
    m_column->addWidget(keptWork());
    m_column->addWidget(new TileColumns(tools, recentFiles()));
    m_column->addStretch(1);
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(page);
    setCentralWidget(area);
    resize(1140, 720);
    rememberPlace(*this, workspace, "home");

    connect(&m_workspace, &Workspace::recentFilesChanged, this, &HomeWindow::showRecentFiles);
    showRecentFiles();
}

void HomeWindow::makeMenus() {
    QMenu* file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("&Open…"), QKeySequence::Open, this, &HomeWindow::chooseFile);
    file->addAction(tr("Try the &sample season"), this, &HomeWindow::sampleRequested);
    file->addSeparator();
    file->addAction(tr("Se&ttings…"), QKeySequence(Qt::CTRL | Qt::Key_Comma), this,
                    &HomeWindow::settingsRequested);
    file->addAction(tr("&Quit"), QKeySequence::Quit, this, [] { QCoreApplication::quit(); });
    addHelpMenu(*this, m_workspace, "home", [] { return Commands(); });
}

void HomeWindow::addBelowHeader(QWidget* part) {
    m_column->insertWidget(1, part);
}

QWidget* HomeWindow::header() {
    auto* box = new QWidget;
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    auto* words = new QVBoxLayout;
    words->setSpacing(theme::SmallSpacing);
    words->addWidget(label("Kavela", theme::headlineFont(*this)));
    auto* line = label(tr("Where was the time won and lost, and why?"), theme::titleFont(*this));
    line->setForegroundRole(QPalette::PlaceholderText);
    line->setWordWrap(true); // beside the buttons, whatever the letters
    words->addWidget(line);
    row->addLayout(words, 1);

    auto* sample = new QPushButton(tr("Try the sample season"));
    sample->setObjectName("sample");
    connect(sample, &QPushButton::clicked, this, &HomeWindow::sampleRequested);
    auto* open = new QPushButton(tr("Open a file…"));
    open->setDefault(true);
    connect(open, &QPushButton::clicked, this, &HomeWindow::chooseFile);
    row->addWidget(sample, 0, Qt::AlignTop);
    row->addWidget(open, 0, Qt::AlignTop);
    return box;
}

QWidget* HomeWindow::recentFiles() {
    auto* box = new QWidget;
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(label(tr("Recent files"), theme::titleFont(*this)));
    m_noRecent = label(tr("Nothing opened yet. Drop a split file (.kvx) or a folder here, open one "
                          "with Ctrl+O, or try the sample season."),
                       theme::captionFont(*this));
    m_noRecent->setForegroundRole(QPalette::PlaceholderText);
    m_noRecent->setWordWrap(true);
    m_recent = new QListWidget;
    m_recent->setObjectName("recentFiles");
    m_recent->setMinimumHeight(grown(*this, LeastRecentHeight));
    connect(m_recent, &QListWidget::itemActivated, this, [this](const QListWidgetItem* item) {
        emit m_workspace.openRequested(item->data(Qt::UserRole).toString());
    });
    column->addWidget(m_noRecent);
    column->addWidget(m_recent, 1);
    column->addStretch(0);
    return box;
}

/// Seen as long as there is any.
QWidget* HomeWindow::keptWork() {
    m_keptBox = new QWidget;
    auto* const column = new QVBoxLayout(m_keptBox);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(label(tr("Work kept"), theme::titleFont(*this)));
    m_kept = new QListWidget;
    m_kept->setObjectName("keptWork");
    m_kept->setMaximumHeight(grown(*this, LeastRecentHeight));
    connect(m_kept, &QListWidget::itemActivated, this, [this] {
        const auto row = static_cast<std::size_t>(m_kept->currentRow());
        if (row >= m_works.size())
            return;
        const auto bringBack = m_works[row].bringBack; // the list may be another one meanwhile
        bringBack();
    });
    column->addWidget(m_kept);
    m_keptBox->hide();
    return m_keptBox;
}

void HomeWindow::showKeptWork(const std::vector<KeptWork>& works) {
    m_works = works;
    m_kept->clear();
    for (const KeptWork& work : works)
        (new QListWidgetItem(work.line, m_kept))->setToolTip(work.place);
    m_keptBox->setVisible(!works.empty());
}

void HomeWindow::showRecentFiles() {
    m_recent->clear();
    for (const QString& path : m_workspace.recentFiles()) {
        const QFileInfo info(path);
        auto* item = new QListWidgetItem(
            info.fileName() + "   " + tr("in %1").arg(info.absolutePath()), m_recent);
        item->setData(Qt::UserRole, path);
        item->setToolTip(path);
    }
    m_recent->setVisible(m_recent->count() > 0);
    m_noRecent->setVisible(m_recent->count() == 0);
}

void HomeWindow::chooseFile() {
    const QStringList files = QFileDialog::getOpenFileNames(
        this, tr("Open"), QString(), tr("Split files (*.kvx);;All files (*)"));
    if (!files.isEmpty())
        emit filesRequested(files);
}

void HomeWindow::dragEnterEvent(QDragEnterEvent* event) {
    acceptFiles(*event);
}

void HomeWindow::dropEvent(QDropEvent* event) {
    emit filesRequested(droppedFiles(*event));
}

} // namespace kavela::desktop
