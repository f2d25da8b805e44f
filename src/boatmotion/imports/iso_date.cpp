#include "boatmotion/imports/iso_date.h"

namespace kavela::imports {

namespace {

/// Takes a text apart from its beginning; what does not fit stops it for good.
class DateText {
public:
    explicit DateText(std::string_view text) : m_rest(text) {}

    [[nodiscard]] bool isAtEnd() const { return m_fits && m_rest.empty(); }
    [[nodiscard]] bool fits() const { return m_fits; }

    [[nodiscard]] bool begins(std::string_view letters) const {
        return !m_rest.empty() && letters.find(m_rest.front()) != letters.npos;
    }

    /// Takes one of the letters; 0 when another one stands there.
    char take(std::string_view letters) {
        if (!begins(letters)) {
            m_fits = false;
            return 0;
        }
        const char taken = m_rest.front();
        m_rest.remove_prefix(1);
        return taken;
    }

    int number(std::size_t digits) {
        int value = 0;
        for (std::size_t i = 0; i < digits; ++i)
            value = value * 10 + (take("0123456789") - '0');
        return m_fits ? value : 0;
    }

    double fraction() {
        double value = 0;
        double unit = 0.1;
        do {
            value += unit * (take("0123456789") - '0');
            unit /= 10;
        } while (begins("0123456789"));
        return value;
    }

private:
    std::string_view m_rest;
    bool m_fits = true;
};

/// Seconds that the zone is ahead of UTC.
double zone(DateText& text) {
    if (text.begins(" "))
        text.take(" ");
    if (text.begins("Zz")) {
        text.take("Zz");
        return 0;
    }
    if (!text.begins("+-"))
        return 0;
    const double sign = text.take("+-") == '-' ? -1 : 1;
    const int hours = text.number(2);
    if (text.begins(":"))
        text.take(":");
    const int minutes = text.begins("0123456789") ? text.number(2) : 0;
    return sign * (hours * 3600 + minutes * 60);
}

double secondsOfDay(DateText& text) {
    const int hour = text.number(2);
    text.take(":");
    const int minute = text.number(2);
    double second = 0;
    if (text.begins(":")) {
        text.take(":");
        second = text.number(2);
        if (text.begins(".,")) {
            text.take(".,");
            second += text.fraction();
        }
    }
    // A leap second is a second like others.
    return hour < 24 && minute < 60 && second < 61 ? hour * 3600 + minute * 60 + second : -1;
}

} // namespace

std::optional<ReferenceDate> isoDate(std::string_view text) {
    using namespace std::chrono;
    DateText rest(text);
    const int yearNumber = rest.number(4);
    rest.take("-");
    const int monthNumber = rest.number(2);
    rest.take("-");
    const int dayNumber = rest.number(2);
    rest.take("Tt ");
    const double time = rest.fits() ? secondsOfDay(rest) : -1;
    const double ahead = zone(rest);
    const year_month_day date{year(yearNumber), month(static_cast<unsigned>(monthNumber)),
                              day(static_cast<unsigned>(dayNumber))};
    if (!rest.isAtEnd() || time < 0 || !date.ok())
        return std::nullopt;
    return ReferenceDate{referenceDate(date, time).seconds - ahead};
}

} // namespace kavela::imports
