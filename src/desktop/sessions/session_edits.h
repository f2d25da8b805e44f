#pragma once

#include "boatmotion/session_editing.h"

#include <QCoreApplication>

#include <optional>

class QWidget;

namespace kavela::desktop {

class SessionConversion;
class SessionDocument;
class SessionView;
class Workspace;

/// What a coach changes in a session that is shown: its information, its length, its strokes, and
/// how they are looked for. Each is a step of the undo stack.
class SessionEdits {
    Q_DECLARE_TR_FUNCTIONS(SessionEdits)

public:
    SessionEdits(SessionDocument& document, SessionView& view, SessionConversion& conversion,
                 const Workspace& workspace, QWidget& over);

    void editInformation();
    void keepSelection();
    void removeSelection();
    /// Takes out the strokes or turns that are selected in the table in front. False where the
    /// cursor is in no table, or nothing is selected there.
    bool removeSelectedEntries();

    void analyseAgain();
    /// Says which side of the phone points to the bow, or leaves it to the positions, and looks for
    /// the strokes again.
    void nameMount(std::optional<Mount> mount);
    /// Puts what was found in the recording into the place of what is shown; marks and power-meter
    /// data stay.
    void takeAnalysed(const QString& what, EditedSession analysed);

private:
    void cutTo(const QString& what, std::optional<EditedSession> cut);
    void analyseWith(const QString& what, std::optional<Mount> mount);
    void tell(const QString& title, const QString& text) const;

    SessionDocument& m_document;
    SessionView& m_view;
    SessionConversion& m_conversion;
    const Workspace& m_workspace;
    QWidget& m_over;
};

} // namespace kavela::desktop
