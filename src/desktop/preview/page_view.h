#pragma once

#include "desktop/preview/page_images.h"
#include "desktop/preview/page_places.h"

#include <QAbstractScrollArea>

namespace kavela::desktop {

/// The pages of a report on a grey desk. They fill its width until another zoom is asked for. Page
/// keys go from page to page, the space bar a screenful, arrows a little; Ctrl with the wheel zooms
/// at the cursor.
class PageView : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit PageView(QWidget* parent = nullptr);

    /// Shows the pages of a report, which must outlive its being shown; none for null.
    void setReport(const report::PagedReport* report);

    [[nodiscard]] int pageCount() const { return m_pages; }
    /// The page that is looked at, counted from 0.
    [[nodiscard]] int currentPage() const { return m_current; }
    /// Scrolls to the top of a page; of the nearest one when there is no such page.
    void goToPage(int page);

    /// 1 for the size on paper, as far as screens know it.
    [[nodiscard]] double zoom() const { return m_zoom; }
    [[nodiscard]] bool isFitted() const { return m_isFitted; }
    void zoomIn();
    void zoomOut();
    void fitWidth();

    [[nodiscard]] const PageImages& images() const { return m_images; }

signals:
    /// Another page is looked at, or pages are shown in another size.
    void changed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] PagePlaces places() const;
    [[nodiscard]] QSize pageSize() const;
    [[nodiscard]] QPoint scrolled() const;
    [[nodiscard]] double fittingZoom() const;
    void zoomStep(int direction, QPointF anchor);
    void setZoom(double zoom, QPointF anchor);
    void updateScrollBars();
    void setCurrentPage(int page);
    void paintPage(QPainter& painter, int page, const QRect& place);

    const report::PagedReport* m_report = nullptr;
    PageImages m_images;
    int m_pages = 0;
    QSizeF m_paper; ///< points
    double m_zoom = 1;
    bool m_isFitted = true;
    bool m_isMoving = false; ///< to a known page, which scrolling then does not guess
    int m_current = 0;
    int m_wheel = 0; ///< turned, but not yet by a step
};

} // namespace kavela::desktop
