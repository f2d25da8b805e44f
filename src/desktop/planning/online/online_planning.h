#pragma once

#include "desktop/planning/online/online_states.h"
#include "desktop/planning/online/online_store.h"

#include <functional>

namespace kavela::desktop {

class PlanningDocument;
class ToolWindow;
class Workspace;

/// The planning of a window on a server, where a group shares it: saved there with its access
/// record, and opened from there.
class OnlinePlanning : public QObject {
    Q_OBJECT

public:
    /// Tells whether what is shown may give way to another planning, maybe once it is saved.
    using WhenLeft = std::function<void(std::function<void(bool mayGo)> left)>;

    OnlinePlanning(PlanningDocument& document, Workspace& workspace, ToolWindow& window,
                   WhenLeft whenLeft);

    /// Puts the planning and its access record into the store under the entry's name. Asks before
    /// it replaces what somebody else put there.
    void save(const OnlineAddress& address, const QString& entry);
    void askToSave();
    /// Opens a planning of the store as an unsaved document; what is shown stays when that fails.
    void load(const OnlineAddress& address, const QString& entry);
    void askToLoad();

    /// A planning that was read elsewhere, to be looked at; the path is where saving will propose
    /// to put it. False when it is none.
    [[nodiscard]] bool showCopy(const QByteArray& content, const QString& path);

    /// Another planning is in the window: that of a file, or a new one for an empty path.
    void begin(const QString& path) { m_states.begin(path); }

signals:
    void loaded(bool isOpen);
    void saved(bool isSaved);
    /// What lies on the server is to be looked at in a window of its own.
    void copyRequested(const QByteArray& content, const QString& name);

private:
    void tellFault(const QString& reason);
    void tellNotOpened(const QString& reason);
    void showLoaded(const OnlineAnswer& answer, const QUrl& place, const QString& entry);
    void chooseForChanged(OnlineSaving& saving, const OnlineAddress& address, const QString& entry,
                          const QByteArray& there);
    void saveUnderAnotherName(const OnlineAddress& address, const QString& entry);

    PlanningDocument& m_document;
    Workspace& m_workspace;
    ToolWindow& m_window;
    WhenLeft m_whenLeft;
    OnlineStore m_store;
    OnlineStates m_states;
};

} // namespace kavela::desktop
