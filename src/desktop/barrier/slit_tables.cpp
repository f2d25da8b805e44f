#include "desktop/barrier/slit_tables.h"

#include "desktop/shell/shown_number.h"

#include <QCoreApplication>

#include <cmath>
#include <functional>
#include <utility>

namespace kavela::desktop {

namespace {

QString slitText(const char* text) {
    return QCoreApplication::translate("SlitTables", text);
}

template <class Row>
Column<Row> slitColumn(const QString& title, std::function<Cell(const Row&)> show,
                       ColumnKind kind = ColumnKind::Text) {
    Column<Row> column;
    column.title = title;
    column.kind = kind;
    column.show = std::move(show);
    return column;
}

Cell slitSecondsCell(const std::optional<double>& seconds) {
    Cell cell;
    cell.text = seconds ? shownNumber(*seconds, 2) : QStringLiteral("–");
    cell.number = seconds;
    return cell;
}

QString confidenceText(const Proposal& proposal) {
    return slitText("%1 %").arg(std::lround(proposal.confidence * 100));
}

Cell slitCrewCell(const SlitRunRow& row) {
    Cell cell{row.run.crew};
    cell.tip = row.run.details;
    return cell;
}

Cell slitMarkedCell(const SlitRunRow& row) {
    return slitSecondsCell(row.run.seconds);
}

Cell slitProposalCell(const SlitRunRow& row) {
    Cell cell;
    if (row.proposal) {
        cell.text = slitText("%1 s, %2")
                        .arg(shownNumber(row.proposal->seconds, 2), confidenceText(*row.proposal));
        cell.sortValue = row.proposal->seconds;
    } else if (row.isSearched && !row.run.seconds) {
        cell.text = slitText("none");
        cell.look = Cell::Look::Warning;
        cell.tip = slitText("No boat was found that could be this run: look for it in the slit "
                            "picture.");
    }
    return cell;
}

Cell proposedAtCell(const ProposalRow& row) {
    return slitSecondsCell(row.proposal.seconds);
}

Cell confidenceCell(const ProposalRow& row) {
    Cell cell{confidenceText(row.proposal)};
    cell.number = row.proposal.confidence;
    return cell;
}

Cell proposedCrewCell(const ProposalRow& row) {
    Cell cell{row.crew.isEmpty() ? QStringLiteral("–") : row.crew};
    if (row.isMarked) {
        cell.look = Cell::Look::Quiet;
        cell.tip = slitText("This run is marked here.");
    }
    return cell;
}

} // namespace

ColumnModel<SlitRunRow>::Columns slitRunColumns() {
    ColumnModel<SlitRunRow>::Columns columns;
    columns.push_back(slitColumn<SlitRunRow>(slitText("Run"), slitCrewCell));
    columns.push_back(
        slitColumn<SlitRunRow>(slitText("Marked"), slitMarkedCell, ColumnKind::Number));
    columns.back().unit = slitText("s");
    columns.back().tip = slitText("Where the run is marked at this line, in seconds of the film");
    columns.push_back(slitColumn<SlitRunRow>(slitText("Proposal"), slitProposalCell));
    return columns;
}

ColumnModel<ProposalRow>::Columns proposalColumns() {
    ColumnModel<ProposalRow>::Columns columns;
    columns.push_back(slitColumn<ProposalRow>(slitText("At"), proposedAtCell, ColumnKind::Number));
    columns.back().unit = slitText("s");
    columns.push_back(
        slitColumn<ProposalRow>(slitText("Confidence"), confidenceCell, ColumnKind::Number));
    columns.push_back(slitColumn<ProposalRow>(slitText("Run"), proposedCrewCell));
    return columns;
}

} // namespace kavela::desktop
