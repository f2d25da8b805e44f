#include "desktop/motion/motion_recordings.h"

#include "boatmotion/session_files.h"
#include "common/error.h"
#include "desktop/motion/recording_conversion.h"
#include "desktop/shell/file_names.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <new>

namespace kavela::desktop {

namespace {

struct Analysed {
    std::shared_ptr<const MotionAnalysis> analysis;
    std::vector<Curve> curves;
    QString fault;
};

Analysed analysed(const MotionRecording& recording, std::vector<Curve> curves,
                  const MotionProfile& profile) {
    Analysed result{nullptr, std::move(curves), {}};
    try {
        result.analysis =
            std::make_shared<MotionAnalysis>(analyseMotion(recording.samples(), profile));
        result.curves = curvesOf(recording, std::move(result.curves), *result.analysis);
    } catch (const MotionError& error) {
        result.fault = QString::fromUtf8(error.what());
    }
    return result;
}

bool isSame(const MotionProfile& a, const MotionProfile& b) {
    return a.mass == b.mass && a.drag == b.drag && a.boat == b.boat && a.mount == b.mount &&
           a.leastTurnAngle == b.leastTurnAngle && a.leastTurnPeak == b.leastTurnPeak;
}

} // namespace

/// Recordings that were moved: a removed one is moved too, and nobody sees it.
class MotionRecordings::ShiftStep : public QUndoCommand {
public:
    struct Move {
        Recording recording;
        double before = 0;
        double after = 0;
    };

    static constexpr int NoDrag = -1;

    ShiftStep(MotionRecordings& recordings, std::vector<Move> moves, int drag = NoDrag)
        : m_recordings(recordings), m_moves(std::move(moves)), m_drag(drag) {}

    void undo() override { apply(&Move::before); }
    void redo() override { apply(&Move::after); }
    [[nodiscard]] int id() const override { return m_drag; }
    bool mergeWith(const QUndoCommand* other) override {
        const auto& next = static_cast<const ShiftStep&>(*other);
        if (next.m_moves.front().recording != m_moves.front().recording)
            return false;
        m_moves.front().after = next.m_moves.front().after;
        return true;
    }

private:
    void apply(double Move::*shift) {
        for (const Move& move : m_moves)
            move.recording->shift = move.*shift;
        emit m_recordings.shiftsChanged();
    }

