#include "desktop/barrier/slit_race.h"

#include "desktop/shell/qt_text.h"
#include "desktop/splitfile/taking_files.h"
#include "splitdata/run_timing.h"
#include "splittaking/film_crossings.h"

#include <QDir>
#include <QFileInfo>
#include <QUndoStack>

#include <utility>

namespace kavela::desktop {

void SlitRace::setFilm(const QString& film) {
    m_film = QFileInfo(film).fileName();
    emit changed();
}

void SlitRace::setDocument(TakingDocument& document, ToolWindow& owner) {
    if (m_document) {
        m_document->disconnect(this);
        m_document->undoStack().disconnect(this);
    }
    m_document = &document;
    m_owner = &owner;
    connect(&document, &TakingDocument::changed, this, &SlitRace::changed);
    connect(&document.undoStack(), &QUndoStack::indexChanged, this, &SlitRace::stepped);
    connect(&document, &QObject::destroyed, this, &SlitRace::leave);
    emit replaced();
    emit changed();
}

/// Split taking was closed; what it held is saved or given up there.
void SlitRace::leave() {
    m_document = nullptr;
    emit replaced();
    emit changed();
}

QString SlitRace::name() const {
    return m_document ? m_document->title() : QString();
}

QString SlitRace::titleOf(std::size_t split) const {
    if (split == 0)
        return tr("Start");
    const QString title =
        m_document ? qtText(entryOrZero(m_document->info().splitTitles, split - 1)) : QString();
    return title.isEmpty() ? tr("Split %1").arg(split) : tr("%1: %2").arg(split).arg(title);
}

std::size_t SlitRace::splits() const {
    return m_document && m_document->info().totalsplits > 0
               ? static_cast<std::size_t>(m_document->info().totalsplits)
               : 0;
}

std::vector<SlitRun> SlitRace::runs(std::size_t split) const {
    std::vector<SlitRun> runs;
    if (!m_document)
        return runs;
    for (int run = 0; run < m_document->runCount(); ++run) {
        const athletedata031& record = m_document->run(run);
        const auto film = filmOfRun(record, m_film.toStdString());
        if (!film)
            continue;
        const auto moment = markOnFilm(record, m_document->marks(run), *film, split);
        QStringList details{qtText(record.cat), qtText(record.phase)};
        details.removeAll(QString());
        runs.push_back({run, qtText(crewText(record.names)), details.join(QStringLiteral(" · ")),
                        moment ? std::optional(moment->seconds()) : std::nullopt});
    }
    return runs;
}

QString SlitRace::mark(int run, std::size_t split, const CMTime& stamp,
                       std::optional<double> beside) {
    if (!m_document || run < 0 || run >= m_document->runCount())
        return tr("There is no run to be marked.");
    const athletedata031& record = m_document->run(run);
    const auto film = filmOfRun(record, m_film.toStdString());
    if (!film)
        return tr("This run has no film %1.").arg(m_film);
    RunMarks marks = m_document->marks(run);
    if (const auto refused =
            setMarkOnFilm(record, marks, *film, split, stamp, m_document->info().totalsplits))
        return qtText(refused->text);
    m_document->setMarks(run, tr("%1 in the slit picture").arg(titleOf(split)), marks,
                         [&](athletedata031& marked) {
                             if (beside)
                                 refineMark(marked.sectioninfo, split, *beside);
                         });
    return {};
}

QString SlitRace::unmark(int run, std::size_t split) {
    if (!m_document || run < 0 || run >= m_document->runCount())
        return tr("There is no run to be marked.");
    RunMarks marks = m_document->marks(run);
    const RunMarks before = marks;
    clearMark(marks, split);
    if (marks == before)
        return tr("This run is not marked here.");
    m_document->setMarks(run, tr("mark removed in the slit picture"), marks);
    return {};
}

void SlitRace::undo() {
    if (m_document && m_owner)
        m_owner->undo();
}

void SlitRace::redo() {
    if (m_document && m_owner)
        m_owner->redo();
}

void SlitRace::save() {
    if (m_document && m_owner)
        m_owner->saveBeside();
}

QString raceFileOf(const QString& film) {
    if (film.isEmpty())
        return {};
    const QString folder = QFileInfo(film).absolutePath();
    const QString file = splitFileIn(folder);
    return file.isEmpty() ? folder : QDir(folder).absoluteFilePath(file);
}

} // namespace kavela::desktop
