#include "desktop/watertests/eight_form.h"

#include "common/number_text.h"
#include "desktop/shell/theme.h"
#include "desktop/watertests/eight_texts.h"
#include "planning/test_entry.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

namespace kavela::desktop {

EightForm::EightForm(QWidget* parent)
    : QWidget(parent),
      m_category(new QLineEdit),
      m_phase(new QLineEdit),
      m_splits({{tr("Time\n(s)"), tr("Time of one eight"), 3600},
                {tr("In the video\n(s)"), tr("Where in the video the split was taken"), 0, true}}),
      m_table(new EntryTable(m_splits)),
      m_score(new QLabel),
      m_sources(new QLabel) {
    m_category->setObjectName("category");
    m_phase->setObjectName("phase");
    m_table->setObjectName("splits");
    m_table->setMaximumWidth(420);
    m_score->setObjectName("score");
    m_score->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_sources->setForegroundRole(QPalette::PlaceholderText);
    m_sources->setWordWrap(true);
    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setSpacing(theme::Spacing);
    form->addRow(tr("&Category"), m_category);
    form->addRow(tr("Pha&se"), m_phase);
    form->addRow(tr("Splits"), m_table);
    form->addRow(tr("Score"), m_score);
    form->addRow(tr("Taken from"), m_sources);
    for (QLineEdit* field : {m_category, m_phase})
        field->setMaximumWidth(420);
    connectText(*m_category, &datafor8::cat, tr("category"));
    connectText(*m_phase, &datafor8::phase, tr("phase"));
    connect(&m_splits, &EntryModel::entered, this,
            [this](int row, int /*column*/, double seconds) { enterSplit(row, seconds); });
}

void EightForm::connectText(QLineEdit& field, std::string datafor8::*member, const QString& what) {
    connect(&field, &QLineEdit::editingFinished, this, [this, &field, member, what] {
        const std::string text = field.text().simplified().toStdString();
        if (field.text().toStdString() != m_shown.*member && text != m_shown.*member)
            emit edited(what, [=](onWaterEight& eight) { eight.run.*member = text; });
    });
}

void EightForm::enterSplit(int row, double seconds) {
    emit edited(tr("split %1").arg(row + 1), [=](onWaterEight& eight) {
        auto splits = splitsOf(eight.run);
        splits[static_cast<std::size_t>(row)] = seconds;
        setSplits(eight.run, splits);
    });
}

void EightForm::show(const onWaterEight& eight) {
    m_shown.cat = eight.run.cat;
    m_shown.phase = eight.run.phase;
    for (const auto& [field, text] : {std::pair{m_category, m_shown.cat}, {m_phase, m_shown.phase}})
        if (field->text().toStdString() != text)
            field->setText(QString::fromStdString(text));
    datafor8 run = eight.run; // the access to the video times is for writing, too
    const auto videoTimes = videoTimesOf(run);
    const auto splits = splitsOf(run);
    EntryModel::Rows rows;
    for (std::size_t i = 0; i < splits.size(); ++i)
        rows.push_back({splits[i], videoTimes[i]->seconds()});
    m_splits.show(std::move(rows), numbered(tr("Split %1"), splits.size()));
    m_score->setText(scoreText(run));
    const QString video =
        run.videoname.empty() ? tr("no video") : QString::fromStdString(run.videoname);
    m_sources->setText(run.date.empty()
                           ? tr("%1, no motion samples").arg(video)
                           : tr("%1, %2 motion samples").arg(video).arg(run.date.size()));
}

} // namespace kavela::desktop
