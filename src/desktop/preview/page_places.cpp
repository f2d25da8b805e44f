#include "desktop/preview/page_places.h"

#include <algorithm>

namespace kavela::desktop {

PagePlaces::PagePlaces(int pages, QSize page, int width)
    : m_pages(pages), m_page(page), m_width(std::max(width, page.width() + 2 * Margin)) {}

QSize PagePlaces::desk() const {
    if (m_pages == 0)
        return {m_width, 0};
    return {m_width, 2 * Margin + m_pages * step() - Gap};
}

QRect PagePlaces::page(int number) const {
    return {{(m_width - m_page.width()) / 2, Margin + number * step()}, m_page};
}

int PagePlaces::pageAt(int y) const {
    return std::clamp((y - Margin + Gap / 2) / step(), 0, m_pages - 1);
}

int PagePlaces::mostSeen(int top, int bottom) const {
    const auto seen = [&](int number) {
        const QRect place = page(number);
        return std::min(bottom, place.bottom()) - std::max(top, place.top());
    };
    int best = pageAt(top);
    for (int number = best + 1; number <= pageAt(bottom); ++number)
        if (seen(number) > seen(best))
            best = number;
    return best;
}

} // namespace kavela::desktop
