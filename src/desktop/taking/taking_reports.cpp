#include "desktop/taking/taking_reports.h"

#include "desktop/preview/report_preview.h"
#include "desktop/shell/workspace.h"
#include "desktop/taking/taking_window.h"
#include "report/run_sheet.h"

#include <QFileInfo>

namespace kavela::desktop {

namespace {

/// The runs with their times, and the one that the sheet is of with everything it has.
splittakerdata031 sheetDocument(const TakingDocument& document, std::size_t run) {
    splittakerdata031 race = timesOf(document.value());
    race.athletes.at(run) = document.run(static_cast<int>(run));
    return race;
}

} // namespace

void previewRunSheet(TakingWindow& window, Workspace& workspace) {
    if (window.currentRun() < 0)
        return;
    const auto run = static_cast<std::size_t>(window.currentRun());
    const auto race =
        std::make_shared<const splittakerdata031>(sheetDocument(window.document(), run));
    const QFileInfo file(window.document().path());
    const QString path = file.path() + '/' + file.completeBaseName() + " run sheet.pdf";
    auto* preview = new ReportPreview(
        {{ReportPreview::tr("Run sheet"), path,
          [race, run] { return report::runSheet(*race, run); }}},
        {workspace.log(),
         [&workspace](const Alert& alert, QWidget* over) { workspace.showAlert(alert, over); }},
        &window);
    preview->setAttribute(Qt::WA_DeleteOnClose);
    preview->show();
}

} // namespace kavela::desktop
