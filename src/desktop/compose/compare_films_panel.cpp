#include "desktop/compose/compare_films_panel.h"

#include "compose/layout.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typed_number.h"
#include "vision/track_file.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr std::size_t MostComparedFilms = 4;

QString searchedText(const CompareCandidate& candidate) {
    return QStringList{candidate.names, candidate.category, candidate.phase,
                       QFileInfo(candidate.film).fileName()}
        .join(' ');
}

} // namespace

CompareFilmsPanel::CompareFilmsPanel(Edit edit, QWidget* parent)
    : QWidget(parent),
      m_edit(std::move(edit)),
      m_candidates(candidateColumns(), [](const CandidateRow& row) { return row.number; }),
      m_films(filmColumns(), RowsKnownBy::Number) {
    auto* const parts = new QSplitter(Qt::Vertical);
    parts->addWidget(makeCandidates());
    parts->addWidget(makeFilms());
    parts->setStretchFactor(0, 3);
    parts->setStretchFactor(1, 1);
    parts->setChildrenCollapsible(false);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(parts);
}

std::vector<Column<CompareFilmsPanel::CandidateRow>> CompareFilmsPanel::candidateColumns() {
    Column<CandidateRow> chosen = textColumn<CandidateRow>(tr("In it"), nullptr);
    chosen.tip = tr("Its place in the composed film. Enter chooses it or takes it out.");
    chosen.show = [](const CandidateRow& row) {
        Cell cell;
        cell.isTicked = row.film > 0;
        cell.sortValue = row.film;
        if (row.film > 0)
            cell.text = QString::number(row.film);
        return cell;
    };
    chosen.tick = [this](const std::size_t& number, const CandidateRow&, bool) { toggle(number); };
    Column<CandidateRow> film = textColumn<CandidateRow>(tr("Film"), nullptr);
    film.show = [](const CandidateRow& row) {
        Cell cell;
        cell.text = QFileInfo(row.candidate.film).fileName();
        cell.tip = row.candidate.film;
        if (!row.candidate.splitFile.isEmpty() && !row.candidate.isMarked) {
            cell.look = Cell::Look::Quiet;
            cell.tip += '\n' + tr("It is not marked from the start to a split.");
        }
        return cell;
    };
    return {chosen,
            textColumn<CandidateRow>(tr("Name"),
                                     [](const CandidateRow& row) { return row.candidate.names; }),
            textColumn<CandidateRow>(
                tr("Category"), [](const CandidateRow& row) { return row.candidate.category; }),
            textColumn<CandidateRow>(tr("Phase"),
                                     [](const CandidateRow& row) { return row.candidate.phase; }),
            numberColumn<CandidateRow>(
                tr("Time"), [](const CandidateRow& row) { return row.candidate.time; },
                [](double time) { return shownHundredths(time); }),
            film};
}

std::vector<Column<CompareFilmsPanel::FilmRow>> CompareFilmsPanel::filmColumns() {
    const auto change = [this](std::size_t place, const QString& what,
                               const std::function<void(composefilm002&)>& to) {
        m_edit(what, [&](composejob002& job) {
            if (place < job.films.size())
                to(job.films[place]);
        });
    };
    Column<FilmRow> names =
        textColumn<FilmRow>(tr("Name in the film"), [](const FilmRow& row) { return row.names; });
    names.take = [change](const std::size_t& place, const FilmRow&, const QString& typed) {
        change(place, tr("name in the film"),
               [&](composefilm002& film) { film.names = typed.toStdString(); });
    };
    Column<FilmRow> category = textColumn<FilmRow>(tr("Category"), [](const FilmRow& row) {
        return QString::fromStdString(row.film.category);
    });
    category.tip = tr("In place of that of the split file.");
    category.take = [change](const std::size_t& place, const FilmRow&, const QString& typed) {
        change(place, tr("category in the film"),
               [&](composefilm002& film) { film.category = typed.toStdString(); });
    };
    Column<FilmRow> start = textColumn<FilmRow>(tr("Starts at [s]"), nullptr);
    start.kind = ColumnKind::Number;
    start.tip = tr("The second of the film at which a run without marks starts.");
    start.show = [](const FilmRow& row) {
        Cell cell;
        cell.isLocked = row.isMarked;
        cell.text = row.isMarked ? tr("marked") : shownHundredths(row.film.startsAt);
        if (!row.isMarked)
            cell.typed = shownNumber(row.film.startsAt);
        return cell;
    };
    start.take = [change](const std::size_t& place, const FilmRow&, const QString& typed) {
        const double seconds =
            typedSeconds(typed, {0, 86400, tr("The start is a second of the film, 0 to 86400")});
        change(place, tr("start of a film"),
               [&](composefilm002& film) { film.startsAt = seconds; });
    };
    std::vector<Column<FilmRow>> columns{
        textColumn<FilmRow>(tr("No."),
                            [](const FilmRow& row) { return QString::number(row.place + 1); }),
        names, category, start};
    for (Column<FilmRow>& tick : pathTicks())
        columns.push_back(std::move(tick));
    columns.push_back(textColumn<FilmRow>(tr("Film"), [](const FilmRow& row) { return row.file; }));
    return columns;
}

