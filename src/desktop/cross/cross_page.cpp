#include "desktop/cross/cross_page.h"

#include "desktop/film/film_deck.h"
#include "desktop/taking/taking_document.h"

namespace kavela::desktop {

const crossdata030& CrossDesk::cross() const {
    return document.cross();
}

std::optional<CMTime> CrossDesk::moment() const {
    const std::vector<CMTime> stamps = deck.stamps();
    return stamps.empty() ? std::nullopt : std::optional(stamps.front());
}

void CrossPage::edit(const QString& what, const std::function<void(crossdata030&)>& change) {
    m_desk.document.editCross(what, change);
}

} // namespace kavela::desktop
