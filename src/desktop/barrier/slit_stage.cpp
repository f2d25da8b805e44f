#include "desktop/barrier/slit_stage.h"

#include "desktop/barrier/line_overlay.h"
#include "desktop/barrier/slit_view.h"
#include "desktop/film/film_deck.h"
#include "desktop/film/film_memory.h"
#include "desktop/film/film_view.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"

#include <cmath>

namespace kavela::desktop {

SlitStage::SlitStage(Workspace& workspace)
    : QSplitter(Qt::Vertical),
      m_deck(new FilmDeck(FilmMemory::of(workspace), this)),
      m_film(new FilmView(*m_deck, 0)),
      m_overlay(new LineOverlay(*m_film)),
      m_slit(new SlitView) {
    setChildrenCollapsible(false);
    addWidget(m_film);
    addWidget(m_slit);
    setStretchFactor(0, 1);
    setStretchFactor(1, 1);
    shareSizes(*this, {340, 340});
    rememberSizes(*this, workspace, "slitPictures");
    connect(m_deck, &FilmDeck::indexChanged, this, &SlitStage::followFilm);
    connect(m_deck, &FilmDeck::frameShown, this, [this] {
        const FilmPicture* const picture = m_deck->shown(0);
        if (m_deck->isPlaying() && picture && !picture->isPreview) // who looks at it goes with it
            m_slit->setHair(static_cast<double>(picture->frame.number) + 0.5);
    });
    connect(m_deck, &FilmDeck::failed, this,
            [this](std::size_t, const QString& why) { emit failed(why); });
    connect(m_slit, &SlitView::hairMoved, this, &SlitStage::setHair);
    connect(m_overlay, &LineOverlay::left, this, [this] { m_slit->setFocus(); });
}

/// The deck is the first of the children to go, and says nothing while the others do.
SlitStage::~SlitStage() {
    m_deck->blockSignals(true);
    m_deck->disconnect();
}

void SlitStage::open(const QString& film) {
    m_slit->setPicture(nullptr, nullptr);
    m_overlay->setFilmSize({});
    m_film->setMessage({});
    m_deck->open({film});
    m_slit->setFocus();
}

std::shared_ptr<const VideoIndex> SlitStage::index() const {
    return m_deck->index(0);
}

void SlitStage::followFilm() {
    const auto known = index();
    if (!known)
        return;
    const VideoSize size = known->facts().shownSize;
    m_overlay->setFilmSize({size.width, size.height});
    emit indexChanged();
}

void SlitStage::setHair(double column) {
    m_slit->setHair(column);
    const auto known = index();
    if (!known || known->frameCount() == 0)
        return;
    if (m_deck->isPlaying())
        m_deck->pause();
    m_deck->seek(known->stampOf(slitFrameAt(*known, 0, m_slit->hair())));
}

void SlitStage::stepHair(int frames) {
    setHair(std::floor(m_slit->hair()) + 0.5 + frames);
}

void SlitStage::refineHair(double frames) {
    setHair(m_slit->hair() + frames);
}

} // namespace kavela::desktop
