#pragma once

#include <QObject>

#include <functional>
#include <vector>

class QKeySequence;
class QMenu;

namespace kavela::desktop {

class FetchWindow;

/// The menus of fetching and their keys.
class FetchActions : public QObject {
    Q_OBJECT

public:
    explicit FetchActions(FetchWindow& window);

    /// Shows which actions can be taken at present.
    void refresh();

private:
    void makeFileMenu();
    void makeFetchMenu();
    void makeServerMenu();
    void add(QMenu& menu, const QString& text, const QKeySequence& keys, std::function<void()> act,
             std::function<bool()> isPossible);

    FetchWindow& m_window;
    std::vector<std::function<void()>> m_refreshers;
};

} // namespace kavela::desktop
