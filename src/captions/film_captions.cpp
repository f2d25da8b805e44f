#include "captions/film_captions.h"

#include <algorithm>

namespace kavela {

namespace {

/// Lines of text in the height of a whole picture, and letters in the width of a cell.
constexpr int LinesInPicture = 30;
constexpr int LettersInCell = 26;
constexpr int SmallestText = 8;
/// The chart's share of the picture's height, and how far it grows until it is painted anew.
constexpr int ChartsInPicture = 9;
constexpr int ChartStep = 4;

int evenDown(int place) {
    return place / 2 * 2;
}

int textPixels(const CaptionScene& scene, const FilmPlace& place) {
    return std::max(std::min(scene.size.height / LinesInPicture, place.words.width / LettersInCell),
                    SmallestText);
}

int chartHeight(const CaptionScene& scene) {
    const bool hasLine = std::ranges::any_of(
        scene.gaps, [](const GapLine& line) { return line.points().size() > 1; });
    return hasLine ? evenDown(scene.size.height / ChartsInPicture) : 0;
}

PictureRect chartStrip(const CaptionScene& scene) {
    return lowerStrip(scene.places, scene.size, chartHeight(scene));
}

/// Where the captions of a film end below: with its picture, and above the chart where that lies
/// over it.
int floorOf(const CaptionScene& scene, const FilmPlace& place) {
    const int floor =
        std::min(place.picture.y + place.picture.height, place.words.y + place.words.height);
    const PictureRect chart = chartStrip(scene);
    return place.words.x < chart.x + chart.width ? std::min(floor, chart.y) : floor;
}

/// Captions stand in the dark above a picture where there is room for them, otherwise on it.
int topOf(const FilmPlace& place, int pixels) {
    const int row = pixels * 2;
    const int bar = place.picture.y - place.cell.y;
    return bar >= row ? place.picture.y - row : place.cell.y + pixels / 3;
}

/// Lets the captions of the second film begin below those of the first where both fill one place.
bool sharesWords(const FilmPlace& a, const FilmPlace& b) {
    return a.words == b.words;
}

} // namespace

template <class Paint>
std::shared_ptr<const Overlay> FilmCaptions::kept(const std::string& key, const Paint& paint) {
    Kept& entry = m_kept[key];
    if (!entry.overlay) {
        entry.overlay = overlayOf(paint());
        ++m_painted;
    }
    entry.isUsed = true;
    return entry.overlay;
}

std::shared_ptr<const Overlay> FilmCaptions::boxOf(const CaptionBox& box) {
    const std::string key = std::to_string(static_cast<int>(box.kind)) + ' ' +
                            std::to_string(box.film) + ' ' + std::to_string(box.pixels) + ' ' +
                            std::to_string(box.widest) + ' ' + box.text;
    return kept(key, [&] { return captionBoxImage(box); });
}

std::vector<PlacedOverlay> FilmCaptions::paint(const CaptionScene& scene) {
    std::vector<PlacedOverlay> placed;
    addChart(scene, placed);
    std::vector<Corners> corners;
    for (const FilmPlace& place : scene.places) {
        const int top = topOf(place, textPixels(scene, place));
        corners.push_back({top, top, floorOf(scene, place)});
    }
    for (const Caption& caption : scene.captions) {
        if (caption.kind == CaptionKind::Section) {
            addSection(scene, caption, placed);
            continue;
        }
        // Films in one place share its corners.
        std::size_t owner = 0;
        while (!sharesWords(scene.places[owner], scene.places[caption.film]))
            ++owner;
        addFilm(scene, caption, corners[owner], placed);
    }
    std::erase_if(m_kept, [](const auto& entry) { return !entry.second.isUsed; });
    for (auto& [key, entry] : m_kept)
        entry.isUsed = false;
    return placed;
}

void FilmCaptions::addFilm(const CaptionScene& scene, const Caption& caption, Corners& corners,
                           std::vector<PlacedOverlay>& placed) {
    const FilmPlace& place = scene.places[caption.film];
    const PictureRect& words = place.words;
    const int pixels = textPixels(scene, place);
    const int margin = pixels / 3;
    const bool isName = caption.kind == CaptionKind::Names;
    // The clock stands beside the names.
    const int widest = isName ? words.width - pixels * 6 : words.width - 2 * margin;
    const auto overlay = boxOf({caption.kind, caption.text, pixels, widest, caption.film});
    const auto [width, height] = overlay->size();
    const int left = words.x + margin;
    const int right = words.x + words.width - margin - width;
    const int row = height + margin / 2;
    const auto put = [&](int x, int y) { placed.push_back({overlay, evenDown(x), evenDown(y)}); };
    switch (caption.kind) {
    case CaptionKind::RunClock:
    case CaptionKind::Split:
        put(right, corners.right);
        corners.right += row;
        break;
    case CaptionKind::Waits:
    case CaptionKind::Stretch:
        corners.bottom -= row;
        put(left, corners.bottom);
        break;
    case CaptionKind::Missing:
        put(words.x + (words.width - width) / 2, words.y + (words.height - height) / 2);
        break;
    default:
        put(left, corners.left);
        corners.left += row;
    }
}

/// In the middle of the lower edge, above the chart.
void FilmCaptions::addSection(const CaptionScene& scene, const Caption& caption,
                              std::vector<PlacedOverlay>& placed) {
    const int pixels = std::max(scene.size.height / LinesInPicture, SmallestText);
    const PictureRect chart = chartStrip(scene);
    const auto overlay = boxOf({caption.kind, caption.text, pixels, chart.width / 2, 0});
    const auto [width, height] = overlay->size();
    placed.push_back({overlay, evenDown(chart.x + (chart.width - width) / 2),
                      evenDown(chart.y - height - pixels / 3)});
}

void FilmCaptions::addChart(const CaptionScene& scene, std::vector<PlacedOverlay>& placed) {
    const PictureRect chart = chartStrip(scene);
    if (chart.height == 0)
        return;
    const double share = (scene.common - scene.from) / (scene.to - scene.from);
    const int column = static_cast<int>(share * chart.width / ChartStep) * ChartStep;
    std::size_t known = 0; // a new split is not to wait for the next step
    for (const GapLine& line : scene.gaps)
        known += line.knownAt(scene.common);
    const auto overlay = kept("chart " + std::to_string(column) + ' ' + std::to_string(known), [&] {
        return gapChartImage(scene, {{chart.width, chart.height}, column});
    });
    placed.push_back({overlay, chart.x, chart.y});
}

} // namespace kavela
