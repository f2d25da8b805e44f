#include "desktop/planning/body/variability_dialog.h"

#include "desktop/shell/tables/column_model.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

QLabel* makeLabel(const char* name, const QString& text) {
    auto* const label = new QLabel(text);
    label->setObjectName(name);
    label->setWordWrap(true);
    return label;
}

QString countText(std::size_t added, std::size_t read) {
    if (read == 0)
        return VariabilityDialog::tr("There is no measurement in this list.");
    if (added == 0)
        return VariabilityDialog::tr("All %1 measurements of this list are there already.")
            .arg(read);
    const QString text = added == 1 ? VariabilityDialog::tr("1 measurement is new.")
                                    : VariabilityDialog::tr("%n measurements are new.", nullptr,
                                                            static_cast<int>(added));
    if (added == read)
        return text;
    const std::size_t present = read - added;
    return text + ' ' +
           (present == 1 ? VariabilityDialog::tr("1 other is there already.")
                         : VariabilityDialog::tr("%n others are there already.", nullptr,
                                                 static_cast<int>(present)));
}

} // namespace

VariabilityDialog::VariabilityDialog(const QString& fileName, const VariabilityList& list,
                                     std::size_t added, QWidget* parent)
    : QDialog(parent) {
    setWindowTitle(tr("Import variability"));
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(theme::LargeSpacing, theme::LargeSpacing, theme::LargeSpacing,
                               theme::LargeSpacing);
    column->setSpacing(theme::Spacing);
    QLabel* const title = makeLabel("file", fileName);
    title->setFont(theme::titleFont(*this));
    column->addWidget(title);
    column->addWidget(makeLabel("count", countText(added, list.measurements.size())));
    if (!list.skipped.empty()) {
        column->addSpacing(theme::Spacing);
        column->addWidget(makeLabel("skipped", list.skipped.size() == 1
                                                   ? tr("1 line is left out:")
                                                   : tr("%n lines are left out:", nullptr,
                                                        static_cast<int>(list.skipped.size()))));
        column->addWidget(makeSkippedLines(list.skipped), 1);
    } else {
        column->addStretch();
    }
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    if (added > 0) {
        QPushButton* const add = buttons->addButton(
            added == 1 ? tr("Add 1 measurement")
                       : tr("Add %n measurements", nullptr, static_cast<int>(added)),
            QDialogButtonBox::AcceptRole);
        add->setFocus();
    }
    column->addSpacing(theme::Spacing);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(list.skipped.empty() ? QSize(420, 160) : QSize(620, 380));
}

QWidget* VariabilityDialog::makeSkippedLines(const std::vector<SkippedMeasurement>& skipped) {
    using Line = SkippedMeasurement;
    auto* const model = new ColumnModel<Line>(
        {numberColumn<Line>(
             tr("Line"), [](const Line& line) { return static_cast<double>(line.line); },
             [](double number) { return QString::number(number); }),
         {.title = tr("Reason"),
          .show =
              [](const Line& line) {
                  const QString reason = QString::fromStdString(line.reason);
                  return Cell{.text = reason, .tip = reason};
              }}},
        {}, this);
    model->show(skipped);
    auto* const lines = new ColumnTable(*model, "lines");
    lines->stretch({1});
    return lines;
}

} // namespace kavela::desktop
