#pragma once

#include "app/preferences.h"
#include "common/alerts.h"
#include "common/log.h"
#include "common/reference_date.h"

#include <QObject>
#include <QStringList>

#include <filesystem>

class QWidget;

namespace kavela::desktop {

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

    /// Alerts go to this instead of message boxes, as in tests.
    void setAlerts(Alerts* alerts) { m_alerts = alerts; }
    void showAlert(const Alert& alert, QWidget* over) const;

signals:
    void preferenceChanged(const QString& key);
    void recentFilesChanged();
    /// A window wants a file opened in whichever tool it belongs to.
    void openRequested(const QString& path);

private:
    void storeRecentFiles(const QStringList& files);

    Preferences m_preferences;
    DiagnosticLog m_log;
    Clock m_clock;
    Alerts* m_alerts = nullptr;
};

} // namespace kavela::desktop
