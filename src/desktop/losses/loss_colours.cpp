#include "desktop/losses/loss_colours.h"

#include "desktop/race/cell_colours.h"
#include "desktop/shell/theme.h"

namespace kavela::desktop {

QColor lossColour(double loss, ColourScale scale, const QPalette& palette) {
    if (loss == 0)
        return theme::quietText(palette);
    return raceText(loss > 0 ? NamedRed : NamedGreen, scale, theme::isDark(palette));
}

} // namespace kavela::desktop
