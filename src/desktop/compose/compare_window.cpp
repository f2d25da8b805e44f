#include "desktop/compose/compare_window.h"

#include "common/error.h"
#include "compose/composition.h"
#include "compose/split_moments.h"
#include "desktop/compose/compare_actions.h"
#include "desktop/compose/compare_films_panel.h"
#include "desktop/compose/compare_form.h"
#include "desktop/compose/compare_player.h"
#include "desktop/compose/compare_sound.h"
#include "desktop/compose/compare_view.h"
#include "desktop/compose/jobs_window.h"
#include "desktop/compose/range_line.h"
#include "desktop/compose/render_queue.h"
#include "desktop/compose/requested_job.h"
#include "desktop/compose/split_choice.h"
#include "desktop/film/film_memory.h"
#include "desktop/shell/scroll_page.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QStandardPaths>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr int SoonMilliseconds = 60;

} // namespace

CompareWindow::CompareWindow(Workspace& workspace, Autosave autosave)
    : CompareWindow(workspace, std::make_unique<CompareDocument>(workspace, std::move(autosave))) {}

CompareWindow::CompareWindow(Workspace& workspace, std::unique_ptr<CompareDocument> document)
    : ToolWindow(workspace, document.get(), {"compare", tr("Compare films"), "json"}),
      m_document(std::move(document)),
      m_player(new ComparePlayer(FilmMemory::of(workspace), this)) {
    new CompareSound(*m_player, m_player);
    m_soon.setSingleShot(true);
    m_soon.setInterval(SoonMilliseconds);
    makeParts();
    connectParts();
    connectPlayer();
    makeCompareMenus(*this);
    showRenders();
}

CompareWindow::~CompareWindow() {
    hide(); // an open cell would else hand its text to what is gone already
    RenderQueue::of(workspace()).disconnect(this);
    m_player->disconnect(this);
    m_document->undoStack().disconnect(this);
    m_document->disconnect(this);
}

void CompareWindow::makeParts() {
    const auto editor = [this](const QString& what,
                               const std::function<void(composejob002&)>& change) {
        edit(what, change);
    };
    m_films = new CompareFilmsPanel(editor);
    m_form = new CompareForm(editor);
    auto* const whole = new QSplitter;
    whole->setContentsMargins(theme::Spacing, theme::Spacing, theme::Spacing, theme::Spacing);
    whole->addWidget(m_films);
    whole->addWidget(makeStage());
    whole->addWidget(new ScrollPage(m_form));
    whole->setStretchFactor(1, 1);
    whole->setChildrenCollapsible(false);
    shareSizes(*whole, {370, 620, 270});
    rememberSizes(*whole, workspace(), "compareParts");
    setCentralWidget(whole);
}

QWidget* CompareWindow::makeStage() {
    auto* const stage = new QWidget;
    m_view = new CompareView;
    m_line = new RangeLine;
    m_time = new QLabel;
    m_told = new QLabel;
    m_told->setWordWrap(true);
    m_told->setTextFormat(Qt::PlainText);
    m_play = new QToolButton;
    m_play->setFocusPolicy(Qt::TabFocus);
    m_renders = new QToolButton;
    m_renders->setObjectName("renders");
    m_compose = new QPushButton(tr("Compose the &film…"));
    m_compose->setObjectName("compose");
    auto* const bar = new QHBoxLayout;
    bar->addWidget(m_play);
    bar->addWidget(m_time);
    bar->addStretch();
    bar->addWidget(m_renders);
    bar->addWidget(m_compose);
    auto* const column = new QVBoxLayout(stage);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_view, 1);
    column->addWidget(m_line);
    column->addLayout(bar);
    column->addWidget(m_told);
    return stage;
}

