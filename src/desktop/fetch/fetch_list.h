#pragma once

#include "desktop/fetch/fetch_rows.h"
#include "fetch/running_film.h"

#include <QObject>

#include <map>
#include <string>
#include <vector>

namespace kavela::desktop {

/// The films that would be fetched, those the coach ticked, and what becomes of them in a job.
class FetchList : public QObject {
    Q_OBJECT

public:
    FetchList();

    [[nodiscard]] const std::vector<FetchRow>& rows() const { return m_rows; }
    [[nodiscard]] ColumnModel<FetchRow>& model() { return m_model; }
    [[nodiscard]] bool hasTicked() const;
    [[nodiscard]] bool wantsLogin() const;

    /// Films of another plan; what the coach decided about one of them before holds. Without any,
    /// nothing is shown.
    void setFilms(const std::vector<fetch::PlannedFilm>& films);
    /// What the coach decided so far counts no more.
    void forgetChoices() { m_choices.clear(); }
    /// Ticks those that are of one run alone, or none.
    void tickAll(bool isTicked);

    /// The ticked films, in the order of the list; they wait from now on.
    [[nodiscard]] std::vector<fetch::PlannedFilm> startJob();
    /// Of the job, as those that follow; 0 without one.
    [[nodiscard]] int jobFilms() const { return static_cast<int>(m_fetched.size()); }
    [[nodiscard]] int endedFilms() const;
    /// By its place among the films of the job.
    void startFilm(std::size_t place);
    void noteProgress(std::size_t place, qint64 done, qint64 all);
    void endFilm(std::size_t place, const fetch::FilmResult& result);
    /// Shows what noteProgress() told.
    void refresh() { m_model.show(m_rows); }

signals:
    void ticked(); ///< by the coach

private:
    void tick(std::size_t place, bool isTicked);
    [[nodiscard]] FetchRow& rowOf(std::size_t place) { return m_rows.at(m_fetched.at(place)); }

    std::vector<FetchRow> m_rows;
    std::map<std::string, bool> m_choices; ///< of the coach, by address and file name
    std::vector<std::size_t> m_fetched;    ///< rows of the job, by their places in it
    ColumnModel<FetchRow> m_model;
};

} // namespace kavela::desktop
