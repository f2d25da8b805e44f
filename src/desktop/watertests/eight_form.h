#pragma once

#include "desktop/shell/forms/record_form.h"
#include "desktop/watertests/entry_table.h"
#include "planning/water_test_file.h"

#include <QWidget>

#include <functional>

class QLabel;

namespace kavela::desktop {

/// One split of an eight test, in seconds.
struct EightSplit {
    double time = 0;
    double inVideo = 0;
};

/// An eight test to be typed: category, phase, five splits; and what it has of video and motion.
class EightForm : public QWidget {
    Q_OBJECT

public:
    explicit EightForm(QWidget* parent = nullptr);

    void show(const onWaterEight& eight, bool isOther);

signals:
    /// `what` names the step of the undo stack.
    void edited(const QString& what, const std::function<void(onWaterEight&)>& change);

private:
    [[nodiscard]] std::vector<Column<EightSplit>> splitColumns();
    void enterSplit(std::size_t row, double seconds);

    RecordForm<onWaterEight> m_form;
    ColumnModel<EightSplit> m_splits;
    EntryTable* m_table;
    QLabel* m_score;
    QLabel* m_sources;
};

} // namespace kavela::desktop
