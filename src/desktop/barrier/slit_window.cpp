#include "desktop/barrier/slit_window.h"

#include "captions/slit_sheet.h"
#include "common/error.h"
#include "desktop/barrier/line_overlay.h"
#include "desktop/barrier/slit_actions.h"
#include "desktop/barrier/slit_view.h"
#include "desktop/film/film_deck.h"
#include "desktop/film/film_memory.h"
#include "desktop/film/film_view.h"
#include "desktop/shell/fault_label.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/taking_files.h"
#include "splittaking/film_crossings.h"
#include "splittaking/video_names.h"
#include "vision/barrier_figures.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <utility>

namespace kavela::desktop {

namespace {

/// A proposal is the one at the hair line within this, in seconds.
constexpr double ProposalReach = 0.5;
constexpr double SureProposal = 0.5; ///< confidence

QString slitFilmFilter() {
    return SlitWindow::tr("Films (*.mp4 *.mov *.m4v *.avi *.mkv *.mts *.m2ts);;All files (*)");
}

} // namespace

SlitWindow::SlitWindow(Workspace& workspace)
    : ToolWindow(workspace, nullptr, {"slit", tr("Slit picture"), "mp4"}),
      m_runs(slitRunColumns(), RowsKnownBy::Number),
      m_proposals(proposalColumns(), RowsKnownBy::Number),
      m_deck(new FilmDeck(FilmMemory::of(workspace), this)) {
    makeParts();
    connectParts();
    connectLines();
    m_actions = new SlitActions(*this);
    setWindowTitle(tr("Slit picture") + QStringLiteral(" – Kavela"));
    showLines();
}

/// The deck is the first of the children to go, and says nothing while the others do.
SlitWindow::~SlitWindow() {
    m_deck->blockSignals(true);
    m_deck->disconnect();
    m_race.disconnect(this);
    m_loader.disconnect(this);
    m_search.disconnect(this);
    m_keeping.disconnect(this);
    m_runTable->disconnect(this);
    m_proposalTable->disconnect(this);
}

void SlitWindow::makeParts() {
    m_filmView = new FilmView(*m_deck, 0);
    m_overlay = new LineOverlay(*m_filmView);
    m_view = new SlitView;
    auto* const pictures = new QSplitter(Qt::Vertical);
    pictures->setChildrenCollapsible(false);
    pictures->addWidget(m_filmView);
    pictures->addWidget(m_view);
    pictures->setStretchFactor(0, 1);
    pictures->setStretchFactor(1, 1);
    shareSizes(*pictures, {340, 340});
    rememberSizes(*pictures, workspace(), "slitPictures");
    auto* const whole = new QSplitter;
    whole->setChildrenCollapsible(false);
    whole->setContentsMargins(theme::Spacing, theme::Spacing, theme::Spacing, theme::Spacing);
    whole->addWidget(pictures);
    whole->addWidget(makePanel());
    whole->setStretchFactor(0, 1);
    shareSizes(*whole, {900, 360});
    rememberSizes(*whole, workspace(), "slitParts");
    setCentralWidget(whole);
}

QWidget* SlitWindow::makePanel() {
    m_lineBox = new QComboBox;
    m_lineBox->setObjectName("slitLine");
    m_splitBox = new QComboBox;
    m_splitBox->setObjectName("slitSplit");
    m_raceName = new QLabel;
    m_raceName->setTextFormat(Qt::PlainText);
    m_raceName->setWordWrap(true);
    m_openRace = new QPushButton(tr("Open the &race…"));
    m_openRace->setObjectName("openRace");
    m_runTable = new ColumnTable(m_runs, "slitRuns");
    m_runTable->keepOrder();
    m_runTable->stretch({0});
    m_proposalTable = new ColumnTable(m_proposals, "slitProposals");
    m_proposalTable->setEmptyText(
        tr("Draw a box round one boat (B), then look for boats (Ctrl+B): where they may have "
           "crossed is listed here."));
    m_proposalTable->stretch({2});
    m_finer = new QCheckBox(tr("Times &finer than the frame"));
    m_finer->setToolTip(tr("The time of the split follows the hair line between two frames; the "
                           "mark itself stays on the frame."));
    m_progress = new QProgressBar;
    m_progress->setMaximumHeight(18);
    m_note = new FaultLabel;
    auto* const panel = new QWidget;
    panel->setMinimumWidth(300);
    auto* const lines = new QHBoxLayout;
    lines->addWidget(m_lineBox, 1);
    lines->addWidget(new QLabel(tr("marks")));
    lines->addWidget(m_splitBox, 1);
    auto* const column = new QVBoxLayout(panel);
    column->setContentsMargins(theme::Spacing, 0, 0, 0);
    column->addLayout(lines);
    column->addWidget(m_raceName);
    column->addWidget(m_openRace);
    column->addWidget(m_runTable, 3);
    column->addWidget(m_finer);
    column->addWidget(m_proposalTable, 2);
    column->addWidget(m_progress);
    column->addWidget(m_note);
    return panel;
}

void SlitWindow::connectParts() {
    connect(m_deck, &FilmDeck::indexChanged, this, &SlitWindow::followFilm);
    connect(m_deck, &FilmDeck::frameShown, this, [this] {
        const FilmPicture* const picture = m_deck->shown(0);
        if (m_deck->isPlaying() && picture && !picture->isPreview) // who looks at it goes with it
            m_view->setHair(static_cast<double>(picture->frame.number) + 0.5);
    });
    connect(m_deck, &FilmDeck::failed, this,
            [this](std::size_t, const QString& why) { tell(why); });
    connect(m_view, &SlitView::hairMoved, this, &SlitWindow::setHair);
    connect(m_view, &SlitView::markDropped, this, &SlitWindow::moveMark);
    connect(&m_loader, &SlitLoader::grown, this, &SlitWindow::showPicture);
    connect(&m_loader, &SlitLoader::ended, this, &SlitWindow::showPicture);
    connect(&m_race, &SlitRace::changed, this, &SlitWindow::showLines);
    connect(&m_search, &CrossingSearch::changed, this, &SlitWindow::showRuns);
    connect(&m_search, &CrossingSearch::failed, this, &SlitWindow::tell);
    connect(m_runTable, &ColumnTable::chosen, this, &SlitWindow::followRun);
    connect(m_runTable, &ColumnTable::clicked, this, &SlitWindow::goToRun);
    connect(m_proposalTable, &ColumnTable::chosen, this, [this] {
        if (const int place = m_proposalTable->currentPlace();
            place >= 0 && m_proposalTable->hasFocus() && m_loader.index())
            setHair(slitColumnAt(*m_loader.index(), 0, m_proposals.row(place).proposal.seconds));
    });
    connect(m_openRace, &QPushButton::clicked, this, [this] { emit raceRequested(raceOfFilm()); });
    connect(m_finer, &QCheckBox::toggled, this, &SlitWindow::setFiner);
}

void SlitWindow::connectLines() {
    connect(&m_keeping, &SlitKeeping::changed, this, &SlitWindow::showLines);
    connect(&m_keeping, &SlitKeeping::failed, this, &SlitWindow::tell);
    connect(m_overlay, &LineOverlay::lineChosen, this, &SlitWindow::chooseLine);
    connect(m_overlay, &LineOverlay::lineDrawn, this, &SlitWindow::drawn);
    connect(m_overlay, &LineOverlay::boatDrawn, this, [this](const QRectF& box) {
        m_overlay->setTool(LineOverlay::Tool::None);
        editLine([&](slitline001& line) {
            line.boatX = box.x();
            line.boatY = box.y();
            line.boatWidth = box.width();
            line.boatHeight = box.height();
        });
    });
    connect(m_overlay, &LineOverlay::left, this, [this] { m_view->setFocus(); });
    connect(m_lineBox, &QComboBox::activated, this, [this](int line) {
        chooseLine(static_cast<std::size_t>(line));
        m_view->setFocus();
    });
    connect(m_splitBox, &QComboBox::activated, this, [this](int split) {
        setSplit(static_cast<std::size_t>(split));
        m_view->setFocus();
    });
}

QStringList SlitWindow::paths() const {
    return m_film.isEmpty() ? QStringList() : QStringList(m_film);
}

bool SlitWindow::open(const QString& path) {
    const QFileInfo info(path);
    if (!info.isFile()) {
        workspace().showAlert(
            {"", tr("“%1” is not there.").arg(QDir::toNativeSeparators(path)).toStdString()}, this);
        return false;
    }
    m_film = info.absoluteFilePath();
    m_line = 0;
    m_run = -1;
    m_told.clear();
    m_loader.setFilm(nullptr);
    m_search.setFilm(nullptr);
    m_view->setPicture(nullptr, nullptr);
    m_overlay->setFilmSize({});
    m_filmView->setMessage({});
    setWindowTitle(info.fileName() + QStringLiteral(" – ") + tr("Slit picture") +
                   QStringLiteral(" – Kavela"));
    setWindowFilePath(m_film);
    m_race.setFilm(m_film);
    m_keeping.open(m_film);
    m_deck->open({m_film});
    m_view->setFocus();
    emit pathsChanged();
    return true;
}

void SlitWindow::chooseFilm() {
    const QString film = QFileDialog::getOpenFileName(this, tr("Open the film of a fixed camera"),
                                                      QFileInfo(m_film).path(), slitFilmFilter());
    if (!film.isEmpty())
        (void)open(film);
}

void SlitWindow::takeFiles(const QStringList& paths) {
    const QFileInfo first(paths.value(0));
    if (isVideoFile(first.fileName().toStdString()))
        (void)open(first.filePath());
    else if (first.suffix() == QLatin1String("kvx"))
        emit raceRequested(first.absoluteFilePath());
    else
        emit openRequested(paths);
}

void SlitWindow::setRace(TakingDocument& document, ToolWindow& owner) {
    m_run = -1;
    m_race.setDocument(document, owner);
    m_told.clear();
    showState();
}

QString SlitWindow::raceOfFilm() const {
    if (m_film.isEmpty())
        return {};
    const QString folder = QFileInfo(m_film).absolutePath();
    const QString file = splitFileIn(folder);
    return file.isEmpty() ? folder : QDir(folder).absoluteFilePath(file);
}

/// The lines can be drawn as soon as the film is seen; it is read when all of it is known.
void SlitWindow::followFilm() {
    const auto index = m_deck->index(0);
    if (!index)
        return;
    const VideoSize size = index->facts().shownSize;
    m_overlay->setFilmSize({size.width, size.height});
    if (!index->isComplete())
        return;
    m_loader.setFilm(index);
    m_search.setFilm(index);
    showPicture();
    showRuns();
}

const slitline001* SlitWindow::line() const {
    const auto& lines = m_keeping.file().lines;
    return m_line < lines.size() ? &lines[m_line] : nullptr;
}

void SlitWindow::showLines() {
    const auto& lines = m_keeping.file().lines;
    if (m_line >= lines.size())
        m_line = 0;
    std::vector<SlitLine> drawn;
    for (const slitline001& each : lines)
        drawn.push_back(lineOf(each));
    const QSignalBlocker quiet(m_lineBox);
    const QSignalBlocker still(m_splitBox);
    m_lineBox->clear();
    for (std::size_t number = 0; number < lines.size(); ++number)
        m_lineBox->addItem(tr("Line %1").arg(number + 1));
    m_lineBox->setCurrentIndex(lines.empty() ? -1 : static_cast<int>(m_line));
    m_lineBox->setEnabled(!lines.empty());
    m_splitBox->clear();
    const std::size_t split =
        line() ? static_cast<std::size_t>(std::max<std::int64_t>(line()->split, 0)) : 0;
    for (std::size_t each = 0; each <= std::max(m_race.splits(), split); ++each)
        m_splitBox->addItem(m_race.titleOf(each));
    m_splitBox->setCurrentIndex(line() ? static_cast<int>(split) : -1);
    m_splitBox->setEnabled(line() != nullptr);
    m_overlay->setLines(lines, m_line);
    m_loader.setLines(drawn);
    showPicture();
    showRuns();
}

void SlitWindow::showPicture() {
    if (!line())
        m_view->setMessage(m_film.isEmpty()
                               ? tr("Open the film of a camera on a tripod (Ctrl+O).")
                               : tr("Press N and draw a line across the water in the film above: "
                                    "what stands on it is shown here over time."));
    else
        m_view->setMessage(m_loader.told().isEmpty() ? tr("Reading the film…") : m_loader.told());
    m_view->setPicture(line() ? &m_loader.picture(m_line) : nullptr, m_loader.index());
    showState();
}

std::vector<Proposal> SlitWindow::proposals() const {
    return line() ? m_search.proposals(*line()) : std::vector<Proposal>();
}

/// Runs, marks and proposals belong together: each proposal falls to a run.
void SlitWindow::showRuns() {
    const std::size_t split =
        line() ? static_cast<std::size_t>(std::max<std::int64_t>(line()->split, 0)) : 0;
    const std::vector<SlitRun> runs = line() ? m_race.runs(split) : std::vector<SlitRun>();
    const std::vector<Proposal> found = proposals();
    std::vector<double> crossings;
    for (const Proposal& proposal : found)
        crossings.push_back(proposal.seconds);
    std::vector<std::optional<double>> marked;
    std::vector<SlitRunRow> rows;
    for (const SlitRun& run : runs) {
        marked.push_back(run.seconds);
        rows.push_back({run, std::nullopt, line() && m_search.isSearched(*line())});
    }
    const auto owners = runsOfCrossings(crossings, marked);
    std::vector<ProposalRow> proposed;
    std::vector<SlitGuess> guesses;
    for (std::size_t i = 0; i < found.size(); ++i) {
        const auto owner = owners[i];
        proposed.push_back(
            {found[i], owner ? runs[*owner].crew : QString(), owner && marked[*owner].has_value()});
        guesses.push_back({found[i].seconds, found[i].confidence});
        if (owner && !rows[*owner].proposal)
            rows[*owner].proposal = found[i];
    }
    m_runs.show(std::move(rows));
    m_proposals.show(std::move(proposed));
    m_view->setGuesses(std::move(guesses));
    if (m_run < 0 && !runs.empty()) {
        m_runTable->choose(0);
        m_run = runs.front().run; // also where it was chosen already
    }
    showMarks();
    showState();
}

void SlitWindow::showState() {
    m_openRace->setVisible(!m_race.isThere() && !m_film.isEmpty());
    const bool hasRuns = !m_runs.rows().empty();
    m_raceName->setText(m_race.isThere() ? tr("Marks go into %1").arg(m_race.name())
                                         : tr("Marks need the race of this film in split taking."));
    m_runTable->setEmptyText(
        m_race.isThere() && line() && !hasRuns
            ? tr("No run of %1 has the film %2. Add it there as a film of the runs or as a fixed "
                 "camera.")
                  .arg(m_race.name(), QFileInfo(m_film).fileName())
            : tr("The runs that are seen on this film are listed here."));
    const bool isBusy = m_loader.isReading() || m_search.isSearching();
    m_progress->setVisible(isBusy);
    m_progress->setFormat(m_loader.isReading() ? tr("Reading the film: %p %")
                                               : tr("Looking for boats: %p %"));
    m_progress->setValue(
        static_cast<int>(100 * (m_loader.isReading() ? m_loader.share() : m_search.share())));
    m_note->tell(told());
    if (m_actions)
        m_actions->refresh();
}

QString SlitWindow::told() const {
    QStringList notes;
    if (!m_told.isEmpty())
        notes.append(m_told);
    if (line() && !m_loader.picture(m_line).tiles.empty() && !m_loader.told().isEmpty())
        notes.append(m_loader.told());
    if (line())
        notes.append(m_search.notes(*line()));
    return notes.join(' ');
}

void SlitWindow::tell(const QString& text) {
    m_told = text;
    showState();
}

void SlitWindow::refuse(const QString& why) {
    m_filmView->refuse(why);
    tell(why);
}

void SlitWindow::drawLine() {
    m_overlay->setTool(LineOverlay::Tool::Line);
    tell({});
}

void SlitWindow::drawBoat() {
    if (!line()) {
        refuse(tr("Draw a line first: N."));
        return;
    }
    m_overlay->setTool(LineOverlay::Tool::Boat);
}

/// A line that is no line is told and not kept; the one before it is shown again.
void SlitWindow::drawn(std::size_t number, const QPointF& first, const QPointF& second) {
    m_overlay->setTool(LineOverlay::Tool::None);
    const auto index = m_deck->index(0);
    if (!index)
        return;
    const VideoSize size = index->facts().shownSize;
    try {
        checkSlitLine({{first.x(), first.y()}, {second.x(), second.y()}}, size,
                      m_film.toStdString());
    } catch (const FileError& error) {
        showLines();
        refuse(qtText(error.reason()));
        return;
    }
    m_told.clear();
    const bool isNew = number >= m_keeping.file().lines.size();
    if (isNew || number != m_line)
        m_run = -1;
    m_line = number;
    if (isNew) // what is dragged keeps the arrow keys
        m_view->setFocus();
    m_keeping.edit([&](slitfile001& file) {
        file.width = size.width;
        file.height = size.height;
        if (number >= file.lines.size()) {
            std::int64_t split = 0;
            for (const slitline001& line : file.lines)
                split = std::max(split, line.split);
            const auto most = static_cast<std::int64_t>(m_race.splits());
            file.lines.push_back({.split = most > 0 ? std::min(split + 1, most) : split + 1});
        }
        slitline001& line = file.lines[std::min(number, file.lines.size() - 1)];
        line.x1 = first.x();
        line.y1 = first.y();
        line.x2 = second.x();
        line.y2 = second.y();
    });
}

void SlitWindow::editLine(const std::function<void(slitline001&)>& change) {
    if (line())
        m_keeping.edit([&](slitfile001& file) { change(file.lines[m_line]); });
}

void SlitWindow::chooseLine(std::size_t number) {
    if (number >= m_keeping.file().lines.size() || number == m_line)
        return;
    m_line = number;
    m_run = -1;
    showLines();
}

void SlitWindow::stepLine(int step) {
    const std::size_t count = m_keeping.file().lines.size();
    if (count > 1)
        chooseLine((m_line + count + static_cast<std::size_t>(step + static_cast<int>(count))) %
                   count);
}

/// What was refused on it goes with it, which cannot be taken back.
void SlitWindow::removeLine() {
    if (!line())
        return;
    if (!line()->refused.empty() &&
        !workspace().askBeforeLoss(
            {"", tr("%1 proposals were refused on this line. They are forgotten with it.")
                     .arg(line()->refused.size())
                     .toStdString()},
            tr("Remove the line"), this))
        return;
    m_keeping.edit([this](slitfile001& file) {
        file.lines.erase(file.lines.begin() + static_cast<std::ptrdiff_t>(m_line));
    });
}

void SlitWindow::turnArrow() {
    editLine([](slitline001& line) { line.fromLeft = !line.fromLeft; });
}

void SlitWindow::setSplit(std::size_t split) {
    m_run = -1;
    editLine([&](slitline001& line) { line.split = static_cast<std::int64_t>(split); });
}

void SlitWindow::setHair(double column) {
    m_view->setHair(column);
    const auto index = m_deck->index(0);
    if (!index || index->frameCount() == 0)
        return;
    m_deck->pause();
    m_deck->seek(index->stampOf(slitFrameAt(*index, 0, m_view->hair())));
}

void SlitWindow::stepHair(int frames) {
    setHair(std::floor(m_view->hair()) + 0.5 + frames);
}

void SlitWindow::refineHair(double frames) {
    setHair(m_view->hair() + frames);
}

void SlitWindow::stepProposal(int step) {
    const auto index = m_loader.index();
    if (!index)
        return;
    const double now = slitSecondsAt(*index, 0, m_view->hair());
    constexpr double Same = 1e-4;
    std::optional<double> to;
    for (const Proposal& proposal : proposals()) {
        if (step < 0 && proposal.seconds < now - Same)
            to = proposal.seconds;
        if (step > 0 && proposal.seconds > now + Same && !to)
            to = proposal.seconds;
    }
    if (to)
        setHair(slitColumnAt(*index, 0, *to));
    else
        refuse(step < 0 ? tr("There is no proposal before this.")
                        : tr("There is no proposal behind this."));
}

void SlitWindow::stepRun(int step) {
    const int place = m_runTable->currentPlace() + step;
    if (place >= 0 && place < static_cast<int>(m_runs.rows().size()))
        m_runTable->choose(place);
}

/// The first run of a line comes to the front without anything else, another one with its place.
void SlitWindow::followRun() {
    const int place = m_runTable->currentPlace();
    if (place < 0 || place >= static_cast<int>(m_runs.rows().size()) ||
        m_runs.row(place).run.run == m_run)
        return;
    const bool wasNone = std::exchange(m_run, m_runs.row(place).run.run) < 0;
    showMarks();
    if (!wasNone)
        goToRun();
}

/// The hair line goes to where the run is marked, or may have crossed; else it stays.
void SlitWindow::goToRun() {
    const int place = m_runTable->currentPlace();
    const auto index = m_loader.index();
    if (place < 0 || place >= static_cast<int>(m_runs.rows().size()) || !index)
        return;
    const SlitRunRow row = m_runs.row(place);
    if (row.run.seconds)
        setHair(slitColumnAt(*index, 0, *row.run.seconds));
    else if (row.proposal)
        setHair(slitColumnAt(*index, 0, row.proposal->seconds));
}

void SlitWindow::showMarks() {
    std::vector<SlitMark> marks;
    for (const SlitRunRow& row : m_runs.rows())
        if (row.run.seconds)
            marks.push_back({*row.run.seconds, row.run.crew, row.run.run, row.run.run == m_run});
    m_view->setMarks(std::move(marks));
}

QString SlitWindow::markAt(int run, double column) {
    const auto index = m_deck->index(0);
    if (!index || index->frameCount() == 0)
        return tr("The film is not read so far.");
    const FrameNumber frame = slitFrameAt(*index, 0, column);
    const double beside = slitSecondsAt(*index, 0, column) - index->secondsOf(frame);
    return m_race.mark(run, static_cast<std::size_t>(std::max<std::int64_t>(line()->split, 0)),
                       index->stampOf(frame), m_isFiner ? std::optional(beside) : std::nullopt);
}

void SlitWindow::mark() {
    if (!line()) {
        refuse(tr("Draw a line first: N."));
        return;
    }
    if (!m_race.isThere()) {
        emit raceRequested(raceOfFilm());
        if (!m_race.isThere())
            refuse(tr("Marks need the race of this film: open it in split taking."));
        return;
    }
    if (m_runs.rows().empty() || m_run < 0) {
        refuse(m_runTable->emptyText());
        return;
    }
    const int marked = m_runTable->currentPlace();
    if (const QString why = markAt(m_run, m_view->hair()); !why.isEmpty()) {
        refuse(why);
        return;
    }
    tell({});
    m_filmView->flash(m_runs.row(marked).run.crew);
    const auto& rows = m_runs.rows();
    const auto next = std::find_if(rows.begin() + marked, rows.end(),
                                   [](const SlitRunRow& row) { return !row.run.seconds; });
    if (next != rows.end())
        m_runTable->choose(static_cast<int>(next - rows.begin()));
}

void SlitWindow::moveMark(int run, double column) {
    if (!line())
        return;
    if (const QString why = markAt(run, column); !why.isEmpty())
        refuse(why);
    else
        setHair(column);
    showRuns(); // where it was, if it was refused
}

void SlitWindow::unmark() {
    if (!line())
        return;
    const QString why =
        m_race.unmark(m_run, static_cast<std::size_t>(std::max<std::int64_t>(line()->split, 0)));
    if (!why.isEmpty())
        refuse(why);
}

void SlitWindow::setFiner(bool isFiner) {
    m_isFiner = isFiner;
    m_finer->setChecked(isFiner);
}

std::optional<Proposal> SlitWindow::proposalAtHair() const {
    const auto index = m_loader.index();
    if (!index)
        return std::nullopt;
    const double now = slitSecondsAt(*index, 0, m_view->hair());
    std::optional<Proposal> nearest;
    for (const Proposal& proposal : proposals())
        if (const double way = std::abs(proposal.seconds - now);
            way <= (nearest ? std::abs(nearest->seconds - now) : ProposalReach))
            nearest = proposal;
    return nearest;
}

void SlitWindow::refuseProposal() {
    const auto proposal = proposalAtHair();
    if (!proposal) {
        refuse(tr("There is no proposal at the hair line."));
        return;
    }
    editLine([&](slitline001& line) {
        line.refused.push_back({proposal->frame, proposal->seconds});
    });
}

void SlitWindow::forgetRefusals() {
    editLine([](slitline001& line) { line.refused.clear(); });
}

void SlitWindow::searchBoats() {
    if (!line() || line()->boatWidth <= 0 || line()->boatHeight <= 0) {
        refuse(line() ? tr("Draw a box round one boat first: B.") : tr("Draw a line first: N."));
        return;
    }
    tell({});
    m_search.search(*line());
}

QString SlitWindow::lockOfAcceptAll() const {
    const BarrierFigures& figures = measuredBarrierFigures();
    return reachesTargets(figures) ? QString() : qtText(tellFigures(figures));
}

/// One step of undo, whatever the number of runs.
void SlitWindow::acceptAll() {
    if (const QString lock = lockOfAcceptAll(); !lock.isEmpty()) {
        workspace().showAlert(
            {tr("Proposals are accepted one by one").toStdString(), lock.toStdString()}, this);
        return;
    }
    const auto index = m_loader.index();
    if (!line() || !m_race.isThere() || !index)
        return;
    const std::vector<SlitRunRow> rows = m_runs.rows();
    QStringList refused;
    QUndoStack& steps = m_race.document()->undoStack();
    steps.beginMacro(tr("proposals accepted"));
    for (const SlitRunRow& row : rows)
        if (!row.run.seconds && row.proposal && row.proposal->confidence >= SureProposal)
            if (const QString why =
                    markAt(row.run.run, slitColumnAt(*index, 0, row.proposal->seconds));
                !why.isEmpty())
                refused.append(row.run.crew + QStringLiteral(": ") + why);
    steps.endMacro();
    tell(refused.join(' '));
}

void SlitWindow::exportPicture() {
    if (!line() || m_loader.picture(m_line).tiles.empty()) {
        refuse(tr("There is no slit picture yet."));
        return;
    }
    const QFileInfo film(m_film);
    QString file = QFileDialog::getSaveFileName(
        this, tr("Save what is seen of the slit picture"),
        film.absolutePath() + '/' + film.completeBaseName() + ".png", tr("Pictures (*.png)"));
    if (file.isEmpty())
        return;
    if (QFileInfo(file).suffix().isEmpty())
        file += QStringLiteral(".png");
    const QString why = exportTo(file);
    tell(why.isEmpty() ? QString() : tr("The picture could not be saved: %1").arg(why));
}

QString SlitWindow::exportTo(const QString& file) {
    const SlitPicture& picture = m_loader.picture(m_line);
    const auto index = m_loader.index();
    if (!index || picture.tiles.empty())
        return tr("There is no slit picture yet.");
    SlitSheet sheet{slitFrameAt(*index, 0, m_view->columnAt(0)),
                    slitFrameAt(*index, 0, m_view->columnAt(m_view->width())),
                    {}};
    sheet.last = std::min(sheet.last, picture.columns - 1);
    for (const SlitRunRow& row : m_runs.rows())
        if (row.run.seconds)
            sheet.marks.push_back({*row.run.seconds, row.run.crew});
    try {
        writePng(paintSlitSheet(picture, *index, sheet), file.toStdString());
    } catch (const FileError& error) {
        return qtText(error.reason());
    }
    return {};
}

} // namespace kavela::desktop
