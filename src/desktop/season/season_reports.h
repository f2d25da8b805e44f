#pragma once

#include "desktop/season/shown_season.h"
#include "desktop/shell/background_work.h"

#include <QObject>

#include <memory>
#include <optional>

namespace kavela::report {
class PagedReport;
}

namespace kavela::desktop {

class Workspace;

/// Makes the A4 reports of a season, of an athlete or of the whole team: to be looked at and
/// printed, or written as PDF beside the window.
class SeasonReports : public QObject {
    Q_OBJECT

public:
    /// An athlete of the season; none for the team.
    using Whose = std::optional<std::size_t>;

    /// Both must outlive it; dialogs stand over `window`.
    SeasonReports(Workspace& workspace, QWidget& window);

    /// Offers those of the team and of every athlete, the one that is meant in front.
    void preview(const SharedSeason& season, Whose whose, const QString& teamFile);
    /// Asks for the file, and writes the report into it.
    void askAndWrite(const SharedSeason& season, Whose whose, const QString& teamFile);
    /// Ends with written() or failed(). Never over a file that it is made from: the team's own, or
    /// a split file.
    void write(const SharedSeason& season, Whose whose, const QString& path,
               const QString& teamFile);
    [[nodiscard]] static QString fileName(const ShownSeason& season, Whose whose);

signals:
    void writing(const QString& path);
    void written(const QString& path);
    void failed(const QString& path, const QString& reason);

private:
    [[nodiscard]] static std::unique_ptr<report::PagedReport> reportOf(const ShownSeason& season,
                                                                       Whose whose);

    Workspace& m_workspace;
    QWidget& m_window;
    BackgroundWork m_work;
};

} // namespace kavela::desktop