void CompareWindow::connectParts() {
    connect(m_document.get(), &CompareDocument::changed, this, &CompareWindow::showDocument);
    connect(m_films, &CompareFilmsPanel::splitFilesWanted, this, &CompareWindow::chooseSplitFiles);
    connect(m_films, &CompareFilmsPanel::filmsWanted, this, &CompareWindow::chooseFilms);
    connect(m_films, &CompareFilmsPanel::refused, this, &CompareWindow::tell);
    connect(m_compose, &QPushButton::clicked, this, &CompareWindow::askAndCompose);
    connect(m_renders, &QToolButton::clicked, this, &CompareWindow::showJobs);
    connect(m_play, &QToolButton::clicked, this, &CompareWindow::togglePlaying);
    connect(m_view, &CompareView::resized, &m_soon, qOverload<>(&QTimer::start));
    connect(m_view, &CompareView::clicked, this, &CompareWindow::takePoint);
    connect(&m_soon, &QTimer::timeout, this, &CompareWindow::showPreview);
    RenderQueue& queue = RenderQueue::of(workspace());
    connect(&queue, &RenderQueue::changed, this, &CompareWindow::showRenders);
    connect(&queue, &RenderQueue::ended, this, [this, &queue](std::uint64_t id) {
        const RenderJob* const job = queue.find(id);
        if (!job || std::ranges::count(m_jobs, id) == 0)
            return;
        if (job->state == RenderJob::State::Failed)
            tell(tr("The film could not be composed: %1").arg(job->told));
        else if (job->state == RenderJob::State::Done)
            tell(tr("%1 is there. %2").arg(QDir::toNativeSeparators(job->target), job->told));
    });
}

void CompareWindow::connectPlayer() {
    connect(m_player, &ComparePlayer::preparedChanged, this, &CompareWindow::showPrepared);
    connect(m_player, &ComparePlayer::failed, this, &CompareWindow::showFault);
    connect(m_player, &ComparePlayer::pictureShown, this, [this] {
        m_view->setImage(m_player->image());
        showPosition();
    });
    connect(m_player, &ComparePlayer::playingChanged, this, &CompareWindow::showPosition);
    connect(m_line, &RangeLine::seekRequested, this, [this](double common) {
        if (const auto& prepared = m_player->prepared())
            m_player->seek((common - prepared->shown.from) / prepared->speed);
    });
    connect(m_line, &RangeLine::rangeDragged, this, &CompareWindow::setRange);
}

void CompareWindow::edit(const QString& what, const std::function<void(composejob002&)>& change) {
    m_isCutToFour = false; // it was read, and the choice goes on from there
    m_document->edit(what, change);
}

FileReading CompareWindow::readingOf(const QString& path) {
    return followedBy(m_document->reading(path, this), [this] {
        addFilesOfFilms();
        m_view->setFocus();
    });
}

void CompareWindow::addFilesOfFilms() {
    QStringList files;
    for (const composefilm002& film : m_document->value().films)
        files.append(QString::fromStdString(film.splitFile.empty() ? film.film : film.splitFile));
    files.removeDuplicates();
    addFiles(files);
}

void CompareWindow::startNew(const QString& path) {
    if (QFileInfo(path).isDir())
        m_document->createNew(path, {}, this);
    else
        m_document->startNew(path, {}, this);
}

/// The runs are known once their files are read; until then they are taken to be marked.
void CompareWindow::startWith(const CompareRequest& request) {
    RequestedJob wanted = jobOfRequest(request);
    m_films->addCandidates(wanted.films);
    m_document->createNew(wanted.folder, std::move(wanted.job), this);
    addFiles(wanted.files);
    m_isCutToFour = wanted.isCutToFour;
    m_view->setFocus();
}

QString CompareWindow::told() const {
    return m_told->text();
}

void CompareWindow::addFiles(const QStringList& paths) {
    if (paths.isEmpty())
        return;
    m_work.run([paths](const WorkSteps& steps) { return readCandidates(paths, steps.stopToken()); },
               [this](FoundCandidates found) {
                   placeCandidates(workspace(), found.candidates);
                   m_films->addCandidates(found.candidates);
                   if (!found.faults.empty())
                       tell(QStringList(found.faults.begin(), found.faults.end())
                                .join(QStringLiteral(". ")));
                   m_soon.start();
               },
               {.failed = [this](const std::exception_ptr& fault) {
                   tell(QString::fromStdString(messageOf(fault)));
               }});
}

void CompareWindow::takeFiles(const QStringList& paths) {
    if (paths.size() == 1 && paths.constFirst().endsWith(".json", Qt::CaseInsensitive))
        emit openRequested(paths);
    else
        addFiles(paths);
}

