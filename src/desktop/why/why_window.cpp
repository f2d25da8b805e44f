#include "desktop/why/why_window.h"

#include "common/text.h"
#include "common/why_text.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

enum TreeColumn { WhatColumn, ValueColumn, WhereColumn, TreeColumns };

constexpr int PlaceRole = Qt::UserRole; ///< its number among the places
constexpr int Width = 640;
constexpr int MostRows = 12; ///< in view without scrolling

QLabel* textLabel(const QString& text, const char* name) {
    auto* label = new QLabel(text);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

/// Above the tree: what has no place and no value of its own.
QString facts(const Reason& reason) {
    QStringList lines;
    if (reason.rule)
        lines.append(WhyWindow::tr("Rule: %1").arg(qtText(translated(reason.rule->formula))));
    if (const QString rounding = qtText(roundingText(reason)); !rounding.isEmpty())
        lines.append(shownNumbers(rounding));
    if (const QString range = qtText(uncertaintyText(reason)); !range.isEmpty())
        lines.append(WhyWindow::tr("Within %1").arg(shownNumbers(range)));
    if (reason.rule && !reason.rule->source.empty())
        lines.append(WhyWindow::tr("Source: %1").arg(qtText(translated(reason.rule->source))));
    for (const std::string& note : reason.notes)
        lines.append(qtText(translated(note)));
    return lines.join('\n');
}

} // namespace

WhyWindow::WhyWindow(const Reason& reason, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), m_reason(reason) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName("why");
    setWindowTitle(tr("Why this number?"));
    auto* column = new QVBoxLayout(theme::floatingFrame(*this));
    column->setSpacing(theme::Spacing);
    addHead(*column);
    addTree(*column);
    addButtons(*column);
    setFixedWidth(grown(*this, Width));
    connect(new QShortcut(QKeySequence::Copy, this), &QShortcut::activated, this, &WhyWindow::copy);
    m_tree->setFocus();
}

void WhyWindow::addHead(QVBoxLayout& column) {
    auto* shown = textLabel(shownNumbers(qtText(m_reason.shown)), "shown");
    shown->setFont(theme::titleFont(*this));
    shown->setVisible(!m_reason.shown.empty());
    const QString sentence =
        m_reason.rule ? qtText(translated(m_reason.rule->sentence)) : QString();
    column.addWidget(shown);
    column.addWidget(textLabel(sentence, "sentence"));
    auto* more = textLabel(facts(m_reason), "facts");
    more->setForegroundRole(QPalette::PlaceholderText);
    more->setVisible(!more->text().isEmpty());
    column.addWidget(more);
    setAccessibleName(tr("Why %1").arg(shown->text()));
    setAccessibleDescription(QStringList{sentence, more->text()}.join('\n'));
}

void WhyWindow::addTree(QVBoxLayout& column) {
    m_tree = new QTreeWidget;
    m_tree->setObjectName("inputs");
    m_tree->setAccessibleName(tr("What went into it"));
    m_tree->setAccessibleDescription(
        tr("Enter opens a number made on the way, and shows the place of a value"));
    m_tree->setColumnCount(TreeColumns);
    m_tree->setHeaderLabels({tr("From"), tr("Value"), tr("Where")});
    m_tree->headerItem()->setTextAlignment(ValueColumn, Qt::AlignRight | Qt::AlignVCenter);
    m_tree->setFrameShape(QFrame::NoFrame);
    m_tree->setUniformRowHeights(true);
    m_tree->setExpandsOnDoubleClick(false); // activating does it, which Enter can as well
    m_tree->setTextElideMode(Qt::ElideMiddle);
    m_tree->header()->setSectionResizeMode(WhatColumn, QHeaderView::Stretch);
    m_tree->header()->setSectionResizeMode(ValueColumn, QHeaderView::ResizeToContents);
    m_tree->header()->setSectionResizeMode(WhereColumn, QHeaderView::ResizeToContents);
    m_tree->header()->setStretchLastSection(false);
    for (const Input& input : m_reason.inputs)
        addInput(input, *m_tree->invisibleRootItem());
    for (const Reason& part : m_reason.parts)
        addPart(part, *m_tree->invisibleRootItem());
    m_tree->setCurrentItem(m_tree->topLevelItem(0));
    m_tree->setVisible(m_tree->topLevelItemCount() > 0);
    column.addWidget(m_tree);
    connect(m_tree, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        if (item->childCount() > 0)
            item->setExpanded(!item->isExpanded());
        else
            activate(*item);
    });
    connect(m_tree, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item, int at) {
        if (at == WhereColumn)
            activate(*item);
    });
    connect(m_tree, &QTreeWidget::itemExpanded, this, &WhyWindow::fitTree);
    connect(m_tree, &QTreeWidget::itemCollapsed, this, &WhyWindow::fitTree);
    fitTree();
}

