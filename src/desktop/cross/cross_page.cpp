#include "desktop/cross/cross_page.h"

#include "desktop/film/film_deck.h"
#include "desktop/splitfile/taking_document.h"

#include <utility>

namespace kavela::desktop {

const crossdata030& CrossDesk::cross() const {
    return document.cross();
}

std::optional<CMTime> CrossDesk::moment() const {
    const std::vector<CMTime> stamps = deck.stamps();
    return stamps.empty() ? std::nullopt : std::optional(stamps.front());
}

bool CrossDesk::hasFilm() const {
    return deck.cameras() > 0;
}

void CrossPage::whenMeant(std::function<void(const CMTime&)> act) {
    if (m_desk.hasFilm())
        m_desk.deck.whenMeant(
            [act = std::move(act)](const std::vector<CMTime>& stamps) { act(stamps.front()); },
            [this](const QString& why) { emit refused(why); });
    else
        emit refused(tr("There is no film to mark on."));
}

void CrossPage::edit(const QString& what, const std::function<void(crossdata030&)>& change) {
    m_desk.document.editCross(what, change);
}

} // namespace kavela::desktop
