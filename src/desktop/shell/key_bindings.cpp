#include "desktop/shell/key_bindings.h"

#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"

#include <QAction>
#include <QFormLayout>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>

#include <algorithm>

namespace kavela::desktop {

namespace {

QString plainTitle(QString text) {
    return text.remove('&').remove(u'…');
}

void collect(const QMenu& menu, const QString& path, std::vector<KeyBinding>& bindings) {
    for (QAction* action : menu.actions()) {
        if (action->menu())
            collect(*action->menu(), path, bindings);
        else if (!action->isSeparator() && !action->text().isEmpty())
            bindings.push_back(
                {action, path + '/' + plainTitle(action->text()), action->shortcuts()});
    }
}

/// One remembered line: the action's name, then its key.
QString lineOf(const KeyBinding& binding) {
    return binding.name + '\t' + binding.action->shortcut().toString(QKeySequence::PortableText);
}

} // namespace

std::vector<KeyBinding> applyKeyBindings(QMainWindow& window, const Workspace& workspace,
                                         const QString& kind) {
    std::vector<KeyBinding> bindings;
    for (const QAction* menu : window.menuBar()->actions())
        if (menu->menu())
            collect(*menu->menu(), plainTitle(menu->text()), bindings);
    for (const QString& line : workspace.remembered("keys/" + kind)) {
        const QString name = line.section('\t', 0, 0);
        const auto found = std::ranges::find(bindings, name, &KeyBinding::name);
        if (found != bindings.end())
            found->action->setShortcut(
                QKeySequence::fromString(line.section('\t', 1), QKeySequence::PortableText));
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
    auto* list = new QWidget;
    auto* form = new QFormLayout(list);
    form->setVerticalSpacing(theme::SmallSpacing);
    for (std::size_t i = 0; i < m_bindings.size(); ++i) {
        auto* edit = new QKeySequenceEdit(m_bindings[i].action->shortcut());
        edit->setClearButtonEnabled(true);
        form->addRow(QString(m_bindings[i].name).replace("/", "  ›  "), edit);
        m_edits.push_back(edit);
        connect(edit, &QKeySequenceEdit::editingFinished, this,
                [this, i, edit] { change(i, *edit); });
    }
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
    column->addWidget(area, 1);
    column->addLayout(buttons);
    resize(560, 560);
}

QString KeyEditor::setKey(std::size_t binding, const QKeySequence& key) {
    for (std::size_t i = 0; i < m_bindings.size(); ++i)
        if (i != binding && !key.isEmpty() && m_bindings[i].action->shortcuts().contains(key))
            return m_bindings[i].name;
    m_bindings[binding].action->setShortcut(key);
    remember();
    return {};
}

void KeyEditor::change(std::size_t binding, QKeySequenceEdit& edit) {
    // One key, not a sequence of several.
    const QKeySequence key =
        edit.keySequence().isEmpty() ? QKeySequence() : QKeySequence(edit.keySequence()[0]);
    const QString taken = setKey(binding, key);
    edit.setKeySequence(m_bindings[binding].action->shortcut());
    if (!taken.isEmpty())
        m_workspace.showAlert({"", tr("%1 is the key of \"%2\" already.")
                                       .arg(key.toString(QKeySequence::NativeText), taken)
                                       .toStdString()},
                              this);
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
