#include "desktop/film/sound_feed.h"

#include "common/error.h"

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr SamplePosition DecodedAhead = SoundRate;
constexpr std::size_t ChunkSamples = std::size_t{SoundRate / 50} * SoundChannels;

} // namespace

SoundFeed::SoundFeed(std::function<void(int start)> onReady)
    : m_onReady(std::move(onReady)),
      m_worker([this](const std::stop_token& stop) { work(stop); }) {}

SoundFeed::~SoundFeed() = default;

int SoundFeed::start(const std::filesystem::path& film, SamplePosition position) {
    const std::lock_guard lock(m_guard);
    m_film = film;
    m_isRunning = true;
    m_isEnded = false;
    m_isReady = false;
    m_isClosing = false;
    m_seek = position;
    m_position = position;
    clearAhead();
    m_changed.notify_all();
    return ++m_start;
}

void SoundFeed::stop() {
    const std::lock_guard lock(m_guard);
    m_isRunning = false;
    clearAhead();
    ++m_start; // what is being decoded now is no longer wanted
}

void SoundFeed::close() {
    stop();
    const std::lock_guard lock(m_guard);
    m_isClosing = true;
    m_changed.notify_all();
}

SamplePosition SoundFeed::position() const {
    const std::lock_guard lock(m_guard);
    return m_position;
}

void SoundFeed::moveTo(SamplePosition position) {
    const std::lock_guard lock(m_guard);
    const bool isNear = !m_seek && m_aheadStart <= position && position <= aheadEnd() + SoundRate;
    m_position = position;
    if (isNear) {
        dropPassed();
    } else {
        m_seek = position;
        m_isEnded = false;
        clearAhead();
    }
    m_changed.notify_all();
}

void SoundFeed::take(std::span<std::int16_t> samples) {
    const std::lock_guard lock(m_guard);
    dropPassed();
    const SamplePosition end = m_position + std::ssize(samples) / SoundChannels;
    std::size_t filled = 0;
    if (!m_ahead.empty() && m_aheadStart < end) {
        const auto silent = static_cast<std::size_t>(m_aheadStart - m_position) * SoundChannels;
        std::fill_n(samples.begin(), silent, std::int16_t{0});
        filled = silent + std::min(samples.size() - silent, m_ahead.size());
        std::copy_n(m_ahead.begin(), filled - silent,
                    samples.begin() + static_cast<std::ptrdiff_t>(silent));
    }
    std::ranges::fill(samples.subspan(filled), std::int16_t{0});
    m_position = end;
    dropPassed();
    m_changed.notify_all();
}

void SoundFeed::clearAhead() {
    m_ahead.clear();
    m_aheadStart = m_position;
}

SamplePosition SoundFeed::aheadEnd() const {
    return m_aheadStart + std::ssize(m_ahead) / SoundChannels;
}

void SoundFeed::dropPassed() {
    const auto passed = std::clamp<std::ptrdiff_t>((m_position - m_aheadStart) * SoundChannels, 0,
                                                   std::ssize(m_ahead));
    m_ahead.erase(m_ahead.begin(), m_ahead.begin() + passed);
    m_aheadStart += passed / SoundChannels;
}

void SoundFeed::work(const std::stop_token& stop) {
    Opened opened;
    while (const auto task = nextTask(stop)) {
        if (task->film.empty()) {
            opened = {};
            continue;
        }
        try {
            decode(*task, opened, stop);
        } catch (const std::exception&) {
            opened.source.reset(); // this film is silent: its pictures say what is wrong with it
            store(*task, 0, {}, true);
        }
    }
}

bool SoundFeed::hasWork() const {
    return m_isClosing ||
           (m_isRunning && !m_isEnded && (m_seek || aheadEnd() - m_position < DecodedAhead));
}

std::optional<SoundFeed::Task> SoundFeed::nextTask(const std::stop_token& stop) {
    std::unique_lock lock(m_guard);
    if (!m_changed.wait(lock, stop, [this] { return hasWork(); }) || stop.stop_requested())
        return std::nullopt;
    if (std::exchange(m_isClosing, false))
        return Task{};
    return Task{m_film, m_start, std::exchange(m_seek, std::nullopt)};
}

void SoundFeed::decode(const Task& task, Opened& opened, const std::stop_token& stop) {
    if (opened.film != task.film) {
        opened = {task.film, nullptr};
        opened.source = std::make_unique<SoundSource>(task.film, stop);
    }
    if (!opened.source) {
        store(task, 0, {}, true);
        return;
    }
    if (task.seek)
        opened.source->seek(*task.seek);
    const SamplePosition position = opened.source->position();
    std::vector<std::int16_t> chunk(ChunkSamples);
    const std::size_t count = opened.source->read(chunk);
    store(task, position, std::span(chunk).first(count), count < chunk.size());
}

/// Keeps what was decoded, unless something else was asked for meanwhile.
void SoundFeed::store(const Task& task, SamplePosition position,
                      std::span<const std::int16_t> samples, bool isEnd) {
    bool isFirst = false;
    {
        const std::lock_guard lock(m_guard);
        if (task.start != m_start || m_seek)
            return;
        if (m_ahead.empty())
            m_aheadStart = position;
        m_ahead.insert(m_ahead.end(), samples.begin(), samples.end());
        dropPassed();
        m_isEnded = isEnd;
        isFirst = !m_isReady && !samples.empty();
        m_isReady = m_isReady || isFirst;
    }
    if (isFirst)
        m_onReady(task.start);
}

} // namespace kavela::desktop
