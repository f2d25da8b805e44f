#pragma once

#include "desktop/page/phone_page_dialog.h"
#include "desktop/shell/background_work.h"

#include <QObject>

namespace kavela::desktop {

class Workspace;

/// What one page is made of.
struct PhonePageJob {
    QStringList races;
    page::PageChoice choice;
    QString target;
    bool wantsClips = false;
};

/// Makes the page of an athlete for a telephone from saved split files, beside the window, and
/// shows where it is.
class PhonePages : public QObject {
    Q_OBJECT

public:
    /// Both must outlive it; dialogs stand over the window.
    PhonePages(Workspace& workspace, QWidget& window);

    /// Asks whose page, then for its file, and writes it.
    void ask(PhonePageRequest request);
    /// Ends with written() or failed(), or neither where the coach stops it. Never over a race that
    /// the page is made from.
    void write(const PhonePageJob& job);

    /// The settings of the analyzer's table as the preferences have them.
    [[nodiscard]] static TableSettings settingsOf(const Workspace& workspace);

signals:
    /// `remarks` are the films and races that are missing in it.
    void written(const QString& path, const QStringList& remarks);
    void failed(const QString& path, const QString& reason);

private:
    void askForFile(const PhonePageDialog& dialog);
    void showWritten(const QString& path, const QStringList& remarks);
    void tellFailed(const QString& path, const QString& reason);

    Workspace& m_workspace;
    QWidget& m_window;
    BackgroundWork m_work;
};

} // namespace kavela::desktop
