#pragma once

#include "desktop/shell/forms/record_form.h"
#include "desktop/watertests/entry_table.h"
#include "planning/test_entry.h"

#include <QWidget>

#include <functional>

class QLabel;

namespace kavela::desktop {

/// A lap test or a sprint as it was set up, its sections and its turns, to be typed.
class SectionForm : public QWidget {
    Q_OBJECT

public:
    explicit SectionForm(QWidget* parent = nullptr);

    void show(const onWaterTest& test, bool isOther);
    [[nodiscard]] EntryTable& sections() const { return *m_sectionTable; }

signals:
    /// `what` names the step of the undo stack.
    void edited(const QString& what, const std::function<void(onWaterTest&)>& change);

private:
    void makeSetUp();
    [[nodiscard]] std::vector<Column<SectionEntry>> sectionColumns();
    [[nodiscard]] std::vector<Column<TurnEntry>> turnColumns();
    void layOut();
    void enterSection(std::size_t row, double SectionEntry::*member, double value);
    void enterTurn(std::size_t row, double TurnEntry::*member, double value);
    void showTotal(const onWaterTest& test);

    RecordForm<onWaterTest> m_setUp;
    QLabel* m_description;
    ColumnModel<SectionEntry> m_sections;
    ColumnModel<TurnEntry> m_turns;
    EntryTable* m_sectionTable;
    EntryTable* m_turnTable;
    QLabel* m_turnTitle;
    QLabel* m_total;
    bool m_isSprint = false;
    bool m_isRecorded = false; ///< the strokes of the test
};

} // namespace kavela::desktop
