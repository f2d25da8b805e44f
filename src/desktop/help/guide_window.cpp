#include "desktop/help/guide_window.h"

#include "desktop/help/guide_text.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr int ContentsWidth = 260;
constexpr int TextWidth = 740;
constexpr int ChapterLevel = 3;

} // namespace

GuideWindow::GuideWindow(Workspace& workspace, QWidget* parent)
    : QMainWindow(parent), m_text(new GuideText), m_chapters(chaptersOf(*m_text->document())) {
    setWindowTitle(tr("User guide – Kavela"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false); // the program ends with the windows of its tools
    m_text->setAccessibleName(tr("User guide"));
    makeBar();
    auto* const parts = new QSplitter;
    parts->setChildrenCollapsible(false);
    parts->addWidget(makeContents());
    parts->addWidget(m_text);
    parts->setStretchFactor(1, 1);
    shareSizes(*parts, {ContentsWidth, TextWidth});
    setCentralWidget(parts);
    resize(ContentsWidth + TextWidth, 720);
    rememberPlace(*this, workspace, "guide");
    connect(m_text, &QTextBrowser::anchorClicked, this, &GuideWindow::follow);
    connect(m_text, &GuideText::scrolled, this, &GuideWindow::showPlace);
    m_text->setFocus();
    showPlace();
}

void GuideWindow::makeBar() {
    auto* const bar = addToolBar(tr("Ways through the guide"));
    bar->setObjectName("guideBar");
    bar->setMovable(false);
    bar->toggleViewAction()->setVisible(false);
    m_back = bar->addAction(style()->standardIcon(QStyle::SP_ArrowBack), tr("Back"), this,
                            &GuideWindow::goBack);
    m_back->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Left));
    m_forward = bar->addAction(style()->standardIcon(QStyle::SP_ArrowForward), tr("Forward"), this,
                               &GuideWindow::goForward);
    m_forward->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Right));
    for (QAction* const action : {m_back, m_forward})
        action->setToolTip(tr("%1 (%2)").arg(
            action->text(), action->shortcut().toString(QKeySequence::NativeText)));
    auto* const find = new QAction(tr("Find"), this);
    find->setShortcuts({QKeySequence::Find, QKeySequence(Qt::Key_Slash)});
    connect(find, &QAction::triggered, this, [this] {
        m_search->setFocus();
        m_search->selectAll();
    });
    auto* const next = new QAction(tr("Next place"), this);
    next->setShortcut(QKeySequence(Qt::Key_F3));
    connect(next, &QAction::triggered, this, &GuideWindow::findNext);
    addActions({find, next});
}

QWidget* GuideWindow::makeContents() {
    auto* const box = new QWidget;
    auto* const column = new QVBoxLayout(box);
    column->setContentsMargins(theme::Spacing, theme::Spacing, 0, 0);
    m_search = new QLineEdit;
    m_search->setObjectName("guideSearch");
    m_search->setPlaceholderText(tr("Search the guide"));
    m_search->setAccessibleName(tr("Search the guide"));
    m_search->setClearButtonEnabled(true);
    m_found = new QLabel;
    m_found->setObjectName("guideFound");
    m_found->setWordWrap(true);
    m_found->hide();
    m_contents = new QTreeWidget;
    m_contents->setObjectName("guideContents");
    m_contents->setAccessibleName(tr("Contents"));
    m_contents->setHeaderHidden(true);
    fillContents();
    column->addWidget(m_search);
    column->addWidget(m_found);
    column->addWidget(m_contents, 1);
    connect(m_search, &QLineEdit::textChanged, this, &GuideWindow::search);
    connect(m_search, &QLineEdit::returnPressed, this, &GuideWindow::findNext);
    connect(m_contents, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (const qsizetype chapter = m_items.indexOf(item); item && chapter >= 0)
            visit(m_chapters[chapter].block);
    });
    return box;
}

