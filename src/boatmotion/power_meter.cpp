#include "boatmotion/power_meter.h"

#include "boatmotion/strokes/segments.h"
#include "common/delimited_text.h"
#include "common/folded_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace kavela {

namespace {

constexpr double MostPower = 5000;    // W
constexpr double LeastHeartRate = 20; // 1/min
constexpr double MostHeartRate = 250; // 1/min
constexpr double DaySeconds = 86400;
constexpr double LongestGap = 3;    // s between samples that are joined
constexpr double HeartDistance = 5; // s

std::string_view takeUntil(std::string_view& text, char end) {
    const std::size_t length = std::min(text.find(end), text.size());
    const std::string_view taken = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    return taken;
}

std::optional<double> numberIn(std::string_view text) {
    std::string plain(text);
    std::ranges::replace(plain, ',', '.');
    double number = 0;
    const auto [rest, fault] = std::from_chars(plain.data(), plain.data() + plain.size(), number);
    if (fault != std::errc() || rest != plain.data() + plain.size() || !std::isfinite(number))
        return std::nullopt;
    return number;
}

/// Seconds of "93.5", "1:33.5" or "0:01:33.5".
std::optional<double> secondsIn(std::string_view text) {
    if (text.empty() || text.ends_with(':') || std::ranges::count(text, ':') > 2)
        return std::nullopt;
    double seconds = 0;
    bool isFirst = true;
    while (!text.empty()) {
        const bool isLast = text.find(':') == std::string_view::npos;
        const auto part = numberIn(takeUntil(text, ':'));
        const bool isSixtieth = !isFirst && !(part && *part < 60);
        if (!part || *part < 0 || isSixtieth || (!isLast && *part != std::floor(*part)))
            return std::nullopt;
        seconds = seconds * 60 + *part;
        isFirst = false;
    }
    return seconds;
}

std::string quoted(std::string_view text) {
    return '"' + std::string(text) + '"';
}

/// Where the header says each value stands.
class Header {
public:
    explicit Header(const std::vector<std::string_view>& names) {
        for (std::size_t column = 0; column < names.size(); ++column) {
            const std::string name = folded(names[column]);
            const auto begins = [&](const char* word) { return name.starts_with(word); };
            if (!m_time && (begins("time") || begins("sec")))
                m_time = column;
            else if (!m_power && (begins("power") || begins("watt")))
                m_power = column;
            else if (!m_heart && (begins("heart") || begins("hr") || name == "bpm"))
                m_heart = column;
        }
    }

    /// What speaks against it; empty when nothing does.
    [[nodiscard]] std::string fault() const {
        if (!m_time)
            return "the header names no column of times, such as Time";
        return m_power ? "" : "the header names no column of power, such as Power";
    }

    /// Reads a line; the reason when it cannot be.
    [[nodiscard]] std::string read(const DelimitedReader& line, powermeterData& sample) const {
        const std::string_view timeText = line.field(*m_time);
        const auto time = secondsIn(timeText);
        if (!time)
            return "the time " + quoted(timeText) + " is neither seconds nor hh:mm:ss";
        const std::string_view powerText = line.field(*m_power);
        const auto power = numberIn(powerText);
        if (!power || *power < 0 || *power > MostPower)
            return "the power " + quoted(powerText) + " is no number of watts from 0 to 5000";
        sample.dateDouble = *time;
        sample.power = *power;
        return readHeart(m_heart ? line.field(*m_heart) : std::string_view(), sample);
    }

    [[nodiscard]] bool hasColons(const DelimitedReader& line) const {
        return line.field(*m_time).find(':') != std::string_view::npos;
    }

private:
    static std::string readHeart(std::string_view text, powermeterData& sample) {
        const auto rate = text.empty() ? std::optional(0.0) : numberIn(text);
        if (!rate || (*rate != 0 && (*rate < LeastHeartRate || *rate > MostHeartRate)))
            return "the heart rate " + quoted(text) + " is no number from 20 to 250";
        sample.hr = std::llround(*rate);
        return {};
    }

