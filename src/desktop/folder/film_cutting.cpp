#include "desktop/folder/film_cutting.h"

#include "desktop/folder/tag_mode.h"
#include "desktop/shell/workspace.h"
#include "splitdata/film_marks.h"
#include "video/index.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QWidget>

#include <filesystem>
#include <optional>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr std::int64_t CutProgressSteps = 1000;

/// The ends are set on frames of this very film, in either order.
FilmCut pieceOf(const VideoIndex& film, CutKind way, CMTime first, CMTime last,
                const std::filesystem::path& target) {
    if (orderOf(last, first) < 0)
        std::swap(first, last);
    return {.kind = way,
            .first = film.frameAt(first).value_or(0),
            .last = film.frameAt(last).value_or(film.frameCount() - 1),
            .target = target};
}

} // namespace

FilmCutting::FilmCutting(Workspace& workspace, TagMode& ends, QWidget& window)
    : QObject(&window), m_workspace(workspace), m_ends(ends), m_window(window) {}

bool FilmCutting::canCut() const {
    return m_ends.cutFirst() && m_ends.cutLast();
}

QString FilmCutting::proposedTarget() const {
    const QFileInfo film(m_ends.film());
    const QString ending = QString::fromStdString(extensionOfPieces(film.filePath().toStdString()));
    const QString stem = film.path() + '/' + tr("%1 cut").arg(film.completeBaseName());
    QString target = stem + '.' + ending;
    for (int count = 2; QFileInfo::exists(target); ++count)
        target = QStringLiteral("%1 %2.%3").arg(stem).arg(count).arg(ending);
    return target;
}

/// What is to be done before anything can be cut; empty where nothing is.
QString FilmCutting::missingEnds() const {
    if (m_ends.cutFirst() && m_ends.cutLast())
        return {};
    if (m_ends.cutFirst())
        return tr("The cut has no end yet: O sets it at this frame.");
    if (m_ends.cutLast())
        return tr("The cut has no beginning yet: I sets it at this frame.");
    return tr("Set the ends of the cut first: I where it begins, O where it ends.");
}

void FilmCutting::askAndCut(Way way) {
    if (const QString missing = missingEnds(); !missing.isEmpty()) {
        emit refused(missing);
        return;
    }
    // No file is ever replaced: the dialog does not have to ask.
    const QString target = QFileDialog::getSaveFileName(
        &m_window, tr("Cut into a new film"), proposedTarget(), tr("Films (*.mp4 *.mov *.m4v)"),
        nullptr, QFileDialog::DontConfirmOverwrite);
    if (!target.isEmpty())
        cut(way, target);
}

void FilmCutting::cut(Way way, const QString& target) {
    if (!canCut())
        return;
    m_work.runOver(
        {&m_window, tr("Cutting %1…").arg(QFileInfo(target).fileName()), true},
        [way, film = m_ends.film().toStdString(), first = *m_ends.cutFirst(),
         last = *m_ends.cutLast(), target = target.toStdString()](const WorkSteps& steps) {
            const auto index = readVideoIndex(film, steps.stopToken());
            return index ? cutFilm(index, pieceOf(*index, way, first, last, target),
                                   steps.stopToken(),
                                   [&steps](double fraction) {
                                       steps.tellProgress(
                                           static_cast<std::int64_t>(fraction * CutProgressSteps),
                                           CutProgressSteps);
                                   })
                         : std::nullopt;
        },
        [this](const std::optional<std::filesystem::path>& piece) {
            if (piece)
                emit done(QString::fromStdString(piece->string()));
        },
        {.failed = [this](const std::exception_ptr& fault) {
            m_workspace.showAlert({tr("The film could not be cut").toStdString(), messageOf(fault)},
                                  &m_window);
        }});
}

} // namespace kavela::desktop
