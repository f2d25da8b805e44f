#pragma once

#include <QDialog>
#include <QString>

#include <functional>
#include <vector>

class QLineEdit;
class QListWidget;
class QMainWindow;

namespace kavela::desktop {

/// Something that can be done or opened.
struct Command {
    QString title;
    QString group; ///< where it belongs: a menu, "Recent files", "Athletes"
    QString keys;  ///< its shortcut, as text
    std::function<void()> run;
};

using Commands = std::vector<Command>;

/// Every action in the menus of a window that can be done now.
[[nodiscard]] Commands menuCommands(const QMainWindow& window);

/// The commands that hold every word of a query, without regard to case and accents: those that
/// start with it first, then those with a word that does.
[[nodiscard]] std::vector<const Command*> matching(const Commands& commands, const QString& query);

/// Finds every action, file and athlete by a few letters.
class CommandPalette : public QDialog {
    Q_OBJECT

public:
    CommandPalette(Commands commands, QWidget* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void show(const QString& query);
    void runCurrent();

    Commands m_commands;
    std::vector<const Command*> m_shown;
    QLineEdit* m_query;
    QListWidget* m_list;
};

} // namespace kavela::desktop
