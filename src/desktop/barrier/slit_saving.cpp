#include "desktop/barrier/slit_saving.h"

#include "desktop/shell/disk_worker.h"
#include "desktop/shell/qt_text.h"

#include <QFileInfo>

#include <algorithm>

namespace kavela::desktop {

SlitSheet sheetOf(const SlitPicture& picture, FrameNumber first, FrameNumber last,
                  const std::vector<SlitRunRow>& runs) {
    SlitSheet sheet{first, std::min(last, picture.columns - 1), {}};
    for (const SlitRunRow& row : runs)
        if (row.run.seconds)
            sheet.marks.push_back({*row.run.seconds, row.run.crew});
    return sheet;
}

/// The picture shares its tiles, which never change: reading on adds to the window's own one.
void SlitSaving::writePicture(const QString& file, const SlitPicture& picture,
                              const std::shared_ptr<const VideoIndex>& index,
                              const SlitSheet& sheet) {
    disk::run(
        *this,
        [path = file.toStdString(), picture, index, sheet] {
            writePng(paintSlitSheet(picture, *index, sheet), path);
        },
        [this](const std::exception_ptr& fault) {
            if (fault)
                emit told(pictureNotSaved(qtText(causeOf(fault))));
        });
}

QString SlitSaving::pictureNotSaved(const QString& why) {
    return tr("The picture could not be saved: %1").arg(why);
}

void SlitSaving::writeBands(const QString& file, const std::shared_ptr<const VideoIndex>& index,
                            const slitline001& line, const std::vector<BandJudgement>& judgements) {
    BarrierRequest request;
    request.line = lineOf(line);
    request.boat = boatOf(line);
    m_work.run(
        [path = file.toStdString(), index, request, judgements](const WorkSteps& steps) {
            if (const auto recording = recordBands(index, request, judgements, steps.stopToken()))
                writeBandRecording(*recording, path);
        },
        [this, name = QFileInfo(file).fileName()] {
            emit told(tr("The water round the marks is in %1.").arg(name));
        },
        {.failed = [this](const std::exception_ptr& fault) {
            emit told(
                tr("The water round the marks could not be saved: %1").arg(qtText(causeOf(fault))));
        }});
}

} // namespace kavela::desktop
