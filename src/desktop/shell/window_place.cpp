#include "desktop/shell/window_place.h"

#include "desktop/shell/workspace.h"

#include <QEvent>
#include <QSplitter>
#include <QWidget>

#include <algorithm>
#include <numeric>

namespace kavela::desktop {

namespace {

constexpr const char* ChosenSizes = "chosenSizes"; ///< property: the coach moved a handle

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

/// Keeps the shares of the parts of a splitter while it is small.
class SizeSharer : public QObject {
public:
    SizeSharer(QSplitter& splitter, QList<int> sizes)
        : QObject(&splitter), m_splitter(splitter), m_sizes(std::move(sizes)) {
        splitter.installEventFilter(this);
        connect(&splitter, &QSplitter::splitterMoved, this,
                [this] { m_splitter.setProperty(ChosenSizes, true); });
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == &m_splitter && event->type() == QEvent::Resize &&
            !m_splitter.property(ChosenSizes).toBool())
            share();
        return QObject::eventFilter(watched, event);
    }

private:
    void share() {
        const QRect place = m_splitter.contentsRect();
        const int whole =
            m_splitter.orientation() == Qt::Horizontal ? place.width() : place.height();
        const int wanted = std::accumulate(m_sizes.begin(), m_sizes.end(), 0);
        if (whole >= wanted && !m_wasSmall)
            return;
        m_wasSmall = whole < wanted;
        QList<int> sizes;
        for (const int size : m_sizes)
            sizes.append(m_wasSmall ? std::max(size * whole / wanted, 1) : size);
        m_splitter.setSizes(sizes);
    }

    QSplitter& m_splitter;
    QList<int> m_sizes;
    bool m_wasSmall = false;
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

void shareSizes(QSplitter& splitter, const QList<int>& sizes) {
    splitter.setSizes(sizes);
    new SizeSharer(splitter, sizes); // the splitter owns it
}

void rememberSizes(QSplitter& splitter, Workspace& workspace, const QString& kind) {
    const QString key = "sizes/" + kind;
    if (splitter.restoreState(kept(workspace, key)))
        splitter.setProperty(ChosenSizes, true);
    QObject::connect(
        &splitter, &QSplitter::splitterMoved, &workspace, [&splitter, &workspace, key] {
            workspace.remember(key, {QString::fromLatin1(splitter.saveState().toBase64())});
        });
}

} // namespace kavela::desktop
