#include "desktop/shell/key_bindings.h"

#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"

#include <QAction>
#include <QFormLayout>
#include <QKeyEvent>
#include <QKeySequenceEdit>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>

#include <algorithm>

namespace kavela::desktop {

namespace {

QString bindingTitle(QString text) {
    return text.remove('&').remove(u'…');
}

void collect(const QMenu& menu, const QString& path, std::vector<KeyBinding>& bindings) {
    for (QAction* action : menu.actions()) {
        if (action->menu())
            collect(*action->menu(), path, bindings);
        else if (!action->isSeparator() && !action->text().isEmpty())
            bindings.push_back(
                {action, path + '/' + bindingTitle(action->text()), action->shortcuts()});
    }
}

/// One remembered line: the action's name, then its keys.
QString lineOf(const KeyBinding& binding) {
    QStringList parts{binding.name};
    for (const QKeySequence& key : binding.action->shortcuts())
        parts.append(key.toString(QKeySequence::PortableText));
    return parts.join('\t');
}

QList<QKeySequence> keysOf(const QString& line) {
    QList<QKeySequence> keys;
    for (const QString& text : line.split('\t').mid(1))
        if (!text.isEmpty())
            keys.append(QKeySequence::fromString(text, QKeySequence::PortableText));
    return keys;
}

/// Takes the next key as the one that is wanted. Esc, and a second Tab, are no such key: Esc
/// leaves the dialog as it leaves every other.
class KeyField : public QKeySequenceEdit {
public:
    using QKeySequenceEdit::QKeySequenceEdit;

    bool event(QEvent* event) override {
        const bool isKey =
            event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
        if (isKey && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel)) {
            event->ignore();
            return false;
        }
        return QKeySequenceEdit::event(event);
    }
};

} // namespace

std::vector<KeyBinding> applyKeyBindings(QMainWindow& window, const Workspace& workspace,
                                         const QString& kind) {
    std::vector<KeyBinding> bindings;
    for (const QAction* menu : window.menuBar()->actions())
        if (menu->menu())
            collect(*menu->menu(), bindingTitle(menu->text()), bindings);
    for (const QString& line : workspace.remembered("keys/" + kind)) {
        const QString name = line.section('\t', 0, 0);
        const auto found = std::ranges::find(bindings, name, &KeyBinding::name);
        if (found != bindings.end())
            found->action->setShortcuts(keysOf(line));
    }
    return bindings;
}

KeyEditor::KeyEditor(std::vector<KeyBinding> bindings, Workspace& workspace, QString kind,
                     QWidget* parent)
    : QDialog(parent),
      m_bindings(std::move(bindings)),
      m_workspace(workspace),
      m_kind(std::move(kind)) {
    setWindowTitle(tr("Keys"));
    auto* find = new QLineEdit; // has the focus first: no field of a key listens unasked
    find->setObjectName("findAction");
    find->setPlaceholderText(tr("Find an action"));
    find->setClearButtonEnabled(true);
    auto* list = new QWidget;
    auto* form = new QFormLayout(list);
    form->setVerticalSpacing(theme::SmallSpacing);
    for (std::size_t i = 0; i < m_bindings.size(); ++i) {
        auto* edit = new KeyField(m_bindings[i].action->shortcut());
        edit->setClearButtonEnabled(true);
        form->addRow(QString(m_bindings[i].name).replace("/", "  ›  "), edit);
        m_edits.push_back(edit);
        connect(edit, &QKeySequenceEdit::editingFinished, this,
                [this, i, edit] { change(i, *edit); });
    }
    connect(find, &QLineEdit::textChanged, this, [this, form](const QString& text) {
        for (std::size_t i = 0; i < m_edits.size(); ++i)
            form->setRowVisible(m_edits[i], m_bindings[i].name.contains(text, Qt::CaseInsensitive));
    });
    auto* area = new QScrollArea;
    area->setWidget(list);
    area->setWidgetResizable(true);
    auto* standard = new QPushButton(tr("Standard keys"));
    auto* close = new QPushButton(tr("Close"));
    for (QPushButton* button : {standard, close})
        button->setAutoDefault(false); // Enter is a key to be chosen
    connect(standard, &QPushButton::clicked, this, &KeyEditor::restoreStandard);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(standard);
    buttons->addStretch(1);
    buttons->addWidget(close);
    auto* column = new QVBoxLayout(this);
    column->addWidget(find);
    column->addWidget(area, 1);
    column->addLayout(buttons);
    find->setFocus();
    resize(560, 560);
}

/// A field that goes with the cursor in it ends its editing once more.
KeyEditor::~KeyEditor() {
    for (QKeySequenceEdit* const edit : m_edits)
        edit->disconnect(this);
}

std::optional<std::size_t> KeyEditor::ownerOf(const QKeySequence& key, std::size_t but) const {
    for (std::size_t i = 0; i < m_bindings.size(); ++i)
        if (i != but && !key.isEmpty() && m_bindings[i].action->shortcuts().contains(key))
            return i;
    return std::nullopt;
}

QString KeyEditor::setKey(std::size_t binding, const QKeySequence& key) {
    if (const auto owner = ownerOf(key, binding))
        return m_bindings[*owner].name;
    m_bindings[binding].action->setShortcut(key);
    remember();
    return {};
}

void KeyEditor::takeKey(std::size_t binding, const QKeySequence& key) {
    while (const auto owner = ownerOf(key, binding)) {
        QAction& action = *m_bindings[*owner].action;
        QList<QKeySequence> left = action.shortcuts();
        left.removeAll(key);
        action.setShortcuts(left);
        m_edits[*owner]->setKeySequence(action.shortcut());
    }
    (void)setKey(binding, key); // free by now
}

void KeyEditor::change(std::size_t binding, QKeySequenceEdit& edit) {
    // One key, not a sequence of several.
    const QKeySequence key =
        edit.keySequence().isEmpty() ? QKeySequence() : QKeySequence(edit.keySequence()[0]);
    if (m_bindings[binding].action->shortcuts().contains(key)) {
        edit.setKeySequence(m_bindings[binding].action->shortcut());
        return; // left as it was
    }
    const QString owner = setKey(binding, key);
    const QString name = m_bindings[binding].name.section('/', -1);
    if (!owner.isEmpty() &&
        m_workspace.ask(
            {"", tr("%1 is the key of “%2” already. “%3” can take it over; “%2” has it "
                    "no longer then.")
                     .arg(key.toString(QKeySequence::NativeText), owner.section('/', -1), name)
                     .toStdString()},
            tr("Take it over"), this))
        takeKey(binding, key);
    edit.setKeySequence(m_bindings[binding].action->shortcut());
}

void KeyEditor::restoreStandard() {
    for (std::size_t i = 0; i < m_bindings.size(); ++i) {
        m_bindings[i].action->setShortcuts(m_bindings[i].standard);
        m_edits[i]->setKeySequence(m_bindings[i].action->shortcut());
    }
    remember();
}

/// Only what differs, so that a later release may give other actions better keys.
void KeyEditor::remember() {
    QStringList lines;
    for (const KeyBinding& binding : m_bindings)
        if (binding.action->shortcuts() != binding.standard)
            lines.append(lineOf(binding));
    m_workspace.remember("keys/" + m_kind, lines);
}

} // namespace kavela::desktop
