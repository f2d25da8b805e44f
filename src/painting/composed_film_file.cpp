#include "painting/composed_film_file.h"

#include "captions/film_captions.h"
#include "cli/console.h"
#include "common/error.h"
#include "common/number_text.h"
#include "compose/compose_job.h"
#include "compose/composer.h"
#include "painting/offscreen_application.h"

#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdio>

namespace kavela::painting {

namespace {

namespace fs = std::filesystem;

/// Set by the signals that end a program, which are to leave nothing behind either.
volatile std::sig_atomic_t isEndAsked = 0;

void askForEnd(int) {
    isEndAsked = 1;
}

/// Takes the signals as long as a film is being made.
class EndSignals {
public:
    EndSignals() : m_interrupt(std::signal(SIGINT, askForEnd)) {
        m_terminate = std::signal(SIGTERM, askForEnd);
        isEndAsked = 0;
    }
    ~EndSignals() {
        std::signal(SIGINT, m_interrupt);
        std::signal(SIGTERM, m_terminate);
    }
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

private:
    void (*m_interrupt)(int);
    void (*m_terminate)(int);
};

/// A line on standard error that is written over as the film grows; gone again afterwards.
class ProgressLine {
public:
    ~ProgressLine() {
        if (m_isShown)
            std::fputs("\r\x1b[K", stderr);
    }

    void show(const ComposeProgress& progress) {
        const Clock::time_point now = Clock::now();
        if (!m_isTerminal || now - m_shown < Pause)
            return;
        m_shown = now;
        m_isShown = true;
        if (progress.all == 0) {
            std::fprintf(stderr, "\r\x1b[KReading the films: %.0f %%", progress.opened * 100);
            return;
        }
        if (m_firstFrame == Clock::time_point())
            m_firstFrame = now;
        const double seconds = std::chrono::duration<double>(now - m_firstFrame).count();
        const double rate = seconds > 0 ? double(progress.frames) / seconds : 0;
        const double left = rate > 0 ? double(progress.all - progress.frames) / rate : 0;
        std::fprintf(stderr, "\r\x1b[K%.0f %%, %.0f frames a second, %.0f s left",
                     double(progress.frames) / double(progress.all) * 100, rate, std::ceil(left));
    }

private:
    using Clock = std::chrono::steady_clock;
    static constexpr std::chrono::milliseconds Pause{200};

    bool m_isTerminal = cli::standardError().isTerminal;
    bool m_isShown = false;
    Clock::time_point m_shown;
    Clock::time_point m_firstFrame;
};

std::optional<ComposedFilmFile> composed(const Composition& composition, const fs::path& target) {
    const OffscreenApplication application;
    const EndSignals endSignals;
    FilmCaptions captions;
    std::stop_source stop;
    ProgressLine line;
    return compose(composition, &captions, target, stop.get_token(),
                   [&](const ComposeProgress& progress) {
                       if (isEndAsked != 0)
                           stop.request_stop();
                       line.show(progress);
                   });
}

int tell(const std::optional<ComposedFilmFile>& film) {
    if (!film) {
        cli::logLine("Stopped; nothing was written.");
        return cli::NotDone;
    }
    for (const std::string& note : film->notes)
        cli::logLine(note);
    const double seconds = static_cast<double>(film->frames) / film->rate.perSecond();
    return cli::print("Composed " + cli::pathText(film->path) + ": " +
                      cli::counted(film->frames, "frame", "frames") + ", " +
                      hundredthsText(seconds) + " s.\n")
               ? cli::Done
               : cli::NotDone;
}

} // namespace

int composeFilm(const fs::path& job, const fs::path& output) {
    try {
        const composejob002 record = readComposeJob(job);
        const Composition composition = compositionOf(record, job.parent_path());
        return tell(composed(composition, output.empty() ? outputOf(record, job) : output));
    } catch (const DecodeError& error) {
        cli::logLine(cli::pathText(job) + ": " + error.what());
    } catch (const FilmError& error) {
        cli::logLine(error.what());
    } catch (const FileError& error) {
        cli::logLine(cli::pathText(error.path()) + ": " + error.reason());
    }
    return cli::NotDone;
}

} // namespace kavela::painting
