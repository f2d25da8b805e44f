#include "desktop/motion/motion_window.h"

#include "desktop/motion/cursor_table.h"
#include "desktop/motion/motion_actions.h"
#include "desktop/motion/motion_charts.h"
#include "desktop/motion/older_recordings.h"
#include "desktop/motion/recording_list.h"
#include "desktop/motion/recording_panel.h"
#include "desktop/shell/dropped_files.h"
#include "desktop/shell/empty_page.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

MotionWindow::MotionWindow(Workspace& workspace)
    : ToolWindow(workspace, nullptr, {"motion", tr("Recordings"), "kvb"}),
      m_recordings(workspace.log()),
      m_conversions(new MotionConversions(m_recordings, workspace, *this)) {
    makeParts();
    m_alignment = new MotionAlignment(m_recordings, *m_list, *m_charts, this);
    m_actions = new MotionActions(*this, workspace);
    connectParts();
    showChoice();
    showTitle();
}

MotionWindow::~MotionWindow() {
    m_recordings.disconnect(this);
    m_conversions->disconnect(this);
    m_list->disconnect(this);
    m_charts->disconnect(this);
}

void MotionWindow::makeParts() {
    m_charts = new MotionCharts(m_recordings);
    m_pages = new QStackedWidget;
    m_pages->addWidget(
        new EmptyPage(tr("Drop raw recordings (.kvb) here"),
                      tr("Several are laid over each other. They are only read: converting "
                         "writes a new file."),
                      {{tr("Open recordings…"), [this] { chooseFiles(); }}}));
    m_pages->addWidget(m_charts);
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    m_side = makeSide();
    splitter->addWidget(m_side);
    splitter->addWidget(m_pages);
    splitter->setStretchFactor(1, 1);
    shareSizes(*splitter, {350, 930});
    rememberSizes(*splitter, workspace(), "motion");
    setCentralWidget(splitter);
    m_progress = new QProgressBar;
    m_progress->setMaximumWidth(grown(*this, 180));
    m_progress->hide();
    m_status = new QLabel;
    m_openConverted = new QPushButton(tr("Open it"));
    m_openConverted->hide();
    statusBar()->addWidget(m_progress);
    statusBar()->addWidget(m_status);
    statusBar()->addWidget(m_openConverted);
}

QWidget* MotionWindow::makeSide() {
    m_list = new RecordingList(m_recordings);
    m_panel = new RecordingPanel;
    m_values = new CursorTable;
    m_convert = new QPushButton(tr("Convert"));
    m_convert->setToolTip(tr("Writes strokes and turns as a processed session (.bms) beside the "
                             "recording"));
    m_convertAll = new QPushButton(tr("Convert all ticked"));
    const auto heading = [this](const QString& text) {
        auto* label = new QLabel(text);
        QFont bold = font();
        bold.setWeight(QFont::DemiBold);
        label->setFont(bold);
        return label;
    };
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_convert);
    buttons->addWidget(m_convertAll);
    buttons->addStretch();
    auto* side = new QWidget;
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(theme::Spacing, theme::Spacing, theme::Spacing, theme::Spacing);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_list, 3);
    column->addWidget(m_panel);
    column->addLayout(buttons);
    column->addWidget(heading(tr("At the cursor")));
    column->addWidget(m_values, 4);
    side->setMinimumWidth(grown(*this, 280));
    return side;
}

void MotionWindow::connectParts() {
    connect(&m_recordings, &MotionRecordings::reading, this, &MotionWindow::showReading);
    connect(&m_recordings, &MotionRecordings::readingEnded, this, [this] {
        m_progress->hide();
        tell(QString());
    });
    connect(
        &m_recordings, &MotionRecordings::refused, this,
        [this](const QString& path, const QString& reason) {
            workspace().forgetRecentFile(path);
            workspace().showAlert({conversion_messages::NotConverted, reason.toStdString()}, this);
        });
    connect(
        &m_recordings, &MotionRecordings::refusedAsOlder, this,
        [this](const QString& path) {
            convertOlderRecording(path, workspace(), this, m_upgrading,
                                  [this](const std::optional<QString>& converted) {
                                      if (converted)
                                          m_recordings.read({*converted});
                                  });
        },
        // A question is no place to wait in for the recordings that are read meanwhile.
        Qt::QueuedConnection);
    connect(&m_recordings, &MotionRecordings::added, this, [this](std::size_t index) {
        workspace().addRecentFile(
            QString::fromStdString(m_recordings.all()[index]->data.url.string()));
        m_list->choose(index);
    });
    connect(&m_recordings, &MotionRecordings::listChanged, this, [this] {
        showTitle();
        showChoice();
        emit recordingsChanged();
    });
    connect(&m_recordings, &MotionRecordings::analysisChanged, this, &MotionWindow::showChoice);
    connect(&m_recordings, &MotionRecordings::shiftsChanged, this, &MotionWindow::showChoice);
    connect(&m_recordings, &MotionRecordings::ticksChanged, this, &MotionWindow::showChoice);
    connect(m_conversions, &MotionConversions::began, this, &MotionWindow::showConverting);
    connect(m_conversions, &MotionConversions::ended, this, &MotionWindow::showConverted);
    connect(m_alignment, &MotionAlignment::told, this, &MotionWindow::tell);
    connect(m_list, &RecordingList::chosen, this, &MotionWindow::showChoice);
    connect(m_panel, &RecordingPanel::shiftEntered, this, [this](double seconds) {
        if (const auto index = m_list->current())
            m_recordings.setShift(*index, seconds);
    });
    connect(m_panel, &RecordingPanel::profileEntered, this, [this](const MotionProfile& profile) {
        if (const auto index = m_list->current())
            m_recordings.setProfile(*index, profile);
    });
    connect(m_charts, &MotionCharts::cursorMoved, m_values, &CursorTable::showAt);
    connect(m_charts, &MotionCharts::shownChanged, this, &MotionWindow::showValues);
    connect(m_charts, &MotionCharts::shiftDragged, this, [this](double seconds) {
        if (const auto index = m_list->current())
            m_recordings.dragShift(*index, m_recordings.all()[*index]->shift + seconds);
    });
    connect(m_charts, &MotionCharts::shiftDragEnded, this, [this] { m_recordings.endDrag(); });
    connect(m_charts, &MotionCharts::saved, this,
            [this](const QString& path) { tell(tr("Saved %1").arg(QFileInfo(path).fileName())); });
    connect(m_charts, &MotionCharts::savingFailed, this,
            [this](const QString&, const QString& reason) {
                workspace().log()("Failed to create file");
                workspace().showAlert({"Failed to create file", reason.toStdString()}, this);
            });
    connect(m_convert, &QPushButton::clicked, this, &MotionWindow::convertCurrent);
    connect(m_convertAll, &QPushButton::clicked, this, &MotionWindow::convertTicked);
    connect(m_openConverted, &QPushButton::clicked, this, &MotionWindow::openConverted);
}

