#include "desktop/folder/films_window.h"

#include "common/error.h"
#include "desktop/film/film_stage.h"
#include "desktop/film/play_menu.h"
#include "desktop/folder/film_browser.h"
#include "desktop/folder/film_playing.h"
#include "desktop/folder/films_actions.h"
#include "desktop/folder/rename_films_dialog.h"
#include "desktop/folder/tag_mode.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"
#include "splittaking/video_names.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStatusBar>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr const char* RecentFoldersKey = "films/folders";
constexpr qsizetype MostRecentFolders = 10;

} // namespace

FilmsWindow::FilmsWindow(Workspace& workspace, QString thumbnailFolder)
    : ToolWindow(workspace, nullptr, {"films", tr("Films"), "mp4"}),
      m_shelf(workspace, *this),
      m_looks(std::move(thumbnailFolder)) {
    makeParts();
    connectParts();
    m_actions = new FilmsActions(*this, workspace);
    rememberColumns(*this, workspace, "films");
    showTitle();
    showStatus();
}

FilmsWindow::~FilmsWindow() {
    // The parts report to the window while they are taken apart.
    m_stage->silence();
    m_shelf.disconnect();
    m_looks.disconnect();
    m_browser->disconnect();
}

void FilmsWindow::makeParts() {
    m_browser = new FilmBrowser(m_shelf, m_looks);
    m_stage = new FilmStage(
        workspace(),
        {.state = "filmsState", .health = "filmsHealth", .typing = "filmsTyping", .isQuiet = true});
    m_tags = new TagMode(workspace(), m_shelf, *m_stage);
    m_stage->setModes({m_tags});
    m_stage->addBelow(*makeTagBar());
    m_stage->keepKeys(*this, [this] { m_browser->takeFocus(); });
    m_playing = new FilmPlaying({workspace(), m_shelf, *m_browser, *m_stage, *m_tags});
    m_cutting = new FilmCutting(workspace(), *m_tags, *this);
    auto* const parts = new QSplitter;
    parts->setChildrenCollapsible(false);
    parts->addWidget(m_browser);
    parts->addWidget(m_stage);
    parts->setStretchFactor(1, 1);
    shareSizes(*parts, {560, 720});
    rememberSizes(*parts, workspace(), "films/parts");
    setCentralWidget(parts);
    m_browser->takeFocus(); // the first keys are the films', not letters for the filter
    m_status = new QLabel;
    m_status->setTextFormat(Qt::PlainText);
    statusBar()->addWidget(m_status, 1);
}

QWidget* FilmsWindow::makeTagBar() {
    auto* const bar = new QWidget;
    auto* const row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    m_tagName = new QComboBox;
    m_tagName->setObjectName("tagName");
    m_tagName->setEditable(true);
    m_tagName->setInsertPolicy(QComboBox::NoInsert);
    m_tagName->setMinimumWidth(grown(*this, 160));
    auto* const words = new QLabel(tr("&Tag that M sets:"));
    words->setBuddy(m_tagName);
    row->addWidget(words);
    row->addWidget(m_tagName);
    row->addStretch(1);
    showTagNames();
    return bar;
}

void FilmsWindow::connectParts() {
    const auto takeName = [this] { m_tags->setCurrentName(m_tagName->currentText()); };
    connect(m_tagName, &QComboBox::textActivated, this, takeName);
    connect(m_tagName->lineEdit(), &QLineEdit::editingFinished, this, takeName);
    connect(&workspace(), &Workspace::preferenceChanged, this, [this](const QString& key) {
        if (key == QLatin1String("savedtags"))
            showTagNames();
    });
    connect(&m_shelf, &FilmShelf::changed, this, [this] {
        m_tags->refresh();
        chooseWanted();
        showStatus();
    });
    connect(&m_shelf, &FilmShelf::readingChanged, this, &FilmsWindow::showStatus);
    connect(&m_shelf, &FilmShelf::renamed, this, &FilmsWindow::takeNames);
    connect(&m_shelf, &FilmShelf::failed, this, [this](const QString& message) {
        workspace().showAlert({"", message.toStdString()}, this);
    });
    connect(m_cutting, &FilmCutting::refused, m_stage, &FilmStage::refuse);
    connect(m_cutting, &FilmCutting::done, this, [this](const QString& target) {
        m_stage->flash(tr("Cut"));
        statusBar()->showMessage(tr("Cut into %1").arg(QDir::toNativeSeparators(target)));
        m_shelf.readAgain();
    });
}

