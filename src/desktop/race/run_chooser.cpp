#include "desktop/race/run_chooser.h"

#include "common/number_text.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"
#include "splitdata/loader.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

constexpr int RunRole = Qt::UserRole;

QString qtText(const std::string& text) {
    return QString::fromStdString(text);
}

QString lineOf(const analyzerdata& run) {
    QStringList parts{qtText(run.name), qtText(run.category), qtText(run.phase)};
    parts.removeAll(QString());
    const double total = run.sectioninfo.totaltime;
    return parts.join(" · ") + (total == 0 ? "" : "   " + qtText(hundredthsText(total)) + " s");
}

} // namespace

std::optional<OtherRace> readOtherRace(Workspace& workspace, const QString& path, QWidget* over) {
    const std::filesystem::path file = path.toStdString();
    RecognisedSplitFile read = recogniseSplitFile(file, workspace.log(), workspace.clock());
    if (!read.version) {
        WorkspaceAlerts alerts(workspace, over);
        reportIncompatible(read, workspace.log(), alerts);
        return std::nullopt;
    }
    const infodata031& info = read.document.info;
    const std::string& name = info.title.empty() ? info.event : info.title;
    QString title = name.empty() ? QFileInfo(path).completeBaseName() : qtText(name);
    return OtherRace{title, makeRaceSet(std::move(read.document), file)};
}

RunChooser::RunChooser(Workspace& workspace, const QString& without, QWidget* parent)
    : QDialog(parent),
      m_workspace(workspace),
      m_files(new QComboBox),
      m_name(new QLineEdit),
      m_runs(new QListWidget) {
    setWindowTitle(tr("Compare with a run of another race"));
    m_files->setObjectName("files");
    m_runs->setObjectName("runs");
    m_name->setPlaceholderText(tr("Name"));
    m_name->setClearButtonEnabled(true);
    auto* browse = new QPushButton(tr("&Other file…"));
    auto* files = new QHBoxLayout;
    files->addWidget(m_files, 1);
    files->addWidget(browse);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_take = buttons->button(QDialogButtonBox::Ok);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("Compare"));
    auto* column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addLayout(files);
    column->addWidget(m_name);
    column->addWidget(m_runs, 1);
    column->addWidget(buttons);

    for (const QString& path : m_workspace.recentFiles())
        if (path != without && path.endsWith(".kvx") && QFileInfo::exists(path))
            m_files->addItem(QFileInfo(path).completeBaseName(), path);
    m_files->setPlaceholderText(tr("Choose a race"));
    m_files->setCurrentIndex(-1);
    connect(m_files, &QComboBox::activated, this,
            [this] { (void)showRace(m_files->currentData().toString()); });
    connect(browse, &QPushButton::clicked, this, &RunChooser::chooseFile);
    connect(m_name, &QLineEdit::textChanged, this, &RunChooser::filter);
    connect(m_runs, &QListWidget::itemSelectionChanged, this, &RunChooser::updateButtons);
    connect(m_runs, &QListWidget::itemActivated, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(480, 480);
    updateButtons();
    if (m_files->count() > 0) {
        m_files->setCurrentIndex(0);
        (void)showRace(m_files->currentData().toString());
    }
}

void RunChooser::chooseFile() {
    const QString path = QFileDialog::getOpenFileName(this, tr("Open a race"), QString(),
                                                      tr("Split files (*.kvx);;All files (*)"));
    if (path.isEmpty() || !showRace(path))
        return;
    m_files->addItem(QFileInfo(path).completeBaseName(), path);
    m_files->setCurrentIndex(m_files->count() - 1);
}

bool RunChooser::showRace(const QString& path) {
    auto race = readOtherRace(m_workspace, path, this);
    if (!race)
        return false;
    m_race = std::move(race);
    filter();
    return true;
}

void RunChooser::filter() {
    m_runs->clear();
    if (!m_race)
        return;
    const std::vector<analyzerdata>& runs = m_race->set.alldata;
    for (std::size_t i = 0; i < runs.size(); ++i) {
        const QString line = lineOf(runs[i]);
        if (!line.contains(m_name->text().trimmed(), Qt::CaseInsensitive))
            continue;
        auto* item = new QListWidgetItem(line, m_runs);
        item->setData(RunRole, QVariant::fromValue(i));
    }
    m_runs->setCurrentRow(0);
    updateButtons();
}

void RunChooser::updateButtons() {
    m_take->setEnabled(m_runs->currentItem() != nullptr);
}

const analyzerdata& RunChooser::run() const {
    const auto index = m_runs->currentItem()->data(RunRole).value<std::size_t>();
    return m_race->set.alldata[index];
}

} // namespace kavela::desktop
