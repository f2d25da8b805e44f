#include "desktop/barrier/crossing_search.h"

#include "desktop/shell/qt_text.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace kavela::desktop {

CrossingSearch::CrossingSearch(QObject* parent) : QObject(parent) {
    constexpr int LookMilliseconds = 250;
    m_look.setInterval(LookMilliseconds);
    connect(&m_look, &QTimer::timeout, this, &CrossingSearch::changed);
}

void CrossingSearch::setFilm(std::shared_ptr<const VideoIndex> index) {
    if (index == m_index)
        return;
    cancel();
    m_index = std::move(index);
    m_found.clear();
    emit changed();
}

void CrossingSearch::cancel() {
    m_work.cancel();
    stop();
    emit changed();
}

void CrossingSearch::stop() {
    m_isSearching = false;
    m_look.stop();
}

double CrossingSearch::share() const {
    return m_isSearching ? m_progress->load() : 0;
}

void CrossingSearch::search(const slitline001& line) {
    if (!m_index)
        return;
    m_work.cancel();
    m_isSearching = true;
    BarrierRequest request;
    request.line = lineOf(line);
    request.boat = boatOf(line);
    m_progress = std::make_shared<std::atomic<double>>(0);
    m_look.start();
    m_work.run(
        [index = m_index, request, share = m_progress](const WorkSteps& steps) {
            return findCrossings(index, request, steps.stopToken(),
                                 [&](const BarrierProgress& progress) {
                                     if (progress.all > 0)
                                         *share = static_cast<double>(progress.frames) /
                                                  static_cast<double>(progress.all);
                                 });
        },
        [this, request](std::optional<Crossings> crossings) {
            stop();
            if (crossings) {
                keep(request.line, request.boat, std::move(*crossings));
                emit found();
            }
        },
        {.failed = [this](const std::exception_ptr& fault) {
            stop();
            emit failed(qtText(causeOf(fault)));
            emit changed();
        }});
    emit changed();
}

void CrossingSearch::keep(const SlitLine& line, const BoatBox& boat, Crossings crossings) {
    std::erase_if(m_found, [&](const Found& found) { return found.line == line; });
    m_found.push_back({line, boat, std::move(crossings)});
    emit changed();
}

const CrossingSearch::Found* CrossingSearch::find(const slitline001& line) const {
    const auto found = std::ranges::find_if(m_found, [&](const Found& each) {
        return each.line == lineOf(line) && each.boat == boatOf(line);
    });
    return found == m_found.end() ? nullptr : &*found;
}

const Crossings* CrossingSearch::crossings(const slitline001& line) const {
    const Found* const found = find(line);
    return found ? &found->crossings : nullptr;
}

std::vector<Proposal> CrossingSearch::proposals(const slitline001& line) const {
    std::vector<Proposal> proposals;
    if (const Found* const found = find(line))
        std::ranges::copy_if(
            found->crossings.proposals, std::back_inserter(proposals),
            [&](const Proposal& proposal) { return !isRefused(line, proposal.seconds); });
    return proposals;
}

std::vector<Proposal> CrossingSearch::allProposals(const slitline001& line) const {
    const Found* const found = find(line);
    return found ? found->crossings.proposals : std::vector<Proposal>();
}

QStringList CrossingSearch::notes(const slitline001& line) const {
    const Found* const found = find(line);
    if (!found)
        return {};
    QStringList notes;
    for (const std::string& note : found->crossings.notes)
        notes.append(qtText(note));
    if (found->crossings.isHandHeld)
        notes.append(tr("The slit picture shows what stood on the line all the same."));
    if (found->crossings.proposals.empty() && !found->crossings.isHandHeld)
        notes.append(tr("No boat was found that crosses this line in the direction of the arrow."));
    return notes;
}

} // namespace kavela::desktop
