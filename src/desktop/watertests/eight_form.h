#pragma once

#include "desktop/watertests/entry_table.h"
#include "planning/water_test_file.h"

#include <QWidget>

#include <functional>

class QLabel;
class QLineEdit;

namespace kavela::desktop {

/// An eight test to be typed: category, phase, five splits; and what it has of video and motion.
class EightForm : public QWidget {
    Q_OBJECT

public:
    explicit EightForm(QWidget* parent = nullptr);

    void show(const onWaterEight& eight);

signals:
    /// `what` names the step of the undo stack.
    void edited(const QString& what, const std::function<void(onWaterEight&)>& change);

private:
    void enterSplit(int row, double seconds);

    /// A text of the run that is typed; `what` names it.
    void connectText(QLineEdit& field, std::string datafor8::*member, const QString& what);

    datafor8 m_shown; ///< without its motion
    QLineEdit* m_category;
    QLineEdit* m_phase;
    EntryModel m_splits;
    EntryTable* m_table;
    QLabel* m_score;
    QLabel* m_sources;
};

} // namespace kavela::desktop
