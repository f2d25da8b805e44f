#pragma once

#include "desktop/race/split_table_model.h"
#include "desktop/shell/command_palette.h"

#include <QKeySequence>
#include <QObject>

class QAction;
class QMenu;

namespace kavela::desktop {

class PhonePages;
class RaceView;
class RaceWindow;
class Workspace;

/// The menus of the analyzer. They act on the race in front and show its state.
class RaceActions : public QObject {
    Q_OBJECT

public:
    RaceActions(RaceWindow& window, Workspace& workspace);

    /// Shows the state of the race in front.
    void refresh();

private:
    using ViewAction = std::function<void(RaceView&)>;

    void makeFileMenu();
    void makeTableMenu();
    void makeContentMenu(QMenu& menu);
    void makeReferenceMenu(QMenu& menu);
    void makeCompareMenu();
    void compareFilms(const RaceView& view);
    void askForPhonePage(const RaceView& view);
    void makeChartMenu();
    void makeWindowMenu();
    QAction* add(QMenu& menu, const QString& text, const QKeySequence& keys, ViewAction act);
    /// A switch of the view: `isOn` reads it.
    QAction* addSwitch(QMenu& menu, const QString& text, const QKeySequence& keys,
                       std::function<bool(const RaceView&)> isOn,
                       std::function<void(RaceView&, bool)> set);
    void addPreference(QMenu& menu, const QString& text, const QKeySequence& keys, const char* key);
    void addColourMode(QMenu& menu);
    [[nodiscard]] Commands athletes() const;

    RaceWindow& m_window;
    Workspace& m_workspace;
    PhonePages* m_phonePages;
    std::vector<std::function<void()>> m_refreshers;
};

} // namespace kavela::desktop
