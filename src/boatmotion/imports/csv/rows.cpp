#include "boatmotion/imports/csv/rows.h"

#include "boatmotion/imports/csv/fields.h"
#include "boatmotion/imports/csv/gravity_split.h"
#include "boatmotion/imports/iso_date.h"
#include "boatmotion/imports/track_builder.h"
#include "common/delimited_text.h"
#include "common/display_text.h"
#include "common/text.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kavela::imports {

namespace {

constexpr double LeastDate = 1e9;         // s since 1970; a device does not run for thirty years
constexpr double GreatestRowStamp = 1e10; // s
constexpr double LeastRowFixDistance = 0.0999; // s
constexpr double GreatestFixDistance = 0.999;  // s

std::size_t indexOf(CsvQuantity quantity) {
    return static_cast<std::size_t>(quantity);
}

double timeScale(CsvTime time) {
    switch (time) {
    case CsvTime::Milliseconds:
        return 1e-3;
    case CsvTime::Microseconds:
        return 1e-6;
    case CsvTime::Nanoseconds:
        return 1e-9;
    default:
        return 1;
    }
}

/// From the units of the list to those of a recording.
std::array<double, CsvQuantities> scalesOf(const CsvMapping& mapping) {
    constexpr double StandardGravity = 9.80665; // m/s²
    constexpr double Radian = std::numbers::pi / 180;
    std::array<double, CsvQuantities> scales;
    scales.fill(1);
    const auto set = [&](CsvQuantity first, std::size_t count, double scale) {
        for (std::size_t i = 0; i < count; ++i)
            scales[indexOf(first) + i] = scale;
    };
    const double inG = (mapping.acceleration == CsvAcceleration::G ? 1 : 1 / StandardGravity) *
                       (mapping.readsUpAtRest ? 1 : -1);
    set(CsvQuantity::TotalX, 6, inG);
    set(CsvQuantity::GravityX, 3, -inG); // down
    if (mapping.rotation == CsvRotation::DegreesPerSecond)
        set(CsvQuantity::RotationX, 3, Radian);
    if (mapping.angle == CsvAngle::Degrees)
        set(CsvQuantity::Pitch, 3, Radian);
    if (mapping.speed == CsvSpeed::KilometresPerHour)
        set(CsvQuantity::Speed, 1, 1 / 3.6);
    set(CsvQuantity::Time, 1, timeScale(mapping.time));
    return scales;
}

bool isMotionQuantity(std::size_t quantity) {
    return quantity >= indexOf(CsvQuantity::TotalX) && quantity <= indexOf(CsvQuantity::UserZ);
}

} // namespace

CsvRows::CsvRows(const CsvMapping& mapping) : m_mapping(mapping), m_scales(scalesOf(mapping)) {
    for (const CsvQuantity quantity : mapping.columns)
        m_mapped[indexOf(quantity)] = true;
}

double& CsvRows::value(CsvQuantity quantity) {
    return m_values[indexOf(quantity)];
}

bool CsvRows::isMapped(CsvQuantity quantity) const {
    return m_mapped[indexOf(quantity)];
}

bool CsvRows::hasNew(CsvQuantity first, std::size_t count) const {
    const auto begin = m_isNew.begin() + static_cast<std::ptrdiff_t>(indexOf(first));
    return std::any_of(begin, begin + static_cast<std::ptrdiff_t>(count),
                       [](bool isNew) { return isNew; });
}

void CsvRows::skip(std::size_t number, std::string reason) {
    ++m_import.unreadCount;
    if (m_import.unread.size() < CsvImport::MostListed)
        m_import.unread.push_back({number, std::move(reason)});
}

void CsvRows::skipField(std::size_t number, std::size_t column) {
    // The text is only made for those that are listed.
    if (m_import.unread.size() >= CsvImport::MostListed)
        return skip(number, {});
    constexpr std::size_t Shown = 40;
    const bool isDate =
        m_mapping.columns[column] == CsvQuantity::Time && m_mapping.time == CsvTime::Date;
    const std::string text = printable(validUtf8(m_fields[column].substr(0, Shown)));
    skip(number, isDate ? say("column {}: “{}” is no date", column + 1, text)
                        : say("column {}: “{}” is no number", column + 1, text));
}

