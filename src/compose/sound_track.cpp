#include "compose/sound_track.h"

#include <algorithm>
#include <iterator>

namespace kavela {

std::optional<double> heardSeconds(std::span<const TimePiece> pieces, double common) {
    if (pieces.empty())
        return std::nullopt;
    const auto after = std::ranges::upper_bound(pieces, common, {}, &TimePiece::common);
    const bool isBefore = after == pieces.begin(); // its film runs by itself until then
    const TimePiece& piece = isBefore ? pieces.front() : *std::prev(after);
    if (piece.rate != 1 && !isBefore)
        return std::nullopt;
    return piece.film + common - piece.common;
}

SoundTrack::SoundTrack(const std::filesystem::path& film, std::vector<TimePiece> pieces,
                       double from, const std::stop_token& stop)
    : m_source(film, stop), m_pieces(std::move(pieces)), m_from(from) {}

std::span<const std::int16_t> SoundTrack::upTo(SamplePosition end) {
    m_samples.clear();
    while (m_position < end) {
        const auto endOfPiece = [&](std::size_t i) {
            return i + 1 < m_pieces.size() ? samplePosition(m_pieces[i + 1].common - m_from) : end;
        };
        std::size_t i = 0;
        while (i + 1 < m_pieces.size() && endOfPiece(i) <= m_position)
            ++i;
        const SamplePosition to = std::min(end, std::max(endOfPiece(i), m_position + 1));
        fill(m_position, to, m_pieces[i]);
        m_position = to;
    }
    return m_samples;
}

void SoundTrack::fill(SamplePosition from, SamplePosition to, const TimePiece& piece) {
    const std::size_t before = m_samples.size();
    m_samples.resize(before + static_cast<std::size_t>(to - from) * SoundChannels, 0);
    const SamplePosition pieceBegin = samplePosition(piece.common - m_from);
    const bool isBefore = from < pieceBegin; // the first piece: its film runs by itself until then
    if (piece.rate != 1 && !isBefore)
        return;
    m_source.seek(samplePosition(piece.film) + from - pieceBegin);
    static_cast<void>(m_source.read(std::span(m_samples).subspan(before)));
}

} // namespace kavela
