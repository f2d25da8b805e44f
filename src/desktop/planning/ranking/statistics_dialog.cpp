#include "desktop/planning/ranking/statistics_dialog.h"

#include "desktop/planning/ranking/plain_table.h"
#include "desktop/shell/theme.h"
#include "desktop/team/typed_values.h"
#include "planning/season_results.h"
#include "splitdata/run_timing.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

constexpr int EventColumn = 2;
constexpr int PlaceColumn = 4;

QString countText(const statisticsplanning_v3& statistics) {
    const std::size_t races = seasonRaces(statistics.racedata).size();
    const std::size_t runs = runCount(statistics.pendata);
    return StatisticsDialog::tr("%1 in races, %2 in all").arg(races).arg(runs);
}

QTableWidget* runTable(const penaltydataplanning_v1& runs) {
    auto* const table = plainTable({StatisticsDialog::tr("Date"), StatisticsDialog::tr("Session"),
                                    StatisticsDialog::tr("Event"), StatisticsDialog::tr("Phase"),
                                    StatisticsDialog::tr("Place"), StatisticsDialog::tr("Touches"),
                                    StatisticsDialog::tr("Missed gates")});
    table->setObjectName("runs");
    const int rows = static_cast<int>(runs.date.size());
    table->setRowCount(rows);
    for (int row = 0; row < rows; ++row) {
        const auto i = static_cast<std::size_t>(row);
        int column = 0;
        setText(*table, row, column++, dayShown(runs.date[i]));
        for (const auto* list : {&runs.session, &runs.event, &runs.phase, &runs.location})
            setText(*table, row, column++, QString::fromStdString(entryOrZero(*list, i)));
        for (const auto* list : {&runs.touches, &runs.fifties})
            setNumber(*table, row, column++, QString::number(entryOrZero(*list, i)));
    }
    QHeaderView* const header = table->horizontalHeader();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(EventColumn, QHeaderView::Stretch);
    header->setSectionResizeMode(PlaceColumn, QHeaderView::Stretch);
    return table;
}

QTableWidget* leftOutTable(const std::vector<SplitStatistics::LeftOut>& leftOut) {
    auto* const table =
        plainTable({StatisticsDialog::tr("Left out"), StatisticsDialog::tr("Because it")});
    table->setObjectName("leftOut");
    table->setRowCount(static_cast<int>(leftOut.size()));
    for (int row = 0; row < table->rowCount(); ++row) {
        const auto& file = leftOut[static_cast<std::size_t>(row)];
        setText(*table, row, 0, file.file);
        setText(*table, row, 1, file.reason);
    }
    table->resizeColumnsToContents();
    return table;
}

} // namespace

StatisticsDialog::StatisticsDialog(const statisticsplanning_v3& before,
                                   const statisticsplanning_v3& found, std::size_t files,
                                   const std::vector<SplitStatistics::LeftOut>& leftOut,
                                   QWidget* parent)
    : QDialog(parent) {
    setWindowTitle(tr("Season statistics from split files"));
    const bool isAny = runCount(found.pendata) > 0;
    auto* const summary = new QLabel;
    summary->setObjectName("summary");
    summary->setWordWrap(true);
    summary->setText(isAny ? tr("Runs found: %1, in %2 files. They replace what stands there now: "
                                "%3.")
                                 .arg(countText(found))
                                 .arg(files)
                                 .arg(countText(before))
                           : tr("None of the files has a run of this athlete and season. Nothing "
                                "is replaced."));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    QPushButton* const replace =
        buttons->addButton(tr("&Replace the statistics"), QDialogButtonBox::AcceptRole);
    replace->setObjectName("replace");
    replace->setEnabled(isAny);
    replace->setDefault(isAny);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addWidget(summary);
    if (isAny)
        column->addWidget(runTable(found.pendata), 2);
    if (!leftOut.empty())
        column->addWidget(leftOutTable(leftOut), 1);
    column->addWidget(buttons);
    resize(760, 520);
    if (isAny)
        replace->setFocus();
}

} // namespace kavela::desktop