void CompareWindow::chooseSplitFiles() {
    addFiles(QFileDialog::getOpenFileNames(this, tr("Add the runs of split files"), ownFolder(),
                                           tr("Split files (*.kvx);;All files (*)")));
}

void CompareWindow::chooseFilms() {
    addFiles(QFileDialog::getOpenFileNames(
        this, tr("Add films"), ownFolder(),
        tr("Films (*.mp4 *.mov *.m4v *.avi *.mkv *.mts *.m2ts);;All files (*)")));
}

void CompareWindow::showDocument() {
    const composejob002& job = m_document->value();
    m_films->showJob(job);
    m_form->showComparison(job);
    m_compose->setEnabled(job.films.size() > 1);
    m_soon.start();
}

/// Points are clicked in both films side by side, whatever the layout.
void CompareWindow::showPreview() {
    composejob002 job = m_document->value();
    if (job.films.size() < 2) {
        m_player->clear();
        m_view->setMessage(job.films.empty() ? tr("Tick two to four films to compare them.")
                                             : tr("Tick one more film to compare it with."));
        return;
    }
    if (m_aligning.isOn()) {
        job.layout = wordOf(LayoutKind::SideBySide);
        job.captions = {false, false, false, false, false, false};
    }
    m_player->show(job, m_view->size() * m_view->devicePixelRatioF());
}

QStringList CompareWindow::splitTitles() const {
    QStringList titles{tr("Start")};
    for (std::size_t split = 1; split <= m_player->prepared()->lastSplit(); ++split)
        titles.append(numberedSplit(split, m_player->prepared()->titles));
    return titles;
}

void CompareWindow::showPrepared() {
    const auto& prepared = m_player->prepared();
    if (!prepared) {
        m_line->clear();
        showPosition();
        return;
    }
    m_form->showSplits(m_player->prepared()->lastSplit(), prepared->titles);
    m_line->setTimes(prepared->choice, chosenPart(), prepared->splits, splitTitles());
    QStringList faults = prepared->faults;
    if (m_isCutToFour)
        faults.prepend(tr("Four films are the most: these are the first four"));
    if (!m_aligning.isOn())
        tell(faults.join(QStringLiteral(". ")));
    showPosition();
}

/// Without the moments behind the last split, so that the end stands where the split is. Films
/// without marks end where the longest does.
CommonRange CompareWindow::chosenPart() const {
    CommonRange part = m_player->prepared()->shown;
    const bool isMarked = m_player->prepared()->splits.size() > 1;
    if (isMarked && m_document->value().range.kind != wordOf(RangeKind::Free))
        part.to -= TailSeconds;
    return part;
}

void CompareWindow::showPosition() {
    m_play->setText(m_player->isPlaying() ? tr("Pause") : tr("Play"));
    const auto& prepared = m_player->prepared();
    m_play->setEnabled(prepared.has_value());
    if (!prepared) {
        m_time->clear();
        return;
    }
    m_line->setPosition(prepared->shown.from + m_player->position() * prepared->speed);
    m_time->setText(
        tr("%1 of %2 s")
            .arg(shownHundredths(m_player->position()), shownHundredths(prepared->length)));
}

void CompareWindow::showFault(const QString& where, const QString& what) {
    const QString place = placeInJob(where);
    m_view->setImage({});
    m_view->setMessage(place.isEmpty() ? what : place + QStringLiteral(": ") + what);
}

void CompareWindow::tell(const QString& text) {
    m_told->setText(text);
    m_told->setVisible(!text.isEmpty());
}

void CompareWindow::togglePlaying() {
    if (m_player->isPlaying())
        m_player->pause();
    else
        m_player->play();
}

void CompareWindow::setRange(double from, double to) {
    if (!m_player->prepared())
        return;
    const RangeChoice choice = rangeBetween(from, to, m_player->prepared()->splits);
    edit(tr("part that is shown"), [&](composejob002& job) {
        job.range.kind = wordOf(choice.kind);
        if (choice.kind == RangeKind::Splits) {
            job.range.fromSplit = static_cast<std::int64_t>(choice.fromSplit);
            job.range.toSplit = static_cast<std::int64_t>(choice.toSplit);
        } else {
            job.range.from = choice.from;
            job.range.to = choice.to;
        }
    });
}

