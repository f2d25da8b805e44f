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

/// A part of a slit picture, in columns.
struct SlitPart {
    double from = 0;
    double to = 0;
};

/// What is written of a slit picture for others.
class SlitSaving : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Writes a part of a picture, as far as it is read, as PNG with its time scale and the marks
    /// of runs, beside the window and also when that is closed meanwhile. Only what goes wrong is
    /// told; what stood there then stays.
    void writePicture(const QString& file, const SlitPicture& picture,
                      const std::shared_ptr<const VideoIndex>& index, const SlitPart& part,
                      const std::vector<SlitRunRow>& runs);
    /// Writes the water beside a line round each place that was judged, beside the window.
    void writeBands(const QString& file, const std::shared_ptr<const VideoIndex>& index,
                    const slitline001& line, const std::vector<BandJudgement>& judgements,
                    TimingPoint point);

signals:
    void told(const QString& text); ///< how writing ended

private:
    void tellNotSaved(const QString& why);

    BackgroundWork m_work;
};

} // namespace kavela::desktop
