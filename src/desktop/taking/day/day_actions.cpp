#include "desktop/taking/day/day_actions.h"

#include "desktop/taking/day/day_desk.h"
#include "desktop/taking/day/day_panel.h"

#include <QAction>
#include <QMainWindow>
#include <QMenuBar>

#include <functional>

namespace kavela::desktop {

namespace {

struct DayEntry {
    QString text;
    QKeyCombination key = QKeyCombination(Qt::Key_unknown); ///< unknown for none
    std::function<void()> act;
};

void addEntries(QMenu& menu, QObject& context, const std::vector<DayEntry>& entries) {
    for (const DayEntry& entry : entries) {
        QAction* const action = menu.addAction(entry.text);
        if (entry.key.key() != Qt::Key_unknown)
            action->setShortcut(QKeySequence(entry.key));
        QObject::connect(action, &QAction::triggered, &context, entry.act);
    }
}

QString dayText(const char* text) {
    return DayDesk::tr(text);
}

} // namespace

void addDayMenu(QMainWindow& window, DayDesk& desk, DayPanel& panel, QAction& show) {
    QMenu& menu = *window.menuBar()->addMenu(dayText("&Day"));
    menu.addAction(&show);
    const QKeyCombination none(Qt::Key_unknown);
    addEntries(
        menu, desk,
        {{dayText("Start &list…"), none, [&panel] { emit panel.listWanted(); }},
         {dayText("Films &from…"), none, [&panel] { emit panel.folderWanted(); }},
         {dayText("Reckon with the camera's &clock"), none, [&desk] { desk.takeOffset(); }},
         {dayText("&Remove the boat from the list"), none, [&desk] { desk.removeFront(); }}});
    menu.addSeparator();
    addEntries(
        menu, desk,
        {{dayText("To the next film that is not &timed yet"), Qt::Key_U,
          [&desk] { desk.goToNext(); }},
         {dayText("&Open the film of the start in front"), Qt::Key_O,
          [&desk] { desk.openFront(); }},
         {dayText("&Previous start"), Qt::CTRL | Qt::Key_Up, [&desk] { desk.stepFront(-1); }},
         {dayText("&Next start"), Qt::CTRL | Qt::Key_Down, [&desk] { desk.stepFront(1); }}});
    menu.addSeparator();
    addEntries(menu, desk,
               {{dayText("&Agree: the film is named after its boat"), Qt::Key_G,
                 [&desk] { desk.agree(); }},
                {dayText("Agree to all that are &sure"), Qt::SHIFT | Qt::Key_G,
                 [&desk] { desk.agreeToAllSure(); }},
                {dayText("Films from here on: one start &earlier"), Qt::ALT | Qt::Key_Up,
                 [&desk] { desk.shift(-1); }},
                {dayText("Films from here on: one start late&r"), Qt::ALT | Qt::Key_Down,
                 [&desk] { desk.shift(1); }},
                {dayText("Did not start, or did after all"), Qt::SHIFT | Qt::Key_S,
                 [&desk] { desk.setOut(DidNotStart); }},
                {dayText("Did not finish, or did after all"), Qt::SHIFT | Qt::Key_F,
                 [&desk] { desk.setOut(DidNotFinish); }}});
}

} // namespace kavela::desktop
