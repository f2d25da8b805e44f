#include "desktop/barrier/slit_window.h"

#include "desktop/barrier/line_overlay.h"
#include "desktop/barrier/slit_actions.h"
#include "desktop/barrier/slit_panel.h"
#include "desktop/barrier/slit_stage.h"
#include "desktop/barrier/slit_view.h"
#include "desktop/film/film_view.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"
#include "splittaking/video_names.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QSplitter>

#include <algorithm>

namespace kavela::desktop {

SlitWindow::SlitWindow(Workspace& workspace)
    : ToolWindow(workspace, nullptr, {"slit", tr("Slit picture"), "mp4"}),
      m_marking(m_keeping, m_race, m_search),
      m_stage(new SlitStage(workspace)) {
    makeParts();
    connectParts();
    connectLines();
    m_actions = new SlitActions(*this);
    setWindowTitle(tr("Slit picture") + QStringLiteral(" – Kavela"));
    showLines();
}

SlitWindow::~SlitWindow() {
    // The parts report to the window while they are taken apart.
    m_stage->disconnect(this);
    m_race.disconnect(this);
    m_loader.disconnect(this);
    m_search.disconnect(this);
    m_saving.disconnect(this);
    m_keeping.disconnect(this);
    m_panel->disconnect(this);
}

void SlitWindow::makeParts() {
    m_panel = new SlitPanel;
    m_front.emplace(m_marking, *m_stage, *m_panel);
    auto* const whole = new QSplitter;
    whole->setChildrenCollapsible(false);
    whole->setContentsMargins(theme::Spacing, theme::Spacing, theme::Spacing, theme::Spacing);
    whole->addWidget(m_stage);
    whole->addWidget(m_panel);
    whole->setStretchFactor(0, 1);
    shareSizes(*whole, {900, 360});
    rememberSizes(*whole, workspace(), "slitParts");
    setCentralWidget(whole);
}

void SlitWindow::connectParts() {
    connect(m_stage, &SlitStage::indexChanged, this, &SlitWindow::followFilm);
    connect(m_stage, &SlitStage::failed, this, &SlitWindow::tell);
    connect(&view(), &SlitView::markDropped, this, &SlitWindow::moveMark);
    connect(&m_loader, &SlitLoader::grown, this, &SlitWindow::showPicture);
    connect(&m_loader, &SlitLoader::ended, this, &SlitWindow::showPicture);
    connect(&m_race, &SlitRace::changed, this, &SlitWindow::showLines);
    connect(&m_search, &CrossingSearch::changed, this, &SlitWindow::showRuns);
    connect(&m_search, &CrossingSearch::found, this, [this] { m_marking.keepSearches(); });
    connect(&m_search, &CrossingSearch::failed, this, &SlitWindow::tell);
    connect(&m_saving, &SlitSaving::told, this, &SlitWindow::tell);
    connect(m_panel, &SlitPanel::runChosen, this, [this] { m_front->follow(); });
    connect(m_panel, &SlitPanel::runClicked, this, [this] { m_front->goToRun(); });
    connect(m_panel, &SlitPanel::proposalChosen, this,
            [this](double seconds, int run) { m_front->goToProposal(seconds, run); });
    connect(m_panel, &SlitPanel::raceWanted, this, [this] { emit raceRequested(raceOfFilm()); });
    connect(m_panel, &SlitPanel::finerChosen, this, &SlitWindow::setFiner);
}

void SlitWindow::connectLines() {
    connect(&m_keeping, &SlitKeeping::changed, this, &SlitWindow::showLines);
    connect(&m_keeping, &SlitKeeping::failed, this, &SlitWindow::tell);
    connect(&overlay(), &LineOverlay::lineChosen, this, &SlitWindow::chooseLine);
    connect(&overlay(), &LineOverlay::lineDrawn, this, &SlitWindow::drawn);
    connect(&overlay(), &LineOverlay::lineNudged, this,
            [this](std::size_t line, const QPointF& first, const QPointF& second) {
                m_steps.nudging(line, [&] { drawn(line, first, second); });
            });
    connect(&overlay(), &LineOverlay::boatDrawn, this, [this](const QRectF& box) {
        overlay().setTool(LineOverlay::Tool::None);
        m_marking.setBoat(box);
    });
    connect(m_panel, &SlitPanel::lineChosen, this, [this](std::size_t line) {
        chooseLine(line);
        view().setFocus();
    });
    connect(m_panel, &SlitPanel::pointChosen, this, [this](TimingPoint point) {
        setTimingPoint(point);
        view().setFocus();
    });
    connect(m_panel, &SlitPanel::splitChosen, this, [this](std::size_t split) {
        setSplit(split);
        view().setFocus();
    });
}

FilmDeck& SlitWindow::deck() const {
    return m_stage->deck();
}

SlitView& SlitWindow::view() const {
    return m_stage->slit();
}

LineOverlay& SlitWindow::overlay() const {
    return m_stage->overlay();
}

ColumnTable& SlitWindow::runTable() const {
    return m_panel->runTable();
}

ColumnTable& SlitWindow::proposalTable() const {
    return m_panel->proposalTable();
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
    m_marking.setNumber(0);
    m_marking.setIndex(nullptr);
    m_front->leave();
    m_told.clear();
    m_loader.setFilm(nullptr);
    m_search.setFilm(nullptr);
    setWindowTitle(info.fileName() + QStringLiteral(" – ") + tr("Slit picture") +
                   QStringLiteral(" – Kavela"));
    setWindowFilePath(m_film);
    m_race.setFilm(m_film);
    m_keeping.open(m_film);
    m_stage->open(m_film);
    emit pathsChanged();
    return true;
}

void SlitWindow::chooseFilm() {
    const QString film = QFileDialog::getOpenFileName(
        this, tr("Open the film of a fixed camera"), QFileInfo(m_film).path(),
        tr("Films (*.mp4 *.mov *.m4v *.avi *.mkv *.mts *.m2ts);;All files (*)"));
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
    m_front->leave();
    m_race.setDocument(document, owner);
    m_told.clear();
    showState();
}

/// The lines can be drawn as soon as the film is seen; it is read when all of it is known.
void SlitWindow::followFilm() {
    const auto index = m_stage->index();
    if (!index->isComplete())
        return;
    m_marking.setIndex(index);
    m_loader.setFilm(index);
    m_search.setFilm(index);
    m_marking.restoreSearches();
    showPicture();
    showRuns();
}

void SlitWindow::showLines() {
    const auto& lines = m_keeping.file().lines;
    if (m_marking.number() >= lines.size())
        m_marking.setNumber(0);
    std::vector<SlitLine> drawn;
    for (const slitline001& each : lines)
        drawn.push_back(lineOf(each));
    m_panel->showLines(m_marking, lines.size(), m_race);
    overlay().setLines(lines, m_marking.number());
    m_loader.setLines(drawn);
    m_marking.restoreSearches();
    showPicture();
    showRuns();
}

void SlitWindow::showPicture() {
    if (!line())
        view().setMessage(m_film.isEmpty() ? tr("Open the film of a camera on a tripod (Ctrl+O).")
                                           : m_marking.drawingHint());
    else
        view().setMessage(m_loader.told().isEmpty() ? tr("Reading the film…") : m_loader.told());
    view().setPicture(line() ? &m_loader.picture(lineNumber()) : nullptr, m_loader.index());
    showState();
}

void SlitWindow::showRuns() {
    m_front->show();
    showState();
}

void SlitWindow::showState() {
    m_panel->showRace(m_race, QFileInfo(m_film).fileName(), line() != nullptr);
    if (m_loader.isReading())
        m_panel->showWork(tr("Reading the film:"), m_loader.share());
    else if (m_search.isSearching())
        m_panel->showWork(tr("Looking for boats:"), m_search.share());
    else
        m_panel->showWork({}, 0);
    m_panel->tell(told());
    if (m_actions)
        m_actions->refresh();
}

QString SlitWindow::told() const {
    QStringList notes;
    if (!m_told.isEmpty())
        notes.append(m_told);
    if (line() && !m_loader.picture(lineNumber()).tiles.empty() && !m_loader.told().isEmpty())
        notes.append(m_loader.told());
    notes.append(m_marking.notes());
    return notes.join(' ');
}

void SlitWindow::tell(const QString& text) {
    m_told = text;
    showState();
}

void SlitWindow::refuse(const QString& why) {
    m_stage->film().refuse(why);
    tell(why);
}

void SlitWindow::drawLine() {
    overlay().setTool(LineOverlay::Tool::Line);
    tell({});
}

void SlitWindow::drawBoat() {
    if (!line()) {
        refuse(tr("Draw a line first: N."));
        return;
    }
    overlay().setTool(LineOverlay::Tool::Boat);
}

/// A line that is no line is told and not kept; the one before it is shown again.
void SlitWindow::drawn(std::size_t number, const QPointF& first, const QPointF& second) {
    overlay().setTool(LineOverlay::Tool::None);
    const auto index = m_stage->index();
    if (!index)
        return;
    const bool isNew = number >= m_keeping.file().lines.size();
    if (isNew || number != lineNumber())
        m_front->leave();
    if (isNew) // what is dragged keeps the arrow keys
        view().setFocus();
    m_told.clear();
    if (const QString why = m_marking.draw(
            number, {{first.x(), first.y()}, {second.x(), second.y()}}, index->facts());
        !why.isEmpty()) {
        showLines();
        refuse(why);
    }
}

void SlitWindow::takeLinesOver() {
    const auto index = m_stage->index();
    if (!index)
        return refuse(tr("The film is not read so far."));
    m_front->leave();
    m_told.clear();
    if (const QString why = m_marking.takeLinesOver(index->facts().shownSize); !why.isEmpty())
        refuse(why);
    view().setFocus();
}

void SlitWindow::setTimingPoint(TimingPoint point) {
    if (point == m_marking.point())
        return;
    m_marking.setPoint(point);
    tell(m_marking.tellMarkedOtherwise());
}

void SlitWindow::chooseLine(std::size_t number) {
    if (number >= m_keeping.file().lines.size() || number == lineNumber())
        return;
    m_marking.setNumber(number);
    m_front->leave();
    showLines();
}

void SlitWindow::stepLine(int step) {
    const auto count = static_cast<int>(m_keeping.file().lines.size());
    if (count > 1)
        chooseLine(
            static_cast<std::size_t>((static_cast<int>(lineNumber()) + count + step) % count));
}

void SlitWindow::removeLine() {
    if (!line())
        return;
    m_front->leave();
    m_marking.remove();
}

void SlitWindow::turnArrow() {
    m_marking.edit([](slitline001& line) { line.fromLeft = !line.fromLeft; });
}

void SlitWindow::setSplit(std::size_t split) {
    m_front->leave();
    m_marking.edit([&](slitline001& line) { line.split = static_cast<std::int64_t>(split); });
}

void SlitWindow::stepProposal(int step) {
    if (!m_front->stepProposal(step))
        refuse(step < 0 ? tr("There is no proposal before this.")
                        : tr("There is no proposal behind this."));
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
    if (m_panel->runs().empty() || m_front->run() < 0) {
        refuse(m_panel->runTable().emptyText());
        return;
    }
    const double place = view().hair();
    const bool isThere = m_marking.isMarkedAt(m_front->run(), place);
    const bool isMade = !isThere || m_isFiner; // finer times may differ within the frame
    if (isMade)
        if (const QString why = m_marking.mark(m_front->run(), place, m_isFiner); !why.isEmpty()) {
            refuse(why);
            return;
        }
    tell(m_marking.tellMarkedAt(place, isThere ? -1 : m_front->run()));
    m_front->goOn(isMade);
}

void SlitWindow::moveMark(int run, double column) {
    if (!line())
        return;
    if (const QString why = m_marking.mark(run, column, m_isFiner); !why.isEmpty())
        refuse(why);
    else {
        m_stage->setHair(column);
        tell(m_marking.tellMarkedAt(column, run));
    }
    showRuns(); // where it was, if it was refused
}

void SlitWindow::unmark() {
    if (const QString why = m_marking.unmark(m_front->run()); line() && !why.isEmpty())
        refuse(why);
}

void SlitWindow::setFiner(bool isFiner) {
    m_isFiner = isFiner;
    m_panel->setFiner(isFiner);
}

void SlitWindow::refuseProposal() {
    if (const QString why = m_marking.refuse(view().hair()); !why.isEmpty())
        refuse(why);
}

void SlitWindow::forgetRefusals() {
    m_marking.edit([](slitline001& line) { line.refused.clear(); });
}

void SlitWindow::undoStep() {
    takeStep(&SlitSteps::undo);
}

void SlitWindow::redoStep() {
    takeStep(&SlitSteps::redo);
}

/// With a line that comes or goes, as with one that is drawn, the list of runs begins anew.
void SlitWindow::takeStep(void (SlitSteps::*step)()) {
    const std::size_t lines = m_keeping.file().lines.size();
    (m_steps.*step)();
    if (m_keeping.file().lines.size() == lines)
        return;
    m_front->leave();
    showRuns();
}

void SlitWindow::searchBoats() {
    if (!line() || line()->boatWidth <= 0 || line()->boatHeight <= 0) {
        refuse(line() ? tr("Draw a box round one boat first: B.") : tr("Draw a line first: N."));
        return;
    }
    tell({});
    m_search.search(*line());
}

void SlitWindow::acceptAll() {
    if (const QString lock = lockOfAcceptAll(); !lock.isEmpty())
        workspace().showAlert(
            {tr("Proposals are accepted one by one").toStdString(), lock.toStdString()}, this);
    else
        tell(m_marking.acceptAll(m_isFiner));
}

void SlitWindow::exportTo(const QString& file) {
    tell(QString()); // what was told is of an earlier one
    m_saving.writePicture(file, m_loader.picture(lineNumber()), m_loader.index(),
                          {view().columnAt(0), view().columnAt(view().width())}, m_panel->runs());
}

QString SlitWindow::saveBandsTo(const QString& file) {
    const auto judgements = m_marking.judgements();
    if (!line() || line()->boatWidth <= 0 || judgements.empty())
        return tr("There is nothing to learn from yet: look for boats, then mark and refuse what "
                  "was found.");
    m_saving.writeBands(file, m_loader.index(), *line(), judgements, m_marking.point());
    return {};
}

} // namespace kavela::desktop
