#include "desktop/folder/film_browser.h"

#include "desktop/folder/film_shelf.h"
#include "desktop/folder/film_tiles.h"
#include "desktop/folder/thumbnail_store.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "splittaking/folder/film_filter.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

FilmBrowser::FilmBrowser(FilmShelf& shelf, ThumbnailStore& looks, QWidget* parent)
    : QWidget(parent),
      m_shelf(shelf),
      m_looks(looks),
      m_films(filmColumns(), [](const FilmRow& row) { return row.path; }),
      m_tagRows(tagColumns(), tagKey),
      m_filter(new QLineEdit),
      m_count(new QLabel),
      m_pages(new QTabWidget) {
    m_filter->setObjectName("filmFilter");
    m_filter->setPlaceholderText(tr("Filter: k1w 12 semi"));
    m_filter->setClearButtonEnabled(true);
    m_count->setForegroundRole(QPalette::PlaceholderText);
    makePages(looks);
    auto* const top = new QHBoxLayout;
    top->addWidget(m_filter, 1);
    top->addWidget(m_count);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addLayout(top);
    column->addWidget(m_pages, 1);
    connectPages();
    showFilms();
}

/// The pages report to this while they are taken apart.
FilmBrowser::~FilmBrowser() {
    m_filter->disconnect(this);
    m_filter->removeEventFilter(this);
    m_pages->disconnect(this);
    m_list->disconnect(this);
    m_list->selectionModel()->disconnect(this);
    m_list->verticalScrollBar()->disconnect(this);
    m_list->viewport()->removeEventFilter(this);
    m_tiles->disconnect(this);
    m_tagList->disconnect(this);
}

void FilmBrowser::makePages(ThumbnailStore& looks) {
    m_list = new ColumnTable(m_films, "filmList");
    m_list->keepOneChosen();
    m_list->setIconSize(RowLook);
    m_list->verticalHeader()->setDefaultSectionSize(RowLook.height() + theme::SmallSpacing);
    m_tiles = new FilmTiles(looks);
    m_tagList = new ColumnTable(m_tagRows, "filmTags");
    m_tagList->setEmptyText(tr("No tag yet: M sets one where a film stands."));
    m_pages->setDocumentMode(true);
    m_pages->tabBar()->setDrawBase(false);
    m_pages->addTab(m_list, tr("List"));
    m_pages->addTab(m_tiles, tr("Tiles"));
    m_pages->addTab(m_tagList, tr("Tags"));
}

void FilmBrowser::connectPages() {
    m_filter->installEventFilter(this);
    connect(m_filter, &QLineEdit::textChanged, this, &FilmBrowser::filter);
    connect(&m_shelf, &FilmShelf::changed, this, &FilmBrowser::showFilms);
    connect(&m_shelf, &FilmShelf::watchedChanged, this, &FilmBrowser::showFilms);
    connect(&m_looks, &ThumbnailStore::looked, this, &FilmBrowser::takeLook);
    connect(m_tiles, &FilmTiles::sightChanged, this, &FilmBrowser::askForLooks);
    connect(m_list, &ColumnTable::shownChanged, this, &FilmBrowser::showTiles);
    connect(m_list->verticalScrollBar(), &QScrollBar::valueChanged, this,
            &FilmBrowser::askForLooks);
    m_list->viewport()->installEventFilter(this);
    connect(m_pages, &QTabWidget::currentChanged, this, &FilmBrowser::showPage);
    connect(m_list, &ColumnTable::chosen, this, [this] {
        if (page() == List)
            emit chosen();
    });
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (page() == List)
            emit chosen();
    });
    connect(m_tiles, &FilmTiles::chosen, this, [this] {
        if (page() == Tiles)
            emit chosen();
    });
    connect(m_tagList, &ColumnTable::chosen, this, [this] {
        if (page() == Tags)
            emit chosen();
    });
    for (QAbstractItemView* const view :
         {static_cast<QAbstractItemView*>(m_list), static_cast<QAbstractItemView*>(m_tiles),
          static_cast<QAbstractItemView*>(m_tagList)}) {
        connect(view, &QAbstractItemView::clicked, this, &FilmBrowser::clicked);
        connect(view, &QAbstractItemView::activated, this, &FilmBrowser::activated);
    }
}

FilmBrowser::Page FilmBrowser::page() const {
    return static_cast<Page>(m_pages->currentIndex());
}

void FilmBrowser::setPage(Page page) {
    m_pages->setCurrentIndex(page);
}

/// The film that was chosen stays so on the other page.
void FilmBrowser::showPage(int page) {
    const QString film = m_page == Tiles ? m_tiles->currentFilm() : QString();
    const int place = m_page == List ? m_list->currentPlace() : -1;
    const QString chosenBefore = place < 0 ? film : m_films.row(place).path;
    m_page = page;
    if (!chosenBefore.isEmpty() && page != Tags)
        choose(chosenBefore);
    askForLooks();
    emit chosen();
}

FilmRow FilmBrowser::rowOf(const ListedFilm& film) const {
    FilmRow row{film, qtText(film.path.string())};
    row.isWatched = m_shelf.isWatched(row.path);
    if (const FilmLook* const look = m_looks.lookOf(row.path)) {
        row.seconds = look->seconds;
        if (!look->small.isNull())
            row.look = QIcon(QPixmap::fromImage(look->small));
        row.fault = look->fault;
    }
    return row;
}

