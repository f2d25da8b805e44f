#pragma once

#include "desktop/folder/film_rows.h"

#include <QStringList>
#include <QWidget>

#include <optional>

class QLabel;
class QLineEdit;
class QTabWidget;

namespace kavela::desktop {

class ColumnTable;
class FilmShelf;
class FilmTiles;
class ThumbnailStore;

/// The films of a shelf as a list, as tiles, and tag by tag, under a line that filters all three.
class FilmBrowser : public QWidget {
    Q_OBJECT

public:
    enum Page { List, Tiles, Tags };

    FilmBrowser(FilmShelf& shelf, ThumbnailStore& looks, QWidget* parent = nullptr);
    ~FilmBrowser() override;

    [[nodiscard]] Page page() const;
    void setPage(Page page);
    [[nodiscard]] QLineEdit& filterLine() const { return *m_filter; }
    /// The keyboard goes to the page in front.
    void takeFocus();

    /// The film with the cursor on the page in front, or whose tag has it; empty for none.
    [[nodiscard]] QString currentFilm() const;
    /// All that are chosen there, the one with the cursor first.
    [[nodiscard]] QStringList chosenFilms() const;
    /// The tag with the cursor; nothing on the other pages.
    [[nodiscard]] std::optional<FilmTagRow> currentTag() const;
    /// Those that pass the filter, as they are sorted in the list.
    [[nodiscard]] QStringList shownFilms() const;
    void choose(const QString& film);
    /// Goes to the film, or on their page the tag, so many places on. False at the end.
    bool step(int places);
    /// The film that step(1) would go to; empty for none.
    [[nodiscard]] QString nextFilm() const;
    [[nodiscard]] ColumnTable& list() const { return *m_list; }
    [[nodiscard]] ColumnTable& tags() const { return *m_tagList; }
    [[nodiscard]] FilmTiles& tiles() const { return *m_tiles; }

signals:
    void chosen();    ///< another film or tag, or another page
    void clicked();   ///< on a film or tag
    void activated(); ///< by Enter or a double click

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makePages(ThumbnailStore& looks);
    void connectPages();
    void showFilms();
    void filter();
    void showTiles();
    void askForLooks();
    [[nodiscard]] QStringList rowsBySight() const;
    void showPage(int page);
    void takeLook(const QString& film);
    [[nodiscard]] FilmRow rowOf(const ListedFilm& film) const;
    [[nodiscard]] ColumnTable* front() const; ///< null for the tiles

    FilmShelf& m_shelf;
    ThumbnailStore& m_looks;
    ColumnModel<FilmRow, QString> m_films;
    ColumnModel<FilmTagRow, QString> m_tagRows;
    QLineEdit* m_filter;
    QLabel* m_count;
    QTabWidget* m_pages;
    ColumnTable* m_list = nullptr;
    FilmTiles* m_tiles = nullptr;
    ColumnTable* m_tagList = nullptr;
    int m_page = List; ///< that was in front last
};

} // namespace kavela::desktop
