#include "desktop/film/film_grid.h"

#include "desktop/shell/theme.h"

#include <QEvent>

#include <algorithm>

namespace kavela::desktop {

FilmGrid::FilmGrid(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void FilmGrid::setFilms(const std::vector<QWidget*>& films) {
    m_films.clear();
    m_alone = nullptr;
    for (QWidget* const film : films) {
        film->setParent(this);
        film->installEventFilter(this);
        m_films.emplace_back(film);
    }
    place();
}

int FilmGrid::columnsFor(int count, QSize box) {
    constexpr double Wide = 16;
    constexpr double High = 9;
    int best = std::max(count, 1);
    double largest = 0;
    for (int columns = count; columns > 0; --columns) {
        const int rows = (count + columns - 1) / columns;
        const double scale = std::min(box.width() / (Wide * columns), box.height() / (High * rows));
        if (scale > largest) {
            largest = scale;
            best = columns;
        }
    }
    return best;
}

void FilmGrid::place() {
    std::erase_if(m_films, [](const QPointer<QWidget>& film) { return !film; });
    std::vector<QWidget*> shown;
    for (const QPointer<QWidget>& film : m_films) {
        const bool isShown = !m_alone || film == m_alone;
        film->setVisible(isShown);
        if (isShown)
            shown.push_back(film);
    }
    const int count = static_cast<int>(shown.size());
    const int columns = columnsFor(count, size());
    const int rows = (count + columns - 1) / columns;
    for (int i = 0; i < count; ++i) {
        const int row = i / columns;
        const int inRow = std::min(columns, count - row * columns);
        const int left = width() * (i % columns) / inRow;
        const int right = width() * (i % columns + 1) / inRow;
        const int top = height() * row / rows;
        const int bottom = height() * (row + 1) / rows;
        const int gapX = i % columns > 0 ? theme::SmallSpacing : 0;
        const int gapY = row > 0 ? theme::SmallSpacing : 0;
        shown[static_cast<std::size_t>(i)]->setGeometry(left + gapX, top + gapY,
                                                        right - left - gapX, bottom - top - gapY);
    }
}

bool FilmGrid::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::MouseButtonDblClick || m_films.size() < 2)
        return false;
    m_alone = m_alone ? nullptr : qobject_cast<QWidget*>(watched);
    place();
    return true;
}

void FilmGrid::resizeEvent(QResizeEvent*) {
    place();
}

} // namespace kavela::desktop
