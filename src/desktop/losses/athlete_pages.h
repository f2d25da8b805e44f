#pragma once

#include "desktop/losses/athlete_page_dialog.h"
#include "desktop/shell/background_work.h"

#include <QObject>

namespace kavela::desktop {

class Workspace;

/// Makes the A4 page of an athlete from the files that are open: to be looked at and printed, or
/// written as PDF beside the window.
class AthletePages : public QObject {
    Q_OBJECT

public:
    /// All must outlive it; dialogs stand over `window`.
    AthletePages(const LossState& state, Workspace& workspace, QWidget& window);

    /// Asks whose page; `shown` is proposed.
    void ask(const SeasonLossQuery& shown);
    void preview(const AthletePageChoice& choice);
    /// Asks for the file, and writes the page into it.
    void askAndWrite(const AthletePageChoice& choice);
    /// Ends with written() or failed(). Never over a file that the page is made from.
    void write(const AthletePageChoice& choice, const QString& path);

signals:
    void writing(const QString& path);
    void written(const QString& path);
    void failed(const QString& path, const QString& reason);

private:
    [[nodiscard]] static QString proposedPath(const AthletePageChoice& choice);
    [[nodiscard]] static bool isSource(const FactStore& facts, const QString& path);

    const LossState& m_state;
    Workspace& m_workspace;
    QWidget& m_window;
    BackgroundWork m_work;
};

} // namespace kavela::desktop
