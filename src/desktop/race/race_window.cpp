#include "desktop/race/race_window.h"

#include "desktop/race/frozen_table.h"
#include "desktop/race/race_actions.h"
#include "desktop/race/race_view.h"
#include "desktop/race/read_race.h"
#include "desktop/shell/dropped_files.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"

#include <QApplication>
#include <QFileInfo>
#include <QSplitter>
#include <QTabBar>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {
constexpr int WidestTab = 260; // pixels: a file's name may be wider than the window
} // namespace

RaceWindow::RaceWindow(Workspace& workspace)
    : ToolWindow(workspace, nullptr, {"race", tr("Split files"), "kvx"}),
      m_tabs(new QTabBar),
      m_splitter(new QSplitter) {
    m_tabs->setDocumentMode(true);
    m_tabs->setDrawBase(false); // white on dark
    m_tabs->setExpanding(false);
    m_tabs->setTabsClosable(true);
    m_tabs->setAccessibleName(tr("Races"));
    connect(m_tabs, &QTabBar::currentChanged, this, &RaceWindow::showView);
    connect(m_tabs, &QTabBar::tabCloseRequested, this, [this](int index) {
        showView(index);
        closeView();
    });
    m_splitter->setChildrenCollapsible(false);
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(0, theme::SmallSpacing, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_tabs);
    column->addWidget(m_splitter, 1);
    setCentralWidget(page);
    m_actions = new RaceActions(*this, workspace);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget*, const QWidget* now) { followFocus(now); });
}

RaceWindow::~RaceWindow() {
    // The views report to the window while they are taken apart, and the focus moves on.
    qApp->disconnect(this);
    for (RaceView* view : m_views)
        view->disconnect(this);
}

bool RaceWindow::open(const QString& path) {
    return showViewOf(path) || openRead(*readRace(path, workspace().clock()));
}

bool RaceWindow::openRead(ReadRace& race) {
    if (showViewOf(race.path))
        return true;
    auto* view = new RaceView(workspace());
    if (!view->open(race)) {
        delete view;
        return false;
    }
    addView(view);
    return true;
}

bool RaceWindow::showViewOf(const QString& path) {
    for (std::size_t i = 0; i < m_views.size(); ++i)
        if (isSameFile(m_views[i]->document().path(), path)) {
            showView(static_cast<int>(i));
            return true;
        }
    return false;
}

void RaceWindow::showRace(splittakerdata031 race, const QString& path, const QString& note) {
    if (showViewOf(path)) {
        view().showRace(std::move(race), path, note);
        return;
    }
    auto* const made = new RaceView(workspace());
    made->showRace(std::move(race), path, note);
    addView(made);
}

void RaceWindow::addView(RaceView* view) {
    m_views.push_back(view);
    m_splitter->addWidget(view);
    connect(view, &RaceView::stateChanged, m_actions, &RaceActions::refresh);
    connect(view, &RaceView::momentRequested, this, [this, view](int run, std::size_t split) {
        emit momentRequested(view->document().path(), run, split);
    });
    m_current = static_cast<int>(m_views.size()) - 1;
    {
        const QSignalBlocker blocker(m_tabs);
        m_tabs->addTab(m_tabs->fontMetrics().elidedText(
            QFileInfo(view->document().path()).completeBaseName(), Qt::ElideMiddle, WidestTab));
        m_tabs->setTabToolTip(m_current, view->document().path());
        m_tabs->setCurrentIndex(m_current);
    }
    showViews();
    view->table().setFocus();
    emit viewsChanged();
}

void RaceWindow::showView(int index) {
    if (index < 0 || index == m_current)
        return;
    m_current = index;
    showViews();
    view().table().setFocus();
}

void RaceWindow::showNextView(int step) {
    const int count = static_cast<int>(m_views.size());
    showView((m_current + step + count) % count);
}

void RaceWindow::setSideBySide(bool isSideBySide) {
    m_isSideBySide = isSideBySide;
    showViews();
}

void RaceWindow::showViews() {
    m_tabs->setVisible(m_views.size() > 1);
    const QSignalBlocker blocker(m_tabs);
    m_tabs->setCurrentIndex(m_current);
    const bool isSideBySide = m_isSideBySide && m_views.size() > 1;
    for (std::size_t i = 0; i < m_views.size(); ++i) {
        m_views[i]->setCompact(isSideBySide);
        m_views[i]->setVisible(isSideBySide || std::cmp_equal(i, m_current));
    }
    const QStringList names = namesToldApart(paths());
    for (int tab = 0; tab < m_tabs->count() && tab < names.size(); ++tab)
        m_tabs->setTabText(
            tab, m_tabs->fontMetrics().elidedText(names[tab], Qt::ElideMiddle, WidestTab));
    const QString file = QFileInfo(document().path()).completeBaseName();
    setWindowTitle(document().title() + " – " + file + " – Kavela");
    setWindowFilePath(document().path());
    m_actions->refresh();
}

void RaceWindow::followFocus(const QWidget* focused) {
    for (std::size_t i = 0; focused && i < m_views.size(); ++i)
        if (m_views[i]->isAncestorOf(focused) && !std::cmp_equal(i, m_current)) {
            m_current = static_cast<int>(i);
            showViews();
            return;
        }
}

void RaceWindow::closeView() {
    if (m_views.size() <= 1) {
        close();
        return;
    }
    RaceView* const closed = &view();
    m_views.erase(m_views.begin() + m_current);
    {
        const QSignalBlocker blocker(m_tabs);
        m_tabs->removeTab(m_current);
    }
    m_current = std::min(m_current, static_cast<int>(m_views.size()) - 1);
    closed->hide();
    closed->disconnect(this);
    closed->deleteLater(); // its own menu may be asking for this
    showViews();
    view().table().setFocus();
    emit viewsChanged();
}

RaceView& RaceWindow::view() const {
    return *m_views[static_cast<std::size_t>(m_current)];
}

const RaceDocument& RaceWindow::document() const {
    return view().document();
}

const SplitTableModel& RaceWindow::model() const {
    return view().model();
}

FrozenTable& RaceWindow::table() const {
    return view().table();
}

QStringList RaceWindow::paths() const {
    QStringList paths;
    for (const RaceView* view : m_views)
        paths.append(view->document().path());
    return paths;
}

} // namespace kavela::desktop
