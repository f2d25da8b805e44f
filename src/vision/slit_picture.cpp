#include "vision/slit_picture.h"

#include "video/frame_run.h"
#include "vision/line_sampler.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace kavela {

namespace {

constexpr std::size_t BytesOfPixel = 4;
constexpr int LeastHeight = 24;
/// Sizes of other levels, on top of the first one.
constexpr double WithLevels = 1 + 1.0 / 8 + 1.0 / 64;
/// A column that could not be decoded.
constexpr std::uint32_t MissingPixel = 0xFF000000U;

struct SlitPixels {
    int width = 0;
    int height = 0;
    std::shared_ptr<std::uint8_t[]> bytes;

    SlitPixels(int columns, int rows)
        : width(columns),
          height(rows),
          bytes(std::make_shared<std::uint8_t[]>(static_cast<std::size_t>(columns) *
                                                 static_cast<std::size_t>(rows) * BytesOfPixel)) {}

    [[nodiscard]] std::uint32_t* row(int y) const {
        return reinterpret_cast<std::uint32_t*>(bytes.get()) +
               static_cast<std::ptrdiff_t>(y) * width;
    }
    [[nodiscard]] Picture picture() const {
        return {width, height, static_cast<std::ptrdiff_t>(width) * 4, bytes};
    }
};

/// Each column the mean of so many of another picture; the last one of those that are left.
SlitPixels narrowed(const SlitPixels& from, int by) {
    SlitPixels to((from.width + by - 1) / by, from.height);
    for (int y = 0; y < from.height; ++y)
        for (int x = 0; x < to.width; ++x) {
            const int end = std::min((x + 1) * by, from.width);
            std::array<std::uint32_t, 3> sums{};
            for (int column = x * by; column < end; ++column)
                for (unsigned part = 0; part < sums.size(); ++part)
                    sums[part] += from.row(y)[column] >> 8 * part & 0xFFU;
            std::uint32_t pixel = MissingPixel;
            for (unsigned part = 0; part < sums.size(); ++part)
                pixel |= sums[part] / static_cast<std::uint32_t>(end - x * by) << 8 * part;
            to.row(y)[x] = pixel;
        }
    return to;
}

/// Puts the columns of one line into tiles.
class TileWriter {
public:
    TileWriter(LineSampler sampler, FrameNumber first)
        : m_sampler(std::move(sampler)),
          m_first(first),
          m_pixels(static_cast<int>(SlitTileColumns), m_sampler.height()) {}

    [[nodiscard]] std::shared_ptr<const SlitTile> add(const AVFrame& frame) {
        return put(m_sampler.column(frame).data());
    }
    [[nodiscard]] std::shared_ptr<const SlitTile> addMissing() { return put(nullptr); }

    /// What is left at the end; null for nothing.
    [[nodiscard]] std::shared_ptr<const SlitTile> rest() {
        return m_columns == 0 ? nullptr : tile();
    }

private:
    std::shared_ptr<const SlitTile> put(const std::uint32_t* column) {
        for (int y = 0; y < m_pixels.height; ++y)
            m_pixels.row(y)[m_columns] = column == nullptr ? MissingPixel : column[y];
        return ++m_columns == SlitTileColumns ? tile() : nullptr;
    }

    std::shared_ptr<const SlitTile> tile() {
        SlitPixels filled(m_columns, m_pixels.height);
        for (int y = 0; y < m_pixels.height; ++y)
            std::copy_n(m_pixels.row(y), m_columns, filled.row(y));
        auto made = std::make_shared<SlitTile>();
        made->first = m_first;
        made->columns = m_columns;
        made->levels[0] = filled.picture();
        for (std::size_t level = 1; level < made->levels.size(); ++level)
            made->levels[level] = narrowed(filled, SlitTile::FramesPerColumn[level]).picture();
        m_first += std::exchange(m_columns, 0);
        return made;
    }

    LineSampler m_sampler;
    FrameNumber m_first;
    SlitPixels m_pixels;
    int m_columns = 0;
};

/// All lines of an order on their way through the film.
class SlitWriters {
public:
    SlitWriters(const VideoIndex& index, const SlitOrder& order, const TakeSlitTile& take)
        : m_next(order.first), m_take(take) {
        const std::vector<int> heights = slitHeights(index, order);
        for (std::size_t line = 0; line < order.lines.size(); ++line)
            m_writers.emplace_back(LineSampler(index.facts(), order.lines[line], heights[line]),
                                   order.first);
    }

    /// A frame that is ahead leaves those between it and the last one missing.
    void add(FrameNumber number, const AVFrame& frame, SlitReading& reading) {
        addMissing(number, reading);
        for (std::size_t line = 0; line < m_writers.size(); ++line)
            hand(line, m_writers[line].add(frame));
        m_next = number + 1;
    }
    void addMissing(FrameNumber end, SlitReading& reading) {
        for (; m_next < end; ++m_next) {
            reading.missing.push_back(m_next);
            for (std::size_t line = 0; line < m_writers.size(); ++line)
                hand(line, m_writers[line].addMissing());
        }
    }
    void finish() {
        for (std::size_t line = 0; line < m_writers.size(); ++line)
            hand(line, m_writers[line].rest());
    }
    [[nodiscard]] FrameNumber next() const { return m_next; }

private:
    void hand(std::size_t line, const std::shared_ptr<const SlitTile>& tile) const {
        if (tile)
            m_take(line, tile);
    }