void GuideWindow::fillContents() {
    QTreeWidgetItem* part = nullptr;
    for (const GuideChapter& chapter : m_chapters) {
        auto* const item = chapter.level >= ChapterLevel && part ? new QTreeWidgetItem(part)
                                                                 : new QTreeWidgetItem(m_contents);
        item->setText(0, chapter.title);
        item->setToolTip(0, chapter.title);
        if (chapter.level < ChapterLevel)
            part = item;
        m_items.append(item);
    }
    m_contents->expandAll();
}

int GuideWindow::chapterAt(int block) const {
    const auto after = std::ranges::upper_bound(m_chapters, block, {}, &GuideChapter::block);
    return static_cast<int>(after - m_chapters.begin()) - 1;
}

QString GuideWindow::chapter() const {
    const int at = chapterAt(m_text->topBlock());
    return at < 0 ? QString() : m_chapters[at].title;
}

void GuideWindow::showChapter(const QString& title) {
    const auto found = std::ranges::find(m_chapters, title, &GuideChapter::title);
    if (found != m_chapters.end())
        visit(found->block);
}

/// What was gone back from is forgotten, as in every browser.
void GuideWindow::visit(int block) {
    if (block != m_text->topBlock()) {
        m_visited[m_visit] = m_text->topBlock(); // where it was left by scrolling
        m_visited.resize(m_visit + 1);
        m_visited.push_back(block);
        ++m_visit;
    }
    goTo(block);
}

void GuideWindow::goTo(int block) {
    m_text->showBlock(block);
    showPlace();
}

void GuideWindow::goBack() {
    if (m_visit == 0)
        return;
    m_visited[m_visit] = m_text->topBlock();
    goTo(m_visited[--m_visit]);
}

void GuideWindow::goForward() {
    if (m_visit + 1 >= m_visited.size())
        return;
    m_visited[m_visit] = m_text->topBlock();
    goTo(m_visited[++m_visit]);
}

/// In the contents and in the ways that are open from here.
void GuideWindow::showPlace() {
    const QSignalBlocker blocker(m_contents);
    const int at = chapterAt(m_text->topBlock());
    m_contents->setCurrentItem(at < 0 ? nullptr : m_items[at]);
    m_back->setEnabled(m_visit > 0);
    m_forward->setEnabled(m_visit + 1 < m_visited.size());
}

void GuideWindow::follow(const QUrl& link) {
    const auto found =
        std::ranges::find(m_chapters, link.fragment(),
                          [](const GuideChapter& chapter) { return anchorOf(chapter.title); });
    if (link.path().isEmpty() && found != m_chapters.end())
        visit(found->block);
    else
        statusBar()->showMessage(tr("“%1” does not come with the program.").arg(link.toString()));
}

/// Parts stay as long as one of their chapters does.
void GuideWindow::search(const QString& query) {
    qsizetype count = 0;
    for (qsizetype i = 0; i < m_chapters.size(); ++i) {
        const bool isFound = hasWords(m_chapters[i], query);
        count += isFound ? 1 : 0;
        m_items[i]->setHidden(!isFound);
        if (QTreeWidgetItem* const part = m_items[i]->parent(); part && isFound)
            part->setHidden(false);
    }
    m_text->markAll(query);
    m_found->setText(count == 0 ? tr("No chapter has these words.")
                                : tr("In %n chapters. Enter goes to the next place.", nullptr,
                                     static_cast<int>(count)));
    m_found->setVisible(!query.trimmed().isEmpty());
}

void GuideWindow::findNext() {
    const int before = m_text->topBlock();
    if (!m_text->findNext(m_search->text()) || m_text->topBlock() == before)
        return;
    m_visited[m_visit] = before;
    m_visited.resize(m_visit + 1);
    m_visited.push_back(m_text->topBlock());
    ++m_visit;
    showPlace();
}

void GuideWindow::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel))
        close();
    else
        QMainWindow::keyPressEvent(event);
}

} // namespace kavela::desktop
