#include "desktop/selection/selection_window.h"

#include "desktop/preview/report_preview.h"
#include "desktop/shell/typing.h"
#include "desktop/shell/workspace.h"
#include "report/paged_report.h"
#include "report/selection_report.h"
#include "report/selection_times_report.h"

#include <QFileInfo>
#include <QMenu>

namespace kavela::desktop {

void SelectionWindow::makeReportMenu(QMenu& menu) {
    menu.addAction(tr("&Reports: preview, PDF, print…"), QKeySequence::Print, this,
                   &SelectionWindow::preview);
}

/// Both reports, that of the times shown in front. Always of the real results: who reads a report
/// cannot see that something was only tried.
void SelectionWindow::preview() {
    if (!takeTyping(*this))
        return;
    const auto document = std::make_shared<selectionracesStruct_v3>(m_document.value());
    recomputeSelection(*document, m_document.bonus());
    const BonusKind bonus = m_document.bonus();
    const QString folder = QFileInfo(m_document.path()).path() + '/';
    std::vector<NamedReport> reports{
        {tr("Selection results"), folder + report::SelectionFileName,
         [document, bonus] { return report::selectionReport(*document, bonus); }},
        {tr("Selection results xTimes"),
         folder + QString::fromStdString(report::selectionTimesFileName(*document)),
         [document, bonus] { return report::selectionTimesReport(*document, bonus); }}};
    const PreviewFailures failures{workspace().log(), [this](const Alert& alert, QWidget* over) {
                                       workspace().showAlert(alert, over);
                                   }};
    auto* preview = new ReportPreview(std::move(reports), failures, this);
    preview->setAttribute(Qt::WA_DeleteOnClose);
    preview->showReport(m_document.times() == SelectionTimes::Official ? 0 : 1);
    preview->show();
}

} // namespace kavela::desktop