void WhyWindow::addInput(const Input& input, QTreeWidgetItem& under) {
    auto* item = new QTreeWidgetItem(&under);
    item->setText(WhatColumn, qtText(translated(input.name)));
    item->setToolTip(WhatColumn, item->text(WhatColumn));
    const QString within = shownNumbers(qtText(plusMinusText(input)));
    item->setText(ValueColumn,
                  shownNumbers(qtText(inputText(input))) +
                      (within.isEmpty() ? QString() : ' ' + within.section(" (", 0, 0)));
    item->setToolTip(ValueColumn, within);
    item->setTextAlignment(ValueColumn, Qt::AlignRight | Qt::AlignVCenter);
    // A line of what was copied is shown by the window that has it.
    if (!input.place || (input.place->file.empty() && !input.place->line))
        return;
    item->setText(WhereColumn, qtText(placeText(*input.place)));
    item->setToolTip(WhereColumn, tr("Show this place (Enter)"));
    item->setData(WhereColumn, Qt::AccessibleTextRole, tr("%1, link").arg(item->text(WhereColumn)));
    item->setForeground(WhereColumn, palette().color(QPalette::Link));
    QFont link = font();
    link.setUnderline(true);
    item->setFont(WhereColumn, link);
    item->setData(WhatColumn, PlaceRole, static_cast<int>(m_places.size()));
    m_places.push_back(*input.place);
}

void WhyWindow::addPart(const Reason& part, QTreeWidgetItem& under) {
    auto* item = new QTreeWidgetItem(&under);
    item->setText(WhatColumn, part.rule ? qtText(translated(part.rule->sentence)) : QString());
    item->setToolTip(WhatColumn, item->text(WhatColumn));
    item->setText(ValueColumn, shownNumbers(qtText(part.shown)));
    item->setTextAlignment(ValueColumn, Qt::AlignRight | Qt::AlignVCenter);
    for (const QString& fact : facts(part).split('\n', Qt::SkipEmptyParts)) {
        auto* line = new QTreeWidgetItem(item, {fact});
        line->setFirstColumnSpanned(true);
        line->setForeground(WhatColumn, theme::quietText(palette()));
        line->setToolTip(WhatColumn, fact);
    }
    for (const Input& input : part.inputs)
        addInput(input, *item);
    for (const Reason& inner : part.parts)
        addPart(inner, *item);
}

/// As high as its rows, which it scrolls where there are many.
void WhyWindow::fitTree() {
    int rows = 0;
    for (QTreeWidgetItem* item = m_tree->topLevelItem(0); item; item = m_tree->itemBelow(item))
        ++rows;
    const int row = std::max(m_tree->sizeHintForRow(0), fontMetrics().height());
    const int head = m_tree->header()->sizeHint().height();
    m_tree->setFixedHeight(head + row * std::min(rows, MostRows) + theme::SmallSpacing);
    adjustSize();
}

void WhyWindow::addButtons(QVBoxLayout& column) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    auto* copyButton = buttons->addButton(tr("&Copy as text"), QDialogButtonBox::ActionRole);
    copyButton->setObjectName("copy");
    copyButton->setToolTip(
        tr("The whole explanation (%1)")
            .arg(QKeySequence(QKeySequence::Copy).toString(QKeySequence::NativeText)));
    // Enter belongs to the places.
    for (QPushButton* const button : buttons->findChildren<QPushButton*>())
        button->setAutoDefault(false);
    connect(copyButton, &QPushButton::clicked, this, &WhyWindow::copy);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column.addWidget(buttons);
}

void WhyWindow::activate(const QTreeWidgetItem& item) {
    const QVariant place = item.data(WhatColumn, PlaceRole);
    if (!place.isValid())
        return;
    const Place wanted = m_places[static_cast<std::size_t>(place.toInt())];
    close();
    emit placeActivated(wanted);
}

QString WhyWindow::text() const {
    return qtText(whyText(m_reason));
}

void WhyWindow::copy() const {
    QApplication::clipboard()->setText(text());
}

/// What is asked about another number, or done elsewhere, is not under it.
bool WhyWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowDeactivate && isVisible())
        close();
    return QDialog::event(event);
}

} // namespace kavela::desktop
