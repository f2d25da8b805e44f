#pragma once

#include "desktop/shell/tables/column_model.h"
#include "splitdata/cross_records.h"

#include <QWidget>

namespace kavela::desktop {

class CodeCombo;

/// The roll of a time trial: its times, direction and style. Changes nothing itself.
class RollForm : public QWidget {
    Q_OBJECT

public:
    explicit RollForm(QWidget* parent = nullptr);

    /// Null for no trial.
    void setRoll(const ttroll030* roll);

signals:
    void directionChosen(std::int64_t code);
    void styleChosen(std::int64_t code);

private:
    CodeCombo* m_direction;
    CodeCombo* m_style;
    ColumnModel<std::pair<QString, QString>> m_rows; ///< parts of the roll and their times
};

} // namespace kavela::desktop
