#include "desktop/watertests/eight_form.h"

#include "common/number_text.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"
#include "desktop/watertests/eight_texts.h"
#include "planning/test_entry.h"

#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

constexpr int Widest = 420; // pixels

} // namespace

EightForm::EightForm(QWidget* parent)
    : QWidget(parent),
      m_form([this](const QString& what, const auto& change) { emit edited(what, change); }),
      m_splits(splitColumns(), RowsKnownBy::Number),
      m_table(new EntryTable(m_splits, "splits")),
      m_score(new QLabel),
      m_sources(new QLabel) {
    m_splits.setRowTitles([](int split) { return tr("Split %1").arg(split + 1); });
    m_table->verticalHeader()->show();
    m_table->setMaximumWidth(grown(*this, Widest));
    m_score->setObjectName("score");
    m_score->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_sources->setForegroundRole(QPalette::PlaceholderText);
    m_sources->setWordWrap(true);
    m_form.text(
        {.name = "category", .label = tr("&Category"), .widest = Widest},
        [](auto& eight) -> auto& { return eight.run.cat; });
    m_form.text(
        {.name = "phase", .label = tr("Pha&se"), .widest = Widest},
        [](auto& eight) -> auto& { return eight.run.phase; });
    m_form.addRow(tr("Splits"), m_table);
    m_form.addRow(tr("Score"), m_score);
    m_form.addRow(tr("Taken from"), m_sources);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(&m_form);
}

std::vector<Column<EightSplit>> EightForm::splitColumns() {
    return {entryColumn<EightSplit>(
                {tr("Time\n(s)"), tr("Time of one eight"), 3600},
                [](const EightSplit& split) { return split.time; },
                [this](std::size_t row, double seconds) { enterSplit(row, seconds); }),
            entryColumn<EightSplit>(
                {tr("In the video\n(s)"), tr("Where in the video the split was taken")},
                [](const EightSplit& split) { return split.inVideo; })};
}

void EightForm::enterSplit(std::size_t row, double seconds) {
    emit edited(tr("split %1").arg(row + 1), [=](onWaterEight& eight) {
        auto splits = splitsOf(eight.run);
        splits[row] = seconds;
        setSplits(eight.run, splits);
    });
}

void EightForm::show(const onWaterEight& eight, bool isOther) {
    m_form.show(&eight, isOther);
    datafor8 run = eight.run; // the access to the video times is for writing, too
    const auto videoTimes = videoTimesOf(run);
    const auto splits = splitsOf(run);
    std::vector<EightSplit> rows;
    for (std::size_t i = 0; i < splits.size(); ++i)
        rows.push_back({splits[i], videoTimes[i]->seconds()});
    m_splits.show(std::move(rows), isOther);
    m_score->setText(scoreText(run));
    const QString video =
        run.videoname.empty() ? tr("no video") : QString::fromStdString(run.videoname);
    m_sources->setText(run.date.empty()
                           ? tr("%1, no motion samples").arg(video)
                           : tr("%1, %2 motion samples").arg(video).arg(run.date.size()));
}

} // namespace kavela::desktop
