#include "desktop/race/run_chooser.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"
#include "splitdata/loader.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <memory>

namespace kavela::desktop {

namespace {

constexpr int ChoiceRole = Qt::UserRole;
constexpr int PathRole = Qt::UserRole;

QString lineOf(const analyzerdata& run) {
    QStringList parts{qtText(run.name), qtText(run.category), qtText(run.phase)};
    parts.removeAll(QString());
    const double total = run.sectioninfo.totaltime;
    return parts.join(" · ") + (total == 0 ? "" : "   " + shownHundredths(total) + " s");
}

OtherRace otherRace(RecognisedSplitFile read, const QString& path) {
    const infodata031& info = read.document.info;
    const std::string& name = info.title.empty() ? info.event : info.title;
    QString title = name.empty() ? QFileInfo(path).completeBaseName() : qtText(name);
    const ReferenceDate date = info.date;
    RaceTraits traits = traitsOf(read.document);
    return {std::move(title), date, std::move(traits),
            makeRaceSet(std::move(read.document), path.toStdString())};
}

/// The title, then day, number of runs and file: two races may be called the same.
QString factsOf(const OtherRace& race, const QString& path) {
    const std::size_t runs = race.set.alldata.size();
    QStringList facts{race.date.seconds == 0 ? QString() : qtText(dayText(race.date)),
                      runs == 1 ? RunChooser::tr("1 run")
                                : RunChooser::tr("%n runs", nullptr, static_cast<int>(runs)),
                      QFileInfo(path).fileName()};
    facts.removeAll(QString());
    return race.title.simplified() + '\n' + facts.join(" · ");
}

QListWidget* listOf(const char* name) {
    auto* list = new QListWidget;
    list->setObjectName(name);
    list->setTextElideMode(Qt::ElideMiddle);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return list;
}

} // namespace

std::optional<OtherRace> readOtherRace(Workspace& workspace, const QString& path, QWidget* over) {
    RecognisedSplitFile read =
        recogniseSplitFile(path.toStdString(), workspace.log(), workspace.clock());
    if (!read.version) {
        WorkspaceAlerts alerts(workspace, over);
        reportIncompatible(read, workspace.log(), alerts);
        return std::nullopt;
    }
    return otherRace(std::move(read), path);
}

RunChooser::RunChooser(Workspace& workspace, const QString& without, QWidget* parent)
    : QDialog(parent),
      m_workspace(workspace),
      m_files(listOf("files")),
      m_name(new QLineEdit),
      m_runs(listOf("runs")) {
    setWindowTitle(tr("Compare with a run of another race"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_take = buttons->button(QDialogButtonBox::Ok);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("Compare"));
    auto* lists = new QHBoxLayout;
    lists->setSpacing(theme::LargeSpacing);
    lists->addWidget(makeRaces(), 2);
    lists->addWidget(makeRuns(), 3);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addLayout(lists, 1);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(800, 440);
    updateButtons();
    m_own = without;
    m_unread.append(without); // first: the others are held against it
    offerRaces(without);
    readNext();
}

QWidget* RunChooser::makeRaces() {
    auto* label = new QLabel(tr("&Race"));
    label->setBuddy(m_files);
    auto* browse = new QPushButton(tr("&Other file…"));
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, &RunChooser::chooseFile);
    m_files->setSpacing(theme::SmallSpacing / 2); // each has two lines
    connect(m_files, &QListWidget::currentItemChanged, this, &RunChooser::chooseRace);
    auto* box = new QWidget;
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(label);
    column->addWidget(m_files, 1);
    column->addWidget(browse);
    return box;
}

QWidget* RunChooser::makeRuns() {
    auto* label = new QLabel(tr("R&un"));
    label->setBuddy(m_runs);
    m_name->setPlaceholderText(tr("Name"));
    m_name->setClearButtonEnabled(true);
    connect(m_name, &QLineEdit::textChanged, this, &RunChooser::filter);
    connect(m_runs, &QListWidget::itemSelectionChanged, this, &RunChooser::updateButtons);
    connect(m_runs, &QListWidget::itemActivated, this, &QDialog::accept);
    auto* box = new QWidget;
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(label);
    column->addWidget(m_name);
    column->addWidget(m_runs, 1);
    return box;
}

/// The races of the folder first: a weekend, or a season, lies in one.
void RunChooser::offerRaces(const QString& without) {
    const QFileInfo own(without);
    QFileInfoList files = own.dir().entryInfoList({"*.kvx"}, QDir::Files | QDir::Readable,
                                                  QDir::Name | QDir::IgnoreCase);
    for (const QString& path : m_workspace.recentFiles())
        if (path.endsWith(".kvx") && QFileInfo::exists(path))
            files.append(QFileInfo(path));
    for (const QFileInfo& file : files)
        if (file != own && itemOf(file.absoluteFilePath()) == nullptr) {
            offer(file.absoluteFilePath());
            m_unread.append(file.absoluteFilePath());
        }
    if (m_files->count() == 0) {
        auto* nothing =
            new QListWidgetItem(tr("No other race lies in this folder.\nChoose a file."), m_files);
        nothing->setFlags(Qt::NoItemFlags);
    }
}

QListWidgetItem* RunChooser::offer(const QString& path) {
    auto* item = new QListWidgetItem(QFileInfo(path).completeBaseName() + "\n ", m_files);
    item->setData(PathRole, path);
    item->setToolTip(path);
    return item;
}

QListWidgetItem* RunChooser::itemOf(const QString& path) const {
    for (int row = 0; row < m_files->count(); ++row)
        if (m_files->item(row)->data(PathRole).toString() == path)
            return m_files->item(row);
    return nullptr;
}

/// One file after the other, so that a dialog that is closed leaves nothing to be read behind it.
void RunChooser::readNext() {
    if (m_unread.isEmpty())
        return;
    const QString path = m_unread.takeFirst();
    m_reading.run(
        [path, clock = m_workspace.clock()]() -> std::shared_ptr<OtherRace> {
            try {
                RecognisedSplitFile read = recogniseSplitFile(
                    path.toStdString(), [](std::string_view) {}, clock);
                if (read.version)
                    return std::make_shared<OtherRace>(otherRace(std::move(read), path));
            } catch (const std::exception&) {
                return {}; // as good as no race
            }
            return {};
        },
        [this, path](const std::shared_ptr<OtherRace>& race) {
            std::optional<OtherRace> read;
            if (race)
                read = std::move(*race);
            if (path == m_own)
                takeOwn(read);
            else
                takeFacts(path, std::move(read));
            readNext();
        });
}

void RunChooser::takeOwn(const std::optional<OtherRace>& own) {
    if (own)
        m_traits = own->traits;
}

/// Nothing changes any more under the hands of who is at its runs already.
bool RunChooser::isBetter(const OtherRace& race) const {
    if (!m_race)
        return true;
    return !m_isChosen && !m_name->hasFocus() && !m_runs->hasFocus() &&
           likeness(m_traits, race.traits) > likeness(m_traits, m_race->traits);
}

void RunChooser::takeFacts(const QString& path, std::optional<OtherRace> race) {
    QListWidgetItem* item = itemOf(path);
    if (!race) {
        item->setText(QFileInfo(path).completeBaseName() + '\n' + tr("not a race"));
        item->setFlags(item->flags() & ~Qt::ItemIsEnabled);
        return;
    }
    item->setText(factsOf(*race, path));
    if (!isBetter(*race))
        return;
    m_shown = path;
    takeRace(std::move(*race));
    m_files->setCurrentItem(item);
}

void RunChooser::chooseRace(const QListWidgetItem* item) {
    if (item == nullptr || item->data(PathRole).toString() == m_shown)
        return;
    // The list chooses its first line by itself when it gets the focus.
    const bool isByItself = !m_race && QApplication::mouseButtons() == Qt::NoButton;
    if (isByItself && m_reading.isRunning())
        return;
    if (showRace(item->data(PathRole).toString()))
        return;
    m_shown.clear();
    m_race.reset(); // its runs would stand beside the name of the other one
    filter();
}

void RunChooser::chooseFile() {
    const QString path = QFileDialog::getOpenFileName(this, tr("Open a race"), QString(),
                                                      tr("Split files (*.kvx);;All files (*)"));
    if (path.isEmpty() || !showRace(path))
        return;
    QListWidgetItem* item = itemOf(path);
    if (item == nullptr)
        item = offer(path);
    item->setText(factsOf(*m_race, path));
    m_files->setCurrentItem(item);
}

bool RunChooser::showRace(const QString& path) {
    auto race = readOtherRace(m_workspace, path, this);
    if (!race)
        return false;
    m_shown = path;
    m_isChosen = true;
    takeRace(std::move(*race));
    return true;
}

void RunChooser::takeRace(OtherRace race) {
    m_race = std::move(race);
    filter();
}

void RunChooser::filter() {
    m_runs->clear();
    const std::vector<analyzerdata> none;
    const std::vector<analyzerdata>& runs = m_race ? m_race->set.alldata : none;
    for (std::size_t i = 0; i < runs.size(); ++i) {
        const QString line = lineOf(runs[i]);
        if (!line.contains(m_name->text().trimmed(), Qt::CaseInsensitive))
            continue;
        auto* item = new QListWidgetItem(line, m_runs);
        item->setData(ChoiceRole, QVariant::fromValue(i));
        item->setToolTip(line);
    }
    m_runs->setCurrentRow(0);
    updateButtons();
}

void RunChooser::updateButtons() {
    m_take->setEnabled(m_runs->currentItem() != nullptr);
}

const analyzerdata& RunChooser::run() const {
    const auto index = m_runs->currentItem()->data(ChoiceRole).value<std::size_t>();
    return m_race->set.alldata[index];
}

} // namespace kavela::desktop
