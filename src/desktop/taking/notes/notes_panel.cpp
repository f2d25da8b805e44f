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

std::optional<NoteMode> modeOf(MarkKind kind) {
    switch (kind) {
    case MarkKind::MicroSplit:
        return NoteMode::MicroSplits;
    case MarkKind::Upstream:
        return NoteMode::Upstreams;
    case MarkKind::Stroke:
        return NoteMode::Strokes;
    case MarkKind::TimeLoss:
        return NoteMode::TimeLosses;
    case MarkKind::Tag:
        return NoteMode::Tags;
    case MarkKind::Start:
    case MarkKind::Split:
        break;
    }
    return std::nullopt;
}

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
      m_lanes(new LaneStrip(line)) {
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
    connect(m_list, &MarkList::chosen, this, &NotesPanel::goTo);
    connect(m_list, &MarkList::filterChanged, this, &NotesPanel::showList);
    connect(m_list, &MarkList::clipsWanted, this, &NotesPanel::playClips);
    connect(m_list, &MarkList::clipSecondsChanged, this, [this](int seconds) {
        m_desk.workspace.remember(ClipKey, {QString::number(seconds)});
    });
    connect(m_lanes, &LaneStrip::chosen, this, &NotesPanel::goTo);
    connect(m_lanes, &LaneStrip::dragged, this,
            [this](double seconds) { m_desk.deck.seek(seconds); });
    connect(m_lanes, &LaneStrip::dropped, this, &NotesPanel::dropMark);
    connect(&m_desk.clips, &ClipPlayer::began, this, [this](std::size_t clip, std::size_t clips) {
        if (clips > 1)
            emit flashed(tr("Clip %1 of %2").arg(clip + 1).arg(clips));
    });
    if (const int seconds = m_desk.workspace.remembered(ClipKey).value(0).toInt(); seconds > 0)
        m_list->setClipSeconds(seconds);
    connect(&m_desk.document, &TakingDocument::changed, this, &NotesPanel::refresh);
    connect(&m_desk.deck, &FilmDeck::frameShown, this, &NotesPanel::showFrame);
    connect(&m_desk.deck, &FilmDeck::indexChanged, this, &NotesPanel::showList);
    connect(&m_desk.gates, &GateStrip::currentChanged, this, [this] {
        if (page())
            page()->refresh();
    });
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
    connect(page, &NotePage::marked, this, &NotesPanel::selectAt);
    connect(page, &NotePage::picked, this, &NotesPanel::goTo);
    connect(page, &NotePage::rowChosen, this, [this] {
        clearSelection(); // the row is what the keys mean now
        emit noteSelected();
    });
    connect(page, &NotePage::flashed, this, &NotesPanel::flashed);
    connect(page, &NotePage::told, this, &NotesPanel::hear);
    connect(page, &NotePage::pressed, this, &NotesPanel::press);
    connect(page, &NotePage::markWanted, this, &NotesPanel::mark);
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
            m_stack->setCurrentIndex(static_cast<int>(mode));
            tell({});
            if (m_selected && modeOf(m_selected->kind) != mode)
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

bool NotesPanel::takesMarks() const {
    return m_mode != NoteMode::Splits && m_mode != NoteMode::Comments;
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
    const athletedata031* const run = m_desk.record();
    m_marks = run ? annotationLanes(*run, m_desk.document.info()) : AnnotationLanes();
    keepSelection();
    if (page())
        page()->refresh();
    if (page() != m_cameras)
        m_cameras->refresh(); // what is shown beside the film, whatever the mode
    showList();
}

/// The selected mark may stand elsewhere in the record after an edit, or be gone.
void NotesPanel::keepSelection() {
    if (!m_selected)
        return;
    const auto isSame = [&](const LaneMark& mark) {
        return mark.handle == m_selected->handle && mark.time == m_selected->time;
    };
    const auto isMoved = [&](const LaneMark& mark) {
        return mark.kind == m_selected->kind && mark.film == m_selected->film &&
               mark.time == m_selected->time;
    };
    if (std::ranges::any_of(m_marks.marks, isSame))
        return;
    const auto found = std::ranges::find_if(m_marks.marks, isMoved);
    if (found == m_marks.marks.end())
        clearSelection();
    else
        select(*found);
}

void NotesPanel::showList() {
    const FilmDeck& deck = m_desk.deck;
    const bool hasFilm = deck.index(0) != nullptr; // which may come before or after its first frame
    const auto own = [this](std::int64_t camera, double seconds) {
        return m_cameras->ownSeconds(camera, seconds);
    };
    m_list->setMarks(m_desk.record() ? marksList(*m_desk.record(), m_marks.marks, own)
                                     : std::vector<ListedMark>(),
                     hasFilm ? MarkList::Film{deck.start(), deck.end()} : MarkList::Film{});
    m_lanes->setLanes(m_marks, m_list->filter());
    showSelection();
}

void NotesPanel::showFrame() {
    if (page())
        page()->showFrame();
}

void NotesPanel::showSelection() {
    const auto handle = m_selected ? std::optional(m_selected->handle) : std::nullopt;
    m_list->setSelected(handle);
    m_lanes->setSelected(handle);
}

void NotesPanel::clearSelection() {
    m_selected.reset();
    for (NotePage* const each : m_pages)
        if (each)
            each->unchoose();
    showSelection();
}

void NotesPanel::select(const LaneMark& mark) {
    m_selected = mark;
    emit noteSelected();
    if (page() && page()->kind() == mark.kind)
        page()->choose(mark);
    showSelection();
}

void NotesPanel::selectAt(MarkKind kind, const CMTime& moment) {
    const LaneMark* found = nullptr;
    for (const LaneMark& mark : m_marks.marks)
        if (mark.kind == kind && mark.time == moment && mark.film.kind == FilmKind::Own &&
            mark.film.number == 0)
            found = &mark;
    if (found)
        select(LaneMark(*found));
}

/// A mark of another mode brings its mode with it, where that can be entered.
void NotesPanel::goTo(const MarkHandle& handle) {
    const auto found = std::ranges::find(m_marks.marks, handle, &LaneMark::handle);
    if (found == m_marks.marks.end())
        return;
    const LaneMark mark = *found;
    const auto mode = modeOf(mark.kind);
    if (!mode) {
        emit splitChosen(mark.kind == MarkKind::Start ? 0 : mark.handle.record + 1);
        return;
    }
    const NotePage* const its = m_pages[static_cast<std::size_t>(*mode)];
    if (!its->refusal())
        setMode(*mode);
    tell({});
    select(mark);
    seek(mark);
}

void NotesPanel::seek(const LaneMark& mark) {
    switch (mark.film.kind) {
    case FilmKind::Fixed:
        if (const auto own = m_cameras->ownSeconds(mark.film.number, mark.seconds))
            m_desk.deck.seek(*own);
        else
            tell(tr("This mark lies on the film of a fixed camera that is not in step."));
        return;
    case FilmKind::Versus:
        if (!m_losses->goToOtherRun()) {
            tell(tr("The other run of this time loss is not in this file."));
            return;
        }
        break;
    case FilmKind::Own:
        if (mark.film.number > 0) {
            m_desk.deck.seek(mark.seconds);
            return;
        }
        break;
    }
    m_desk.deck.seek(mark.time);
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
    if (m_isPressed && !told.isEmpty())
        refuse(told);
    else
        tell(told);
}

void NotesPanel::tell(const QString& text) {
    m_told->setText(text);
    m_told->setVisible(!text.isEmpty());
}

} // namespace kavela::desktop