    FrameNumber m_next;
    const TakeSlitTile& m_take;
    std::vector<TileWriter> m_writers;
};

SlitOrder withinFilm(SlitOrder order, const VideoIndex& index) {
    const FrameNumber end = index.frameCount() - 1;
    order.last = order.last < 0 ? end : std::min(order.last, end);
    order.first = std::clamp<FrameNumber>(order.first, 0, std::max<FrameNumber>(end, 0));
    return order;
}

/// Seconds from a frame to the next; where there is none, from the one before.
double slitInterval(const VideoIndex& index, FrameNumber number) {
    const FrameNumber from = std::clamp<FrameNumber>(number, 0, index.frameCount() - 2);
    return index.secondsOf(from + 1) - index.secondsOf(from);
}

} // namespace

void SlitPicture::add(std::shared_ptr<const SlitTile> tile) {
    if (tiles.empty())
        first = tile->first;
    height = tile->levels[0].height;
    columns = tile->first + tile->columns - first;
    tiles.push_back(std::move(tile));
}

const SlitTile* SlitPicture::tileOf(FrameNumber column) const {
    if (column < 0 || column >= columns)
        return nullptr;
    return tiles[static_cast<std::size_t>(column / SlitTileColumns)].get();
}

std::vector<int> slitHeights(const VideoIndex& index, const SlitOrder& wanted) {
    const SlitOrder order = withinFilm(wanted, index);
    const double columns =
        static_cast<double>(std::max<FrameNumber>(order.last - order.first, 0)) + 1;
    const double bytesOfRow = columns * double(BytesOfPixel) * WithLevels;
    double rows = 0;
    std::vector<int> heights;
    for (const SlitLine& line : order.lines) {
        heights.push_back(std::clamp(static_cast<int>(std::lround(lengthOf(line))), 1,
                                     std::max(order.mostHeight, 1)));
        rows += heights.back();
    }
    const double share = static_cast<double>(order.mostBytes) / (rows * bytesOfRow);
    for (int& height : heights)
        if (share < 1)
            height = std::min(height, std::max(LeastHeight, static_cast<int>(height * share)));
    return heights;
}

SlitReading readSlits(std::shared_ptr<const VideoIndex> index, const SlitOrder& wanted,
                      const std::stop_token& stop, const TakeSlitTile& take) {
    const SlitOrder order = withinFilm(wanted, *index);
    for (const SlitLine& line : order.lines)
        checkSlitLine(line, index->facts().shownSize, index->facts().path);
    SlitReading reading;
    if (order.lines.empty() || order.last < order.first)
        return reading;
    SlitWriters writers(*index, order, take);
    FrameRun run(index);
    const bool isDone = run.run(
        {order.first, order.last}, [&] { return stop.stop_requested(); },
        [&](FrameNumber number, const FramePtr& samples) {
            if (number >= order.first && number <= order.last)
                writers.add(number, *samples, reading);
        });
    reading.isStopped = !isDone;
    reading.isCutOff = isDone && run.endedBefore(order.last);
    if (isDone && !reading.isCutOff)
        writers.addMissing(order.last + 1, reading);
    writers.finish();
    reading.columns = writers.next() - order.first;
    return reading;
}

double slitColumnAt(const VideoIndex& index, FrameNumber first, double seconds) {
    if (index.frameCount() < 2)
        return 0.5;
    FrameNumber frame = index.frameAt(seconds).value_or(0);
    if (frame > 0 && index.secondsOf(frame) > seconds)
        --frame; // it was meant to the microsecond
    const double interval = slitInterval(index, frame);
    const double part = interval > 0 ? (seconds - index.secondsOf(frame)) / interval : 0;
    return static_cast<double>(frame - first) + 0.5 + part;
}

double slitSecondsAt(const VideoIndex& index, FrameNumber first, double column) {
    if (index.frameCount() < 2)
        return index.frameCount() == 1 ? index.secondsOf(0) : 0;
    const double place = column - 0.5 + static_cast<double>(first);
    const FrameNumber frame = std::clamp<FrameNumber>(static_cast<FrameNumber>(std::floor(place)),
                                                      0, index.frameCount() - 1);
    return index.secondsOf(frame) +
           (place - static_cast<double>(frame)) * slitInterval(index, frame);
}

FrameNumber slitFrameAt(const VideoIndex& index, FrameNumber first, double column) {
    return std::clamp<FrameNumber>(first + static_cast<FrameNumber>(std::floor(column)), 0,
                                   std::max<FrameNumber>(index.frameCount() - 1, 0));
}

} // namespace kavela
