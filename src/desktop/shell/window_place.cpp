#include "desktop/shell/window_place.h"

#include "desktop/shell/workspace.h"

#include <QEvent>
#include <QSplitter>
#include <QWidget>

namespace kavela::desktop {

namespace {

/// Keeps the place of the window it belongs to.
class PlaceKeeper : public QObject {
public:
    PlaceKeeper(QWidget& window, Workspace& workspace, QString key)
        : QObject(&window), m_window(window), m_workspace(workspace), m_key(std::move(key)) {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == &m_window && event->type() == QEvent::Close)
            m_workspace.remember(m_key, {QString::fromLatin1(m_window.saveGeometry().toBase64())});
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget& m_window;
    Workspace& m_workspace;
    QString m_key;
};

QByteArray kept(const Workspace& workspace, const QString& key) {
    return QByteArray::fromBase64(workspace.remembered(key).value(0).toLatin1());
}

} // namespace

void rememberPlace(QWidget& window, Workspace& workspace, const QString& kind) {
    const QString key = "place/" + kind;
    window.restoreGeometry(kept(workspace, key));
    new PlaceKeeper(window, workspace, key); // the window owns it
}

void rememberSizes(QSplitter& splitter, Workspace& workspace, const QString& kind) {
    const QString key = "sizes/" + kind;
    splitter.restoreState(kept(workspace, key));
    QObject::connect(
        &splitter, &QSplitter::splitterMoved, &workspace, [&splitter, &workspace, key] {
            workspace.remember(key, {QString::fromLatin1(splitter.saveState().toBase64())});
        });
}

} // namespace kavela::desktop
