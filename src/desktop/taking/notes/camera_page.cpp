#include "desktop/taking/notes/camera_page.h"

#include "desktop/film/film_deck.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/splitfile/film_table.h"
#include "desktop/splitfile/taking_document.h"
#include "splitdata/run_timing.h"
#include "splittaking/annotations/refusals.h"
#include "video/recording_date.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr std::int32_t Microseconds = 1'000'000; // a second

QString signedSeconds(double seconds) {
    return QString(seconds > 0 ? "+" : "") + shownNumber(seconds, 3);
}

CMTime stampOfSeconds(double seconds) {
    return {std::llround(seconds * Microseconds), Microseconds, ValidStamp, 0};
}

std::vector<Column<SyncRow>> syncColumns() {
    const auto lag = [](double seconds) { return shownNumber(seconds, 3); };
    return {numberColumn<SyncRow>(
                CameraPage::tr("Time"), [](const SyncRow& row) { return row.seconds; },
                shownHundredths),
            textColumn<SyncRow>(CameraPage::tr("Tag"),
                                [](const SyncRow& row) { return qtText(row.mark.name); }),
            numberColumn<SyncRow>(
                CameraPage::tr("Lag"), [](const SyncRow& row) { return row.mark.lag; }, lag),
            numberColumn<SyncRow>(
                CameraPage::tr("Off by"), [](const SyncRow& row) { return row.mark.deviation; },
                signedSeconds)};
}

} // namespace

CameraPage::CameraPage(NoteDesk& desk)
    : NotePage(desk), m_marks(syncColumns(), RowsKnownBy::Number) {
    makeParts();
    auto* attach = new QPushButton(tr("Attach a film…"));
    attach->setObjectName("cameraAttach");
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(attach);
    buttons->addWidget(m_detach);
    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setVerticalSpacing(theme::SmallSpacing);
    form->addRow(tr("Beside the film"), m_cameras);
    form->addRow(buttons);
    form->addRow(m_all);
    form->addRow(m_next);
    form->addRow(m_table);
    form->addRow(m_step);
    connect(attach, &QPushButton::clicked, this, &CameraPage::attachWanted);
    connect(m_detach, &QPushButton::clicked, this, &CameraPage::detach);
    connect(m_all, &QPushButton::clicked, this, &CameraPage::attachToAll);
    connect(m_cameras, &QComboBox::activated, this,
            [this](int place) { choose(m_cameras->itemData(place).toString()); });
    connect(m_table, &ColumnTable::clicked, this, [this](const QModelIndex& cell) {
        const CMTime own = m_marks.row(m_table->placeAt(cell)).mark.own;
        emit rowChosen();
        m_desk.deck.seek(own);
    });
}

void CameraPage::makeParts() {
    m_cameras = new QComboBox;
    m_cameras->setObjectName("cameras");
    m_cameras->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_cameras->setMinimumContentsLength(8);
    m_detach = new QPushButton(tr("Detach"));
    m_detach->setObjectName("cameraDetach");
    m_detach->setToolTip(tr("Takes the film shown beside off this run"));
    m_all = new QPushButton(tr("Attach it to every run"));
    m_all->setObjectName("cameraAll");
    m_all->setToolTip(tr("A fixed camera often films the whole race in one go"));
    m_next = new QLabel;
    m_next->setObjectName("cameraNext");
    m_next->setWordWrap(true);
    m_step = new QLabel;
    m_step->setObjectName("cameraStep");
    m_step->setWordWrap(true);
    m_table = filmTable(m_marks, "cameraMarks");
    m_table->setMinimumHeight(grown(*this, 110));
}

QString CameraPage::nameOf(std::size_t camera) const {
    const athletedata031* const run = m_desk.record();
    return run ? QString::fromStdString(entryOrZero(run->fixcameras, camera)) : QString();
}

void CameraPage::enter() {
    const athletedata031* const run = m_desk.record();
    if (run && run->fixcameras.size() == 1 && !m_hasChosen)
        choose(nameOf(0));
}

void CameraPage::refresh() {
    const athletedata031* const run = m_desk.record();
    setEnabled(run);
    const auto before = m_desk.fixedCamera;
    m_desk.fixedCamera.reset();
    for (std::size_t camera = 0; run && !m_film.isEmpty() && camera < run->fixcameras.size();
         ++camera)
        if (nameOf(camera) == m_film)
            m_desk.fixedCamera = camera;
    showCameras();
    showMarks();
    if (before != m_desk.fixedCamera)
        emit besideChanged();
}

void CameraPage::showCameras() {
    const QSignalBlocker blocked(m_cameras);
    m_cameras->clear();
    m_cameras->addItem(tr("None"), QString());
    if (const athletedata031* const run = m_desk.record())
        for (std::size_t camera = 0; camera < run->fixcameras.size(); ++camera)
            m_cameras->addItem(nameOf(camera), nameOf(camera));
    m_cameras->setCurrentIndex(m_desk.fixedCamera ? static_cast<int>(*m_desk.fixedCamera) + 1 : 0);
    m_detach->setEnabled(m_desk.fixedCamera.has_value());
    m_all->setEnabled(m_desk.fixedCamera.has_value() && m_desk.document.runCount() > 1);
}

