#pragma once

#include <QCache>
#include <QPixmap>
#include <QSize>

namespace kavela::report {
class PagedReport;
}

namespace kavela::desktop {

/// Pages painted as pictures, each when it is first asked for; those not looked at for longest are
/// forgotten.
class PageImages {
public:
    PageImages();

    /// Forgets every page; later ones are of this report, which must outlive its use here.
    void setReport(const report::PagedReport* report);

    /// A page, on white paper, as large as asked for in pixels of the screen.
    [[nodiscard]] const QPixmap& page(int number, QSize size, qreal pixelRatio);

    /// How many pages are kept.
    [[nodiscard]] int kept() const { return static_cast<int>(m_images.size()); }

private:
    [[nodiscard]] QPixmap painted(int number) const;

    const report::PagedReport* m_report = nullptr;
    QSize m_size;
    qreal m_pixelRatio = 1;
    QCache<int, QPixmap> m_images;
};

} // namespace kavela::desktop
