#include "desktop/shell/command_palette.h"

#include "desktop/shell/key_list.h"
#include "desktop/shell/theme.h"

#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

/// More than these are not read; a further letter is typed sooner.
constexpr std::size_t MostShown = 100;
constexpr int PaletteWidth = 560;
constexpr int PaletteHeight = 420;

void collect(const QList<QAction*>& actions, const QString& group, Commands& commands) {
    for (QAction* action : actions) {
        if (action->isSeparator() || !action->isEnabled() || !action->isVisible())
            continue;
        if (action->menu())
            collect(action->menu()->actions(), plainTitle(action->text()), commands);
        else
            commands.push_back({plainTitle(action->text()), group,
                                action->shortcut().toString(QKeySequence::NativeText),
                                [action] { action->trigger(); }});
    }
}

/// A text without case and accents.
QString folded(const QString& text) {
    QString plain;
    for (const QChar letter : text.normalized(QString::NormalizationForm_D))
        if (letter.category() != QChar::Mark_NonSpacing)
            plain.append(letter.toCaseFolded());
    return plain;
}

enum CommandRole { GroupRole = Qt::UserRole, KeysRole };

/// A command in one line: its title to the left; its keys, and where it belongs, to the right.
class CommandDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const bool isSelected = option.state.testFlag(QStyle::State_Selected);
        if (isSelected)
            painter->fillRect(option.rect, option.palette.highlight());
        const QColor text = option.palette.color(
            option.state.testFlag(QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled,
            isSelected ? QPalette::HighlightedText : QPalette::Text);
        const QColor quiet = isSelected ? text : theme::quietText(option.palette);
        QRect line = option.rect.adjusted(theme::Spacing, 0, -theme::Spacing, 0);
        for (const int role : {int{KeysRole}, int{GroupRole}}) {
            const QString part = index.data(role).toString();
            if (part.isEmpty())
                continue;
            painter->setPen(quiet);
            painter->drawText(line, Qt::AlignRight | Qt::AlignVCenter, part);
            line.setRight(line.right() - option.fontMetrics.horizontalAdvance(part) -
                          theme::LargeSpacing);
        }
        painter->setPen(text);
        painter->drawText(
            line, Qt::AlignLeft | Qt::AlignVCenter,
            option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, line.width()));
    }

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex&) const override {
        return {option.rect.width(), option.fontMetrics.height() + 2 * theme::SmallSpacing};
    }
};

enum Fit { StartsWithQuery, StartsAWord, Holds, No };

Fit fitOf(const Command& command, const QString& query) {
    const QString title = folded(command.title);
    const QString all = title + ' ' + folded(command.group);
    for (const QString& word : query.split(' ', Qt::SkipEmptyParts))
        if (!all.contains(word))
            return No;
    if (title.startsWith(query))
        return StartsWithQuery;
    return (' ' + title).contains(' ' + query) ? StartsAWord : Holds;
}

} // namespace

Commands menuCommands(const QMainWindow& window) {
    Commands commands;
    for (const QAction* menu : window.menuBar()->actions())
        if (menu->menu())
            collect(menu->menu()->actions(), plainTitle(menu->text()), commands);
    return commands;
}

std::vector<const Command*> matching(const Commands& commands, const QString& query) {
    const QString wanted = folded(query.simplified());
    std::vector<std::pair<Fit, const Command*>> fits;
    for (const Command& command : commands)
        if (const Fit fit = fitOf(command, wanted); fit != No)
            fits.emplace_back(fit, &command);
    std::ranges::stable_sort(fits, {}, [](const auto& fit) { return fit.first; });
    std::vector<const Command*> found;
    for (const auto& [fit, command] : fits)
        found.push_back(command);
    return found;
}

CommandPalette::CommandPalette(Commands commands, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint),
      m_commands(std::move(commands)),
      m_query(new QLineEdit),
      m_list(new QListWidget) {
    setWindowTitle(tr("Search"));
    m_query->setPlaceholderText(tr("An action, a file, an athlete"));
    m_query->setFont(theme::titleFont(*this));
    m_query->installEventFilter(this);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setItemDelegate(new CommandDelegate(m_list));
    auto* column = new QVBoxLayout(theme::floatingFrame(*this));
    column->setContentsMargins(theme::Spacing, theme::Spacing, theme::Spacing, theme::Spacing);
    column->addWidget(m_query);
    column->addWidget(m_list, 1);
    connect(m_query, &QLineEdit::textChanged, this, &CommandPalette::show);
    connect(m_list, &QListWidget::itemClicked, this, &CommandPalette::runCurrent);
    resize(PaletteWidth, PaletteHeight);
    if (parent) {
        const QRect over = parent->window()->frameGeometry();
        move(over.center().x() - PaletteWidth / 2, over.top() + over.height() / 8);
    }
    show(QString());
}

void CommandPalette::show(const QString& query) {
    m_shown = matching(m_commands, query);
    m_shown.resize(std::min(m_shown.size(), MostShown));
    m_list->clear();
    for (const Command* command : m_shown) {
        auto* item = new QListWidgetItem(command->title, m_list);
        item->setData(GroupRole, command->group);
        item->setData(KeysRole, command->keys);
    }
    if (m_shown.empty()) {
        auto* told =
            new QListWidgetItem(tr("Nothing here is called “%1”.").arg(query.simplified()), m_list);
        told->setFlags(Qt::NoItemFlags);
        auto* offered = new QListWidgetItem(
            tr("Searched: actions, recent files and the names in this window."), m_list);
        offered->setFlags(Qt::NoItemFlags);
        return;
    }
    m_list->setCurrentRow(0);
}

bool CommandPalette::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const int last = static_cast<int>(m_shown.size()) - 1;
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Down:
        m_list->setCurrentRow(std::min(m_list->currentRow() + 1, last));
        return true;
    case Qt::Key_Up:
        m_list->setCurrentRow(std::max(m_list->currentRow() - 1, std::min(0, last)));
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        runCurrent();
        return true;
    default:
        return QDialog::eventFilter(watched, event);
    }
}

void CommandPalette::runCurrent() {
    const int row = m_list->currentRow();
    if (row < 0 || m_shown.empty())
        return;
    const auto run = m_shown[static_cast<std::size_t>(row)]->run;
    accept(); // first, so that what the command opens stands in front
    run();
}

} // namespace kavela::desktop
