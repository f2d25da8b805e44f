#pragma once

#include <QKeySequence>
#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class QAction;
class QMenu;

namespace kavela::desktop {

class SlitWindow;

/// The menus and keys of a slit picture, and when each can be used.
class SlitActions : public QObject {
    Q_OBJECT

public:
    explicit SlitActions(SlitWindow& window);

    void refresh();

private:
    using Act = std::function<void()>;
    using IsPossible = std::function<bool()>;

    QAction* add(QMenu& menu, const QString& text, const QList<QKeySequence>& keys, Act act,
                 IsPossible isPossible = {});
    void makeFileMenu();
    void makeEditMenu();
    void makeLineMenu();
    void makeHairMenu();
    void makeMarkMenu();
    void makePlayMenu();
    void exportPicture();
    void saveBands();
    [[nodiscard]] QString askForFile(const QString& title, const QString& suffix,
                                     const QString& filter) const;

    SlitWindow& m_window;
    std::vector<std::pair<QAction*, IsPossible>> m_limited;
};

} // namespace kavela::desktop