    std::optional<std::size_t> m_time;
    std::optional<std::size_t> m_power;
    std::optional<std::size_t> m_heart;
};

bool isWithinADay(double date, const EditedSession& session) {
    return std::abs(date - session.session.info.date.seconds) < DaySeconds;
}

/// What to add to the times of a list to have moments.
double shiftOf(const PowerMeterList& list, const EditedSession& edited) {
    const double first = list.samples.front().dateDouble;
    const MomentRange moments = momentsOf(edited);
    if (isWithinADay(first, edited))
        return -edited.clockOffset;
    if (isWithinADay(first - SecondsFrom1970To2001, edited))
        return -SecondsFrom1970To2001 - edited.clockOffset;
    if (list.isTimeOfDay) {
        const double begin = moments.from + edited.clockOffset;
        const double midnight = std::floor(begin / DaySeconds) * DaySeconds;
        const bool isDuring = midnight + first <= moments.to + edited.clockOffset &&
                              midnight + list.samples.back().dateDouble >= begin;
        if (isDuring)
            return midnight - edited.clockOffset;
    }
    return moments.from - first;
}

std::optional<double> powerIn(const std::vector<powermeterData>& samples, double from, double to) {
    const auto first = std::ranges::lower_bound(samples, from, {}, &powermeterData::dateDouble);
    const auto last = std::ranges::lower_bound(samples, to, {}, &powermeterData::dateDouble);
    if (first != last) {
        double sum = 0;
        for (auto sample = first; sample != last; ++sample)
            sum += sample->power;
        return sum / static_cast<double>(last - first);
    }
    if (first == samples.begin() || first == samples.end())
        return std::nullopt;
    const powermeterData& before = *std::prev(first);
    const double gap = first->dateDouble - before.dateDouble;
    if (gap > LongestGap)
        return std::nullopt;
    return std::lerp(before.power, first->power, ((from + to) / 2 - before.dateDouble) / gap);
}

void addHeartRates(EditedSession& edited) {
    std::vector<heartmotiondata> present = edited.session.heart;
    const auto date = [](const heartmotiondata& reading) { return reading.date.seconds; };
    std::ranges::stable_sort(present, {}, date);
    bool isAdded = false;
    for (const powermeterData& sample : edited.powerMeter) {
        const double moment = sample.dateDouble + edited.clockOffset;
        const auto next = std::ranges::lower_bound(present, moment - HeartDistance, {}, date);
        const bool isKnown = next != present.end() && date(*next) <= moment + HeartDistance;
        if (sample.hr == 0 || isKnown)
            continue;
        edited.session.heart.push_back({{moment}, static_cast<double>(sample.hr)});
        isAdded = true;
    }
    if (isAdded)
        std::ranges::stable_sort(edited.session.heart, {}, date);
}

} // namespace

PowerMeterList parsePowerMeter(std::string_view text) {
    PowerMeterList list;
    DelimitedReader reader(text);
    const bool hasTitles = reader.next() && reader.number() == 1;
    const Header header(hasTitles ? reader.fields() : std::vector<std::string_view>());
    if (std::string fault = header.fault(); !fault.empty()) {
        list.refused.push_back({1, std::move(fault)});
        return list;
    }
    while (reader.next()) {
        powermeterData sample;
        std::string reason = header.read(reader, sample);
        if (reason.empty() && !list.samples.empty() &&
            sample.dateDouble <= list.samples.back().dateDouble)
            reason = "its time is not later than that of the line before";
        if (!reason.empty()) {
            list.refused.push_back({reader.number(), std::move(reason)});
            continue;
        }
        list.isTimeOfDay = list.isTimeOfDay || header.hasColons(reader);
        list.samples.push_back(sample);
    }
    return list;
}

std::vector<powermeterData> placedInSession(const PowerMeterList& list,
                                            const EditedSession& session) {
    std::vector<powermeterData> samples = list.samples;
    if (samples.empty())
        return samples;
    const double shift = shiftOf(list, session);
    for (powermeterData& sample : samples)
        sample.dateDouble += shift;
    return samples;
}

std::size_t applyPowerMeter(EditedSession& edited) {
    std::size_t changed = 0;
    for (smartBMdata_v4& entry : edited.session.strokesData) {
        if (!isStroke(entry))
            continue;
        const double end = entry.timestamp + 60 / entry.stroke.strokeRate;
        if (const auto power = powerIn(edited.powerMeter, entry.timestamp, end)) {
            entry.stroke.power = *power;
            ++changed;
        }
    }
    addHeartRates(edited);
    edited.powerMeter.clear();
    return changed;
}

} // namespace kavela