void FilmsWindow::showTagNames() {
    const QSignalBlocker silent(m_tagName);
    m_tagName->clear();
    m_tagName->addItems(m_tags->names());
    m_tagName->setEditText(m_tags->currentName());
}

QStringList FilmsWindow::paths() const {
    return m_shelf.folder().isEmpty() ? QStringList() : QStringList(m_shelf.folder());
}

bool FilmsWindow::open(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists()) {
        workspace().forgetRecentFile(path);
        workspace().showAlert(
            {"", tr("“%1” is not there.").arg(QDir::toNativeSeparators(path)).toStdString()}, this);
        return false;
    }
    m_wanted = info.isDir() ? QString() : info.absoluteFilePath();
    const QString folder = info.isDir() ? info.absoluteFilePath() : info.absolutePath();
    QStringList recent = recentFolders(workspace());
    recent.removeAll(folder);
    recent.prepend(folder);
    workspace().remember(RecentFoldersKey, recent.mid(0, MostRecentFolders));
    workspace().addRecentFile(folder);
    m_shelf.openFolder(folder);
    showTitle();
    chooseWanted();
    emit pathsChanged();
    return true;
}

QStringList FilmsWindow::recentFolders(const Workspace& workspace) {
    return workspace.remembered(RecentFoldersKey);
}

void FilmsWindow::chooseFolder() {
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Open a folder of films"), m_shelf.folder());
    if (!folder.isEmpty())
        (void)open(folder);
}

/// What belongs to another tool goes there.
void FilmsWindow::takeFiles(const QStringList& paths) {
    const QFileInfo first(paths.value(0));
    if (first.isDir() || isVideoFile(first.fileName().toStdString()))
        (void)open(first.filePath());
    else
        emit openRequested(paths);
}

void FilmsWindow::chooseWanted() {
    if (m_wanted.isEmpty() || !m_shelf.film(m_wanted))
        return;
    m_browser->choose(std::exchange(m_wanted, {}));
}

void FilmsWindow::showTitle() {
    const QString folder = m_shelf.folder();
    setWindowTitle((folder.isEmpty() ? QString() : QFileInfo(folder).fileName() + " – ") +
                   tr("Films") + " – Kavela");
    setWindowFilePath(folder);
}

void FilmsWindow::showStatus() {
    const auto& faults = m_shelf.faults();
    QString text;
    if (m_shelf.isReading())
        text = tr("Reading…");
    else if (!faults.empty())
        text = tr("⚠ Not read: %1").arg(joined(faults));
    m_status->setText(text);
    m_status->setToolTip(text);
}

QString FilmsWindow::status() const {
    return m_status->text();
}

void FilmsWindow::typeFilter() {
    m_browser->filterLine().setFocus();
    m_browser->filterLine().selectAll();
}

void FilmsWindow::markWatched(bool isWatched) {
    m_shelf.setWatched(m_browser->chosenFilms(), isWatched);
}

void FilmsWindow::askAndRename() {
    QStringList chosen = m_browser->chosenFilms();
    if (chosen.size() < 2)
        chosen = m_browser->shownFilms();
    std::vector<ListedFilm> films;
    for (const QString& path : chosen)
        if (const ListedFilm* const film = m_shelf.film(path))
            films.push_back(*film);
    if (films.empty())
        return;
    std::vector<std::string> taken;
    for (const QString& name :
         QDir(m_shelf.folder())
             .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot))
        taken.push_back(name.toStdString());
    RenameFilmsDialog dialog(std::move(films), std::move(taken), m_shelf.pattern(), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_shelf.setPattern(dialog.pattern());
    m_stage->deck().pause();
    m_shelf.rename(dialog.names());
}

void FilmsWindow::takeNames(const FilmRenames& names) {
    const QString folder = m_shelf.folder() + '/';
    for (const auto& [from, to] : names) {
        m_looks.rename(folder + qtText(from), folder + qtText(to));
        m_playing->follow(folder + qtText(from), folder + qtText(to));
    }
    if (!names.empty())
        m_wanted = m_stage->films().value(0); // the cursor goes with the film
}

} // namespace kavela::desktop
