#pragma once

#include <QDialog>
#include <QKeySequence>

#include <cstddef>
#include <optional>
#include <vector>

class QAction;
class QKeySequenceEdit;
class QMainWindow;

namespace kavela::desktop {

class Workspace;

/// The actions in the menus of a window whose keys can be changed. Each is known by its menu and
/// its text.
struct KeyBinding {
    QAction* action = nullptr;
    QString name; ///< "Mark/Mark the split"
    QList<QKeySequence> standard;
};

/// Gives the actions of a window the keys that the coach chose for windows of its kind. To be
/// called once, when its menus are complete.
[[nodiscard]] std::vector<KeyBinding>
applyKeyBindings(QMainWindow& window, const Workspace& workspace, const QString& kind);

/// Changes the keys of a window, at once and for later.
class KeyEditor : public QDialog {
    Q_OBJECT

public:
    KeyEditor(std::vector<KeyBinding> bindings, Workspace& workspace, QString kind,
              QWidget* parent);
    ~KeyEditor() override;

    /// Gives an action a key, empty for none. A key that another action has is refused: its name is
    /// returned.
    QString setKey(std::size_t binding, const QKeySequence& key);
    /// The same; another action that has the key loses it.
    void takeKey(std::size_t binding, const QKeySequence& key);
    /// All keys as they were made.
    void restoreStandard();

private:
    [[nodiscard]] std::optional<std::size_t> ownerOf(const QKeySequence& key,
                                                     std::size_t but) const;
    void change(std::size_t binding, QKeySequenceEdit& edit);
    void remember();

    std::vector<KeyBinding> m_bindings;
    std::vector<QKeySequenceEdit*> m_edits;
    Workspace& m_workspace;
    QString m_kind;
};

} // namespace kavela::desktop