CsvRows::Reading CsvRows::readTime(std::string_view field) {
    if (m_mapping.time == CsvTime::Date) {
        const auto date = isoDate(field);
        if (!date)
            return Reading::Unreadable;
        m_stamp = date->seconds;
        m_import.hasDates = true;
        return Reading::Taken;
    }
    const auto number = fieldNumber(field, m_mapping.hasDecimalComma);
    if (!number || std::abs(*number * timeScale(m_mapping.time)) > GreatestRowStamp)
        return Reading::Unreadable;
    m_stamp = *number * timeScale(m_mapping.time);
    if (!m_firstStamp)
        m_import.hasDates = m_stamp >= LeastDate;
    if (m_import.hasDates)
        m_stamp -= SecondsFrom1970To2001;
    return Reading::Taken;
}

CsvRows::Reading CsvRows::readValue(std::string_view field, CsvQuantity quantity) {
    if (quantity == CsvQuantity::Time)
        return readTime(field);
    if (isMissing(field))
        return Reading::Missing;
    const auto number = fieldNumber(field, m_mapping.hasDecimalComma);
    if (!number)
        return Reading::Unreadable;
    value(quantity) = *number * m_scales[indexOf(quantity)];
    m_isNew[indexOf(quantity)] = true;
    return Reading::Taken;
}

/// Nothing of a line is taken when one of its fields cannot be read.
bool CsvRows::readFields(std::size_t number) {
    m_isNew = {};
    const auto before = m_values;
    bool hasTime = false;
    const std::size_t count = std::min(m_fields.size(), m_mapping.columns.size());
    for (std::size_t c = 0; c < count; ++c) {
        const CsvQuantity quantity = m_mapping.columns[c];
        if (quantity == CsvQuantity::None)
            continue;
        if (readValue(m_fields[c], quantity) == Reading::Unreadable) {
            m_values = before;
            skipField(number, c);
            return false;
        }
        hasTime = hasTime || quantity == CsvQuantity::Time;
    }
    if (!hasTime)
        skip(number, say("the line ends before its time"));
    return hasTime;
}

void CsvRows::take(std::string_view line, std::size_t number) {
    if (line.find_first_not_of(" \t") == line.npos)
        return;
    splitFields(line, m_mapping.separator, m_fields);
    if (!readFields(number))
        return;
    if (isMapped(CsvQuantity::TotalX) || isMapped(CsvQuantity::UserX)) {
        std::size_t found = 0;
        std::size_t wanted = 0;
        for (std::size_t q = 0; q < CsvQuantities; ++q) {
            wanted += isMotionQuantity(q) && m_mapped[q];
            found += isMotionQuantity(q) && m_isNew[q];
        }
        // A line of another sensor has no acceleration; one that is torn has a part of it.
        if (found > 0 && found < wanted && found % 3 != 0)
            return skip(number, say("an axis of the acceleration is missing"));
        if (found > 0)
            addSample();
    }
    if (!m_firstStamp)
        m_firstStamp = m_stamp;
    if (hasNew(CsvQuantity::Latitude, 2))
        addFix();
    if (hasNew(CsvQuantity::HeartRate, 1))
        addHeart();
}

ReferenceDate CsvRows::date(double stamp) const {
    if (m_import.hasDates || !m_mapping.start)
        return {stamp};
    return {m_mapping.start->seconds + (stamp - m_firstStamp.value_or(stamp))};
}

