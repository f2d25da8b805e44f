#include "desktop/taking/notes/notes_panel.h"

#include "desktop/film/film_deck.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/taking/gate_strip.h"
#include "desktop/taking/notes/camera_page.h"
#include "desktop/taking/notes/clip_player.h"
#include "desktop/taking/notes/comment_page.h"
#include "desktop/taking/notes/lane_strip.h"
#include "desktop/taking/notes/loss_page.h"
#include "desktop/taking/notes/mark_list.h"
#include "desktop/taking/notes/micro_page.h"
#include "desktop/taking/notes/note_marks.h"
#include "desktop/taking/notes/penalty_page.h"
#include "desktop/taking/notes/strategy_page.h"
#include "desktop/taking/notes/stroke_page.h"
#include "desktop/taking/notes/tag_page.h"
#include "desktop/taking/notes/upstream_page.h"
#include "splittaking/messages.h"

#include <QLabel>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr const char* ClipKey = "clipSeconds";

QWidget* scrolled(QWidget& page) {
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(&page);
    return area;
}

} // namespace

NotesPanel::NotesPanel(const NoteDesk& desk, const TimeLine& line, QWidget& splits)
    : m_desk(desk),
      m_bar(new QTabBar),
      m_stack(new QStackedWidget),
      m_told(new QLabel),
      m_list(new MarkList),
      m_lanes(new LaneStrip(line)),
      m_marks(new NoteMarks(m_desk, *m_list, *m_lanes, this)) {
    m_desk.marks = m_marks;
    m_bar->setObjectName("modes");
    m_bar->setFont(theme::captionFont(*this)); // all of them in sight on a small screen
    m_bar->setExpanding(false);
    m_bar->setDrawBase(false);
    m_bar->setFocusPolicy(Qt::NoFocus);
    m_told->setObjectName("noteTold");
    m_told->setTextFormat(Qt::PlainText);
    m_told->setWordWrap(true);
    m_told->hide();
    addPages(splits);
    connectMarks();
    auto* parts = new QSplitter(Qt::Vertical);
    parts->addWidget(m_stack);
    parts->addWidget(m_list);
    parts->setStretchFactor(0, 3);
    parts->setStretchFactor(1, 2);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(theme::Spacing, 0, 0, 0);
    column->addWidget(parts, 1);
    column->addWidget(m_told);
    connect(m_bar, &QTabBar::currentChanged, this,
            [this](int index) { setMode(static_cast<NoteMode>(index)); });
    connect(m_list, &MarkList::clipSecondsChanged, this, [this](int seconds) {
        m_desk.workspace.remember(ClipKey, {QString::number(seconds)});
    });
    connect(&m_desk.clips, &ClipPlayer::began, this, [this](std::size_t clip, std::size_t clips) {
        if (clips > 1)
            emit flashed(tr("Clip %1 of %2").arg(clip + 1).arg(clips));
    });
    if (const int seconds = m_desk.workspace.remembered(ClipKey).value(0).toInt(); seconds > 0)
        m_list->setClipSeconds(seconds);
    connect(&m_desk.document, &TakingDocument::changed, this, &NotesPanel::refresh);
    connect(&m_desk.deck, &FilmDeck::frameShown, this, &NotesPanel::showFrame);
    connect(&m_desk.gates, &GateStrip::currentChanged, this, [this] {
        if (page())
            page()->refresh();
    });
}

void NotesPanel::connectMarks() {
    m_marks->setOtherFilms(
        {.ownSeconds = [this](std::int64_t camera,
                              double seconds) { return m_cameras->ownSeconds(camera, seconds); },
         .showOtherRun = [this] { return m_losses->goToOtherRun(); }});
    connect(m_marks, &NoteMarks::noteSelected, this, &NotesPanel::noteSelected);
    connect(m_marks, &NoteMarks::splitChosen, this, &NotesPanel::splitChosen);
    connect(m_marks, &NoteMarks::modeWanted, this, [this](NoteMode mode) {
        if (!m_pages[static_cast<std::size_t>(mode)]->refusal())
            setMode(mode);
    });
    connect(m_marks, &NoteMarks::refreshWanted, this, &NotesPanel::refresh);
    connect(m_marks, &NoteMarks::told, this, &NotesPanel::tell);
    connect(m_marks, &NoteMarks::refused, this, &NotesPanel::refuse);
}

void NotesPanel::addPages(QWidget& splits) {
    m_strokes = new StrokePage(m_desk);
    m_tags = new TagPage(m_desk);
    m_losses = new LossPage(m_desk);
    m_comments = new CommentPage(m_desk);
    m_cameras = new CameraPage(m_desk);
    m_bar->addTab(titleOf(NoteMode::Splits));
    m_stack->addWidget(scrolled(splits));
    addPage(new PenaltyPage(m_desk));
    addPage(new UpstreamPage(m_desk));
    addPage(m_strokes);
    addPage(new MicroPage(m_desk));
    addPage(m_tags);
    addPage(m_losses);
    addPage(m_comments);
    addPage(new StrategyPage(m_desk));
    addPage(m_cameras);
    connect(m_cameras, &CameraPage::attachWanted, this, &NotesPanel::attachWanted);
    connect(m_cameras, &CameraPage::besideChanged, this, &NotesPanel::besideChanged);
}