/// What can be shown of the path that was followed on a film.
std::vector<Column<CompareFilmsPanel::FilmRow>> CompareFilmsPanel::pathTicks() {
    const auto tickOf = [this](const QString& title, const QString& tip,
                               const std::function<bool(const composefilm002&)>& isOn,
                               const std::function<void(composefilm002&, bool)>& turn) {
        Column<FilmRow> column = textColumn<FilmRow>(title, nullptr);
        column.tip = tip;
        column.show = [isOn](const FilmRow& row) {
            Cell cell;
            if (row.track.isEmpty())
                cell.text = QStringLiteral("–");
            else
                cell.isTicked = isOn(row.film);
            return cell;
        };
        column.tick = [this, turn](const std::size_t& place, const FilmRow& row, bool isTicked) {
            if (row.track.isEmpty())
                return;
            m_edit(tr("path of a film"), [&](composejob002& job) {
                if (place >= job.films.size())
                    return;
                composefilm002& film = job.films[place];
                turn(film, isTicked);
                const bool isUsed = film.drawsPath || film.zoom > 1;
                film.track = isUsed ? row.track.toStdString() : std::string();
            });
        };
        return column;
    };
    return {tickOf(
                tr("Path"), tr("Draws the path that was followed on it in the window Tracking."),
                [](const composefilm002& film) { return film.drawsPath; },
                [](composefilm002& film, bool isTicked) { film.drawsPath = isTicked; }),
            tickOf(
                tr("Follow"), tr("Shows it twice as large, round that path."),
                [](const composefilm002& film) { return film.zoom > 1; },
                [](composefilm002& film, bool isTicked) {
                    film.zoom = isTicked ? PathView::MostZoom : 1;
                })};
}

QWidget* CompareFilmsPanel::makeCandidates() {
    auto* const part = new QWidget;
    m_filter = new QLineEdit;
    m_filter->setObjectName("candidateFilter");
    m_filter->setPlaceholderText(tr("Find a name, a category, a film…"));
    m_filter->setClearButtonEnabled(true);
    m_candidateTable = new ColumnTable(m_candidates, "candidates");
    m_candidateTable->setEmptyText(
        tr("Add split files or films, then tick the two to four that are compared."));
    m_candidateTable->keepOneChosen();
    m_candidateTable->stretch({1, 5});
    auto* const runs = new QPushButton(tr("Add s&plit files…"));
    auto* const films = new QPushButton(tr("Add &films…"));
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(runs);
    buttons->addWidget(films);
    buttons->addStretch();
    auto* const column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_filter);
    column->addWidget(m_candidateTable, 1);
    column->addLayout(buttons);
    connect(m_filter, &QLineEdit::textChanged, this, &CompareFilmsPanel::filter);
    connect(runs, &QPushButton::clicked, this, &CompareFilmsPanel::splitFilesWanted);
    connect(films, &QPushButton::clicked, this, &CompareFilmsPanel::filmsWanted);
    connect(m_candidateTable, &ColumnTable::activated, this, [this](const QModelIndex& cell) {
        toggle(m_candidates.key(m_candidateTable->placeAt(cell)));
    });
    return part;
}

QWidget* CompareFilmsPanel::makeFilms() {
    auto* const part = new QWidget;
    auto* const title = new QLabel(tr("In the composed film"));
    title->setFont(theme::titleFont(*this));
    m_filmTable = new ColumnTable(m_films, "comparedFilms");
    m_filmTable->keepOrder();
    m_filmTable->keepOneChosen();
    m_filmTable->stretch({1});
    m_filmTable->setEmptyText(tr("No film is chosen yet."));
    m_filmTable->setRemove(tr("&Take it out"), [this](const std::vector<int>& places) {
        if (!places.empty())
            removeFilm(static_cast<std::size_t>(places.front()));
    });
    m_filmTable->addCommand(tr("Move it &up"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Up),
                            [this] { moveFilm(-1); });
    m_filmTable->addCommand(tr("Move it &down"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Down),
                            [this] { moveFilm(1); });
    auto* const column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(title);
    column->addWidget(m_filmTable, 1);
    return part;
}

