#pragma once

#include "desktop/shell/tables/column_model.h"
#include "desktop/splitfile/code_form.h"
#include "splitdata/cross_records.h"

#include <QWidget>

namespace kavela::desktop {

/// The roll of a time trial: its times, direction and style. Changes nothing itself.
class RollForm : public QWidget {
    Q_OBJECT

public:
    explicit RollForm(QWidget* parent = nullptr);

    /// Null for no trial.
    void setRoll(const ttroll030* roll);

signals:
    void edited(const std::function<void(ttroll030&)>& change);

private:
    CodeForm<ttroll030>* m_codes;
    ColumnModel<std::pair<QString, QString>> m_rows; ///< parts of the roll and their times
};

} // namespace kavela::desktop
