#include "desktop/taking/notes/note_page.h"

#include "desktop/film/film_deck.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/typing.h"
#include "desktop/taking/taking_document.h"
#include "splitdata/run_timing.h"
#include "splittaking/course_setup.h"

#include <QHeaderView>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QTableWidget>

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

bool NotePage::refuses(const std::optional<std::string>& why) {
    if (why)
        emit refused(QString::fromStdString(*why));
    return why.has_value();
}

void NotePage::edit(const QString& what, const std::function<void(athletedata031&)>& change) {
    if (m_desk.record())
        m_desk.document.editRun(m_desk.run, what, change);
}

QString runName(const athletedata031& run) {
    const QString crew = QString::fromStdString(crewText(run.names));
    return run.phase.empty() ? crew : crew + " · " + QString::fromStdString(run.phase);
}

QString gateMarkText(GateMark which) {
    switch (which) {
    case GateMark::Entrance:
        return QObject::tr("entrance");
    case GateMark::Middle:
        return QObject::tr("middle");
    case GateMark::Exit:
        break;
    }
    return QObject::tr("exit");
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

QTableWidget* textTable(const QStringList& titles) {
    auto* table = new QTableWidget(0, static_cast<int>(titles.size()));
    table->setHorizontalHeaderLabels(titles);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setShowGrid(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 8);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setStretchLastSection(true);
    return table;
}

namespace {

bool isNumberOrNone(const QString& text) {
    static const QRegularExpression number("[-–−+±]?[0-9:.,\\s]*(%|s)?");
    return number
               .match(text, 0, QRegularExpression::NormalMatch,
                      QRegularExpression::AnchorAtOffsetMatchOption)
               .capturedLength() == text.size();
}

/// Numbers stand under each other by their last digit, and their title with them.
void alignNumbers(QTableWidget& table, int column) {
    const auto isDigit = [](QChar sign) { return sign.isDigit(); };
    bool hasNumber = false;
    bool areNumbers = true;
    for (int row = 0; row < table.rowCount(); ++row) {
        const QString text = table.item(row, column)->text();
        hasNumber = hasNumber || std::ranges::any_of(text, isDigit);
        areNumbers = areNumbers && isNumberOrNone(text);
    }
    const bool isRight = hasNumber && areNumbers;
    const Qt::Alignment side = (isRight ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
    table.horizontalHeaderItem(column)->setTextAlignment(side);
    for (int row = 0; row < table.rowCount(); ++row)
        table.item(row, column)->setTextAlignment(side);
    if (isRight && column == table.columnCount() - 1)
        table.horizontalHeader()->setStretchLastSection(false); // beside the others, not far off
}

} // namespace

void fillTable(QTableWidget& table, const std::vector<QStringList>& rows) {
    const QSignalBlocker blocked(table);
    const int current = table.currentRow();
    table.setRowCount(static_cast<int>(rows.size()));
    for (int row = 0; row < table.rowCount(); ++row)
        for (int column = 0; column < table.columnCount(); ++column) {
            if (!table.item(row, column)) // one that is being edited must stay
                table.setItem(row, column, new QTableWidgetItem);
            table.item(row, column)->setText(rows[static_cast<std::size_t>(row)].value(column));
        }
    for (int column = 0; column < table.columnCount(); ++column)
        alignNumbers(table, column);
    if (current >= 0 && current < table.rowCount() && current != table.currentRow())
        table.setCurrentCell(current, 0);
}

QString timeOrDash(double seconds) {
    return hundredthsOrDash(seconds);
}

} // namespace kavela::desktop