/// The pages come in the order of their modes.
void NotesPanel::addPage(NotePage* page) {
    const int place = m_stack->addWidget(scrolled(*page));
    m_bar->addTab(titleOf(static_cast<NoteMode>(place)));
    m_pages[static_cast<std::size_t>(place)] = page;
    connect(page, &NotePage::marked, m_marks, &NoteMarks::selectAt);
    connect(page, &NotePage::picked, m_marks, &NoteMarks::goTo);
    connect(page, &NotePage::rowChosen, this, [this] {
        clearSelection(); // the row is what the keys mean now
        emit noteSelected();
    });
    connect(m_marks, &NoteMarks::cleared, page, &NotePage::unchoose);
    connect(page, &NotePage::flashed, this, &NotesPanel::flashed);
    connect(page, &NotePage::told, this, &NotesPanel::hear);
    connect(page, &NotePage::pressed, m_marks, &NoteMarks::press);
    connect(page, &NotePage::refused, this, &NotesPanel::refuse);
    connect(page, &NotePage::runRequested, this, &NotesPanel::runRequested);
}

NotePage* NotesPanel::page() const {
    return m_pages[static_cast<std::size_t>(m_mode)];
}

void NotesPanel::setMode(NoteMode mode) {
    NotePage* const entered = m_pages[static_cast<std::size_t>(mode)];
    if (mode != m_mode) {
        commit();
        const auto refused = entered ? entered->refusal() : std::nullopt;
        if (!refused) {
            m_mode = mode;
            m_marks->setPage(entered);
            m_stack->setCurrentIndex(static_cast<int>(mode));
            tell({});
            if (selected() && modeOf(selected()->kind) != mode)
                clearSelection();
            if (entered) {
                entered->enter();
                entered->refresh();
            }
            emit modeChanged();
        } else {
            m_desk.workspace.showAlert(*refused, window());
        }
    }
    const QSignalBlocker blocked(m_bar);
    m_bar->setCurrentIndex(static_cast<int>(m_mode));
}

std::vector<FilmMode*> NotesPanel::modes() const {
    std::vector<FilmMode*> modes;
    for (NotePage* const each : m_pages)
        if (each)
            modes.push_back(each);
    return modes;
}

void NotesPanel::commit() {
    m_desk.deck.finishPresses();
    if (page())
        page()->commit();
}

void NotesPanel::showRun(int run) {
    commit();
    m_desk.run = run;
    clearSelection();
    tell({});
    refresh();
}

void NotesPanel::runMoved(int run) {
    m_desk.run = run;
    refresh();
}

void NotesPanel::forget() {
    for (NotePage* const each : m_pages)
        if (each)
            each->forget();
}

void NotesPanel::refresh() {
    m_marks->read();
    if (page())
        page()->refresh();
    if (page() != m_cameras)
        m_cameras->refresh(); // what is shown beside the film, whatever the mode
    m_marks->show();
}

void NotesPanel::showFrame() {
    if (page())
        page()->showFrame();
}

void NotesPanel::actIn(NoteMode mode, const std::function<void()>& act) {
    if (m_mode == mode)
        act();
    else
        refuse(tr("This key works in the mode %1.").arg(titleOf(mode)));
}

void NotesPanel::markStroke(HandCode hand) {
    m_marks->press([this, hand](const Stamps& stamps) { m_strokes->markHand(stamps, hand); });
}

void NotesPanel::swapHand() {
    m_strokes->swapChosen();
}

void NotesPanel::playTag() {
    m_tags->playPart();
}

void NotesPanel::goToOtherRun() {
    m_losses->goToOtherRun();
}

void NotesPanel::recordRadio() {
    m_comments->recordRadio();
}

void NotesPanel::playClips() {
    m_marks->playClips();
}

const std::optional<LaneMark>& NotesPanel::selected() const {
    return m_marks->selected();
}

void NotesPanel::clearSelection() {
    m_marks->clearSelection();
}

void NotesPanel::showFixedFilm(const QString& name) {
    m_cameras->showFilm(name);
}

void NotesPanel::bringIntoStep() {
    m_cameras->bringIntoStep();
}

/// Whoever looks at the film hears and sees that a key did nothing.
void NotesPanel::refuse(const QString& why) {
    tell(why);
    emit refused(why);
}

void NotesPanel::hear(const QString& told) {
    if (m_marks->isPressed() && !told.isEmpty())
        refuse(told);
    else
        tell(told);
}

void NotesPanel::tell(const QString& text) {
    m_told->setText(text);
    m_told->setVisible(!text.isEmpty());
}

} // namespace kavela::desktop