    MotionRecordings& m_recordings;
    std::vector<Move> m_moves;
    int m_drag;
};

MotionRecordings::MotionRecordings(DiagnosticLog log, QObject* parent)
    : QObject(parent), m_log(std::move(log)) {}

std::optional<std::size_t> MotionRecordings::indexOf(const MotionRecording* recording) const {
    const auto found = std::ranges::find(m_all, recording, &Recording::get);
    if (found == m_all.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - m_all.begin());
}

bool MotionRecordings::isLoaded(const QString& path) const {
    return std::ranges::any_of(m_all, [&](const Recording& recording) {
        return isSameFile(QString::fromStdString(recording->data.url.string()), path);
    });
}

void MotionRecordings::read(const QStringList& paths) {
    for (const QString& given : paths) {
        const QString path = QFileInfo(given).absoluteFilePath();
        const auto isIt = [&](const QString& waiting) { return isSameFile(waiting, path); };
        if (isLoaded(path) || std::ranges::any_of(m_waiting, isIt))
            continue;
        m_waiting.push_back(path);
        ++m_readCount;
    }
    if (!m_isReading)
        readNext();
}

void MotionRecordings::readNext() {
    m_isReading = !m_waiting.empty();
    if (!m_isReading) {
        m_readCount = m_readDone = 0;
        emit readingEnded();
        return;
    }
    const QString path = m_waiting.front();
    m_waiting.pop_front();
    emit reading(QFileInfo(path).fileName(), ++m_readDone, m_readCount);
    m_work.run(
        [file = std::filesystem::path(path.toStdString())] {
            ReadResult result;
            try {
                result.recording = readRecording(file);
            } catch (const OlderRecording&) {
                result.isOlder = true;
            } catch (const FileError& error) {
                result.reason = QString::fromUtf8(error.what());
            } catch (const DecodeError& error) {
                result.reason = QString::fromStdString(file.string()) + QStringLiteral(": ") +
                                QString::fromUtf8(error.what());
            } catch (const std::bad_alloc&) {
                result.reason =
                    tr("%1: there is not enough memory for it").arg(file.string().c_str());
            }
            return result;
        },
        [this, path](ReadResult result) {
            take(path, std::move(result));
            readNext();
        });
}

void MotionRecordings::take(const QString& path, ReadResult result) {
    if (result.isOlder) {
        emit refusedAsOlder(path);
        return;
    }
    if (!result.recording) {
        m_log(conversion_messages::NotConverted);
        m_log(result.reason.toStdString());
        emit refused(path, result.reason);
        return;
    }
    MotionRecording& recording = *result.recording;
    m_log(conversion_messages::Count + recording.data.name + ' ' +
          std::to_string(recording.data.bm.size()));
    recording.label = freeLabel(QString::fromStdString(recording.data.url.stem().string()));
    recording.slot = freeSlot();
    m_all.push_back(result.recording);
    emit listChanged();
    emit added(m_all.size() - 1);
    analyse(result.recording);
}

QString MotionRecordings::freeLabel(const QString& stem) const {
    QString label = stem;
    const auto isTaken = [&](const Recording& recording) { return recording->label == label; };
    for (int i = 2; std::ranges::any_of(m_all, isTaken); ++i)
        label = QStringLiteral("%1 (%2)").arg(stem).arg(i);
    return label;
}

std::size_t MotionRecordings::freeSlot() const {
    std::size_t slot = 0;
    while (std::ranges::find(m_all, slot, [](const Recording& r) { return r->slot; }) !=
           m_all.end())
        ++slot;
    return slot;
}

void MotionRecordings::analyse(const Recording& recording) {
    recording->isAnalysing = true;
    if (const auto index = indexOf(recording.get()))
        emit analysisChanged(*index);
    m_work.run(
        [recording, curves = recording->curves, profile = recording->profile]() mutable {
            return analysed(*recording, std::move(curves), profile);
        },
        [this, recording, profile = recording->profile](Analysed result) {
            const auto index = indexOf(recording.get());
            // A later one is under way when the profile has been changed since.
            if (!index || !isSame(profile, recording->profile))
                return;
            recording->isAnalysing = false;
            recording->analysis = std::move(result.analysis);
            recording->curves = std::move(result.curves);
            recording->fault = result.fault;
            emit analysisChanged(*index);
        });
}

void MotionRecordings::setProfile(std::size_t index, const MotionProfile& profile) {
    if (isSame(m_all[index]->profile, profile))
        return;
    m_all[index]->profile = profile;
    analyse(m_all[index]);
}

void MotionRecordings::remove(std::size_t index) {
    m_all.erase(m_all.begin() + static_cast<std::ptrdiff_t>(index));
    emit listChanged();
}

void MotionRecordings::setTicked(std::size_t index, bool isTicked) {
    if (m_all[index]->data.shows == isTicked)
        return;
    m_all[index]->data.shows = isTicked;
    emit ticksChanged();
}

void MotionRecordings::setShift(std::size_t index, double seconds) {
    if (m_all[index]->shift != seconds && std::isfinite(seconds))
        m_shiftSteps.push(new ShiftStep(*this, {{m_all[index], m_all[index]->shift, seconds}}));
}

void MotionRecordings::dragShift(std::size_t index, double seconds) {
    if (m_all[index]->shift != seconds && std::isfinite(seconds))
        m_shiftSteps.push(
            new ShiftStep(*this, {{m_all[index], m_all[index]->shift, seconds}}, m_drag));
}

void MotionRecordings::setShifts(const std::vector<double>& seconds) {
    std::vector<ShiftStep::Move> moves;
    for (std::size_t i = 0; i < m_all.size(); ++i)
        if (m_all[i]->shift != seconds[i])
            moves.push_back({m_all[i], m_all[i]->shift, seconds[i]});
    if (!moves.empty())
        m_shiftSteps.push(new ShiftStep(*this, std::move(moves)));
}

void MotionRecordings::convert(std::size_t index, const std::filesystem::path& target) {
    ++m_converting;
    const Recording recording = m_all[index];
    const auto analysis = recording->isAnalysing ? nullptr : recording->analysis;
    m_work.run([recording, analysis, profile = recording->profile,
                target] { return convertLoaded(*recording, profile, analysis.get(), target); },
               [this](Conversion conversion) {
                   --m_converting;
                   if (conversion.outcome != ConversionOutcome::Saved) {
                       m_log(conversion.message());
                       if (!conversion.detail.empty())
                           m_log(conversion.detail);
                   }
                   emit converted(conversion);
               });
}

std::pair<double, double> MotionRecordings::extent() const {
    std::pair<double, double> extent{0, 0};
    bool isFirst = true;
    for (const Recording& recording : m_all) {
        if (!recording->data.shows || recording->data.bm.empty())
            continue;
        const double from = recording->shift;
        const double to = from + recording->facts.seconds;
        extent = isFirst ? std::pair(from, to)
                         : std::pair(std::min(extent.first, from), std::max(extent.second, to));
        isFirst = false;
    }
    return extent;
}

std::optional<double> MotionRecordings::dateOfStart(std::size_t index) const {
    const MotionRecording& recording = *m_all[index];
    if (!recording.analysis || recording.analysis->has(MotionFlag::GuessedClocks))
        return std::nullopt;
    return recording.facts.first + recording.analysis->clockOffset;
}

} // namespace kavela::desktop
