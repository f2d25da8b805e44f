#include "desktop/shell/settings_window.h"

#include "common/text.h"
#include "desktop/shell/fault_label.h"
#include "desktop/shell/language.h"
#include "desktop/shell/number_box.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/scheme.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/update_choice.h"
#include "desktop/shell/workspace.h"
#include "language/languages.h"
#include "video/machine_memory.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QUrl>

#include <algorithm>

namespace kavela::desktop {

namespace {

/// One page of the settings: the preferences it shows, in this order.
struct Page {
    const char* title;
    std::vector<std::string_view> keys;
};

const std::vector<Page>& pages() {
    static const std::vector<Page> Pages{
        {QT_TRANSLATE_NOOP("kavela::desktop::SettingsWindow", "Look and tables"),
         {"colorMode", "penaltiesIncluded", "penaltiesVisible"}},
        {QT_TRANSLATE_NOOP("kavela::desktop::SettingsWindow", "Video"),
         {"autoplaynext", "startinCMTime", "playonclick", "tagmodeplaysjustpart",
          "coachswordvisible"}},
        {QT_TRANSLATE_NOOP("kavela::desktop::SettingsWindow", "Split taking"),
         {"predeterminatedsplits", "savetoCSV", "savetoPDF", "savedtags", "savedTLreasons"}},
        {QT_TRANSLATE_NOOP("kavela::desktop::SettingsWindow", "Boat motion"),
         {"fullscreenBMRoll", "fullscreenBMPitch", "fullscreenHR", "fullscreenBMScatter",
          "normalizedBMvalues", "gaugeImpulse", "gaugeStrokerate"}},
        {QT_TRANSLATE_NOOP("kavela::desktop::SettingsWindow", "At start"),
         {"autoloadMainFolderURL", "autoloadPlanning", "autoloadPlanningOnline",
          "autoloadPlanningURL", "planningOnline", "autoloadTestMonitor"}},
    };
    return Pages;
}

const PreferenceEntry& entryOf(std::string_view key) {
    const auto table = preferenceTable();
    return *std::find_if(table.begin(), table.end(),
                         [&](const PreferenceEntry& entry) { return entry.key == key; });
}

QString meaningOf(const PreferenceEntry& entry) {
    return qtText(translated(entry.meaning));
}

/// Nothing to choose, and worth knowing where memory is short.
QLabel* frameMemoryNote() {
    const auto text = [](std::size_t bytes) {
        return QLocale().formattedDataSize(static_cast<qint64>(bytes), 1,
                                           QLocale::DataSizeTraditionalFormat);
    };
    const std::size_t machine = machineMemory();
    auto* note = new QLabel(SettingsWindow::tr("The decoded frames of all open films together take "
                                               "at most %1, and never more than a quarter of this "
                                               "computer's memory of %2.")
                                .arg(text(frameMemory(machine)), text(machine)));
    note->setObjectName("frameMemory");
    note->setWordWrap(true);
    return note;
}

} // namespace

SettingsWindow::SettingsWindow(Workspace& workspace, QWidget* parent)
    : QDialog(parent), m_workspace(workspace) {
    setWindowTitle(tr("Settings"));
    auto* tabs = new QTabWidget;
    for (const Page& page : pages()) {
        auto* sheet = new QWidget;
        auto* form = new QVBoxLayout(sheet);
        form->setContentsMargins(theme::LargeSpacing, theme::LargeSpacing, theme::LargeSpacing,
                                 theme::LargeSpacing);
        form->setSpacing(theme::LargeSpacing);
        if (tabs->count() == 0)
            addLook(*form);
        for (const std::string_view key : page.keys)
            form->addWidget(editor(entryOf(key)));
        if (std::ranges::find(page.keys, "startinCMTime") != page.keys.end())
            form->addWidget(frameMemoryNote());
        if (std::ranges::find(page.keys, "autoloadTestMonitor") != page.keys.end() &&
            m_workspace.updateSource())
            form->addWidget(newerVersionEditor());
        form->addStretch(1);
        tabs->addTab(sheet, tr(page.title));
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::accept);
    auto* note = new QLabel(
        tr("Every change takes effect at once, another language when Kavela starts again."));
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);
    auto* column = new QVBoxLayout(this);
    column->addWidget(tabs, 1);
    column->addWidget(note);
    column->addWidget(buttons);
    resize(560, 520);
}

