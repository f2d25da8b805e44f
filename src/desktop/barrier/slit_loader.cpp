#include "desktop/barrier/slit_loader.h"

#include "desktop/shell/qt_text.h"

#include <algorithm>
#include <mutex>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr int DragMilliseconds = 350; ///< a line that is dragged is read once it rests
constexpr int LookMilliseconds = 80;
constexpr std::size_t MostSlitBytes = std::size_t{256} << 20;

} // namespace

/// Tiles on their way from the thread that reads.
struct SlitLoader::Inbox {
    std::mutex guard;
    std::vector<std::pair<std::size_t, std::shared_ptr<const SlitTile>>> tiles;
};

SlitLoader::SlitLoader(QObject* parent) : QObject(parent) {
    m_soon.setSingleShot(true);
    m_soon.setInterval(DragMilliseconds);
    m_look.setInterval(LookMilliseconds);
    connect(&m_soon, &QTimer::timeout, this, &SlitLoader::begin);
    connect(&m_look, &QTimer::timeout, this, &SlitLoader::takeTiles);
}

SlitLoader::~SlitLoader() {
    m_work.cancel();
}

void SlitLoader::setFilm(std::shared_ptr<const VideoIndex> index) {
    if (index == m_index)
        return;
    m_index = std::move(index);
    for (Entry& entry : m_entries)
        entry = {entry.line, {}, false};
    m_told.clear();
    begin();
    emit grown();
}

void SlitLoader::setLines(const std::vector<SlitLine>& lines) {
    std::vector<Entry> entries;
    bool isChanged = lines.size() != m_entries.size();
    for (std::size_t line = 0; line < lines.size(); ++line) {
        // Only where it lies decides what stands on it.
        const auto known = std::ranges::find_if(m_entries, [&](const Entry& entry) {
            return entry.line.first == lines[line].first && entry.line.second == lines[line].second;
        });
        isChanged = isChanged || known == m_entries.end() ||
                    known != m_entries.begin() + static_cast<std::ptrdiff_t>(line);
        entries.push_back(known == m_entries.end() ? Entry{lines[line], {}, false} : *known);
    }
    if (!isChanged)
        return;
    m_entries = std::move(entries);
    // What is being read belongs to other numbers now; what it brought of a line is read again.
    m_work.cancel();
    m_inbox.reset();
    m_look.stop();
    m_soon.start();
    emit grown();
}

const SlitPicture& SlitLoader::picture(std::size_t line) const {
    static const SlitPicture None;
    return line < m_entries.size() ? m_entries[line].picture : None;
}

double SlitLoader::share() const {
    if (!m_index || m_index->frameCount() == 0 || m_read.empty())
        return 0;
    return static_cast<double>(picture(m_read.front()).columns) /
           static_cast<double>(m_index->frameCount());
}

void SlitLoader::begin() {
    m_soon.stop();
    m_work.cancel();
    m_inbox.reset();
    m_look.stop();
    m_read.clear();
    SlitOrder order;
    for (std::size_t line = 0; line < m_entries.size(); ++line)
        if (!m_entries[line].isWhole) {
            m_entries[line].picture = {};
            m_read.push_back(line);
            order.lines.push_back(m_entries[line].line);
        }
    if (!m_index || m_read.empty())
        return;
    order.mostBytes = MostSlitBytes * m_read.size() / m_entries.size();
    order.mostHeight = m_mostHeight;
    m_told.clear();
    m_inbox = std::make_shared<Inbox>();
    m_look.start();
    m_work.run(
        [index = m_index, order, inbox = m_inbox](const WorkSteps& steps) {
            return readSlits(index, order, steps.stopToken(),
                             [&](std::size_t line, const std::shared_ptr<const SlitTile>& tile) {
                                 const std::scoped_lock lock(inbox->guard);
                                 inbox->tiles.emplace_back(line, tile);
                             });
        },
        [this](const SlitReading& reading) { finish(reading); },
        {.failed = [this](const std::exception_ptr& fault) {
            m_told = qtText(causeOf(fault));
            m_inbox.reset();
            m_look.stop();
            emit ended();
        }});
}

void SlitLoader::takeTiles() {
    if (!m_inbox)
        return;
    decltype(m_inbox->tiles) tiles;
    {
        const std::scoped_lock lock(m_inbox->guard);
        tiles.swap(m_inbox->tiles);
    }
    for (auto& [line, tile] : tiles)
        m_entries[m_read[line]].picture.add(std::move(tile));
    if (!tiles.empty())
        emit grown();
}

void SlitLoader::finish(const SlitReading& reading) {
    takeTiles();
    for (const std::size_t line : m_read)
        m_entries[line].isWhole = true;
    m_inbox.reset();
    m_look.stop();
    QStringList notes;
    if (reading.isCutOff)
        notes.append(tr("The film ends early, after %1 frames.").arg(reading.columns));
    if (!reading.missing.empty())
        notes.append(tr("%1 frames cannot be decoded: their columns are black.")
                         .arg(reading.missing.size()));
    m_told = notes.join(' ');
    emit ended();
}

} // namespace kavela::desktop
