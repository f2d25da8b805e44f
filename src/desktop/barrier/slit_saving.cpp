#include "desktop/barrier/slit_saving.h"

#include "desktop/shell/disk_worker.h"
#include "desktop/shell/qt_text.h"

#include <QFileInfo>

#include <algorithm>

namespace kavela::desktop {

/// The picture shares its tiles, which never change: reading on adds to the window's own one.
void SlitSaving::writePicture(const QString& file, const SlitPicture& picture,
                              const std::shared_ptr<const VideoIndex>& index, const SlitPart& part,
                              const std::vector<SlitRunRow>& runs) {
    if (!index || picture.tiles.empty())
        return tellNotSaved(tr("There is no slit picture yet."));
    SlitSheet sheet{slitFrameAt(*index, 0, part.from),
                    std::min(slitFrameAt(*index, 0, part.to), picture.columns - 1),
                    {}};
    if (sheet.last < sheet.first)
        return tellNotSaved(tr("That part is not read yet."));
    for (const SlitRunRow& row : runs)
        if (row.run.seconds)
            sheet.marks.push_back({*row.run.seconds, row.run.crew});
    disk::run(
        *this,
        [path = file.toStdString(), picture, index, sheet] {
            writePng(paintSlitSheet(picture, *index, sheet), path);
        },
        [this](const std::exception_ptr& fault) {
            if (fault)
                tellNotSaved(qtText(causeOf(fault)));
        });
}

void SlitSaving::tellNotSaved(const QString& why) {
    emit told(tr("The picture could not be saved: %1").arg(why));
}

void SlitSaving::writeBands(const QString& file, const std::shared_ptr<const VideoIndex>& index,
                            const slitline001& line, const std::vector<BandJudgement>& judgements,
                            TimingPoint point) {
    BarrierRequest request;
    request.line = lineOf(line);
    request.boat = boatOf(line);
    m_work.run(
        [path = file.toStdString(), index, request, judgements, point](const WorkSteps& steps) {
            if (const auto recording =
                    recordBands(index, request, judgements, point, steps.stopToken()))
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
