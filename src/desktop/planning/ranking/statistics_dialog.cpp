#include "desktop/planning/ranking/statistics_dialog.h"

#include "desktop/shell/tables/column_model.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/team/typed_values.h"
#include "planning/season_results.h"
#include "splitdata/run_timing.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <memory>
#include <numeric>

namespace kavela::desktop {

namespace {

constexpr int RaceEventColumn = 2;
constexpr int RacePlaceColumn = 4;

QString countText(const statisticsplanning_v3& statistics) {
    const std::size_t races = seasonRaces(statistics.racedata).size();
    const std::size_t runs = runCount(statistics.pendata);
    return StatisticsDialog::tr("%1 in races, %2 in all").arg(races).arg(runs);
}

/// A table that lives as long as the dialog; its rows are shown once.
template <class Row>
ColumnTable* tableOf(std::vector<Column<Row>> columns, std::vector<Row> rows, const char* name,
                     QWidget* dialog) {
    auto* const model = new ColumnModel<Row>(std::move(columns), {}, dialog);
    model->show(std::move(rows));
    return new ColumnTable(*model, name, dialog);
}

ColumnTable* runTable(const penaltydataplanning_v1& found, QWidget* dialog) {
    const auto runs = std::make_shared<penaltydataplanning_v1>(found);
    const auto text = [runs](const QString& title,
                             std::vector<std::string> penaltydataplanning_v1::*list) {
        return textColumn<std::size_t>(title, [runs, list](std::size_t run) {
            return QString::fromStdString(entryOrZero((*runs).*list, run));
        });
    };
    const auto count = [runs](const QString& title,
                              std::vector<std::int64_t> penaltydataplanning_v1::*list) {
        return numberColumn<std::size_t>(
            title,
            [runs, list](std::size_t run) {
                return static_cast<double>(entryOrZero((*runs).*list, run));
            },
            [](double number) { return QString::number(number); });
    };
    const auto tr = [](const char* title) { return StatisticsDialog::tr(title); };
    using Runs = penaltydataplanning_v1;
    std::vector<std::size_t> rows(runs->date.size());
    std::iota(rows.begin(), rows.end(), std::size_t{0});
    auto* const table = tableOf<std::size_t>(
        {textColumn<std::size_t>(tr("Date"),
                                 [runs](std::size_t run) { return dayShown(runs->date[run]); }),
         text(tr("Session"), &Runs::session), text(tr("Event"), &Runs::event),
         text(tr("Phase"), &Runs::phase), text(tr("Place"), &Runs::location),
         count(tr("Touches"), &Runs::touches), count(tr("Missed gates"), &Runs::fifties)},
        std::move(rows), "runs", dialog);
    table->stretch({RaceEventColumn, RacePlaceColumn});
    return table;
}

ColumnTable* leftOutTable(const std::vector<SplitStatistics::LeftOut>& leftOut, QWidget* dialog) {
    using File = SplitStatistics::LeftOut;
    auto* const table =
        tableOf<File>({textColumn<File>(StatisticsDialog::tr("Left out"),
                                        [](const File& file) { return file.file; }),
                       textColumn<File>(StatisticsDialog::tr("Because it"),
                                        [](const File& file) { return file.reason; })},
                      leftOut, "leftOut", dialog);
    table->stretch({1});
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
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addWidget(summary);
    if (isAny)
        column->addWidget(runTable(found.pendata, this), 2);
    if (!leftOut.empty())
        column->addWidget(leftOutTable(leftOut, this), 1);
    column->addWidget(buttons);
    resize(760, 520);
    if (!isAny)
        return;
    replace->setDefault(true); // once it is part of the dialog: a button asks that for it
    replace->setFocus();
}

} // namespace kavela::desktop
