#pragma once

#include "desktop/planning/plan/week_block.h"
#include "planning/planning_records.h"

#include <QWidget>

#include <functional>

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace kavela::desktop {

class NumberBox;
class FaultLabel;

/// What a week is for, beside its sessions. Each field is written when it is left and was changed.
/// Load, cycles and place go into every chosen week, the rest into the one shown.
class WeekForm : public QWidget {
    Q_OBJECT

public:
    explicit WeekForm(QWidget* parent = nullptr);

    /// Null for no season; otherwise the block has to be within it.
    void setWeek(const yearsplannings_v6* season, const WeekBlock& block);
    /// Writes what is being typed.
    void commit();

    using Change = std::function<void(microsplanning_v5&)>;

signals:
    void edited(const QString& what, const kavela::desktop::WeekForm::Change& change,
                bool wholeBlock);

private:
    using Text = std::string microsplanning_v5::*;
    using Dates = std::vector<ReferenceDate> testdataplanning_v5::*;

    void addLine(QFormLayout& form, const QString& label, const char* name, Text field,
                 bool wholeBlock);
    void addCycle(QFormLayout& form, const QString& label, const char* name, Text field);
    void addDates(QFormLayout& form, const QString& label, const char* name, Dates field);
    void addLoad(QFormLayout& form);
    void addHealth(QFormLayout& form);
    void addGoals(QFormLayout& form);
    void showHead(const microsplanning_v5& week);

    /// Shows the week in a field, and writes the field where it was changed.
    struct Field {
        std::function<void(const microsplanning_v5&)> show;
        std::function<void()> write;
        QWidget* widget = nullptr;
    };
    std::vector<Field> m_fields;

    microsplanning_v5 m_week; ///< as shown
    WeekBlock m_block;
    const yearsplannings_v6* m_season = nullptr; ///< only while a week is being shown
    QLabel* m_title;
    QLabel* m_note;
    FaultLabel* m_faults;
    QWidget* m_body;
};

} // namespace kavela::desktop
