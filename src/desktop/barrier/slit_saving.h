#pragma once

#include "captions/slit_sheet.h"
#include "desktop/barrier/slit_tables.h"
#include "desktop/shell/background_work.h"
#include "vision/band_recording.h"
#include "vision/slit_file.h"

#include <QObject>
#include <QString>

#include <memory>
#include <vector>

namespace kavela::desktop {

/// From one frame to another, as far as the picture is read, with the marks of runs; its last frame
/// is before its first where nothing of it is read.
[[nodiscard]] SlitSheet sheetOf(const SlitPicture& picture, FrameNumber first, FrameNumber last,
                                const std::vector<SlitRunRow>& runs);

/// What is written of a slit picture for others.
class SlitSaving : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Writes a part of a picture as PNG with its time scale, beside the window and also when that
    /// is closed meanwhile. Only what goes wrong is told; what stood there then stays.
    void writePicture(const QString& file, const SlitPicture& picture,
                      const std::shared_ptr<const VideoIndex>& index, const SlitSheet& sheet);
    /// That there is no picture in a file, and why.
    [[nodiscard]] static QString pictureNotSaved(const QString& why);
    /// Writes the water beside a line round each place that was judged, beside the window.
    void writeBands(const QString& file, const std::shared_ptr<const VideoIndex>& index,
                    const slitline001& line, const std::vector<BandJudgement>& judgements);

signals:
    void told(const QString& text); ///< how writing ended

private:
    BackgroundWork m_work;
};

} // namespace kavela::desktop
