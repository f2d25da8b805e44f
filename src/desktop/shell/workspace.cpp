#include "desktop/shell/workspace.h"

#include "desktop/shell/alert_boxes.h"
#include "desktop/shell/command_palette.h"
#include "desktop/shell/file_names.h"
#include "preferences/start_up.h"

#include <QMessageBox>
#include <QPushButton>

namespace kavela::desktop {

namespace {
constexpr const char* RecentFilesKey = "recentFiles";
constexpr int MostRecentFiles = 12;
} // namespace

Workspace::Workspace(Preferences preferences, DiagnosticLog log, Clock clock)
    : m_preferences(std::move(preferences)), m_log(std::move(log)), m_clock(std::move(clock)) {}

void Workspace::startUp(const std::filesystem::path& libraryFolder) {
    kavela::startUp(m_preferences, libraryFolder, m_log);
}

void Workspace::setPreference(std::string_view key, const PreferenceValue& value) {
    if (m_preferences.value(key) == value)
        return;
    m_preferences.set(key, value);
    emit preferenceChanged(QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size())));
}

QStringList Workspace::remembered(const QString& key) const {
    QStringList values;
    for (const std::string& value : m_preferences.rawList(key.toStdString()))
        values.append(QString::fromStdString(value));
    return values;
}

void Workspace::remember(const QString& key, const QStringList& values) {
    std::vector<std::string> list;
    for (const QString& value : values)
        list.push_back(value.toStdString());
    m_preferences.set(key.toStdString(), list);
}

std::vector<Command> Workspace::programCommands() const {
    return m_programCommands ? m_programCommands() : std::vector<Command>();
}

bool Workspace::isPutOff(const QString& path) const {
    return m_putOff.contains(canonicalPath(path));
}

void Workspace::setPutOff(const QString& path, bool isPutOff) {
    if (isPutOff)
        m_putOff.insert(canonicalPath(path));
    else
        m_putOff.remove(canonicalPath(path));
}

QStringList Workspace::recentFiles() const {
    return remembered(RecentFilesKey);
}

void Workspace::addRecentFile(const QString& path) {
    QStringList files = recentFiles();
    files.removeAll(path);
    files.prepend(path);
    remember(RecentFilesKey, files.mid(0, MostRecentFiles));
    emit recentFilesChanged();
}

void Workspace::forgetRecentFile(const QString& path) {
    QStringList files = recentFiles();
    files.removeAll(path);
    remember(RecentFilesKey, files);
    emit recentFilesChanged();
}

void Workspace::showAlert(const Alert& alert, QWidget* over) const {
    if (m_alerts)
        m_alerts->show(alert);
    else
        AlertBoxes(over).show(alert);
}

namespace {

bool isAgreed(const Alert& question, const QString& yes, bool isDefault, QWidget* over) {
    QMessageBox box(QMessageBox::Question, QString::fromStdString(question.title),
                    QString::fromStdString(question.title.empty() ? question.text : question.title),
                    QMessageBox::Cancel, over);
    if (!question.title.empty())
        box.setInformativeText(QString::fromStdString(question.text));
    box.setTextFormat(Qt::PlainText);
    const QPushButton* const agree =
        box.addButton(yes, isDefault ? QMessageBox::AcceptRole : QMessageBox::DestructiveRole);
    if (!isDefault)
        box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == agree;
}

} // namespace

bool Workspace::ask(const Alert& question, const QString& yes, QWidget* over) const {
    return m_answer ? m_answer(question) : isAgreed(question, yes, true, over);
}

bool Workspace::askBeforeLoss(const Alert& question, const QString& yes, QWidget* over) const {
    return m_answer ? m_answer(question) : isAgreed(question, yes, false, over);
}

int Workspace::choose(const Alert& question, const QStringList& choices, QWidget* over) const {
    if (m_choice)
        return m_choice(question, choices);
    QMessageBox box(QMessageBox::Question, QString::fromStdString(question.title),
                    QString::fromStdString(question.title.empty() ? question.text : question.title),
                    QMessageBox::Cancel, over);
    if (!question.title.empty())
        box.setInformativeText(QString::fromStdString(question.text));
    box.setTextFormat(Qt::PlainText);
    QList<QAbstractButton*> buttons;
    for (const QString& choice : choices)
        buttons.append(box.addButton(choice, QMessageBox::ActionRole));
    box.setDefaultButton(qobject_cast<QPushButton*>(buttons.constFirst()));
    box.exec();
    return static_cast<int>(buttons.indexOf(box.clickedButton()));
}

int Workspace::chooseWay(const Alert& question, const Ways& ways, QWidget* over) const {
    if (m_choice)
        return m_choice(question, ways.texts);
    if (m_answer && !ways.isNews)
        return m_answer(question) ? 0 : ways.onEscape;
    if (m_alerts) {
        m_alerts->show(question);
        return ways.onEscape;
    }
    QMessageBox box(ways.isNews ? QMessageBox::Warning : QMessageBox::Question,
                    QString::fromStdString(question.title), QString::fromStdString(question.title),
                    QMessageBox::NoButton, over);
    box.setInformativeText(QString::fromStdString(question.text));
    box.setTextFormat(Qt::PlainText);
    QList<QPushButton*> buttons;
    for (const QString& text : ways.texts)
        buttons.append(box.addButton(text, QMessageBox::ActionRole));
    box.setDefaultButton(buttons[ways.onEnter]);
    box.setEscapeButton(buttons[ways.onEscape]);
    box.exec();
    for (int way = 0; way < buttons.size(); ++way)
        if (box.clickedButton() == buttons[way])
            return way;
    return ways.onEscape;
}

Workspace::Leaving Workspace::askToSave(const QString& document, QWidget* over) const {
    const QString question = tr("Save the changes to %1?").arg(document);
    if (m_answer)
        return m_answer({"", question.toStdString()}) ? Leaving::Save : Leaving::Discard;
    QMessageBox box(QMessageBox::Question, QString(), question,
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, over);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return Leaving::Save;
    case QMessageBox::Discard:
        return Leaving::Discard;
    default:
        return Leaving::Stay;
    }
}

} // namespace kavela::desktop
