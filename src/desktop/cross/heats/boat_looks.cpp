#include "desktop/cross/heats/boat_looks.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"

#include <QPainter>
#include <QWidget>

#include <algorithm>

namespace kavela::desktop {

namespace {

/// The first letters of the words, `count` of the last one.
QString initials(const QString& name, qsizetype count) {
    const QStringList words = name.split(' ', Qt::SkipEmptyParts);
    QString letters;
    for (qsizetype word = 0; word < words.size(); ++word)
        letters += words[word].left(word + 1 == words.size() ? count : 1);
    return letters.size() > count + 1 ? letters.left(1) + letters.right(count) : letters;
}

/// Initials, with as many letters of the last word as it takes to be the only ones.
QString cueOf(const QString& name, const QStringList& others) {
    constexpr qsizetype Longest = 3;
    for (qsizetype count = 1; count < Longest; ++count) {
        const QString cue = initials(name, count);
        if (std::ranges::none_of(others, [&](const QString& other) {
                return other != name && initials(other, count) == cue;
            }))
            return cue;
    }
    return initials(name, Longest);
}

} // namespace

std::vector<BoatLook> boatLooks(std::span<const std::string> athletes, const QPalette& palette) {
    QStringList names;
    for (const std::string& athlete : athletes)
        names.append(QString::fromStdString(athlete).simplified());
    std::vector<BoatLook> looks;
    for (std::size_t boat = 0; boat < athletes.size(); ++boat) {
        const int number = static_cast<int>(boat) + 1;
        const QString cue = cueOf(names[static_cast<qsizetype>(boat)], names);
        looks.push_back({athletes[boat], cue.isEmpty() ? QString::number(number) : cue, number,
                         seriesStyle(boat % MostSeries, palette).colour});
    }
    return looks;
}

BoatLook lookOf(std::span<const BoatLook> looks, const std::string& name, const QPalette& palette) {
    const auto found = std::ranges::find(looks, name, &BoatLook::name);
    return found != looks.end() ? *found
                                : BoatLook{name, QStringLiteral("?"), 0, theme::quietText(palette)};
}

QColor readableOn(const QColor& ground) {
    constexpr double Middle = 0.5;
    const double light = 0.299 * ground.redF() + 0.587 * ground.greenF() + 0.114 * ground.blueF();
    return light > Middle ? Qt::black : Qt::white;
}

void paintBoat(QPainter& painter, const QRectF& place, const BoatLook& look) {
    constexpr double Corner = 5;
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.colour);
    painter.drawRoundedRect(place, Corner, Corner);
    QFont font = painter.font();
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(readableOn(look.colour));
    painter.drawText(place, Qt::AlignCenter, look.cue);
    painter.restore();
}

QSize badgeSize(const QWidget& table) {
    return {grown(table, 34), grown(table, 18)};
}

QIcon badgeOf(const BoatLook& look, const QWidget& table) {
    const qreal ratio = table.devicePixelRatioF();
    const QSize size = badgeSize(table);
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(theme::captionFont(table));
    paintBoat(painter, QRectF({0, 0}, QSizeF(size)), look);
    painter.end();
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected); // a selected row leaves the colour as it is
    return icon;
}

QString changeText(int change) {
    if (change == 0)
        return {};
    return (change > 0 ? QStringLiteral("▲%1") : QStringLiteral("▼%1")).arg(std::abs(change));
}

QColor changeColour(int change, const QPalette& palette) {
    if (change == 0)
        return theme::quietText(palette);
    if (change < 0)
        return missedColour(palette);
    return theme::isDark(palette) ? QColor(0x5C, 0xC9, 0x8A) : QColor(0x0B, 0x74, 0x3A);
}

} // namespace kavela::desktop
