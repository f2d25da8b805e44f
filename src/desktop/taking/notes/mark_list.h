#pragma once

#include "splittaking/annotations/marks_list.h"

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

    void setMarks(const std::vector<ListedMark>& marks, const Film& film);
    void setSelected(const std::optional<MarkHandle>& handle);

    [[nodiscard]] const MarkFilter& filter() const { return m_filter; }
    void setFilter(const MarkFilter& filter);

    /// The marks whose clips are played: those that are selected, or all listed where there are
    /// not several.
    [[nodiscard]] std::vector<MarkHandle> forClips() const;
    /// Seconds before and after a mark that belong to its clip.
    [[nodiscard]] int clipSeconds() const { return m_clipSeconds; }
    void setClipSeconds(int seconds);

signals:
    void chosen(const MarkHandle& handle);
    void filterChanged();
    void clipsWanted();
    void clipSecondsChanged(int seconds);

private:
    void makeFilterMenu();
    void makeClipMenu();
    void show();

    struct Row {
        MarkHandle handle;
        QString time;
        QString text;
    };

    MarkFilter m_filter = MarkFilter().set();
    int m_clipSeconds = 2;
    QToolButton* m_kinds;
    QToolButton* m_clips;
    QTreeWidget* m_tree;
    std::vector<Row> m_rows;
    std::optional<MarkHandle> m_selected;
};

} // namespace kavela::desktop
