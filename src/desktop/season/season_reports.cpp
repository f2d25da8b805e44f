#include "desktop/season/season_reports.h"

#include "desktop/preview/report_preview.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/workspace.h"
#include "report/pdf_file.h"
#include "report/season_page.h"
#include "report/season_team_report.h"

#include <QFileDialog>
#include <QFileInfo>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace kavela::desktop {

SeasonReports::SeasonReports(Workspace& workspace, QWidget& window)
    : QObject(&window), m_workspace(workspace), m_window(window) {}

std::unique_ptr<report::PagedReport> SeasonReports::reportOf(const ShownSeason& season,
                                                             Whose whose) {
    return whose ? report::seasonPage(season.season, *whose)
                 : report::seasonTeamReport(season.season);
}

QString SeasonReports::fileName(const ShownSeason& season, Whose whose) {
    return qtText(whose ? report::seasonPageFileName(season.season, *whose)
                        : report::seasonTeamFileName(season.season));
}

void SeasonReports::preview(const SharedSeason& season, Whose whose, const QString& teamFile) {
    const PreviewFailures failures{m_workspace.log(), [this](const Alert& alert, QWidget* over) {
                                       m_workspace.showAlert(alert, over);
                                   }};
    std::vector<Whose> order{std::nullopt};
    for (std::size_t i = 0; i < season->season.athletes.size(); ++i)
        order.emplace_back(i);
    const auto meant = std::ranges::find(order, whose);
    if (meant != order.end())
        std::rotate(order.begin(), meant, std::next(meant));
    std::vector<NamedReport> reports;
    for (const Whose each : order)
        reports.push_back({each ? qtText(season->memberOf(*each).name) : tr("The team"),
                           QFileInfo(teamFile).path() + '/' + fileName(*season, each),
                           [season, each] { return reportOf(*season, each); }});
    auto* const preview = new ReportPreview(std::move(reports), failures, &m_window);
    preview->setAttribute(Qt::WA_DeleteOnClose);
    preview->show();
}

void SeasonReports::askAndWrite(const SharedSeason& season, Whose whose, const QString& teamFile) {
    QFileDialog dialog(&m_window,
                       whose
                           ? tr("Save the report of %1").arg(qtText(season->memberOf(*whose).name))
                           : tr("Save the report of the team"),
                       {}, tr("PDF documents (*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    dialog.setDirectory(QFileInfo(teamFile).path());
    dialog.selectFile(fileName(*season, whose));
    if (dialog.exec() == QDialog::Accepted)
        write(season, whose, dialog.selectedFiles().value(0), teamFile);
}

void SeasonReports::write(const SharedSeason& season, Whose whose, const QString& path,
                          const QString& teamFile) {
    const FactStore& facts = *season->facts;
    const bool isSource =
        isSameFile(teamFile, path) || std::ranges::any_of(facts.files(), [&](const FileRow& file) {
            return isSameFile(qtText(facts.text(file.path)), path);
        });
    if (isSource) {
        emit failed(path, tr("The report cannot be written over a file that it is made from."));
        return;
    }
    emit writing(path);
    m_work.run([season, whose,
                file = path.toStdString()] { report::writePdf(*reportOf(*season, whose), file); },
               [this, path] { emit written(path); },
               {.failed = [this, path](const std::exception_ptr& fault) {
                   emit failed(path, qtText(causeOf(fault)));
               }});
}

} // namespace kavela::desktop
