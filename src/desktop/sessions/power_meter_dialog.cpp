#include "desktop/sessions/power_meter_dialog.h"

#include "desktop/charts/sensor_series.h"
#include "desktop/shell/number_box.h"
#include "desktop/shell/tables/column_model.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr double FarthestSeconds = 100000;

/// The model lives as long as its table.
ColumnTable* refusedTable(const std::vector<RefusedLine>& refused) {
    const auto number = [](const RefusedLine& line) {
        return Cell{.text = QString::number(line.line), .number = static_cast<double>(line.line)};
    };
    std::vector<Column<RefusedLine>> columns;
    columns.push_back({.title = PowerMeterDialog::tr("Line"), .show = number});
    columns.push_back(textColumn<RefusedLine>(
        PowerMeterDialog::tr("Why it is refused"),
        [](const RefusedLine& line) { return QString::fromStdString(line.reason); }));
    auto* const model = new ColumnModel<RefusedLine>(std::move(columns));
    model->show(refused, true);
    auto* const table = new ColumnTable(*model, "refused");
    model->setParent(table);
    table->stretch({1});
    return table;
}

} // namespace

PowerMeterDialog::PowerMeterDialog(const QString& fileName, const PowerMeterList& list,
                                   const EditedSession& session, QWidget* parent)
    : EntryDialog(parent),
      m_placed(placedInSession(list, session)),
      m_moments(momentsOf(session)),
      m_begin(new NumberBox),
      m_overlap(new QLabel) {
    setWindowTitle(tr("Import power-meter data"));
    auto* form = new QFormLayout(this);
    form->setSpacing(theme::Spacing);
    auto* file = new QLabel(fileName);
    file->setFont(theme::titleFont(*this));
    file->setTextFormat(Qt::PlainText);
    form->addRow(file);
    auto* count = new QLabel(
        tr("Samples: %1. Lines refused: %2.").arg(list.samples.size()).arg(list.refused.size()));
    count->setObjectName("count");
    form->addRow(count);
    m_begin->setObjectName("begin");
    m_begin->setIsTime(true);
    m_begin->setRange(-FarthestSeconds, FarthestSeconds);
    m_begin->setDecimals(1);
    m_begin->setSuffix(tr(" s"));
    m_overlap->setObjectName("overlap");
    m_overlap->setForegroundRole(QPalette::PlaceholderText);
    if (!m_placed.empty()) {
        m_begin->setValue(m_placed.front().dateDouble - m_moments.from);
        form->addRow(tr("It &begins after the session's start by"), m_begin);
        form->addRow(m_overlap);
    }
    if (!list.refused.empty())
        form->addRow(refusedTable(list.refused));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    if (!m_placed.empty())
        buttons->addButton(tr("Import"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
    connect(m_begin, &NumberBox::valueChanged, this, &PowerMeterDialog::showOverlap);
    showOverlap();
    resize(list.refused.empty() ? QSize(460, 180) : QSize(560, 420));
}

double PowerMeterDialog::shift() const {
    return m_moments.from + m_begin->value() - m_placed.front().dateDouble;
}

std::vector<powermeterData> PowerMeterDialog::samples() const {
    std::vector<powermeterData> samples = m_placed;
    if (samples.empty())
        return samples;
    for (powermeterData& sample : samples)
        sample.dateDouble += shift();
    return samples;
}

void PowerMeterDialog::showOverlap() {
    const std::vector<powermeterData> shifted = samples();
    const auto inside = std::ranges::count_if(shifted, [this](const powermeterData& sample) {
        return sample.dateDouble >= m_moments.from && sample.dateDouble <= m_moments.to;
    });
    m_overlap->setText(tr("%1 of them lie in the session, which lasts %2.")
                           .arg(inside)
                           .arg(momentText(m_moments.to - m_moments.from, 1)));
}

} // namespace kavela::desktop
