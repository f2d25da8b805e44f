#include "desktop/film/mark_actions.h"

#include "desktop/film/film_stage.h"
#include "desktop/shell/typing.h"

#include <QAction>
#include <QMenu>

#include <utility>

namespace kavela::desktop {

namespace {

template <class Act>
QAction* add(QMenu& menu, FilmStage& stage, const QString& text, const QList<QKeySequence>& keys,
             Act act) {
    QAction* const action = menu.addAction(text);
    action->setShortcuts(keys);
    QObject::connect(action, &QAction::triggered, &stage, std::move(act));
    return action;
}

QString tr(const char* text) {
    return FilmStage::tr(text);
}

} // namespace

QAction* addMarkActions(QMenu& menu, FilmStage& stage, const QString& markText) {
    QAction* const mark =
        add(menu, stage, markText, {Qt::Key_M, Qt::Key_Return, Qt::Key_Enter}, [&stage] {
            if (!endTyping())
                stage.markHere();
        });
    add(menu, stage, tr("Move the selected mark &here"), {Qt::SHIFT | Qt::Key_M},
        [&stage] { stage.moveMarkHere(); });
    add(menu, stage, tr("Mark one frame &earlier"), {Qt::ALT | Qt::Key_Left},
        [&stage] { stage.nudgeMark(-1); });
    add(menu, stage, tr("Mark one frame &later"), {Qt::ALT | Qt::Key_Right},
        [&stage] { stage.nudgeMark(1); });
    add(menu, stage, tr("&Remove the selected mark"), {Qt::Key_Delete},
        [&stage] { stage.deleteMark(); });
    menu.addSeparator();
    add(menu, stage, tr("&Previous mark"), {Qt::CTRL | Qt::Key_Left},
        [&stage] { stage.stepMark(-1); });
    add(menu, stage, tr("&Next mark"), {Qt::CTRL | Qt::Key_Right}, [&stage] { stage.stepMark(1); });
    return mark;
}

void addGateActions(QMenu& menu, FilmStage& stage, const QString& next, const QString& previous) {
    add(menu, stage, next, {Qt::Key_N}, [&stage] { stage.stepGate(1); });
    add(menu, stage, previous, {Qt::Key_P}, [&stage] { stage.stepGate(-1); });
}

} // namespace kavela::desktop
