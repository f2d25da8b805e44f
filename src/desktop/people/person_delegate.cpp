#include "desktop/people/person_delegate.h"

#include "desktop/people/found_lines.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int ArrowWidth = theme::LargeSpacing;

/// Arrows and letters only look through the choices; Enter, leaving the cell, or a choice from the
/// open list means one.
class PeopleCombo : public QComboBox {
public:
    using QComboBox::QComboBox;

    [[nodiscard]] bool isBrowsing() const { return m_isBrowsing; }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        m_isBrowsing = true;
        QComboBox::keyPressEvent(event);
        m_isBrowsing = false;
    }

private:
    bool m_isBrowsing = false;
};

} // namespace

PersonDelegate::PersonDelegate(const FoundLines& lines, ColumnTable& table)
    : QStyledItemDelegate(&table), m_lines(lines), m_table(table) {}

/// An arrow tells which cells hold a choice.
void PersonDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
    QStyledItemDelegate::paint(painter, option, index);
    if (!index.flags().testFlag(Qt::ItemIsEditable))
        return;
    QStyleOptionViewItem arrow = option;
    arrow.rect = QRect(option.rect.right() - ArrowWidth, option.rect.center().y() - ArrowWidth / 4,
                       ArrowWidth / 2, ArrowWidth / 2);
    const QStyle* const style = option.widget ? option.widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, painter, option.widget);
}

QSize PersonDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(ArrowWidth + theme::Spacing, 0);
}

QWidget* PersonDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                      const QModelIndex& index) const {
    const int line = m_table.placeAt(index);
    auto* const combo = new PeopleCombo(parent);
    combo->setObjectName("whose");
    for (const Belonging& whose : m_lines.choicesFor(line))
        combo->addItem(m_lines.choiceText(line, whose));
    connect(combo, &QComboBox::activated, this, [this, combo] {
        if (combo->isBrowsing())
            return;
        auto* const self = const_cast<PersonDelegate*>(this);
        emit self->commitData(combo);
        emit self->closeEditor(combo);
    });
    return combo;
}

void PersonDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    const int line = m_table.placeAt(index);
    const auto choices = m_lines.choicesFor(line);
    const auto found = std::ranges::find(choices, m_lines.row(line).whose);
    if (auto* const combo = qobject_cast<QComboBox*>(editor); combo && found != choices.end())
        combo->setCurrentIndex(static_cast<int>(found - choices.begin()));
}

void PersonDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                  const QModelIndex& index) const {
    if (const auto* const combo = qobject_cast<QComboBox*>(editor))
        model->setData(index, combo->currentIndex());
}

} // namespace kavela::desktop
