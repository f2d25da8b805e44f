#include "desktop/share/share_rows.h"

#include "common/display_text.h"
#include "desktop/shell/qt_text.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <array>
#include <utility>

namespace kavela::desktop {

namespace {

using share::Change;
using ShareKind = share::ShareResult::Kind;

QString shareTr(const char* text) {
    return QCoreApplication::translate("ShareWindow", text);
}

QString sharedBytes(std::int64_t bytes) {
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

/// The arrow points to where the file goes.
QString changeText(const SharedRow& row) {
    if (row.isLeftOut)
        return shareTr("left out");
    switch (row.row.change) {
    case Change::NewHere:
        return shareTr("→ new here");
    case Change::NewThere:
        return shareTr("← new there");
    case Change::ChangedHere:
        return shareTr("→ changed here");
    case Change::ChangedThere:
        return shareTr("← changed there");
    case Change::BothSides:
        return shareTr("↔ on both sides");
    case Change::DeletedHere:
        return shareTr("✕ deleted here");
    case Change::DeletedThere:
        return shareTr("✕ deleted there");
    case Change::None:
    case Change::Agree:
    case Change::Gone:
        break;
    }
    return {};
}

/// What Start does to a file, in a sentence.
QString tipOf(const SharedRow& row) {
    switch (row.row.change) {
    case Change::NewHere:
        return shareTr("Goes to the server");
    case Change::NewThere:
        return shareTr("Comes from the server");
    case Change::ChangedHere:
        return shareTr("Goes to the server, in place of what it has");
    case Change::ChangedThere:
        return shareTr("Comes from the server, in place of what is here");
    case Change::BothSides:
        return shareTr("Is compared; where both differ, both are kept");
    case Change::DeletedHere:
        return shareTr("Is deleted on the server where you tick it");
    case Change::DeletedThere:
        return shareTr("Is deleted here where you tick it");
    case Change::None:
    case Change::Agree:
    case Change::Gone:
        break;
    }
    return {};
}

QString resultText(const share::ShareResult& result) {
    if (!result.text.empty())
        return qtText(validUtf8(result.text));
    return result.kind == ShareKind::Done ? shareTr("✓ Done") : QString();
}

QString stateOfShared(const SharedRow& row) {
    if (row.isRunning && row.all > 0)
        return shareTr("%1 %, %2 of %3")
            .arg(row.done * 100 / row.all)
            .arg(sharedBytes(row.done), sharedBytes(row.all));
    if (row.isRunning)
        return shareTr("Runs…");
    if (row.isWaiting)
        return shareTr("Waits");
    return row.result ? resultText(*row.result) : qtText(validUtf8(row.row.note));
}

Cell stateCellOf(const SharedRow& row) {
    const QString text = stateOfShared(row);
    const bool isFault = row.result && row.result->kind == ShareKind::Failed;
    return {.text = text,
            .tip = text,
            .look = isFault         ? Cell::Look::Warning
                    : row.isLeftOut ? Cell::Look::Quiet
                                    : Cell::Look::Plain};
}

qsizetype countOfResults(const std::vector<SharedRow>& rows, ShareKind kind) {
    return std::ranges::count_if(
        rows, [&](const SharedRow& row) { return row.result && row.result->kind == kind; });
}

} // namespace

bool SharedRow::canBeTicked() const {
    const bool isOver =
        result && result->kind != ShareKind::Failed && result->kind != ShareKind::Cancelled;
    return !isLeftOut && !isOver;
}

ColumnModel<SharedRow>::Columns sharedColumns(const TickShared& tick) {
    return {
        // With a context of its own: elsewhere the word is a proportion.
        {.title = QCoreApplication::translate("kavela::desktop::SharedRows", "Share"),
         .show =
             [](const SharedRow& row) {
                 return Cell{.isTicked = row.isTicked,
                             .isLocked = !row.canBeTicked() || row.isRunning || row.isWaiting};
             },
         .tick = [tick](const std::size_t& place, const SharedRow&,
                        bool isTicked) { tick(place, isTicked); }},
        textColumn<SharedRow>(shareTr("File"),
                              [](const SharedRow& row) { return qtText(validUtf8(row.row.path)); }),
        {.title = shareTr("What"),
         .show =
             [](const SharedRow& row) { return Cell{.text = changeText(row), .tip = tipOf(row)}; }},
        numberColumn<SharedRow>(
            shareTr("Size"),
            [](const SharedRow& row) {
                return row.row.size > 0 ? std::optional(static_cast<double>(row.row.size))
                                        : std::nullopt;
            },
            [](double bytes) { return sharedBytes(static_cast<std::int64_t>(bytes)); }),
        {.title = shareTr("State"), .show = stateCellOf}};
}

std::vector<SharedRow> sharedRows(const share::ShareSurvey& survey) {
    std::vector<SharedRow> rows;
    for (const share::ShareRow& row : survey.rows)
        rows.push_back({.row = row, .isTicked = !row.isDeletion()});
    for (const share::LeftOut& left : survey.leftOut)
        rows.push_back({.row = {.path = left.path, .note = left.reason}, .isLeftOut = true});
    return rows;
}

QString differenceText(const std::vector<SharedRow>& rows) {
    const std::array<std::pair<Change, QString>, 7> kinds{
        {{Change::NewHere, shareTr("%1 new here")},
         {Change::NewThere, shareTr("%1 new there")},
         {Change::ChangedHere, shareTr("%1 changed here")},
         {Change::ChangedThere, shareTr("%1 changed there")},
         {Change::BothSides, shareTr("%1 on both sides")},
         {Change::DeletedHere, shareTr("%1 deleted here")},
         {Change::DeletedThere, shareTr("%1 deleted there")}}};
    QStringList parts;
    for (const auto& [change, text] : kinds) {
        const qsizetype count = std::ranges::count_if(rows, [wanted = change](const auto& row) {
            return !row.isLeftOut && row.row.change == wanted;
        });
        if (count > 0)
            parts.append(text.arg(count));
    }
    return parts.isEmpty() ? shareTr("Both sides are the same") : parts.join(", ");
}

QString sharedText(const std::vector<SharedRow>& rows) {
    const qsizetype same = countOfResults(rows, ShareKind::Same);
    QStringList parts{shareTr("%1 shared").arg(countOfResults(rows, ShareKind::Done) + same)};
    if (const qsizetype count = countOfResults(rows, ShareKind::BothKept); count > 0)
        parts.append(shareTr("%1 kept twice").arg(count));
    if (const qsizetype count = countOfResults(rows, ShareKind::Failed); count > 0)
        parts.append(shareTr("%1 failed").arg(count));
    if (const qsizetype count = countOfResults(rows, ShareKind::Cancelled); count > 0)
        parts.append(shareTr("%1 cancelled").arg(count));
    return parts.join(", ");
}

} // namespace kavela::desktop
