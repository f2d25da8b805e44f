#include "desktop/watertests/take_recording_dialog.h"

#include "desktop/charts/series_chart.h"
#include "desktop/shell/number_box.h"
#include "desktop/shell/theme.h"
#include "desktop/watertests/entry_table.h"
#include "planning/eight_test.h"
#include "planning/test_from_motion.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <functional>

namespace kavela::desktop {

namespace {

/// The curve shows every fifth sample, ten a second: more would not be seen.
constexpr std::size_t CurveStep = 5;

NumberBox* numberBox(double low, double high, double step, const QString& suffix) {
    auto* box = new NumberBox;
    box->setRange(low, high);
    box->setSingleStep(step);
    box->setSuffix(suffix);
    box->setKeyboardTracking(false);
    return box;
}

} // namespace

TakeRecordingDialog::TakeRecordingDialog(bmrawdata_v5 session, const std::string& athlete,
                                         QWidget* parent)
    : EntryDialog(parent),
      m_session(std::move(session)),
      m_kind(new QComboBox),
      m_athlete(new QLineEdit),
      m_location(new QLineEdit),
      m_laps(new WholeBox),
      m_distance(numberBox(1, 1000, 0.5, tr(" m"))),
      m_turnLimit(numberBox(0.05, 10, 0.05, tr(" rad/s"))),
      m_marks(markColumns(), RowsKnownBy::Number),
      m_table(new EntryTable(m_marks, "marks")),
      m_chart(new SeriesChart),
      m_found(new QLabel),
      m_fault(new QLabel) {
    setWindowTitle(tr("Take a test in from a recording"));
    makeFields(athlete);
    layOut();
    connectParts();
    analyse();
    resize(980, 640);
}

TakeRecordingDialog::~TakeRecordingDialog() = default;

void TakeRecordingDialog::makeFields(const std::string& athlete) {
    const onWaterTest usual;
    m_kind->setObjectName("kind");
    for (const TestKind kind : {TestKind::Lap, TestKind::Sprint, TestKind::Eight})
        m_kind->addItem(kindText(kind), static_cast<int>(kind));
    const std::string& named = m_session.athleteinfo.name;
    m_athlete->setObjectName("athlete");
    m_athlete->setText(QString::fromStdString(named.empty() ? athlete : named));
    m_location->setText(QString::fromStdString(m_session.info.location));
    m_laps->setObjectName("laps");
    m_laps->setRange(1, 100);
    m_laps->setValue(static_cast<int>(usual.laps));
    m_laps->setKeyboardTracking(false);
    m_distance->setValue(usual.distance);
    m_turnLimit->setValue(usual.turnLimit);
    m_table->verticalHeader()->show();
    m_table->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_distance->setDecimals(1);
    m_chart->setMinimumSize(520, 260);
    m_found->setWordWrap(true);
    m_found->setForegroundRole(QPalette::PlaceholderText);
    m_fault->setObjectName("fault");
    m_fault->setWordWrap(true);
}

void TakeRecordingDialog::layOut() {
    auto* form = new QFormLayout;
    form->setSpacing(theme::Spacing);
    form->addRow(tr("&Test"), m_kind);
    form->addRow(tr("&Athlete"), m_athlete);
    form->addRow(tr("&Location"), m_location);
    form->addRow(tr("La&ps"), m_laps);
    form->addRow(tr("&Distance between the gates"), m_distance);
    form->addRow(tr("T&urn limit"), m_turnLimit);
    auto* again = new QPushButton(tr("&Suggest the marks again"));
    again->setAutoDefault(false); // Enter in a field would throw the typed marks away
    connect(again, &QPushButton::clicked, this, &TakeRecordingDialog::suggest);
    auto* left = new QVBoxLayout;
    left->addLayout(form);
    left->addWidget(m_table, 1);
    left->addWidget(again);
    auto* right = new QVBoxLayout;
    right->addWidget(m_chart, 1);
    right->addWidget(m_found);
    auto* parts = new QHBoxLayout;
    parts->setSpacing(theme::LargeSpacing);
    parts->addLayout(left, 2);
    parts->addLayout(right, 3);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_take = buttons->addButton(tr("Take in"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* whole = new QVBoxLayout(this);
    whole->addLayout(parts, 1);
    whole->addWidget(m_fault);
    whole->addWidget(buttons);
}

void TakeRecordingDialog::connectParts() {
    connect(m_kind, &QComboBox::currentIndexChanged, this, &TakeRecordingDialog::suggest);
    connect(m_laps, &WholeBox::valueChanged, this, &TakeRecordingDialog::suggest);
    connect(m_turnLimit, &NumberBox::valueChanged, this, &TakeRecordingDialog::analyse);
    m_marks.setRowTitles([this](int row) {
        const QString title = kind() == TestKind::Lap      ? tr("Lap %1")
                              : kind() == TestKind::Sprint ? tr("Stretch %1")
                                                           : tr("Eight %1");
        return row == 0 ? tr("Start") : title.arg(row);
    });
}

void TakeRecordingDialog::analyse() {
    MotionProfile profile = profileOf(m_session.athleteinfo);
    profile.leastTurnPeak = m_turnLimit->value();
    m_motion = analyseMotion(m_session, profile);
    QStringList told{tr("%1 strokes and %2 turns were found.")
                         .arg(m_motion.strokes.size())
                         .arg(m_motion.turns.size())};
    for (const MotionFlag flag : m_motion.flags) {
        const std::string_view text = textOf(flag);
        told.append(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    }
    m_found->setText(told.join(' '));
    suggest();
}

TestKind TakeRecordingDialog::kind() const {
    return static_cast<TestKind>(m_kind->currentData().toInt());
}

double TakeRecordingDialog::begin() const {
    return m_motion.series.time.empty() ? 0 : m_motion.series.time.front();
}

void TakeRecordingDialog::suggest() {
    const bool isLap = kind() == TestKind::Lap;
    m_laps->setEnabled(isLap);
    m_distance->setEnabled(isLap);
    switch (kind()) {
    case TestKind::Lap:
        m_moments = suggestedLaps(m_motion, static_cast<std::size_t>(m_laps->value()));
        break;
    case TestKind::Sprint:
        m_moments = suggestedSprint(m_motion);
        break;
    case TestKind::Eight:
        m_moments = suggestedEights(m_motion);
        break;
    }
    showMarks();
}

std::vector<Column<SectionMark>> TakeRecordingDialog::markColumns() {
    return {
        entryColumn<SectionMark>(
            {tr("Ends at\n(s)"), tr("Seconds from the beginning of the recording"), 100000, true},
            [](const SectionMark& mark) { return mark.end; },
            [this](std::size_t row, double seconds) {
                m_moments[row] = begin() + seconds;
                showMarks();
            }),
        entryColumn<SectionMark>({tr("Time\n(s)"), tr("Length of the section")},
                                 [](const SectionMark& mark) { return mark.time; })};
}

/// Marks that do not ascend are told, and cannot be taken in.
void TakeRecordingDialog::showMarks() {
    std::vector<SectionMark> rows;
    for (std::size_t i = 0; i < m_moments.size(); ++i)
        rows.push_back({m_moments[i] - begin(), i == 0 ? 0 : m_moments[i] - m_moments[i - 1]});
    m_marks.show(std::move(rows));
    const bool isAscending =
        std::ranges::adjacent_find(m_moments, std::greater_equal()) == m_moments.end();
    m_fault->setText(m_moments.size() < 2 ? tr("No such test was found in the recording.")
                     : !isAscending       ? tr("Each mark has to be later than the one before.")
                                          : missingText());
    m_fault->setVisible(!m_fault->text().isEmpty());
    m_take->setEnabled(isAscending && m_moments.size() >= 2);
    showCurve();
}

/// Says at once what the recording does not hold of the test.
QString TakeRecordingDialog::missingText() const {
    const std::size_t found = m_moments.size() - 1;
    const auto laps = static_cast<std::size_t>(m_laps->value());
    if (kind() == TestKind::Lap && found < laps)
        return tr("Laps found in the recording: %1 of %2. What is taken in has no more of them.")
            .arg(found)
            .arg(laps);
    if (kind() == TestKind::Eight && found < EightSplits)
        return tr("Eights found in the recording: %1 of %2. What is taken in has no more of them.")
            .arg(found)
            .arg(EightSplits);
    return {};
}

void TakeRecordingDialog::showCurve() {
    const MotionSeries& series = m_motion.series;
    ChartContent content;
    content.title = tr("Rotation and marks");
    content.xTitle = tr("Time from the beginning of the recording (s)");
    content.yTitle = tr("Rotation (rad/s)");
    ChartSeries curve{.name = tr("Rotation"), .points = {}, .form = ChartSeries::Form::Line};
    for (std::size_t i = 0; i < series.size(); i += CurveStep)
        curve.points.emplace_back(series.time[i] - begin(), series.yawRate[i]);
    ChartSeries marks{
        .name = tr("Marks"), .points = {}, .form = ChartSeries::Form::Points, .slot = 1};
    for (const double moment : m_moments)
        marks.points.emplace_back(moment - begin(), 0);
    content.series = {std::move(curve), std::move(marks)};
    m_chart->show(std::move(content));
}

TestsDocument::Content TakeRecordingDialog::test() const {
    const std::vector<double> ends(m_moments.begin() + 1, m_moments.end());
    if (kind() == TestKind::Eight) {
        onWaterEight eight = eightFromMotion(m_session, m_motion, m_moments.front(), ends);
        eight.run.athlete = m_athlete->text().simplified().toStdString();
        eight.location = m_location->text().simplified().toStdString();
        return eight;
    }
    onWaterTest setUp;
    setUp.kind = kind() == TestKind::Sprint ? water_test::Sprint : water_test::Lap;
    setUp.distance = m_distance->value();
    setUp.turnLimit = m_turnLimit->value();
    setUp.test.athlete = m_athlete->text().simplified().toStdString();
    setUp.test.location = m_location->text().simplified().toStdString();
    return testFromMotion(setUp, m_motion, m_moments.front(), ends);
}

} // namespace kavela::desktop
