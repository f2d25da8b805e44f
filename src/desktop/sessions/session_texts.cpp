#include "desktop/sessions/session_texts.h"

#include "desktop/shell/shown_number.h"

#include <QCoreApplication>

#include <cmath>

namespace kavela::desktop {

namespace {

struct SessionTexts {
    Q_DECLARE_TR_FUNCTIONS(SessionTexts)
};

} // namespace

QString valueText(std::optional<double> value, int decimals) {
    if (!value || !std::isfinite(*value))
        return QString(QChar(Dash));
    constexpr double Largest = 1e9;
    if (std::abs(*value) > Largest)
        return QString::number(*value, 'g', 3);
    const double scale = std::pow(10, decimals);
    return shownNumber(std::round(*value * scale) / scale + 0.0, decimals);
}

QString sideText(std::int64_t hand) {
    if (hand == LeftHand)
        return SessionTexts::tr("left");
    return hand == RightHand ? SessionTexts::tr("right") : SessionTexts::tr("side unknown");
}

QString cellText(const kavela::Cell& cell, int decimals) {
    if (const std::string* const text = std::get_if<std::string>(&cell))
        return QString::fromStdString(*text);
    const double* const number = std::get_if<double>(&cell);
    return valueText(number ? std::optional(*number) : std::nullopt, decimals);
}

QString sessionTitle(const infosessionSmart_v3& info) {
    QStringList parts;
    for (const std::string& part : {info.name, info.location, dayText(info.date), info.sessionKind})
        if (!part.empty())
            parts.append(QString::fromStdString(part));
    return parts.join(" · ");
}

QStringList remarksOn(const EditedSession& edited) {
    QStringList remarks;
    for (const std::string& note : edited.notes)
        remarks.append(QString::fromStdString(note));
    if (!edited.isBowKnown && edited.notes.empty())
        remarks.append(SessionTexts::tr(
            "Side unknown: when the session was made, it was not known which side of "
            "the phone points to the bow."));
    if (edited.isClockGuessed && !edited.session.gps.empty())
        remarks.append(SessionTexts::tr(
            "The file does not tell how the clocks of strokes and fixes go together: "
            "they were fitted by the turns and may be some seconds apart."));
    if (!edited.powerMeter.empty())
        remarks.append(SessionTexts::tr(
            "Power-meter data is not in the strokes yet; you are asked on saving."));
    return remarks;
}

} // namespace kavela::desktop
