#include "desktop/help/guide_help.h"

#include "desktop/help/guide.h"
#include "desktop/help/guide_window.h"
#include "desktop/shell/bring_to_front.h"
#include "desktop/shell/settings_window.h"
#include "desktop/shell/tool_window.h"
#include "desktop/shell/workspace.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QKeySequenceEdit>

namespace kavela::desktop {

namespace {

/// Of a dialog, or of the window that it belongs to.
QString kindBehind(const QDialog& dialog) {
    if (qobject_cast<const SettingsWindow*>(&dialog))
        return QStringLiteral("settings");
    for (const QWidget* widget = &dialog; widget; widget = widget->parentWidget())
        if (const auto* const tool = qobject_cast<const ToolWindow*>(widget))
            return tool->kind();
    return {};
}

void showIn(GuideWindow& guide, const QString& kind) {
    guide.showChapter(guideChapterOn(kind));
    guide.show();
    bringToFront(guide);
}

} // namespace

GuideHelp::GuideHelp(Workspace& workspace) : m_workspace(workspace) {
    connect(&workspace, &Workspace::guideRequested, this, &GuideHelp::show);
    qApp->installEventFilter(this);
}

GuideHelp::~GuideHelp() {
    delete m_window; // it keeps its place in the workspace
}

void GuideHelp::show(const QString& kind) {
    if (!m_window)
        m_window = new GuideWindow(m_workspace);
    showIn(*m_window, kind);
}

void GuideHelp::showOver(QDialog& dialog) {
    auto* guide = dialog.findChild<GuideWindow*>(QString(), Qt::FindDirectChildrenOnly);
    if (!guide)
        guide = new GuideWindow(m_workspace, &dialog);
    showIn(*guide, kindBehind(dialog));
}

/// What takes the key for itself, as the menu of a window and a field that asks for a key, has it.
bool GuideHelp::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType() ||
        qobject_cast<QKeySequenceEdit*>(watched))
        return QObject::eventFilter(watched, event);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    auto* const dialog = qobject_cast<QDialog*>(static_cast<QWidget*>(watched)->window());
    if (!dialog || key.key() != Qt::Key_F1 || key.modifiers() != Qt::NoModifier)
        return QObject::eventFilter(watched, event);
    showOver(*dialog);
    return true;
}

} // namespace kavela::desktop