void FilmBrowser::showFilms() {
    std::vector<FilmRow> rows;
    std::vector<FilmTagRow> tags;
    for (const ListedFilm& film : m_shelf.films()) {
        rows.push_back(rowOf(film));
        for (std::size_t number = 0; number < film.tags.size(); ++number)
            tags.push_back({rows.back().path, joined(film.names), film, film.tags[number], number});
    }
    m_films.show(std::move(rows));
    m_tagRows.show(std::move(tags));
    filter();
}

/// Rows come in one by one: the whole list is not worked out anew for each.
void FilmBrowser::takeLook(const QString& film) {
    std::vector<FilmRow> rows = m_films.rows();
    const auto row = std::ranges::find(rows, film, &FilmRow::path);
    if (row == rows.end())
        return;
    *row = rowOf(row->film);
    m_films.show(std::move(rows));
    showTiles();
}

void FilmBrowser::filter() {
    const FilmFilter typed(m_filter->text().toStdString());
    m_list->setFilter([this, typed](int place) { return typed.passes(m_films.row(place).film); });
    m_tagList->setFilter([this, typed](int place) {
        const FilmTagRow& row = m_tagRows.row(place);
        return typed.passes(row.film, row.tag.name);
    });
    showTiles();
}

void FilmBrowser::showTiles() {
    std::vector<const FilmRow*> shown;
    for (const int place : m_list->shownPlaces())
        shown.push_back(&m_films.row(place));
    const auto all = static_cast<qsizetype>(m_films.rows().size());
    const auto count = static_cast<qsizetype>(shown.size());
    m_list->setEmptyText(
        all > 0 ? tr("No film fits the filter. Empty it to see all again.")
                : tr("No film here. Open a folder of films with Ctrl+O, or drop one."));
    m_count->setText(count == all ? tr("%1 films").arg(all)
                                  : tr("%1 of %2 films").arg(count).arg(all));
    m_tiles->setFilms(shown);
    askForLooks();
}

/// Pictures and lengths stand in the list too: all films are looked at in the end, those in sight
/// on the page in front first.
void FilmBrowser::askForLooks() {
    m_looks.ask(page() == Tiles ? m_tiles->filmsBySight() : rowsBySight());
}

QStringList FilmBrowser::rowsBySight() const {
    QStringList seen;
    QStringList others;
    for (const int place : m_list->shownPlaces()) {
        const int row = m_list->cellAt(place, 0).row();
        const int top = m_list->rowViewportPosition(row);
        const bool isSeen = top + m_list->rowHeight(row) > 0 && top < m_list->viewport()->height();
        (isSeen && m_list->isVisible() ? seen : others).append(m_films.row(place).path);
    }
    return seen + others;
}

void FilmBrowser::takeFocus() {
    m_pages->currentWidget()->setFocus();
}

/// Other rows come into sight where the list grows or is first seen. From the filter the way down
/// leads to what it left.
bool FilmBrowser::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_filter && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down) {
        takeFocus();
        return true;
    }
    if (watched == m_list->viewport() &&
        (event->type() == QEvent::Resize || event->type() == QEvent::Show))
        askForLooks();
    return QWidget::eventFilter(watched, event);
}

ColumnTable* FilmBrowser::front() const {
    return page() == List ? m_list : page() == Tags ? m_tagList : nullptr;
}

std::optional<FilmTagRow> FilmBrowser::currentTag() const {
    const int place = page() == Tags ? m_tagList->currentPlace() : -1;
    return place < 0 ? std::nullopt : std::optional(m_tagRows.row(place));
}

QString FilmBrowser::currentFilm() const {
    if (page() == Tiles)
        return m_tiles->currentFilm();
    const int place = front()->currentPlace();
    if (place < 0)
        return {};
    return page() == List ? m_films.row(place).path : m_tagRows.row(place).path;
}

QStringList FilmBrowser::chosenFilms() const {
    QStringList films;
    if (page() == Tiles)
        films = m_tiles->chosenFilms();
    else if (page() == List)
        for (const int place : m_list->selectedPlaces())
            films.append(m_films.row(place).path);
    const QString current = currentFilm();
    if (!current.isEmpty() && (page() == Tags || films.isEmpty() || films.contains(current))) {
        films.removeAll(current);
        films.prepend(current);
    }
    return films;
}

QStringList FilmBrowser::shownFilms() const {
    QStringList films;
    for (const int place : m_list->shownPlaces())
        films.append(m_films.row(place).path);
    return films;
}

void FilmBrowser::choose(const QString& film) {
    if (page() == Tiles)
        m_tiles->choose(film);
    else if (const int place = m_films.placeOfKey(film); place >= 0)
        m_list->choose(place);
}

QString FilmBrowser::nextFilm() const {
    const QStringList films = shownFilms();
    const qsizetype here = films.indexOf(currentFilm());
    return page() == Tags || here < 0 ? QString() : films.value(here + 1);
}

bool FilmBrowser::step(int places) {
    if (page() == Tags) {
        const std::vector<int> shown = m_tagList->shownPlaces();
        const auto here = std::ranges::find(shown, m_tagList->currentPlace());
        const auto to = here - shown.begin() + places;
        if (here == shown.end() || to < 0 || to >= std::ssize(shown))
            return false;
        m_tagList->choose(shown[static_cast<std::size_t>(to)]);
        return true;
    }
    const QStringList films = shownFilms();
    const qsizetype to = films.indexOf(currentFilm()) + places;
    if (to < 0 || to >= films.size())
        return false;
    choose(films[to]);
    return true;
}

} // namespace kavela::desktop
