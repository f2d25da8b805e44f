#pragma once

#include "desktop/compose/compare_candidates.h"
#include "desktop/shell/tables/column_model.h"

#include <QWidget>

#include <functional>
#include <vector>

class QLineEdit;

namespace kavela::desktop {

class ColumnTable;

/// Which films are compared: above all that can be chosen, below the two to four that are, in their
/// order.
class CompareFilmsPanel : public QWidget {
    Q_OBJECT

public:
    /// Makes a change of the job a step of undo.
    using Edit =
        std::function<void(const QString& what, const std::function<void(composejob002&)>& change)>;

    explicit CompareFilmsPanel(Edit edit, QWidget* parent = nullptr);

    /// Takes in what can be chosen, beside what was there; what it knows already stays.
    void addCandidates(const std::vector<CompareCandidate>& found);
    [[nodiscard]] const std::vector<CompareCandidate>& candidates() const { return m_known; }
    void showJob(const composejob002& job);

    /// Chooses a candidate as the last film, or takes it out; by its place among candidates().
    void toggle(std::size_t candidate);
    /// Takes a film out, and moves it; by its place in the job.
    void removeFilm(std::size_t film);
    void moveFilm(int step);
    void find();

    [[nodiscard]] ColumnTable& candidateTable() const { return *m_candidateTable; }
    [[nodiscard]] ColumnTable& filmTable() const { return *m_filmTable; }

signals:
    void splitFilesWanted();
    void filmsWanted();
    /// Something that cannot be done, in a sentence.
    void refused(const QString& why);

private:
    struct CandidateRow {
        std::size_t number = 0; ///< its place among the candidates
        int film = 0;           ///< its place in the job, counted from 1; 0 where it is not chosen
        CompareCandidate candidate;
    };
    struct FilmRow {
        std::size_t place = 0;
        composefilm002 film;
        QString names; ///< as they are shown
        QString file;
        bool isMarked = false;
        QString track; ///< the path that lies beside its film; empty for none
    };

    [[nodiscard]] std::vector<Column<CandidateRow>> candidateColumns();
    [[nodiscard]] std::vector<Column<FilmRow>> filmColumns();
    [[nodiscard]] std::vector<Column<FilmRow>> pathTicks();
    [[nodiscard]] QWidget* makeCandidates();
    [[nodiscard]] QWidget* makeFilms();
    void showRows();
    void filter(const QString& text);
    [[nodiscard]] const CompareCandidate* candidateOf(const composefilm002& film) const;

    Edit m_edit;
    std::vector<CompareCandidate> m_known;
    composejob002 m_job;
    ColumnModel<CandidateRow> m_candidates;
    ColumnModel<FilmRow> m_films;
    ColumnTable* m_candidateTable = nullptr;
    ColumnTable* m_filmTable = nullptr;
    QLineEdit* m_filter = nullptr;
};

} // namespace kavela::desktop