void MotionWindow::open(const QStringList& paths) {
    QStringList recordings;
    QStringList others;
    for (const QString& path : paths)
        (QFileInfo(path).suffix().compare("kvb", Qt::CaseInsensitive) == 0 ? recordings : others)
            << path;
    m_recordings.read(recordings);
    if (!others.isEmpty())
        emit openRequested(others);
}

QStringList MotionWindow::paths() const {
    QStringList paths;
    for (const auto& recording : m_recordings.all())
        paths << QString::fromStdString(recording->data.url.string());
    return paths;
}

QString MotionWindow::status() const {
    return m_status->text();
}

void MotionWindow::chooseFiles() {
    const QString folder = QFileInfo(paths().value(0)).path();
    const QStringList files = QFileDialog::getOpenFileNames(
        this, tr("Open recordings"), folder, tr("Raw recordings (*.kvb);;All files (*)"));
    m_recordings.read(files);
}

void MotionWindow::showReading(const QString& name, int number, int count) {
    m_progress->setRange(0, count > 1 ? count : 0);
    m_progress->setValue(number - 1);
    m_progress->setFormat(tr("%1 of %2").arg(number).arg(count));
    m_progress->show();
    tell(tr("Reading %1…").arg(name));
}

void MotionWindow::showChoice() {
    const auto index = m_list->current();
    const auto& all = m_recordings.all();
    m_panel->show(index ? all[*index].get() : nullptr);
    m_charts->setMarked(index);
    m_convert->setEnabled(index.has_value());
    m_convertAll->setEnabled(
        std::ranges::any_of(all, [](const auto& recording) { return recording->data.shows; }));
    m_pages->setCurrentIndex(all.empty() ? 0 : 1);
    m_side->setVisible(!all.empty());
    showValues();
}

std::vector<MotionRecordings::Recording> MotionWindow::ticked() const {
    std::vector<MotionRecordings::Recording> ticked;
    std::ranges::copy_if(m_recordings.all(), std::back_inserter(ticked),
                         [](const auto& recording) { return recording->data.shows; });
    return ticked;
}

void MotionWindow::showValues() {
    m_values->setContent(ticked(), m_charts->shownKinds());
    if (m_actions)
        m_actions->refresh();
}

void MotionWindow::showTitle() {
    const auto& all = m_recordings.all();
    QString name = tr("Raw recordings");
    if (!all.empty())
        name = QString::fromStdString(all.front()->data.name);
    if (all.size() > 1)
        name = tr("%1 and %2 more").arg(name).arg(all.size() - 1);
    setWindowTitle(name + QStringLiteral(" – Kavela"));
}

void MotionWindow::removeCurrent() {
    m_list->removeCurrent();
}

void MotionWindow::convertCurrent() {
    if (const auto index = m_list->current())
        m_conversions->add({m_recordings.all()[*index]});
}

void MotionWindow::convertTicked() {
    m_conversions->add(ticked());
}

void MotionWindow::showConverting() {
    tell(conversion_messages::Converting);
    m_progress->setRange(0, 0);
    m_progress->show();
}

void MotionWindow::showConverted(const QString& text, const QString& path) {
    m_progress->hide();
    tell(text);
    if (path.isEmpty())
        return;
    m_openConverted->show();
    emit convertedTo(path);
}

void MotionWindow::openConverted() {
    if (hasConverted())
        emit openRequested({m_conversions->last()});
}

void MotionWindow::tell(const QString& text) {
    m_status->setText(text);
    m_openConverted->hide();
}

void MotionWindow::takeFiles(const QStringList& paths) {
    open(paths);
}

bool MotionWindow::open(const QString& path) {
    open(QStringList(path));
    return true;
}

} // namespace kavela::desktop