QWidget* SettingsWindow::editor(const PreferenceEntry& entry) {
    if (entry.key == "colorMode")
        return colourModeEditor();
    switch (entry.kind()) {
    case PreferenceKind::Bool:
        return switchEditor(entry);
    case PreferenceKind::Integer:
        return numberEditor(entry);
    case PreferenceKind::Array:
        return listEditor(entry);
    case PreferenceKind::Url:
    case PreferenceKind::String:
        break;
    }
    return urlEditor(entry);
}

QWidget* SettingsWindow::schemeEditor() {
    auto* box = new QWidget;
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    auto* schemes = new QComboBox;
    schemes->setObjectName("scheme");
    schemes->addItems({tr("As the system"), tr("Light"), tr("Dark")});
    schemes->setCurrentIndex(static_cast<int>(chosenScheme(m_workspace)));
    connect(schemes, &QComboBox::activated, this,
            [this](int chosen) { chooseScheme(m_workspace, static_cast<Scheme>(chosen)); });
    if (qEnvironmentVariableIsSet("KAVELA_SCHEME"))
        schemes->setToolTip(tr("The environment variable KAVELA_SCHEME decides for this session."));
    row->addWidget(new QLabel(tr("Windows")));
    row->addWidget(schemes, 1);
    return box;
}

QWidget* SettingsWindow::newerVersionEditor() {
    auto* box = new QWidget;
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    auto* mayLook = new QCheckBox(tr("Look for a newer version once a day"));
    mayLook->setObjectName("mayLook");
    mayLook->setChecked(lookHabit(m_workspace).mayLook.value_or(false));
    connect(mayLook, &QCheckBox::toggled, this, [this](bool on) { setMayLook(m_workspace, on); });
    auto* row = new QHBoxLayout;
    auto* address = new QLineEdit(chosenUpdateAddress(m_workspace));
    address->setObjectName("updateAddress");
    address->setPlaceholderText(qtText(m_workspace.updateSource()->manifest.text()));
    auto* caption = new QLabel(tr("Where it is looked for"));
    caption->setBuddy(address);
    row->addWidget(caption);
    row->addWidget(address, 1);
    auto* fault = new FaultLabel;
    connect(address, &QLineEdit::editingFinished, this, [this, address, fault] {
        const bool isTaken = chooseUpdateAddress(m_workspace, address->text());
        fault->tell(isTaken ? QString()
                            : tr("This is no https address. It is looked for where it was."));
    });
    column->addWidget(mayLook);
    column->addLayout(row);
    column->addWidget(fault);
    return box;
}

void SettingsWindow::addLook(QVBoxLayout& form) {
    form.addWidget(languageEditor());
    form.addWidget(schemeEditor());
}

QWidget* SettingsWindow::languageEditor() {
    auto* box = new QWidget;
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    auto* choice = new QComboBox;
    choice->setObjectName("language");
    choice->addItem(tr("As the system"), QString());
    choice->addItem(QStringLiteral("English"), qtText(English));
    for (const Language& language : offeredLanguages())
        choice->addItem(qtText(language.name), qtText(language.code));
    choice->setCurrentIndex(std::max(0, choice->findData(chosenLanguage(m_workspace))));
    connect(choice, &QComboBox::activated, this,
            [this, choice] { chooseLanguage(m_workspace, choice->currentData().toString()); });
    if (qEnvironmentVariableIsSet("KAVELA_LANGUAGE"))
        choice->setToolTip(
            tr("The environment variable KAVELA_LANGUAGE decides for this session."));
    row->addWidget(new QLabel(tr("Language")));
    row->addWidget(choice, 1);
    return box;
}

