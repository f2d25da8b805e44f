#include "report/table_note.h"

#include "report/said.h"
#include "report/typeface.h"

#include <QStringList>

namespace kavela::report {

namespace {

QString referenceInWords(const RaceSet& set, const TableReference& reference) {
    switch (reference.kind) {
    case ReferenceKind::Best:
        break;
    case ReferenceKind::Median:
        return said("the median of each column");
    case ReferenceKind::Run: {
        if (reference.row >= set.alldata.size())
            break;
        const analyzerdata& run = set.alldata[reference.row];
        const QString phase = reportText(run.phase);
        return phase.isEmpty() ? reportText(run.name)
                               : reportText(run.name) + QStringLiteral(", ") + phase;
    }
    case ReferenceKind::Values:
        return reference.name.empty() ? said("the ideal run") : reportText(reference.name);
    }
    return said("the best of each column");
}

QString contentInWords(const RaceSet& set, const TableView& view) {
    switch (view.content) {
    case CellContent::Time:
        break;
    case CellContent::Gap:
        return said("Gaps in seconds to %1.").arg(referenceInWords(set, view.reference));
    case CellContent::Rank:
        return said("Places within each column.");
    case CellContent::PercentBehind:
        return said("Percent behind the best of each column.");
    case CellContent::Percentile:
        return said("Percentiles of each column; the best has 100.");
    }
    return {};
}

QString penaltiesInWords(const TableSettings& settings) {
    if (settings.kind == ValueKind::Accumulated)
        return said("Times from the start, without penalties.");
    return settings.penaltiesIncluded ? said("Penalties are included in sections and total.")
                                      : said("Penalties are not included.");
}

} // namespace

QString tableNote(const RaceSet& set, const TableSettings& settings, const TableView& view,
                  std::size_t shownRuns) {
    QStringList sentences{contentInWords(set, view), penaltiesInWords(settings)};
    if (settings.penaltiesVisible && view.content == CellContent::Time)
        sentences << said("Penalty seconds in brackets.");
    if (shownRuns < set.alldata.size())
        sentences << said("Compared among all %1 runs.").arg(set.alldata.size());
    sentences.removeAll(QString());
    return sentences.join(' ');
}

QString comparisonName(const ComparisonRow& row) {
    QStringList parts{row.name.empty() ? said("Ideal run") : reportText(row.name),
                      reportText(row.origin)};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

} // namespace kavela::report
