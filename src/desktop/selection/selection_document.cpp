#include "desktop/selection/selection_document.h"

#include "common/json_document.h"
#include "common/json_encode.h"
#include "desktop/shell/workspace.h"
#include "results/messages.h"
#include "results/selection_file.h"

#include <memory>
#include <optional>
#include <utility>

namespace kavela::desktop {

FileReading SelectionDocument::reading(const QString& path, QWidget* over) {
    return [this, path, over]() -> TakeIn {
        const auto notes = std::make_shared<ReadingNotes>();
        const auto read = std::make_shared<std::optional<selectionracesStruct_v3>>(
            openSelectionFile(path.toStdString(), notes->log(), *notes));
        return [this, path, over, notes, read] {
            notes->tell(workspace(), over);
            if (!*read)
                return false;
            m_whatIf.reset();
            start(std::move(**read), path, over);
            return true;
        };
    };
}

void SelectionDocument::startNew(const QString& path, std::int64_t year, QWidget* over) {
    selectionracesStruct_v3 document;
    document.year = year;
    m_whatIf.reset();
    start(std::move(document), path, over);
}

const selectionracesStruct_v3& SelectionDocument::shown() const {
    return m_whatIf ? *m_whatIf : value();
}

void SelectionDocument::change(const QString& what,
                               const std::function<void(selectionracesStruct_v3&)>& act) {
    if (!m_whatIf) {
        edit(what, act);
        return;
    }
    act(*m_whatIf);
    settle(*m_whatIf);
    emit changed();
}

/// The score that stands in the file follows the bonus; the order of athletes does too. Looking at
/// another bonus is no edit: it reaches the file with the next one.
void SelectionDocument::setBonus(BonusKind bonus) {
    m_bonus = bonus;
    if (m_whatIf)
        settle(*m_whatIf);
    emit changed();
}

void SelectionDocument::setTimes(SelectionTimes times) {
    m_times = times;
    emit changed();
}

void SelectionDocument::setWhatIf(bool isOn) {
    if (isOn == isWhatIf())
        return;
    m_whatIf = isOn ? std::optional(value()) : std::nullopt;
    emit changed();
}

SelectionDocument::Content SelectionDocument::contentNow() const {
    return [selection = shared(), bonus = m_bonus] {
        selectionracesStruct_v3 document = *selection;
        recomputeSelection(document, bonus);
        return encode(document);
    };
}

bool SelectionDocument::recover(const std::string& content) {
    try {
        auto recognised = recogniseSelectionDocument(JsonDocument::fromText(content));
        if (!recognised.version)
            return false;
        startFrom(std::move(recognised.document));
        return true;
    } catch (const DecodeError& error) {
        workspace().log()(error.what());
        return false;
    }
}

std::string SelectionDocument::failure() const {
    return messages::SelectionNotSaved;
}

void SelectionDocument::settle(selectionracesStruct_v3& value) {
    computeScores(value, m_bonus);
}

QString SelectionDocument::summary() const {
    const std::size_t count = value().races.size();
    return count == 1 ? tr("1 race") : tr("%n races", nullptr, static_cast<int>(count));
}

} // namespace kavela::desktop
