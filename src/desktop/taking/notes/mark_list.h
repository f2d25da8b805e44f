#pragma once

#include "splittaking/annotations/lanes.h"

#include <QWidget>

class QToolButton;
class QTreeWidget;

namespace kavela::desktop {

/// Every mark of a run in order of time, whatever took it, those of some kinds on wish. Marks that
/// lie outside the film say so.
class MarkList : public QWidget {
    Q_OBJECT

public:
    explicit MarkList(QWidget* parent = nullptr);

    /// The film of the run from and to seconds; without one no mark lies outside.
    struct Film {
        double from = 0;
        double to = 0;
    };

    void setMarks(const athletedata031* run, const std::vector<LaneMark>& marks, const Film& film);
    void setSelected(const std::optional<MarkHandle>& handle);

    [[nodiscard]] const MarkFilter& filter() const { return m_filter; }
    void setFilter(const MarkFilter& filter);

signals:
    void chosen(const MarkHandle& handle);
    void filterChanged();

private:
    void makeFilterMenu();
    void show();

    struct Row {
        MarkHandle handle;
        QString time;
        QString text;
    };

    MarkFilter m_filter = MarkFilter().set();
    QToolButton* m_kinds;
    QTreeWidget* m_tree;
    std::vector<Row> m_rows;
    std::optional<MarkHandle> m_selected;
};

} // namespace kavela::desktop
