#pragma once

#include "desktop/shell/command_palette.h"
#include "performance/loss_reference.h"

#include <QKeySequence>
#include <QObject>

#include <functional>
#include <vector>

class QMenu;

namespace kavela::desktop {

class LossesWindow;

/// The menus of the window of losses.
class LossesActions : public QObject {
    Q_OBJECT

public:
    explicit LossesActions(LossesWindow& window);

private:
    void makeFileMenu();
    void makeRunMenu();
    void makeReferenceMenu();
    void makeViewMenu();
    void makeFilmMenu();
    void addReference(QMenu& menu, const QString& text, const QKeySequence& keys,
                      LossReferenceKind kind);
    void refresh();
    [[nodiscard]] Commands runs() const;

    LossesWindow& m_window;
    std::vector<std::function<void()>> m_refreshers;
};

} // namespace kavela::desktop
