#include "desktop/fetch/fetch_list.h"

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

using FilmState = fetch::PlannedFilm::State;

/// What the coach decided is found again where the list gives the films another order.
std::string choiceKey(const fetch::PlannedFilm& film) {
    return film.address.text() + '\n' + film.name;
}

} // namespace

FetchList::FetchList()
    : m_model(fetchColumns([this](std::size_t place, bool isTicked) { tick(place, isTicked); }),
              RowsKnownBy::Number) {}

bool FetchList::hasTicked() const {
    return std::ranges::any_of(m_rows, [](const FetchRow& row) { return row.isTicked; });
}

bool FetchList::wantsLogin() const {
    return std::ranges::any_of(
        m_rows, [](const FetchRow& row) { return row.result && row.result->wantsLogin; });
}

void FetchList::setFilms(const std::vector<fetch::PlannedFilm>& films) {
    m_rows.clear();
    m_fetched.clear();
    for (const fetch::PlannedFilm& film : films) {
        FetchRow row{.film = film};
        const auto choice = m_choices.find(choiceKey(film));
        row.isTicked =
            row.canBeTicked() &&
            (choice != m_choices.end() ? choice->second : film.state == FilmState::Wanted);
        m_rows.push_back(std::move(row));
    }
    m_model.show(m_rows, true);
}

void FetchList::tick(std::size_t place, bool isTicked) {
    FetchRow& row = m_rows.at(place);
    row.isTicked = isTicked;
    m_choices[choiceKey(row.film)] = isTicked;
    refresh();
    emit ticked();
}

void FetchList::tickAll(bool isTicked) {
    for (FetchRow& row : m_rows) {
        // Which of several runs a film is of is decided one by one.
        const bool isOwn = row.canBeTicked() && row.film.state == FilmState::Wanted;
        if (!isOwn && (isTicked || !row.isTicked))
            continue;
        row.isTicked = isTicked;
        m_choices[choiceKey(row.film)] = isTicked;
    }
    refresh();
    emit ticked();
}

std::vector<fetch::PlannedFilm> FetchList::startJob() {
    m_fetched.clear();
    std::vector<fetch::PlannedFilm> films;
    for (std::size_t place = 0; place < m_rows.size(); ++place) {
        FetchRow& row = m_rows[place];
        row.result.reset();
        row.isWaiting = row.isTicked;
        if (!row.isTicked)
            continue;
        m_fetched.push_back(place);
        films.push_back(row.film);
    }
    refresh();
    return films;
}

int FetchList::endedFilms() const {
    return static_cast<int>(std::ranges::count_if(m_fetched, [this](std::size_t row) {
        return row < m_rows.size() && m_rows[row].result.has_value();
    }));
}

void FetchList::startFilm(std::size_t place) {
    FetchRow& row = rowOf(place);
    row.isWaiting = false;
    row.isRunning = true;
    refresh();
}

void FetchList::noteProgress(std::size_t place, qint64 done, qint64 all) {
    FetchRow& row = rowOf(place);
    row.done = done;
    row.all = all;
}

void FetchList::endFilm(std::size_t place, const fetch::FilmResult& result) {
    FetchRow& row = rowOf(place);
    row.isRunning = false;
    row.isWaiting = false;
    row.result = result;
    // What failed stays ticked: fetching again goes on with it.
    if (result.kind == fetch::FilmResult::Kind::Fetched)
        row.isTicked = false;
    refresh();
}

} // namespace kavela::desktop
