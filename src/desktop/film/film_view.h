#pragma once

#include <QImage>
#include <QWidget>

class QPushButton;

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
    [[nodiscard]] const QString& message() const { return m_message; }
    /// The same, with a button below it that does something about it.
    void setQuestion(const QString& message, const QString& button);
    /// What this film is, said in its corner; empty where that goes without saying.
    void setCaption(const QString& caption);
    /// A number of large letters over the picture for a moment, such as the split just taken.
    void flash(const QString& text);
    /// Why a key did nothing, over the picture for a moment, with a sound.
    void refuse(const QString& why);
    /// What is said over the picture now.
    [[nodiscard]] const QString& flashed() const { return m_flash; }
    [[nodiscard]] const QImage& image() const { return m_image; }

signals:
    void refused(const QString& why);
    void answered(); ///< the button of the question was pressed

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void showFrame();
    void flashFor(const QString& text, int milliseconds);
    void placeButton();
    void paintFlash(QPainter& painter, const QRect& picture) const;
    void paintCorner(QPainter& painter, const QRect& picture) const;
    void paintCaption(QPainter& painter, const QRect& picture) const;

    FilmDeck& m_deck;
    std::size_t m_camera;
    QImage m_image;
    QString m_message;
    QString m_caption;
    QString m_corner;
    QString m_flash;
    bool m_isRefusal = false;        ///< what flashes
    QPushButton* m_button = nullptr; ///< of a question
    bool m_isPreview = false;
};

} // namespace kavela::desktop
