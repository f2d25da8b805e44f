#include "desktop/selection/selection_reports.h"

#include "desktop/preview/report_preview.h"
#include "desktop/selection/selection_document.h"
#include "desktop/shell/typing.h"
#include "desktop/shell/workspace.h"
#include "report/paged_report.h"
#include "report/selection_report.h"
#include "report/selection_times_report.h"

#include <QFileInfo>

#include <memory>

namespace kavela::desktop {

void previewSelection(const SelectionDocument& selection, Workspace& workspace, QWidget& window) {
    if (!takeTyping(window))
        return;
    const auto document = std::make_shared<selectionracesStruct_v3>(selection.value());
    recomputeSelection(*document, selection.bonus());
    const BonusKind bonus = selection.bonus();
    const QString folder = QFileInfo(selection.path()).path() + '/';
    using Preview = ReportPreview;
    std::vector<NamedReport> reports{
        {Preview::tr("Selection results"), folder + report::SelectionFileName,
         [document, bonus] { return report::selectionReport(*document, bonus); }},
        {Preview::tr("Selection results xTimes"),
         folder + QString::fromStdString(report::selectionTimesFileName(*document)),
         [document, bonus] { return report::selectionTimesReport(*document, bonus); }}};
    const PreviewFailures failures{
        workspace.log(),
        [&workspace](const Alert& alert, QWidget* over) { workspace.showAlert(alert, over); }};
    auto* preview = new Preview(std::move(reports), failures, &window);
    preview->setAttribute(Qt::WA_DeleteOnClose);
    preview->showReport(selection.times() == SelectionTimes::Official ? 0 : 1);
    preview->show();
}

} // namespace kavela::desktop
