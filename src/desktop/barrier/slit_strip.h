#pragma once

#include "desktop/barrier/slit_loader.h"
#include "vision/slit_file.h"

#include <QString>
#include <QWidget>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kavela::desktop {

class FilmDeck;
class TimeLine;

/// The slit picture of a line of the first film as a strip over the time line, whose moments stand
/// where they stand there: that of the split that is taken next. Shown as long as the film has a
/// line; a click goes to its moment.
class SlitStrip : public QWidget {
    Q_OBJECT

public:
    SlitStrip(FilmDeck& deck, const TimeLine& line, QWidget* parent = nullptr);

    [[nodiscard]] const SlitLoader& loader() const { return m_loader; }
    [[nodiscard]] QSize sizeHint() const override;

    /// The split that is taken next; 0 is the start.
    void setNextSplit(std::size_t split);
    /// The line of that split or the nearest behind it; the first one where none is, counted from
    /// 0.
    [[nodiscard]] std::size_t shownLine() const;

    /// Looks again for the lines of the film, which another window may have changed.
    void follow();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void seekTo(int place);

    FilmDeck& m_deck;
    const TimeLine& m_line;
    SlitLoader m_loader;
    std::vector<std::int64_t> m_splits; ///< of each line
    std::int64_t m_next = 0;
};

} // namespace kavela::desktop
