#pragma once

#include "desktop/watertests/entry_table.h"
#include "planning/test_entry.h"

#include <QWidget>

#include <functional>

class QLabel;

namespace kavela::desktop {

class NumberBox;
class WholeBox;

/// A lap test or a sprint as it was set up, its sections and its turns, to be typed.
class SectionForm : public QWidget {
    Q_OBJECT

public:
    explicit SectionForm(QWidget* parent = nullptr);

    void show(const onWaterTest& test);
    [[nodiscard]] EntryTable& sections() const { return *m_sectionTable; }

signals:
    /// `what` names the step of the undo stack.
    void edited(const QString& what, const std::function<void(onWaterTest&)>& change);

private:
    void makeSetUp();
    void makeTables();
    void layOut();
    void connectParts();
    void enterSection(int row, int column, double value);
    void enterTurn(int row, int column, double value);
    void showSections(const onWaterTest& test);

    QWidget* m_setUp;
    WholeBox* m_laps;
    NumberBox* m_distance;
    NumberBox* m_turnLimit;
    QLabel* m_description;
    EntryModel m_sections;
    EntryModel m_turns;
    EntryTable* m_sectionTable;
    EntryTable* m_turnTable;
    QLabel* m_turnTitle;
    QLabel* m_total;
    std::vector<SectionEntry> m_shown;
};

} // namespace kavela::desktop