QWidget* SettingsWindow::colourModeEditor() {
    auto* box = new QWidget;
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    auto* modes = new QComboBox;
    modes->setObjectName("colorMode");
    modes->addItem(tr("Race: best green, others red"), "Race");
    modes->addItem(tr("Training: cells tinted by rank"), "Training");
    modes->setCurrentIndex(m_workspace.preferences().string("colorMode") == "Training" ? 1 : 0);
    connect(modes, &QComboBox::currentIndexChanged, this, [this, modes] {
        m_workspace.setPreference("colorMode", modes->currentData().toString().toStdString());
    });
    row->addWidget(new QLabel(tr("Colours of the split table")));
    row->addWidget(modes, 1);
    return box;
}

QWidget* SettingsWindow::switchEditor(const PreferenceEntry& entry) {
    auto* box = new QCheckBox(meaningOf(entry));
    box->setObjectName(qtText(entry.key));
    box->setChecked(m_workspace.preferences().boolean(entry.key));
    connect(box, &QCheckBox::toggled, this,
            [this, key = entry.key](bool on) { m_workspace.setPreference(key, on); });
    return box;
}

QWidget* SettingsWindow::numberEditor(const PreferenceEntry& entry) {
    constexpr int MostSplits = 50;
    auto* box = new QWidget;
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    auto* number = new WholeBox;
    number->setObjectName(qtText(entry.key));
    number->setRange(1, MostSplits);
    number->setValue(static_cast<int>(m_workspace.preferences().integer(entry.key)));
    connect(number, &WholeBox::valueChanged, this, [this, key = entry.key](int value) {
        m_workspace.setPreference(key, std::int64_t{value});
    });
    row->addWidget(new QLabel(meaningOf(entry)), 1);
    row->addWidget(number);
    return box;
}

QWidget* SettingsWindow::listEditor(const PreferenceEntry& entry) {
    auto* box = new QWidget;
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(new QLabel(meaningOf(entry) + ' ' + tr("One a line.")));
    auto* lines = new QPlainTextEdit;
    lines->setObjectName(qtText(entry.key));
    lines->setTabChangesFocus(true);
    QStringList list;
    for (const std::string& line : m_workspace.preferences().array(entry.key))
        list.append(QString::fromStdString(line));
    lines->setPlainText(list.join('\n'));
    connect(lines, &QPlainTextEdit::textChanged, this, [this, lines, key = entry.key] {
        std::vector<std::string> values;
        for (const QString& line : lines->toPlainText().split('\n', Qt::SkipEmptyParts))
            values.push_back(line.trimmed().toStdString());
        m_workspace.setPreference(key, values);
    });
    column->addWidget(lines);
    return box;
}

QWidget* SettingsWindow::urlEditor(const PreferenceEntry& entry) {
    const bool isFolder = entry.key == "autoloadMainFolderURL";
    auto* box = new QWidget;
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    auto* place = new QLabel;
    place->setForegroundRole(QPalette::PlaceholderText);
    const auto show = [this, place, key = entry.key] {
        const auto url = m_workspace.preferences().url(key);
        place->setText(url ? QUrl(QString::fromStdString(*url)).toLocalFile() : tr("none"));
    };
    show();
    auto* choose = new QPushButton(tr("Choose…"));
    connect(choose, &QPushButton::clicked, this, [this, show, isFolder, key = entry.key] {
        const QString path = isFolder
                                 ? QFileDialog::getExistingDirectory(this, tr("Choose a folder"))
                                 : QFileDialog::getOpenFileName(this, tr("Choose a file"));
        if (path.isEmpty())
            return;
        m_workspace.setPreference(
            key, PreferenceUrl{QUrl::fromLocalFile(path).toString().toStdString()});
        show();
    });
    auto* clear = new QPushButton(tr("None"));
    connect(clear, &QPushButton::clicked, this, [this, show, key = entry.key] {
        m_workspace.setPreference(key, PreferenceUrl{});
        show();
    });
    row->addWidget(new QLabel(meaningOf(entry)));
    row->addWidget(place, 1);
    row->addWidget(choose);
    row->addWidget(clear);
    return box;
}

} // namespace kavela::desktop
