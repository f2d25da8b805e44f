#pragma once

#include <QColor>
#include <QIcon>
#include <QSize>
#include <QString>

#include <span>
#include <string>
#include <vector>

class QPainter;
class QPalette;
class QRectF;
class QWidget;

namespace kavela::desktop {

/// How a boat is told from the others of its heat: by its number on the start list, a few letters
/// of its name and a colour.
struct BoatLook {
    std::string name;
    QString cue;    ///< initials, of one boat of the heat only
    int number = 0; ///< on the start list, from 1; 0 for a name that is not of the heat
    QColor colour;
};

/// One look per name, in the order of the start list; a name that stands there twice has one look
/// for each.
[[nodiscard]] std::vector<BoatLook> boatLooks(std::span<const std::string> athletes,
                                              const QPalette& palette);

/// The look of a name; a grey one with a question mark for a stranger.
[[nodiscard]] BoatLook lookOf(std::span<const BoatLook> looks, const std::string& name,
                              const QPalette& palette);

/// Black or white, whichever reads on a colour.
[[nodiscard]] QColor readableOn(const QColor& ground);

/// The cue of a boat on its colour.
void paintBoat(QPainter& painter, const QRectF& place, const BoatLook& look);

/// A picture of the cue, of badgeSize, for tables.
[[nodiscard]] QSize badgeSize(const QWidget& table);
[[nodiscard]] QIcon badgeOf(const BoatLook& look, const QWidget& table);

/// "▲2" for places won, "▼1" for places lost, empty for none.
[[nodiscard]] QString changeText(int change);

/// Green for places won, the colour of faults for places lost, quiet for none.
[[nodiscard]] QColor changeColour(int change, const QPalette& palette);

} // namespace kavela::desktop
