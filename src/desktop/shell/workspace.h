#pragma once

#include "common/alerts.h"
#include "common/log.h"
#include "common/reference_date.h"
#include "desktop/shell/open_files.h"
#include "preferences/preferences.h"
#include "update/update_source.h"

#include <QObject>
#include <QSet>
#include <QStringList>

#include <filesystem>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

class QWidget;

namespace kavela::desktop {

struct Command;

/// What the windows share: preferences and their changes, the log, recent files, alerts.
class Workspace : public QObject {
    Q_OBJECT

public:
    Workspace(Preferences preferences, DiagnosticLog log, Clock clock);

    [[nodiscard]] const Preferences& preferences() const { return m_preferences; }
    [[nodiscard]] const DiagnosticLog& log() const { return m_log; }
    [[nodiscard]] const Clock& clock() const { return m_clock; }

    /// Start-up: missing preferences are created, obsolete settings files deleted.
    void startUp(const std::filesystem::path& libraryFolder);

    void setPreference(std::string_view key, const PreferenceValue& value);

    /// Files opened before, the latest first.
    [[nodiscard]] QStringList recentFiles() const;
    void addRecentFile(const QString& path);
    void forgetRecentFile(const QString& path);

    /// What windows remember from one start to the next, beside the preferences: places, columns,
    /// open files. Empty where nothing was remembered.
    [[nodiscard]] QStringList remembered(const QString& key) const;
    void remember(const QString& key, const QStringList& values);

    /// What every window's search offers beside its own: the tools of the program.
    using ProgramCommands = std::function<std::vector<Command>()>;
    void setProgramCommands(ProgramCommands commands) { m_programCommands = std::move(commands); }
    [[nodiscard]] std::vector<Command> programCommands() const;

    /// Where newer versions of the program are told of; nothing where they are not looked for, and
    /// nothing of it is shown then.
    void setUpdateSource(std::optional<update::UpdateSource> source) {
        m_updateSource = std::move(source);
    }
    [[nodiscard]] const std::optional<update::UpdateSource>& updateSource() const {
        return m_updateSource;
    }

    /// Whether the work kept for a document was put off since the program started: it is not asked
    /// for again before the next start.
    [[nodiscard]] bool isPutOff(const QString& path) const;
    void setPutOff(const QString& path, bool isPutOff);

    /// The files that are being edited.
    [[nodiscard]] OpenFiles& openFiles() { return m_openFiles; }

    /// Alerts go to this instead of message boxes, as in tests.
    void setAlerts(Alerts* alerts) { m_alerts = alerts; }
    void showAlert(const Alert& alert, QWidget* over) const;

    /// Answers questions in place of message boxes, as in tests: true for the yes.
    using Answer = std::function<bool(const Alert& question)>;
    void setAnswer(Answer answer) { m_answer = std::move(answer); }
    /// Asks a question; `yes` is the text of the button that agrees. Anything else, such as Escape,
    /// is a no.
    [[nodiscard]] bool ask(const Alert& question, const QString& yes, QWidget* over) const;

    /// Chooses in place of message boxes, as in tests: the place of one of the choices.
    using Choice = std::function<int(const Alert& question, const QStringList& choices)>;
    void setChoice(Choice choice) { m_choice = std::move(choice); }
    /// Asks which of several ways to go, the most careful one first; Enter takes that. -1 for none,
    /// such as by Escape.
    [[nodiscard]] int choose(const Alert& question, const QStringList& choices,
                             QWidget* over) const;

    /// Ways to go on: what Enter and Escape take, by their places.
    struct Ways {
        QStringList texts;
        int onEnter = 0;
        int onEscape = 0;
        bool isNews = false; ///< it is told that something failed, and not asked for consent
    };
    /// Asks how to go on; one of the ways is always gone.
    [[nodiscard]] int chooseWay(const Alert& question, const Ways& ways, QWidget* over) const;

    /// The same before much is lost: Enter is a no too.
    [[nodiscard]] bool askBeforeLoss(const Alert& question, const QString& yes,
                                     QWidget* over) const;

    enum class Leaving { Save, Discard, Stay };
    /// Asks what to do with unsaved work before a window closes.
    [[nodiscard]] Leaving askToSave(const QString& document, QWidget* over) const;

signals:
    void preferenceChanged(const QString& key);
    void recentFilesChanged();
    /// A window wants a file opened in whichever tool it belongs to.
    void openRequested(const QString& path);
    /// The coach wants to know, in a window, whether there is a newer version of the program.
    void newerVersionRequested(QWidget* over);
    /// The coach wants the guide to be opened where it is about the windows of a kind.
    void guideRequested(const QString& kind);

private:
    Preferences m_preferences;
    DiagnosticLog m_log;
    Clock m_clock;
    OpenFiles m_openFiles;
    QSet<QString> m_putOff; ///< canonical paths
    ProgramCommands m_programCommands;
    std::optional<update::UpdateSource> m_updateSource;
    Alerts* m_alerts = nullptr;
    Answer m_answer;
    Choice m_choice;
};

/// Alerts of the plain libraries, shown through the workspace over a window.
class WorkspaceAlerts : public Alerts {
public:
    WorkspaceAlerts(const Workspace& workspace, QWidget* over)
        : m_workspace(workspace), m_over(over) {}
    void show(const Alert& alert) override { m_workspace.showAlert(alert, m_over); }

private:
    const Workspace& m_workspace;
    QWidget* m_over;
};

} // namespace kavela::desktop