void CompareFilmsPanel::addCandidates(const std::vector<CompareCandidate>& found) {
    for (const CompareCandidate& candidate : found) {
        const auto known = std::ranges::find(m_known, candidate.key(), &CompareCandidate::key);
        if (known == m_known.end())
            m_known.push_back(candidate);
        else
            *known = candidate;
    }
    showRows();
}

void CompareFilmsPanel::showJob(const composejob002& job) {
    m_job = job;
    showRows();
}

const CompareCandidate* CompareFilmsPanel::candidateOf(const composefilm002& film) const {
    const auto found = std::ranges::find_if(
        m_known, [&](const CompareCandidate& candidate) { return isCandidate(film, candidate); });
    return found == m_known.end() ? nullptr : &*found;
}

void CompareFilmsPanel::showRows() {
    std::vector<CandidateRow> rows;
    for (std::size_t number = 0; number < m_known.size(); ++number) {
        const auto film = std::ranges::find_if(m_job.films, [&](const composefilm002& entry) {
            return isCandidate(entry, m_known[number]);
        });
        rows.push_back(
            {number,
             film == m_job.films.end() ? 0 : static_cast<int>(film - m_job.films.begin()) + 1,
             m_known[number]});
    }
    m_candidates.show(std::move(rows));
    std::vector<FilmRow> films;
    for (std::size_t place = 0; place < m_job.films.size(); ++place) {
        const composefilm002& film = m_job.films[place];
        const CompareCandidate* const known = candidateOf(film);
        FilmRow row{place,
                    film,
                    QString::fromStdString(film.names),
                    QFileInfo(QString::fromStdString(film.film)).fileName(),
                    known && known->isMarked,
                    QString::fromStdString(film.track)};
        if (known && row.names.isEmpty())
            row.names = known->names;
        if (known)
            row.file = QFileInfo(known->film).fileName();
        const std::string path = known ? known->film.toStdString() : film.film;
        if (row.track.isEmpty() && !path.empty()) {
            const QString track = QString::fromStdString(trackPathOf(path).string());
            row.track = QFileInfo::exists(track) ? track : QString();
        }
        films.push_back(std::move(row));
    }
    m_films.show(std::move(films));
}

void CompareFilmsPanel::filter(const QString& text) {
    const QStringList words = text.split(' ', Qt::SkipEmptyParts);
    m_candidateTable->setFilter([this, words](int place) {
        const QString searched = searchedText(m_candidates.row(place).candidate);
        return std::ranges::all_of(words, [&](const QString& word) {
            return searched.contains(word, Qt::CaseInsensitive);
        });
    });
}

/// A layout of two films gives way to one that takes a third.
void CompareFilmsPanel::toggle(std::size_t candidate) {
    if (candidate >= m_known.size())
        return;
    const CompareCandidate chosen = m_known[candidate];
    const auto film = std::ranges::find_if(
        m_job.films, [&](const composefilm002& entry) { return isCandidate(entry, chosen); });
    if (film != m_job.films.end()) {
        removeFilm(static_cast<std::size_t>(film - m_job.films.begin()));
        return;
    }
    if (m_job.films.size() >= MostComparedFilms) {
        emit refused(tr("Four films are the most. Take one out first."));
        return;
    }
    m_edit(tr("choice of a film"), [&](composejob002& job) {
        job.films.push_back(filmOfCandidate(chosen));
        if (job.films.size() > 2 &&
            (job.layout == wordOf(LayoutKind::Ghost) || job.layout == wordOf(LayoutKind::Wipe)))
            job.layout = wordOf(LayoutKind::SideBySide);
        settleRange(job, m_known);
    });
}

/// What is heard stays with its film.
void CompareFilmsPanel::removeFilm(std::size_t film) {
    if (film >= m_job.films.size())
        return;
    m_edit(tr("removal of a film"), [&](composejob002& job) {
        job.films.erase(job.films.begin() + static_cast<std::ptrdiff_t>(film));
        const auto heard = static_cast<std::size_t>(std::max<std::int64_t>(job.sound, 0));
        if (heard == film + 1)
            job.sound = 0;
        else if (heard > film + 1)
            --job.sound;
    });
}

void CompareFilmsPanel::moveFilm(int step) {
    const int from = m_filmTable->currentPlace();
    const int to = from + step;
    if (from < 0 || to < 0 || to >= static_cast<int>(m_job.films.size()))
        return;
    m_edit(tr("order of the films"), [&](composejob002& job) {
        std::swap(job.films[static_cast<std::size_t>(from)],
                  job.films[static_cast<std::size_t>(to)]);
        if (job.sound == from + 1)
            job.sound = to + 1;
        else if (job.sound == to + 1)
            job.sound = from + 1;
    });
    m_filmTable->choose(to);
}

void CompareFilmsPanel::find() {
    m_filter->setFocus();
    m_filter->selectAll();
}

} // namespace kavela::desktop
