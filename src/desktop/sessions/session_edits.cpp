#include "desktop/sessions/session_edits.h"

#include "boatmotion/conversion.h"
#include "common/json_encode.h"
#include "desktop/sessions/information_dialog.h"
#include "desktop/sessions/session_conversion.h"
#include "desktop/sessions/session_document.h"
#include "desktop/sessions/session_tables.h"
#include "desktop/sessions/session_view.h"
#include "desktop/shell/workspace.h"

namespace kavela::desktop {

SessionEdits::SessionEdits(SessionDocument& document, SessionView& view,
                           SessionConversion& conversion, const Workspace& workspace, QWidget& over)
    : m_document(document),
      m_view(view),
      m_conversion(conversion),
      m_workspace(workspace),
      m_over(over) {}

void SessionEdits::editInformation() {
    const infosessionSmart_v3 before = m_document.value().session.info;
    InformationDialog dialog(before, &m_over);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const infosessionSmart_v3 after = dialog.information();
    if (encode(after) == encode(before))
        return;
    m_document.edit(tr("session information"),
                    [&](EditedSession& session) { session.session.info = after; });
}

void SessionEdits::cutTo(const QString& what, std::optional<EditedSession> cut) {
    if (!cut) {
        tell(tr("Nothing was cut"), tr("Too little would be left of the session."));
        return;
    }
    m_view.select(std::nullopt);
    m_document.edit(what, [&](EditedSession& session) { session = std::move(*cut); });
}

void SessionEdits::keepSelection() {
    if (const auto range = m_view.selection())
        cutTo(tr("cut to a stretch"), keptRange(m_document.value(), *range));
}

void SessionEdits::removeSelection() {
    if (const auto range = m_view.selection())
        cutTo(tr("removal of a stretch"), withoutRange(m_document.value(), *range));
}

bool SessionEdits::removeSelectedEntries() {
    const std::vector<std::size_t> entries = m_view.tables().selectedEntries();
    if (!m_view.tables().isAncestorOf(m_over.focusWidget()) || entries.empty())
        return false;
    m_document.edit(tr("removal of strokes"),
                    [&](EditedSession& session) { removeEntries(session, entries); });
    return true;
}

void SessionEdits::analyseAgain() {
    analyseWith(tr("new analysis"), m_document.value().mount);
}

void SessionEdits::nameMount(std::optional<Mount> mount) {
    analyseWith(tr("mount of the phone"), mount);
}

void SessionEdits::analyseWith(const QString& what, std::optional<Mount> mount) {
    if (m_conversion.isBusy() || !m_document.value().recording)
        return;
    m_conversion.analyseAgain(
        m_document.held(), mount,
        [this, what](EditedSession analysed) { takeAnalysed(what, std::move(analysed)); },
        [this](const std::exception_ptr& fault) {
            tell(conversion_messages::NotConverted, QString::fromStdString(messageOf(fault)));
        });
}

void SessionEdits::takeAnalysed(const QString& what, EditedSession analysed) {
    m_document.edit(what, [&](EditedSession& session) {
        analysed.powerMeter = std::move(session.powerMeter);
        setMarks(analysed, std::move(session.marks));
        session = std::move(analysed);
    });
}

void SessionEdits::tell(const QString& title, const QString& text) const {
    m_workspace.showAlert({title.toStdString(), text.toStdString()}, &m_over);
}

} // namespace kavela::desktop
