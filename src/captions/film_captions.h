#pragma once

#include "captions/caption_boxes.h"
#include "compose/overlay.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace kavela {

/// Paints the captions of composed films: light on a dark ground that lets the water through, so
/// that they can be read on any picture. Only what changed since the last picture is painted anew.
/// Needs a QGuiApplication.
class FilmCaptions final : public CaptionPainter {
public:
    [[nodiscard]] std::vector<PlacedOverlay> paint(const CaptionScene& scene) override;

    /// How many pictures of captions were painted so far, those taken up again not counted.
    [[nodiscard]] std::size_t painted() const { return m_painted; }

private:
    /// What stands below each other in one corner of a cell.
    struct Corners {
        int left = 0; ///< where the next box begins, in lines of the picture
        int right = 0;
        int bottom = 0; ///< where the next box ends
    };
    struct Kept {
        std::shared_ptr<const Overlay> overlay;
        bool isUsed = false; ///< in the picture that is being painted
    };

    void addFilm(const CaptionScene& scene, const Caption& caption, Corners& corners,
                 std::vector<PlacedOverlay>& placed);
    void addChart(const CaptionScene& scene, std::vector<PlacedOverlay>& placed);
    void addSection(const CaptionScene& scene, const Caption& caption,
                    std::vector<PlacedOverlay>& placed);
    [[nodiscard]] std::shared_ptr<const Overlay> boxOf(const CaptionBox& box);
    template <class Paint>
    [[nodiscard]] std::shared_ptr<const Overlay> kept(const std::string& key, const Paint& paint);

    std::map<std::string, Kept> m_kept;
    std::size_t m_painted = 0;
};

} // namespace kavela
