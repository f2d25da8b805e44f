#pragma once

#include "splitdata/cross_records.h"

#include <QWidget>

class QLineEdit;
class QPushButton;
class QTableWidget;

namespace kavela::desktop {

class TakingDocument;

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
    void nameTyped(const QString& athlete); ///< of a new trial
    void renamed(std::size_t trial, const QString& athlete);
    void filmWanted();
    void removalWanted();

private:
    enum Column { PositionColumn, AthleteColumn, TimeColumn, FilmColumn, Columns };

    [[nodiscard]] QTableWidget* makeTable();
    void connectTable();
    void setText(int row, Column column, const QString& text);
    void showFilm(int row, const std::string& film, const TakingDocument& document);

    QLineEdit* m_name;
    QTableWidget* m_table;
    QPushButton* m_film;
    QPushButton* m_remove;
};

} // namespace kavela::desktop
