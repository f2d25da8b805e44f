#include "painting/slit_files.h"

#include "captions/slit_sheet.h"
#include "cli/console.h"
#include "common/error.h"
#include "common/json_encode.h"
#include "common/number_text.h"
#include "painting/offscreen_application.h"
#include "video/video_error.h"
#include "vision/light_barrier.h"

#include <boost/describe.hpp>

#include <cmath>
#include <cstdio>

namespace kavela::painting {

/// What is printed of a column.
struct slitcolumn {
    std::int64_t frame = 0;
    double seconds = 0;
    CMTime stamp;
};
BOOST_DESCRIBE_STRUCT(slitcolumn, (), (frame, seconds, stamp))

struct slitproposal {
    std::int64_t frame = 0;
    double seconds = 0;
    double confidence = 0;
    std::int64_t bodyFrame = 0;
    double bodySeconds = 0;
};
BOOST_DESCRIBE_STRUCT(slitproposal, (), (frame, seconds, confidence, bodyFrame, bodySeconds))

struct slitprinted {
    std::string film;
    std::vector<slitcolumn> columns;
    std::vector<slitproposal> proposals;
    std::vector<std::string> notes;
};
BOOST_DESCRIBE_STRUCT(slitprinted, (), (film, columns, proposals, notes))

namespace {

/// How much is read, on a line of standard error that is gone afterwards.
class ReadingLine {
public:
    ~ReadingLine() {
        if (m_shown >= 0)
            std::fputs("\r\x1b[K", stderr);
    }
    void show(double share) {
        const int percent = static_cast<int>(share * 100);
        if (!m_isTerminal || percent == m_shown)
            return;
        m_shown = percent;
        std::fprintf(stderr, "\r\x1b[KReading the film: %d %%", percent);
    }

private:
    bool m_isTerminal = cli::standardError().isTerminal;
    int m_shown = -1;
};

SlitLine lineOfCall(const cli::SlitCall& call) {
    return {{call.line[0], call.line[1]},
            {call.line[2], call.line[3]},
            call.isFromLeft ? BoatsFrom::Left : BoatsFrom::Right};
}

/// The frames that are asked for; throws VideoError for a part without any.
SlitOrder orderOf(const cli::SlitCall& call, const VideoIndex& index) {
    SlitOrder order;
    order.lines = {lineOfCall(call)};
    order.last = index.frameCount() - 1;
    if (call.from)
        order.first = index.frameAt(*call.from).value_or(0);
    if (call.to)
        order.last = index.frameAt(*call.to).value_or(order.last);
    const double end = index.secondsOf(index.frameCount() - 1);
    const bool isEmpty = (call.from && *call.from > end) ||
                         (call.to && *call.to < index.secondsOf(0)) ||
                         (call.from && call.to && *call.to < *call.from);
    if (isEmpty)
        throw VideoError(index.facts().path, "there is no frame in that part: the film lasts to " +
                                                 hundredthsText(end) + " s");
    return order;
}

/// The sheet is written from what was read; returns how many columns there were.
FrameNumber writeSheet(const std::shared_ptr<const VideoIndex>& index, const SlitOrder& order,
                       const cli::SlitCall& call, slitprinted& printed) {
    SlitPicture picture;
    SlitReading reading;
    {
        ReadingLine line;
        const double frames = static_cast<double>(order.last - order.first + 1);
        reading = readSlits(index, order, {}, [&](std::size_t, const auto& tile) {
            picture.add(tile);
            line.show(static_cast<double>(picture.columns) / frames);
        });
    }
    if (reading.isCutOff)
        printed.notes.push_back("The film ends early, after " + std::to_string(reading.columns) +
                                " frames.");
    if (!reading.missing.empty())
        printed.notes.push_back(std::to_string(reading.missing.size()) +
                                " frames cannot be decoded; their columns are black.");
    if (picture.tiles.empty())
        throw VideoError(index->facts().path, "no frame of it can be shown");
    if (!call.output.empty()) {
        const OffscreenApplication application;
        writePng(
            paintSlitSheet(picture, *index, {order.first, order.first + picture.columns - 1, {}}),
            call.output);
    }
    return picture.columns;
}

void findBoats(const std::shared_ptr<const VideoIndex>& index, const cli::SlitCall& call,
               slitprinted& printed) {
    BarrierRequest request;
    request.line = lineOfCall(call);
    request.boat = {call.boat[0], call.boat[1], call.boat[2], call.boat[3]};
    if (call.from)
        request.fromSeconds = *call.from;
    if (call.to)
        request.toSeconds = *call.to;
    const auto crossings = findCrossings(index, request);
    if (!crossings)
        return;
    for (const Proposal& proposal : crossings->proposals)
        printed.proposals.push_back({proposal.frame, proposal.seconds, proposal.confidence,
                                     proposal.bodyFrame, proposal.bodySeconds});
    printed.notes.insert(printed.notes.end(), crossings->notes.begin(), crossings->notes.end());
}

int tell(const cli::SlitCall& call, const slitprinted& printed, FrameNumber columns) {
    for (const std::string& note : printed.notes)
        cli::logLine(note);
    if (call.isJson)
        return cli::print(encode(printed) + '\n') ? cli::Done : cli::NotDone;
    std::string text;
    if (!call.output.empty())
        text = "Wrote " + cli::pathText(call.output) + ": " +
               cli::counted(columns, "column", "columns") + ".\n";
    for (const slitproposal& proposal : printed.proposals)
        text += hundredthsText(proposal.seconds) + " s, frame " + std::to_string(proposal.frame) +
                ", confidence " + std::to_string(std::lround(proposal.confidence * 100)) +
                " %; body " + hundredthsText(proposal.bodySeconds) + " s, frame " +
                std::to_string(proposal.bodyFrame) + "\n";
    if (call.hasProposals && printed.proposals.empty())
        text += "No boat was found that crosses the line.\n";
    return cli::print(text) ? cli::Done : cli::NotDone;
}

} // namespace

int writeSlit(const cli::SlitCall& call) {
    try {
        const auto index = readVideoIndex(call.film);
        const SlitOrder order = orderOf(call, *index);
        slitprinted printed{.film = call.film, .columns = {}, .proposals = {}, .notes = {}};
        checkSlitLine(order.lines.front(), index->facts().shownSize, call.film);
        FrameNumber columns = order.last - order.first + 1;
        if (!call.output.empty())
            columns = writeSheet(index, order, call, printed);
        if (call.isJson)
            for (FrameNumber frame = order.first; frame < order.first + columns; ++frame)
                printed.columns.push_back({frame, index->secondsOf(frame), index->stampOf(frame)});
        if (call.hasProposals)
            findBoats(index, call, printed);
        return tell(call, printed, columns);
    } catch (const FileError& error) {
        cli::logLine(cli::pathText(error.path()) + ": " + error.reason());
    }
    return cli::NotDone;
}

} // namespace kavela::painting
