#pragma once

#include <QTextBrowser>

class QRegularExpression;

namespace kavela::desktop {

/// The guide to be read. Its pictures fit the page; what stands at the top stays there when the
/// width changes.
class GuideText : public QTextBrowser {
    Q_OBJECT

public:
    explicit GuideText(QWidget* parent = nullptr);

    /// The block at the top.
    [[nodiscard]] int topBlock() const { return m_top; }
    void showBlock(int block);

    /// Marks every place of what is sought, and goes on to the next one below the cursor, from the
    /// top again below the last; the words one by one where they nowhere stand together. False
    /// where there is none.
    bool findNext(const QString& query);
    void markAll(const QString& query);

signals:
    /// Another block stands at the top, since the coach scrolled.
    void scrolled();

protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void keepTop();
    void noteTop();
    [[nodiscard]] QRegularExpression sought(const QString& query) const;

    int m_top = 0;
    bool m_isPlacing = false; ///< it scrolls by itself
};

} // namespace kavela::desktop
