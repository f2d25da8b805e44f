#include "desktop/folder/film_cutting.h"

#include "desktop/folder/tag_mode.h"
#include "desktop/shell/workspace.h"
#include "splitdata/film_marks.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QWidget>

#include <utility>

namespace kavela::desktop {

namespace {
constexpr std::int64_t CutProgressSteps = 1000;
} // namespace

FilmCutting::FilmCutting(Workspace& workspace, TagMode& ends, QWidget& window)
    : QObject(&window), m_workspace(workspace), m_ends(ends), m_window(window) {}

void FilmCutting::setExact(std::shared_ptr<const FilmCutter> cutter) {
    m_exact = std::move(cutter);
    emit m_ends.cutChanged();
}

std::shared_ptr<const FilmCutter> FilmCutting::cutterFor(Way way) const {
    return way == Way::Copy ? m_copy : m_exact;
}

bool FilmCutting::canCut(Way way) const {
    return cutterFor(way) && m_ends.cutFirst() && m_ends.cutLast();
}

QString FilmCutting::proposedTarget(Way way) const {
    const QFileInfo film(m_ends.film());
    const bool staysSo = way == Way::Copy && canCopyInto(film.filePath().toStdString());
    const QString ending = staysSo ? film.suffix() : QStringLiteral("mp4");
    const QString stem = film.path() + '/' + tr("%1 cut").arg(film.completeBaseName());
    QString target = stem + '.' + ending;
    for (int count = 2; QFileInfo::exists(target); ++count)
        target = QStringLiteral("%1 %2.%3").arg(stem).arg(count).arg(ending);
    return target;
}

void FilmCutting::askAndCut(Way way) {
    if (!canCut(way))
        return;
    // No file is ever replaced: the dialog does not have to ask.
    const QString target = QFileDialog::getSaveFileName(
        &m_window, tr("Cut into a new film"), proposedTarget(way), tr("Films (*.mp4 *.mov *.m4v)"),
        nullptr, QFileDialog::DontConfirmOverwrite);
    if (!target.isEmpty())
        cut(way, target);
}

void FilmCutting::cut(Way way, const QString& target) {
    if (!canCut(way))
        return;
    FilmStretch stretch{*m_ends.cutFirst(), *m_ends.cutLast()};
    if (orderOf(stretch.last, stretch.first) < 0)
        std::swap(stretch.first, stretch.last); // set in the other order
    const FilmCut order{m_ends.film().toStdString(), stretch, target.toStdString()};
    m_work.runOver(
        {&m_window, tr("Cutting %1…").arg(QFileInfo(target).fileName()), true},
        [cutter = cutterFor(way), order](const WorkSteps& steps) {
            return cutter->cut(order, steps.stopToken(), [&steps](double fraction) {
                steps.tellProgress(static_cast<std::int64_t>(fraction * CutProgressSteps),
                                   CutProgressSteps);
            });
        },
        [this, target](bool isWhole) {
            if (isWhole)
                emit done(target);
        },
        {.failed = [this](const std::exception_ptr& fault) {
            m_workspace.showAlert({tr("The film could not be cut").toStdString(), messageOf(fault)},
                                  &m_window);
        }});
}

} // namespace kavela::desktop
