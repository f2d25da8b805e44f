#pragma once

#include <QObject>

#include <functional>
#include <vector>

class QKeySequence;
class QMenu;

namespace kavela::desktop {

class ShareWindow;

/// The menus of sharing and their keys.
class ShareActions : public QObject {
    Q_OBJECT

public:
    explicit ShareActions(ShareWindow& window);

    /// Shows which actions can be taken at present.
    void refresh();

private:
    void makeFileMenu();
    void makeShareMenu();
    void makeServerMenu();
    void add(QMenu& menu, const QString& text, const QKeySequence& keys, std::function<void()> act,
             std::function<bool()> isPossible);

    ShareWindow& m_window;
    std::vector<std::function<void()>> m_refreshers;
};

} // namespace kavela::desktop
