#include "desktop/barrier/slit_tables.h"

#include "desktop/shell/shown_number.h"

#include <QCoreApplication>

#include <cmath>

namespace kavela::desktop {

namespace {

QString slitText(const char* text) {
    return QCoreApplication::translate("SlitTables", text);
}

Cell secondsCell(const std::optional<double>& seconds) {
    return Cell{.text = seconds ? shownNumber(*seconds, 2) : QStringLiteral("–"),
                .number = seconds};
}

QString confidenceText(const Proposal& proposal) {
    return slitText("%1 %").arg(std::lround(proposal.confidence * 100));
}

Cell proposalCell(const SlitRunRow& row) {
    if (row.proposal)
        return Cell{
            .text = slitText("%1 s, %2")
                        .arg(shownNumber(row.proposal->seconds, 2), confidenceText(*row.proposal)),
            .sortValue = row.proposal->seconds};
    Cell cell;
    if (row.isSearched && !row.run.seconds) {
        cell.text = slitText("none");
        cell.look = Cell::Look::Warning;
        cell.tip = slitText("No boat was found that could be this run: look for it in the slit "
                            "picture.");
    }
    return cell;
}

} // namespace

ColumnModel<SlitRunRow>::Columns slitRunColumns() {
    return {{.title = slitText("Run"),
             .show =
                 [](const SlitRunRow& row) {
                     return Cell{.text = row.run.crew, .tip = row.run.details};
                 }},
            {.title = slitText("Marked"),
             .unit = slitText("s"),
             .tip = slitText("Where the run is marked at this line, in seconds of the film"),
             .kind = ColumnKind::Number,
             .show = [](const SlitRunRow& row) { return secondsCell(row.run.seconds); }},
            {.title = slitText("Proposal"), .show = proposalCell}};
}

ColumnModel<ProposalRow>::Columns proposalColumns() {
    return {{.title = slitText("At"),
             .unit = slitText("s"),
             .kind = ColumnKind::Number,
             .show = [](const ProposalRow& row) { return secondsCell(row.proposal.seconds); }},
            {.title = slitText("Confidence"),
             .kind = ColumnKind::Number,
             .show =
                 [](const ProposalRow& row) {
                     return Cell{.text = confidenceText(row.proposal),
                                 .number = row.proposal.confidence};
                 }},
            {.title = slitText("Run"), .show = [](const ProposalRow& row) {
                 Cell cell{row.crew.isEmpty() ? QStringLiteral("–") : row.crew};
                 cell.look = row.isMarked ? Cell::Look::Quiet : Cell::Look::Plain;
                 if (row.isMarked)
                     cell.tip = slitText("This run is marked here.");
                 return cell;
             }}};
}

} // namespace kavela::desktop
