#pragma once

#include "desktop/barrier/slit_loader.h"
#include "vision/slit_file.h"

#include <QString>
#include <QWidget>

namespace kavela::desktop {

class FilmDeck;
class TimeLine;

/// The slit picture of the first film's first line as a strip over the time line, whose moments
/// stand where they stand there. Shown as long as the film has a line; a click goes to its moment.
class SlitStrip : public QWidget {
    Q_OBJECT

public:
    SlitStrip(FilmDeck& deck, const TimeLine& line, QWidget* parent = nullptr);

    [[nodiscard]] const SlitLoader& loader() const { return m_loader; }
    [[nodiscard]] QSize sizeHint() const override;

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
};

} // namespace kavela::desktop
