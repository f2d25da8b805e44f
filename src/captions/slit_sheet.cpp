#include "captions/slit_sheet.h"

#include "common/error.h"

#include <QImageWriter>
#include <QLocale>
#include <QPainter>
#include <QSaveFile>

#include <algorithm>
#include <array>
#include <cmath>

namespace kavela {

namespace {

constexpr FrameNumber SheetRowFrames = 3000;
constexpr double MostSheetPixels = 40e6;
constexpr int LeastSheetRow = 48;
constexpr int SheetScaleHeight = 26;
constexpr int SheetFontPixels = 13;
constexpr int SheetTick = 6;
constexpr QColor SheetGround{0xFF, 0xFF, 0xFF};
constexpr QColor SheetInk{0x20, 0x24, 0x28};
constexpr QColor SheetMark{0x00, 0xC8, 0x96};

/// One row of a sheet.
struct SheetRow {
    FrameNumber first = 0;
    FrameNumber end = 0; ///< behind the last one
    QRect area;          ///< of the picture
};

QImage sheetImage(const Picture& picture) {
    return QImage(picture.pixels.get(), picture.width, picture.height,
                  static_cast<qsizetype>(picture.bytesPerLine), QImage::Format_RGB32);
}

void paintColumns(QPainter& painter, const SlitPicture& picture, const SheetRow& row) {
    for (const auto& tile : picture.tiles) {
        const FrameNumber first = std::max(tile->first, row.first);
        const FrameNumber end = std::min(tile->first + tile->columns, row.end);
        if (first >= end)
            continue;
        const QRect from(static_cast<int>(first - tile->first), 0, static_cast<int>(end - first),
                         picture.height);
        const QRect to(static_cast<int>(first - row.first), row.area.top(),
                       static_cast<int>(end - first), row.area.height());
        painter.drawImage(to, sheetImage(tile->levels[0]), from);
    }
}

double sheetX(const VideoIndex& index, const SheetRow& row, double seconds) {
    return slitColumnAt(index, row.first, seconds);
}

/// Seconds between the numbers of the scale: some 100 pixels.
double sheetStep(double pixelsPerSecond) {
    constexpr double LeastPixels = 100;
    for (const double step : {0.1, 0.2, 0.5, 1.0, 2.0, 5.0, 10.0, 30.0, 60.0})
        if (step * pixelsPerSecond >= LeastPixels)
            return step;
    return 300;
}

void paintScale(QPainter& painter, const VideoIndex& index, const SheetRow& row) {
    const double from = slitSecondsAt(index, row.first, 0);
    const double to = slitSecondsAt(index, row.first, static_cast<double>(row.end - row.first));
    if (to <= from)
        return;
    const double step = sheetStep(static_cast<double>(row.end - row.first) / (to - from));
    const int top = row.area.bottom() + 1;
    painter.setPen(SheetInk);
    for (double number = std::ceil(from / step); number * step <= to; ++number) {
        const double x = sheetX(index, row, number * step);
        painter.drawLine(QPointF(x, top), QPointF(x, top + SheetTick));
        painter.drawText(QRectF(x - 60, top + SheetTick, 120, SheetScaleHeight - SheetTick),
                         Qt::AlignHCenter | Qt::AlignTop,
                         QLocale::c().toString(number * step, 'f', step < 1 ? 1 : 0) +
                             QStringLiteral(" s"));
    }
}

void paintSheetMarks(QPainter& painter, const VideoIndex& index, const SlitSheet& sheet,
                     const SheetRow& row) {
    for (const SlitSheetMark& mark : sheet.marks) {
        const double x = sheetX(index, row, mark.seconds);
        if (x < 0 || x > static_cast<double>(row.end - row.first))
            continue;
        painter.setPen(SheetMark);
        painter.drawLine(QPointF(x, row.area.top()), QPointF(x, row.area.bottom()));
        painter.drawText(QPointF(x + 4, row.area.top() + SheetFontPixels + 2), mark.label);
    }
}

std::vector<SheetRow> rowsOf(const SlitPicture& picture, const SlitSheet& sheet) {
    const FrameNumber frames = std::max<FrameNumber>(sheet.last - sheet.first + 1, 1);
    const FrameNumber count = (frames + SheetRowFrames - 1) / SheetRowFrames;
    const double width = static_cast<double>(std::min(frames, SheetRowFrames));
    const int most = static_cast<int>(MostSheetPixels / (width * static_cast<double>(count)));
    const int height = std::min(picture.height, std::max(LeastSheetRow, most - SheetScaleHeight));
    std::vector<SheetRow> rows;
    for (FrameNumber row = 0; row < count; ++row) {
        const FrameNumber first = sheet.first + row * SheetRowFrames;
        const FrameNumber end = std::min(first + SheetRowFrames, sheet.last + 1);
        rows.push_back({first, end,
                        QRect(0, static_cast<int>(row) * (height + SheetScaleHeight),
                              static_cast<int>(end - first), height)});
    }
    return rows;
}

} // namespace

QImage paintSlitSheet(const SlitPicture& picture, const VideoIndex& index, const SlitSheet& sheet) {
    const std::vector<SheetRow> rows = rowsOf(picture, sheet);
    QImage image(rows.front().area.width(), rows.back().area.bottom() + 1 + SheetScaleHeight,
                 QImage::Format_RGB32);
    image.fill(SheetGround);
    QPainter painter(&image);
    QFont font = painter.font();
    font.setPixelSize(SheetFontPixels);
    painter.setFont(font);
    for (const SheetRow& row : rows) {
        paintColumns(painter, picture, row);
        paintScale(painter, index, row);
        paintSheetMarks(painter, index, sheet, row);
    }
    return image;
}

void writePng(const QImage& image, const std::filesystem::path& path) {
    QSaveFile file(QString::fromStdString(path.string()));
    if (!file.open(QIODevice::WriteOnly))
        throw FileError(path, file.errorString().toStdString());
    QImageWriter writer(&file, "png");
    if (!writer.write(image))
        throw FileError(path, writer.errorString().toStdString());
    if (!file.commit())
        throw FileError(path, file.errorString().toStdString());
}

} // namespace kavela