void CameraPage::showMarks() {
    const athletedata031* const run = m_desk.record();
    std::vector<SyncRow> rows;
    if (run && m_desk.fixedCamera)
        for (const SyncMark& each : syncMarksOf(*run, *m_desk.fixedCamera))
            rows.push_back({each, runSecondsAt(*run, each.own)});
    m_marks.show(std::move(rows));
    if (!m_desk.fixedCamera) {
        m_next->setText(run && run->fixcameras.empty()
                            ? tr("Attach the film of a camera that stood at the course.")
                            : tr("Choose a camera to see its film beside this one."));
        m_step->clear();
        return;
    }
    m_next->setText(tr("Find one moment on both films, the fixed camera's alone with "
                       "Alt+PgUp and Alt+PgDown. M marks it."));
    const auto lag = lagOf(*run, *m_desk.fixedCamera);
    const QString step =
        lag ? tr("In step: the fixed camera's film is %1 s ahead.").arg(shownNumber(*lag, 3))
        : lagByDates(*m_desk.fixedCamera)
            ? tr("Placed by the dates in the two films, to a second or two.")
            : tr("Not in step yet.");
    const bool hasDate =
        began(m_desk.document.fixedFilm(m_desk.run, *m_desk.fixedCamera)).has_value();
    m_step->setText(hasDate ? step
                            : step + ' ' +
                                  tr("Its film has no date: moments are kept without the "
                                     "time of its clock."));
}

void CameraPage::choose(const QString& film) {
    m_film = film;
    m_hasChosen = true;
    refresh();
}

void CameraPage::showFilm(const QString& name) {
    choose(name);
}

void CameraPage::detach() {
    if (!m_desk.fixedCamera)
        return;
    const std::size_t camera = *m_desk.fixedCamera;
    edit(tr("fixed camera detached"), [&](athletedata031& run) { detachFixedCamera(run, camera); });
}

void CameraPage::attachToAll() {
    if (!m_desk.fixedCamera)
        return;
    const std::string film = nameOf(*m_desk.fixedCamera).toStdString();
    m_desk.document.editRuns(tr("fixed camera for every run"), [&](athletedata031& run) {
        if (std::ranges::find(run.fixcameras, film) == run.fixcameras.end())
            (void)attachFixedCamera(run, film);
    });
}

void CameraPage::mark(const Stamps& stamps) {
    if (!m_desk.fixedCamera) {
        emit told(m_next->text());
        return;
    }
    const std::size_t camera = *m_desk.fixedCamera;
    const auto fixed = m_desk.fixedMoment;
    if (!fixed) {
        emit told(tr("The film of the fixed camera shows no frame."));
        return;
    }
    if (refuses(refusalOfSync(*m_desk.record(), camera, stamps.front(), *fixed)))
        return;
    const auto zero = began(m_desk.document.fixedFilm(m_desk.run, camera));
    edit(tr("moment on both films"),
         [&](athletedata031& run) { markSync(run, camera, stamps.front(), *fixed, zero); });
    bringIntoStep();
    emit flashed(tr("Same moment"));
}

bool CameraPage::removeCurrent() {
    const int place = m_table->currentPlace();
    if (!m_desk.fixedCamera || place < 0)
        return false;
    const TagHandle tag = m_marks.row(place).mark.tag;
    edit(tr("moment removed"), [&](athletedata031& run) { removeSync(run, tag); });
    bringIntoStep();
    return true;
}

/// Films are asked once: the page is shown anew at every mark.
std::optional<ReferenceDate> CameraPage::began(const QString& film) const {
    if (const auto known = m_began.find(film); known != m_began.end())
        return known->second;
    return m_began[film] = recordingBegan(film.toStdString());
}

/// The films' own dates, where both cameras wrote theirs.
std::optional<double> CameraPage::lagByDates(std::size_t camera) const {
    const auto own = began(m_desk.document.film(m_desk.run, 0));
    const auto fixed = began(m_desk.document.fixedFilm(m_desk.run, camera));
    return own && fixed ? std::optional(own->seconds - fixed->seconds) : std::nullopt;
}

void CameraPage::bringIntoStep() {
    if (!m_desk.record() || !m_desk.fixedCamera || m_desk.deck.filmsBeside().isEmpty())
        return;
    auto lag = lagOf(*m_desk.record(), *m_desk.fixedCamera);
    if (!lag)
        lag = lagByDates(*m_desk.fixedCamera);
    m_desk.deck.setOffset(m_desk.deck.cameras(),
                          {.own = stampOfSeconds(lag.value_or(0)), .common = stampOfSeconds(0)});
}

std::optional<double> CameraPage::ownSeconds(std::int64_t camera, double seconds) const {
    const athletedata031* const run = m_desk.record();
    const auto lag =
        run && camera >= 0 ? lagOf(*run, static_cast<std::size_t>(camera)) : std::nullopt;
    return lag ? std::optional(seconds - *lag) : std::nullopt;
}

} // namespace kavela::desktop
