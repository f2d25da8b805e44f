#pragma once

#include "desktop/shell/tables/column_model.h"
#include "splitdata/cross_records.h"

#include <QWidget>

class QAction;
class QLineEdit;

namespace kavela::desktop {

class ColumnTable;
class TakingDocument;

/// A time trial as its list shows it.
struct TrialRow {
    std::int64_t position = 0; ///< from 1; 0 for none yet
    std::string athlete;
    double time = 0; ///< seconds; 0 for not timed
    QString film;
    bool isMissing = false; ///< the film has a name and is not there
};

/// The time trials of a cross race in the order of the file, with what adds, names and removes
/// them. Changes nothing itself.
class TrialList : public QWidget {
    Q_OBJECT

public:
    explicit TrialList(QWidget* parent = nullptr);

    /// Films that the document does not find are shown as missing.
    void setTrials(const std::vector<ttdata030>& trials, const TakingDocument& document);
    void setCurrent(std::optional<std::size_t> trial);

    void startAdding();
    void startRenaming(std::size_t trial);

signals:
    void chosen(std::size_t trial);
    void nameTyped(const QString& athlete);                  ///< of a new trial
    void renamed(std::size_t trial, const QString& athlete); ///< another name, not empty
    void filmWanted();
    void removalWanted();

private:
    enum Place { AthleteColumn = 1, FilmColumn = 3 };

    [[nodiscard]] ColumnModel<TrialRow>::Columns columns();
    [[nodiscard]] Cell filmCell(const TrialRow& row) const;
    void makeTable();
    void makeLayout();

    QLineEdit* m_name;
    ColumnModel<TrialRow> m_rows;
    ColumnTable* m_table;
    std::vector<QAction*> m_ofTrial; ///< of the one in front: its name, film and removal
};

} // namespace kavela::desktop
