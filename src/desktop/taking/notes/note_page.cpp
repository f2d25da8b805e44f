#include "desktop/taking/notes/note_page.h"

#include "desktop/film/film_deck.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/typing.h"
#include "desktop/splitfile/film_table.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/taking/notes/note_marks.h"
#include "splitdata/run_timing.h"
#include "splittaking/course_setup.h"

#include <QAction>

#include <algorithm>

namespace kavela::desktop {

QString titleOf(NoteMode mode) {
    switch (mode) {
    case NoteMode::Splits:
        return NotePage::tr("Splits");
    case NoteMode::Penalties:
        return NotePage::tr("Penalties");
    case NoteMode::Upstreams:
        return NotePage::tr("Upstreams");
    case NoteMode::Strokes:
        return NotePage::tr("Strokes");
    case NoteMode::MicroSplits:
        return NotePage::tr("Micro");
    case NoteMode::Tags:
        return NotePage::tr("Tags");
    case NoteMode::TimeLosses:
        return NotePage::tr("Losses");
    case NoteMode::Comments:
        return NotePage::tr("Comments");
    case NoteMode::Strategies:
        return NotePage::tr("Ways");
    case NoteMode::Cameras:
        break;
    }
    return NotePage::tr("Cameras");
}

std::optional<NoteMode> modeOf(MarkKind kind) {
    switch (kind) {
    case MarkKind::MicroSplit:
        return NoteMode::MicroSplits;
    case MarkKind::Upstream:
        return NoteMode::Upstreams;
    case MarkKind::Stroke:
        return NoteMode::Strokes;
    case MarkKind::TimeLoss:
        return NoteMode::TimeLosses;
    case MarkKind::Tag:
        return NoteMode::Tags;
    case MarkKind::Start:
    case MarkKind::Split:
        break;
    }
    return std::nullopt;
}

const athletedata031* NoteDesk::record() const {
    return run >= 0 && run < document.runCount() ? &document.run(run) : nullptr;
}

std::optional<CMTime> NoteDesk::moment() const {
    const FilmPicture* const shown = deck.shown(0);
    return shown ? std::optional(shown->frame.stamp) : std::nullopt;
}

void NotePage::commit() {
    endTypingIn(*this);
}

bool NotePage::hasSelection() const {
    const auto& selected = m_desk.marks->selected();
    return selected && selected->kind == kind();
}

void NotePage::markHere() {
    emit pressed([this](const Stamps& stamps) { mark(stamps); });
}

void NotePage::moveMarkHere() {
    m_desk.marks->moveMarkHere();
}

void NotePage::nudgeMark(int frames) {
    m_desk.marks->nudgeMark(frames);
}

void NotePage::deleteMark() {
    m_desk.marks->deleteMark();
}

bool NotePage::stepMark(int step) {
    const auto own = kind();
    if (own)
        m_desk.marks->stepMark(*own, step);
    return own.has_value();
}

bool NotePage::refuses(const std::optional<std::string>& why) {
    if (why)
        emit refused(QString::fromStdString(*why));
    return why.has_value();
}

void NotePage::edit(const QString& what, const std::function<void(athletedata031&)>& change) {
    if (m_desk.record())
        m_desk.document.editRun(m_desk.run, what, change);
}

ColumnTable* NotePage::noteTable(RowModel& rows, const char* name,
                                 const std::function<void(int)>& take) {
    ColumnTable* const table = filmTable(rows, name);
    connect(table, &ColumnTable::clicked, this,
            [table, take](const QModelIndex& cell) { take(table->placeAt(cell)); });
    QAction& remove = table->setRemove(tr("Remove"), [this, take](const std::vector<int>& places) {
        take(places.front());
        deleteMark();
    });
    remove.setShortcut({}); // the key is the window's: a mark may have been selected since
    return table;
}

QString runName(const athletedata031& run) {
    const QString crew = QString::fromStdString(crewText(run.names));
    return run.phase.empty() ? crew : crew + " · " + QString::fromStdString(run.phase);
}

QStringList sectionNames(const infodata031& info) {
    QStringList names;
    for (std::size_t i = 0; std::cmp_less(i, std::min<std::int64_t>(info.totalsplits, MostSplits));
         ++i) {
        const auto title = QString::fromStdString(entryOrZero(info.splitTitles, i));
        names.append(title.isEmpty() ? 'S' + QString::number(i + 1) : title);
    }
    return names;
}

} // namespace kavela::desktop
