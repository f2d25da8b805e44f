#pragma once

#include <QImage>
#include <QWidget>

namespace kavela::desktop {

class FilmDeck;

/// The picture of one camera, as large as fits, with what a coach has to know about it: that it is
/// still being decoded, or why there is none.
class FilmView : public QWidget {
    Q_OBJECT

public:
    FilmView(FilmDeck& deck, std::size_t camera, QWidget* parent = nullptr);

    [[nodiscard]] std::size_t camera() const { return m_camera; }
    /// Said in place of a picture.
    void setMessage(const QString& message);
    /// What this film is, said in its corner; empty where that goes without saying.
    void setCaption(const QString& caption);
    /// A number of large letters over the picture for a moment, such as the split just taken.
    void flash(const QString& text);
    [[nodiscard]] const QImage& image() const { return m_image; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void showFrame();
    void paintCorner(QPainter& painter, const QRect& picture) const;
    void paintCaption(QPainter& painter, const QRect& picture) const;

    FilmDeck& m_deck;
    std::size_t m_camera;
    QImage m_image;
    QString m_message;
    QString m_caption;
    QString m_corner;
    QString m_flash;
    bool m_isPreview = false;
};

} // namespace kavela::desktop
