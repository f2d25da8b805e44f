#include "desktop/preview/page_images.h"

#include "report/paged_report.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr int MostKilobytes = 256 * 1024;
constexpr double MostPixels = 24e6; ///< of one page; beyond, the screen enlarges its picture

int kilobytes(const QPixmap& image) {
    constexpr qint64 BytesPerPixel = 4;
    return static_cast<int>(BytesPerPixel * image.width() * image.height() / 1024);
}

} // namespace

PageImages::PageImages() : m_images(MostKilobytes) {}

void PageImages::setReport(const report::PagedReport* report) {
    m_report = report;
    m_images.clear();
}

const QPixmap& PageImages::page(int number, QSize size, qreal pixelRatio) {
    const double pixels = size.width() * pixelRatio * size.height() * pixelRatio;
    pixelRatio *= std::min(1.0, std::sqrt(MostPixels / pixels));
    if (size != m_size || pixelRatio != m_pixelRatio)
        m_images.clear();
    m_size = size;
    m_pixelRatio = pixelRatio;
    if (const QPixmap* const known = m_images.object(number))
        return *known;
    auto* const image = new QPixmap(painted(number));
    m_images.insert(number, image, kilobytes(*image));
    return *image;
}

QPixmap PageImages::painted(int number) const {
    QPixmap image((QSizeF(m_size) * m_pixelRatio).toSize().expandedTo({1, 1}));
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const QSizeF points = m_report->layout().fullRect(QPageLayout::Point).size();
    painter.scale(image.width() / points.width(), image.height() / points.height());
    m_report->paintPage(painter, number);
    painter.end();
    image.setDevicePixelRatio(m_pixelRatio);
    return image;
}

} // namespace kavela::desktop
