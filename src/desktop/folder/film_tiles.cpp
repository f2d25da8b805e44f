#include "desktop/folder/film_tiles.h"

#include "desktop/folder/thumbnail_store.h"
#include "desktop/shell/theme.h"

#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

#include <utility>

namespace kavela::desktop {

namespace {

constexpr QSize TilePicture{192, 108};
constexpr int WatchedDot = 8; // pixels

QString filmOf(const QModelIndex& index) {
    return index.data(Qt::UserRole).toString();
}

class TileDelegate : public QStyledItemDelegate {
public:
    TileDelegate(FilmTiles& tiles, ThumbnailStore& looks)
        : QStyledItemDelegate(&tiles), m_tiles(tiles), m_looks(looks) {}

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& /*index*/) const override {
        return {TilePicture.width() + 2 * theme::Spacing,
                TilePicture.height() + 2 * option.fontMetrics.height() + 3 * theme::Spacing};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        painter->save();
        const bool isSelected = option.state.testFlag(QStyle::State_Selected);
        if (isSelected)
            painter->fillRect(option.rect, option.palette.highlight());
        const QPoint corner = option.rect.topLeft() + QPoint(theme::Spacing, theme::Spacing);
        const QRect box(corner, TilePicture);
        const FilmTiles::TileText text = m_tiles.textOf(filmOf(index));
        paintPicture(*painter, box, m_looks.lookOf(filmOf(index)), option.palette);
        if (text.isWatched)
            paintDot(*painter, box);
        const int high = option.fontMetrics.height();
        const QRect line(box.left(), box.bottom() + theme::SmallSpacing, box.width(), high);
        const auto write = [&](const QRect& where, const QString& what, const QColor& colour) {
            painter->setPen(colour);
            painter->drawText(where, Qt::AlignLeft | Qt::AlignVCenter,
                              option.fontMetrics.elidedText(what, Qt::ElideRight, where.width()));
        };
        const QColor plain = isSelected ? option.palette.color(QPalette::HighlightedText)
                                        : option.palette.color(QPalette::Text);
        write(line, text.title, plain);
        write(line.translated(0, high), text.details,
              isSelected ? plain : theme::quietText(option.palette));
        if (option.state.testFlag(QStyle::State_HasFocus)) {
            painter->setPen(plain);
            painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
        }
        painter->restore();
    }

private:
    void paintPicture(QPainter& painter, const QRect& box, const FilmLook* look,
                      const QPalette& palette) const {
        painter.fillRect(box, theme::surface(palette));
        if (look && !look->picture.isNull()) {
            QRect place(QPoint(), look->picture.size().scaled(box.size(), Qt::KeepAspectRatio));
            place.moveCenter(box.center());
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
            painter.drawImage(place, look->picture);
        } else if (look) {
            painter.setPen(theme::quietText(palette));
            painter.drawText(box.adjusted(theme::Spacing, 0, -theme::Spacing, 0),
                             Qt::AlignCenter | Qt::TextWordWrap,
                             look->fault.isEmpty() ? FilmTiles::tr("No picture") : look->fault);
        }
    }

    static void paintDot(QPainter& painter, const QRect& box) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::white); // seen on any picture
        painter.setBrush(theme::Accent);
        painter.drawEllipse(box.right() - WatchedDot - theme::SmallSpacing,
                            box.top() + theme::SmallSpacing, WatchedDot, WatchedDot);
    }

    FilmTiles& m_tiles;
    ThumbnailStore& m_looks;
};

} // namespace

FilmTiles::FilmTiles(ThumbnailStore& looks, QWidget* parent) : QListWidget(parent) {
    setObjectName("filmTiles");
    setViewMode(QListView::IconMode);
    setResizeMode(QListView::Adjust);
    setMovement(QListView::Static);
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setItemDelegate(new TileDelegate(*this, looks));
    connect(&looks, &ThumbnailStore::looked, this, [this] { viewport()->update(); });
    connect(this, &QListWidget::itemSelectionChanged, this, &FilmTiles::chosen);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &FilmTiles::sightChanged);
}

void FilmTiles::setFilms(const std::vector<const FilmRow*>& rows) {
    const QStringList before = chosenFilms();
    const QString current = currentFilm();
    QStringList films;
    m_texts.clear();
    for (const FilmRow* const row : rows) {
        films.append(row->path);
        m_texts.insert(row->path,
                       {titleOf(row->film), detailsOf(*row), row->isWatched, row->fault});
    }
    QStringList shown;
    for (int place = 0; place < count(); ++place)
        shown.append(item(place)->data(Qt::UserRole).toString());
    if (shown == films) // what is said of them may be other
        return viewport()->update();
    {
        const QSignalBlocker silent(this);
        clear();
        for (const QString& film : films) {
            auto* const tile = new QListWidgetItem(this);
            tile->setData(Qt::UserRole, film);
            tile->setData(Qt::AccessibleTextRole, m_texts[film].title);
            tile->setToolTip(film);
            if (film == current)
                setCurrentItem(tile, QItemSelectionModel::NoUpdate);
            tile->setSelected(before.contains(film));
        }
    }
    emit sightChanged();
}

QString FilmTiles::currentFilm() const {
    return currentItem() ? currentItem()->data(Qt::UserRole).toString() : QString();
}

QStringList FilmTiles::chosenFilms() const {
    QStringList films;
    for (int place = 0; place < count(); ++place)
        if (item(place)->isSelected())
            films.append(item(place)->data(Qt::UserRole).toString());
    return films;
}

void FilmTiles::choose(const QString& film) {
    for (int place = 0; place < count(); ++place)
        if (item(place)->data(Qt::UserRole).toString() == film) {
            setCurrentItem(item(place), QItemSelectionModel::ClearAndSelect);
            scrollToItem(item(place));
            return;
        }
}

QStringList FilmTiles::filmsBySight() const {
    QStringList seen;
    QStringList others;
    for (int place = 0; place < count(); ++place) {
        const QListWidgetItem* const tile = item(place);
        const bool isSeen = isVisible() && visualItemRect(tile).intersects(viewport()->rect());
        (isSeen ? seen : others).append(tile->data(Qt::UserRole).toString());
    }
    return seen + others;
}

void FilmTiles::resizeEvent(QResizeEvent* event) {
    QListWidget::resizeEvent(event);
    emit sightChanged();
}

void FilmTiles::showEvent(QShowEvent* event) {
    QListWidget::showEvent(event);
    emit sightChanged();
}

} // namespace kavela::desktop