void CsvRows::addSample() {
    boatmotionrawdata_v5 sample;
    sample.timestamp = m_stamp;
    sample.rotationRate = {value(CsvQuantity::RotationX), value(CsvQuantity::RotationY),
                           value(CsvQuantity::RotationZ)};
    sample.attitude = {value(CsvQuantity::Pitch), value(CsvQuantity::Roll),
                       value(CsvQuantity::Yaw)};
    const std::array<double, 3> total{value(CsvQuantity::TotalX), value(CsvQuantity::TotalY),
                                      value(CsvQuantity::TotalZ)};
    const std::array<double, 3> user{value(CsvQuantity::UserX), value(CsvQuantity::UserY),
                                     value(CsvQuantity::UserZ)};
    std::array<double, 3> down{value(CsvQuantity::GravityX), value(CsvQuantity::GravityY),
                               value(CsvQuantity::GravityZ)};
    std::array<double, 3> own = user;
    for (std::size_t k = 0; k < 3; ++k) {
        // What an accelerometer reads is its acceleration less gravity, which points down.
        if (!isMapped(CsvQuantity::UserX))
            own[k] = total[k] + down[k];
        else if (isMapped(CsvQuantity::TotalX) && !isMapped(CsvQuantity::GravityX))
            down[k] = user[k] - total[k];
    }
    sample.acceleration = {own[0], own[1], own[2]};
    sample.gravity = {down[0], down[1], down[2]};
    m_import.session.boatmotion.push_back(sample);
}

void CsvRows::addFix() {
    const double latitude = value(CsvQuantity::Latitude);
    const double longitude = value(CsvQuantity::Longitude);
    const bool isOnGlobe = std::abs(latitude) <= 90 && std::abs(longitude) <= 180;
    if (!isOnGlobe || (latitude == 0 && longitude == 0)) // before the first fix
        return;
    auto& fixes = m_import.session.gps;
    if (m_fixStamp) {
        const double since = std::abs(m_stamp - *m_fixStamp);
        const bool isSame =
            fixes.back().latitude == latitude && fixes.back().longitude == longitude;
        if (since < (isSame ? GreatestFixDistance : LeastRowFixDistance))
            return;
    }
    m_fixStamp = m_stamp;
    const double speed = isMapped(CsvQuantity::Speed) ? value(CsvQuantity::Speed) : -1;
    fixes.push_back({date(m_stamp), speed, latitude, longitude});
}

void CsvRows::addHeart() {
    const double rate = value(CsvQuantity::HeartRate);
    if (!(rate >= 1 && rate <= 300))
        return;
    auto& heart = m_import.session.heart;
    if (m_heartStamp) {
        const double since = std::abs(m_stamp - *m_heartStamp);
        if (since < (heart.back().hr == rate ? GreatestFixDistance : LeastRowFixDistance))
            return;
    }
    m_heartStamp = m_stamp;
    heart.push_back({date(m_stamp), rate});
}

void CsvRows::orderSamples() {
    auto& samples = m_import.session.boatmotion;
    const auto isEarlier = [](const auto& a, const auto& b) { return a.timestamp < b.timestamp; };
    if (std::ranges::is_sorted(samples, isEarlier))
        return;
    std::stable_sort(samples.begin(), samples.end(), isEarlier);
    m_import.notes.push_back(say("Some lines were not in order of time and were put in order."));
}

void CsvRows::separateGravity() {
    const bool isAlone = isMapped(CsvQuantity::TotalX) && !isMapped(CsvQuantity::UserX) &&
                         !isMapped(CsvQuantity::GravityX);
    if (isAlone) {
        splitOffGravity(m_import.session.boatmotion);
        m_import.notes.push_back(
            say("Gravity was split off the acceleration by a low-pass of 0.3 Hz."));
    } else if (isMapped(CsvQuantity::UserX) && !isMapped(CsvQuantity::GravityX) &&
               !isMapped(CsvQuantity::TotalX)) {
        m_import.notes.push_back(say("There is no gravity in the list."));
    }
}

CsvImport CsvRows::finish() && {
    orderSamples();
    separateGravity();
    bmrawdata_v5& session = m_import.session;
    const std::size_t computed = completeFixes(session.gps);
    if (computed > 0)
        m_import.notes.push_back(computedSpeedsText(computed));
    std::stable_sort(session.heart.begin(), session.heart.end(),
                     [](const auto& a, const auto& b) { return a.date < b.date; });
    if (!isMapped(CsvQuantity::RotationX) && !session.boatmotion.empty())
        m_import.notes.push_back(
            say("There is no rotation in the list: hands and turns cannot be found."));
    if (m_firstStamp) {
        const auto& samples = session.boatmotion;
        session.info.date = date(samples.empty() ? *m_firstStamp : samples.front().timestamp);
    }
    return std::move(m_import);
}

} // namespace kavela::imports