void CompareWindow::showWholeRun() {
    edit(tr("part that is shown"),
         [](composejob002& job) { job.range.kind = wordOf(RangeKind::Run); });
}

void CompareWindow::beginHere() {
    if (const auto& prepared = m_player->prepared();
        prepared && m_player->position() < prepared->length)
        setRange(prepared->shown.from + m_player->position() * prepared->speed, chosenPart().to);
}

void CompareWindow::endHere() {
    if (const auto& prepared = m_player->prepared(); prepared && m_player->position() > 0)
        setRange(prepared->shown.from,
                 prepared->shown.from + m_player->position() * prepared->speed);
}

void CompareWindow::alignByPoints() {
    if (!m_aligning.isOn() && m_document->value().films.size() != 2) {
        tell(tr("Two films are aligned: choose two."));
        return;
    }
    m_aligning.toggle();
    m_view->setCrosses({});
    m_player->pause();
    tell(m_aligning.isOn()
             ? tr("Click the same two things in both films, such as the poles of a gate. "
                  "Escape gives it up.")
             : QString());
    showPreview();
}

void CompareWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape || !m_aligning.isOn())
        return ToolWindow::keyPressEvent(event);
    alignByPoints();
}

void CompareWindow::forgetPoints() {
    edit(tr("points that were forgotten"), [](composejob002& job) {
        for (composefilm002& film : job.films)
            film.points.clear();
    });
}

void CompareWindow::takePoint(const QPointF& point) {
    const auto& prepared = m_player->prepared();
    if (!prepared || !m_aligning.take(point, *prepared))
        return;
    m_view->setCrosses(m_aligning.crosses());
    if (!m_aligning.isWhole())
        return;
    const PointAligning::Points points = m_aligning.points();
    alignByPoints(); // it is done
    edit(tr("alignment by two points"),
         [&](composejob002& job) { PointAligning::align(job, points); });
}

QString CompareWindow::ownFolder() const {
    const QString path = m_document->path();
    return path.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::MoviesLocation)
                          : QFileInfo(path).absolutePath();
}

QString CompareWindow::proposedTarget() const {
    return QString::fromStdString(
        outputOf(m_document->value(), m_document->path().toStdString()).string());
}

void CompareWindow::askAndCompose() {
    if (!commit())
        return;
    if (m_document->value().films.size() < 2)
        return tell(tr("Two runs or films make a comparison: drop them here, or add them with "
                       "Ctrl+Shift+O and Ctrl+I."));
    QFileDialog dialog(this, tr("Compose the film"), ownFolder(), tr("Films (*.mp4)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("mp4");
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // a taken name becomes "NAME 2"
    dialog.selectFile(proposedTarget());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return;
    const QString target = dialog.selectedFiles().constFirst();
    if (target != proposedTarget())
        edit(tr("file of the film"),
             [&](composejob002& job) { job.output.file = target.toStdString(); });
    composeTo(target);
}

std::uint64_t CompareWindow::composeTo(const QString& target) {
    const std::uint64_t id = RenderQueue::of(workspace()).add(m_document->value(), target);
    m_jobs.push_back(id);
    showRenders();
    return id;
}

void CompareWindow::showJobs() {
    JobsWindow::showOf(workspace());
}

void CompareWindow::showRenders() {
    const RenderQueue& queue = RenderQueue::of(workspace());
    const int open = queue.openJobs();
    m_renders->setVisible(open > 0);
    for (const RenderJob& job : queue.jobs())
        if (job.state == RenderJob::State::Running)
            m_renders->setText(
                open > 1 ? tr("Composing: %1, %2 more").arg(renderStateText(job)).arg(open - 1)
                         : tr("Composing: %1").arg(renderStateText(job)));
}

void CompareWindow::closeEvent(QCloseEvent* event) {
    if (!isClosing() && !mayLeaveRenders(workspace(), m_jobs, this)) {
        event->ignore();
        emit stayed();
        return;
    }
    ToolWindow::closeEvent(event);
}

} // namespace kavela::desktop
