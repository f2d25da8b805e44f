#pragma once

#include "desktop/shell/background_work.h"
#include "vision/slit_picture.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <vector>

namespace kavela::desktop {

/// Reads the slit pictures of a film's lines beside the window, all in one go, and hands out what
/// there is of them while they grow. A line that is changed is read anew, the others stay.
class SlitLoader : public QObject {
    Q_OBJECT

public:
    explicit SlitLoader(QObject* parent = nullptr);
    ~SlitLoader() override;

    /// The film, whose index is complete; null for none.
    void setFilm(std::shared_ptr<const VideoIndex> index);
    /// What is read, soon after the last of several changes.
    void setLines(const std::vector<SlitLine>& lines);
    /// No picture is higher than this, in pixels.
    void setMostHeight(int pixels) { m_mostHeight = pixels; }

    [[nodiscard]] const std::shared_ptr<const VideoIndex>& index() const { return m_index; }
    /// What there is of a line's picture; an empty one for a line that is not known.
    [[nodiscard]] const SlitPicture& picture(std::size_t line) const;
    [[nodiscard]] bool isReading() const { return m_inbox != nullptr; }
    /// How much is read, 0 to 1.
    [[nodiscard]] double share() const;
    /// What went wrong, or what is odd about the film; empty for nothing.
    [[nodiscard]] const QString& told() const { return m_told; }

signals:
    void grown(); ///< more is there, or nothing of what was there any more
    void ended();

private:
    struct Inbox;
    struct Entry {
        SlitLine line;
        SlitPicture picture;
        bool isWhole = false;
    };

    void begin();
    void takeTiles();
    void finish(const SlitReading& reading);

    std::shared_ptr<const VideoIndex> m_index;
    std::vector<Entry> m_entries;
    std::shared_ptr<Inbox> m_inbox;  ///< of the reading that goes on
    std::vector<std::size_t> m_read; ///< which lines that one reads
    QString m_told;
    int m_mostHeight = 1200;
    QTimer m_soon;
    QTimer m_look; ///< for tiles that came
    BackgroundWork m_work;
};

} // namespace kavela::desktop
