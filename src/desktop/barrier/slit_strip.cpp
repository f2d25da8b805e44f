#include "desktop/barrier/slit_strip.h"

#include "desktop/barrier/shaded_line.h"
#include "desktop/film/film_deck.h"
#include "desktop/film/time_line.h"
#include "desktop/shell/theme.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr int StripPixels = 44;
constexpr QColor StripHair{0xFF, 0xE0, 0x40};

/// The lines of a film; a file that cannot be read is told where lines are drawn.
std::vector<slitline001> stripLinesOf(const QString& film) {
    try {
        auto file = readSlitFile(slitFileOf(film.toStdString()));
        return file ? std::move(file->lines) : std::vector<slitline001>();
    } catch (const std::runtime_error&) {
        return {};
    }
}

} // namespace

SlitStrip::SlitStrip(FilmDeck& deck, const TimeLine& line, QWidget* parent)
    : QWidget(parent), m_deck(deck), m_line(line) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Slit picture"));
    setToolTip(tr("What stood on the line over the film, over time. A click goes there."));
    m_loader.setMostHeight(2 * StripPixels);
    hide();
    connect(&m_deck, &FilmDeck::indexChanged, this, &SlitStrip::follow);
    connect(&m_deck, &FilmDeck::stateChanged, this, [this] {
        if (m_deck.views() == 0) // the film is gone
            follow();
    });
    connect(&m_deck, &FilmDeck::frameShown, this, [this] { update(); });
    connect(&m_loader, &SlitLoader::grown, this, [this] { update(); });
}

QSize SlitStrip::sizeHint() const {
    return {400, StripPixels};
}

void SlitStrip::follow() {
    const auto index = m_deck.films().isEmpty() ? nullptr : m_deck.index(0);
    const auto lines =
        index ? stripLinesOf(m_deck.films().constFirst()) : std::vector<slitline001>();
    std::vector<SlitLine> drawn;
    m_splits.clear();
    for (const slitline001& line : lines) {
        drawn.push_back(lineOf(line));
        m_splits.push_back(line.split);
    }
    m_loader.setLines(drawn);
    m_loader.setFilm(!lines.empty() && index->isComplete() ? index : nullptr);
    setVisible(!lines.empty());
    update();
}

void SlitStrip::setNextSplit(std::size_t split) {
    m_next = static_cast<std::int64_t>(split);
    update();
}

std::size_t SlitStrip::shownLine() const {
    std::size_t shown = 0;
    for (std::size_t line = 0; line < m_splits.size(); ++line)
        if (m_splits[line] >= m_next &&
            (m_splits[shown] < m_next || m_splits[line] < m_splits[shown]))
            shown = line;
    return shown;
}

/// Lines are drawn in another window: who comes back from there finds them.
bool SlitStrip::event(QEvent* event) {
    if (event->type() == QEvent::ParentChange || event->type() == QEvent::Polish)
        window()->installEventFilter(this);
    return QWidget::event(event);
}

bool SlitStrip::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowActivate && watched == window() && m_deck.views() > 0)
        follow();
    return QWidget::eventFilter(watched, event);
}

void SlitStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), theme::surface(palette()));
    const auto& index = m_loader.index();
    if (!index)
        return;
    for (const auto& tile : m_loader.picture(shownLine()).tiles) {
        const double first = static_cast<double>(tile->first);
        const int left = m_line.placeOf(slitSecondsAt(*index, 0, first));
        const int right = m_line.placeOf(slitSecondsAt(*index, 0, first + tile->columns));
        const bool isCoarse = (right - left) * SlitTile::FramesPerColumn[1] <= tile->columns;
        const Picture& picture = tile->levels[isCoarse ? 1 : 0];
        painter.drawImage(QRect(left, 0, std::max(right - left, 1), height()),
                          QImage(picture.pixels.get(), picture.width, picture.height,
                                 static_cast<qsizetype>(picture.bytesPerLine),
                                 QImage::Format_RGB32));
    }
    const int now = m_line.placeOf(m_deck.position());
    drawShadedUpright(painter, now, rect(), StripHair, 1);
}

void SlitStrip::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        seekTo(event->pos().x());
}

void SlitStrip::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton))
        seekTo(event->pos().x());
}

void SlitStrip::seekTo(int place) {
    m_deck.seek(m_line.momentAt(std::clamp(place, 0, width() - 1)));
}

} // namespace kavela::desktop
