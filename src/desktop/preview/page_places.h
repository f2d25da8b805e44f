#pragma once

#include <QRect>
#include <QSize>

namespace kavela::desktop {

/// Where the pages of a report lie on the desk: one below the other, in the middle of it. Pixels of
/// the screen, from the top left corner of the desk.
class PagePlaces {
public:
    /// `page` is the size of one page; the desk is at least `width` wide.
    PagePlaces(int pages, QSize page, int width);

    [[nodiscard]] QSize desk() const;
    [[nodiscard]] QRect page(int number) const;
    [[nodiscard]] int pages() const { return m_pages; }

    /// The page at a height, or the nearest one; there must be one.
    [[nodiscard]] int pageAt(int y) const;
    /// The page of which most is seen between two heights; the upper one of two seen alike.
    [[nodiscard]] int mostSeen(int top, int bottom) const;

    static constexpr int Margin = 24; ///< around the pages
    static constexpr int Gap = 20;    ///< between them

private:
    [[nodiscard]] int step() const { return m_page.height() + Gap; }

    int m_pages;
    QSize m_page;
    int m_width;
};

} // namespace kavela::desktop
