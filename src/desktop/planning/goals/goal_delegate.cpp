#include "desktop/planning/goals/goal_delegate.h"

#include "desktop/shell/theme.h"
#include "planning/season_goals.h"

#include <QApplication>
#include <QComboBox>
#include <QPainter>
#include <QPainterPath>

namespace kavela::desktop {

namespace {

constexpr int SubgoalIndent = 18;
constexpr int BarWidth = 88;
constexpr int BarHeight = 6;

GoalPlace::Kind kindOf(const QModelIndex& index) {
    return static_cast<GoalPlace::Kind>(
        index.siblingAtColumn(GoalTextColumn).data(GoalKindRole).toInt());
}

bool isStatus(const QModelIndex& index) {
    return index.column() == GoalStatusColumn && kindOf(index) == GoalPlace::Kind::Subgoal;
}

bool isProgress(const QModelIndex& index) {
    return index.column() == GoalStatusColumn && kindOf(index) == GoalPlace::Kind::Group;
}

QRectF signPlace(const QRect& rect, const QFontMetrics& metrics) {
    const int side = metrics.capHeight() + 2;
    return {double(rect.left() + theme::SmallSpacing), rect.center().y() - side / 2.0 + 0.5,
            double(side), double(side)};
}

void paintTick(QPainter& painter, const QRectF& circle, const QColor& colour) {
    const double side = circle.width();
    QPainterPath tick(circle.topLeft() + QPointF(0.25, 0.52) * side);
    tick.lineTo(circle.topLeft() + QPointF(0.44, 0.7) * side);
    tick.lineTo(circle.topLeft() + QPointF(0.77, 0.32) * side);
    painter.setPen(QPen(colour, 1.6, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(tick);
}

/// A circle: open, half full, full with a tick, struck through.
void paintSign(QPainter& painter, const QRectF& circle, int status, const QColor& ink,
               const QColor& ground) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, 1.4));
    painter.setBrush(status == 2 ? QBrush(ink) : QBrush(Qt::NoBrush));
    painter.drawEllipse(circle);
    if (status == 1) {
        painter.setBrush(ink);
        painter.setPen(Qt::NoPen);
        painter.drawPie(circle, 180 * 16, 180 * 16);
    } else if (status == 2) {
        paintTick(painter, circle, ground);
    } else if (status == 3) {
        painter.drawLine(circle.bottomLeft(), circle.topRight());
    }
    painter.restore();
}

void paintBar(QPainter& painter, const QRect& rect, double share, const QPalette& palette,
              bool isChosen) {
    const QRectF bar(rect.left() + theme::SmallSpacing, rect.center().y() - BarHeight / 2.0 + 0.5,
                     BarWidth, BarHeight);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme::hairline(palette));
    painter.drawRoundedRect(bar, BarHeight / 2.0, BarHeight / 2.0);
    if (share > 0) {
        QRectF full = bar;
        full.setWidth(std::max(bar.width() * share, bar.height()));
        painter.setBrush(isChosen ? palette.color(QPalette::HighlightedText)
                                  : palette.color(QPalette::Highlight));
        painter.drawRoundedRect(full, BarHeight / 2.0, BarHeight / 2.0);
    }
    painter.restore();
}

bool isSelected(const QStyleOptionViewItem& option) {
    return option.state.testFlag(QStyle::State_Selected);
}

/// Gives the width that the bar takes in front of the figures.
int paintProgress(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
    const int count = index.data(GoalCountRole).toInt();
    if (count == 0)
        return 0;
    const double share = index.data(GoalReachedRole).toDouble() / count;
    paintBar(painter, option.rect, share, option.palette, isSelected(option));
    return BarWidth + theme::Spacing;
}

/// Gives the width that the sign takes in front of the word.
int paintStatus(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                const QColor& ink) {
    const QRectF circle = signPlace(option.rect, option.fontMetrics);
    const int status = goalStatus(index.data().toString().toStdString());
    const QColor accent = option.palette.color(QPalette::Highlight);
    const QColor ground = option.palette.color(QPalette::Base);
    if (status >= 0)
        paintSign(painter, circle, status, status == 2 && !isSelected(option) ? accent : ink,
                  isSelected(option) ? accent : ground);
    return static_cast<int>(circle.width()) + theme::Spacing;
}

} // namespace

void GoalDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const GoalPlace::Kind kind = kindOf(index);
    if (index.column() == GoalTextColumn) {
        option->font.setBold(kind != GoalPlace::Kind::Subgoal);
        if (kind == GoalPlace::Kind::Group)
            option->font.setPointSizeF(option->font.pointSizeF() * 1.1);
    }
    if (option->text.isEmpty()) {
        option->text = index.data(GoalHintRole).toString();
        option->palette.setColor(QPalette::Text, theme::quietText(option->palette));
    }
    option->fontMetrics = QFontMetrics(option->font);
}

void GoalDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    QStyleOptionViewItem shown = option;
    initStyleOption(&shown, index);
    const QString text = std::exchange(shown.text, QString());
    const QStyle* const style = option.widget ? option.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &shown, painter, option.widget);
    const QColor ink =
        shown.palette.color(isSelected(shown) ? QPalette::HighlightedText : QPalette::Text);
    QRect rest = shown.rect.adjusted(theme::SmallSpacing, 0, -theme::SmallSpacing, 0);
    if (isProgress(index))
        rest.setLeft(rest.left() + paintProgress(*painter, shown, index));
    else if (isStatus(index))
        rest.setLeft(rest.left() + paintStatus(*painter, shown, index, ink));
    else if (kindOf(index) == GoalPlace::Kind::Subgoal)
        rest.setLeft(rest.left() + SubgoalIndent);
    painter->save();
    painter->setFont(shown.font);
    painter->setPen(ink);
    painter->drawText(rest, Qt::AlignVCenter | Qt::AlignLeft,
                      shown.fontMetrics.elidedText(text, Qt::ElideRight, rest.width()));
    painter->restore();
}

QSize GoalDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    const bool isGroup = kindOf(index) == GoalPlace::Kind::Group;
    size.setHeight(option.fontMetrics.height() + (isGroup ? 2 * theme::Spacing : theme::Spacing));
    return size;
}

QWidget* GoalDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const {
    if (index.column() == GoalTextColumn)
        return QStyledItemDelegate::createEditor(parent, option, index);
    if (!isStatus(index))
        return nullptr;
    auto* const box = new QComboBox(parent);
    for (const std::string_view status : GoalStatuses)
        box->addItem(QString::fromUtf8(status.data(), static_cast<qsizetype>(status.size())));
    auto* const self = const_cast<GoalDelegate*>(this);
    connect(box, &QComboBox::activated, self, [self, box] {
        emit self->commitData(box);
        emit self->closeEditor(box);
    });
    return box;
}

/// A word of the file that is none of the usual ones stays to choose.
void GoalDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    auto* const box = qobject_cast<QComboBox*>(editor);
    if (!box)
        return QStyledItemDelegate::setEditorData(editor, index);
    const QString status = index.data().toString();
    const int usual = box->findText(status);
    if (usual < 0 && !status.isEmpty())
        box->insertItem(0, status);
    box->setCurrentIndex(usual < 0 ? (status.isEmpty() ? -1 : 0) : usual);
}

void GoalDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                const QModelIndex& index) const {
    if (const auto* const box = qobject_cast<QComboBox*>(editor)) {
        if (box->currentIndex() >= 0)
            model->setData(index, box->currentText());
    } else {
        QStyledItemDelegate::setModelData(editor, model, index);
    }
}

void GoalDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const {
    editor->setGeometry(option.rect);
    if (index.column() == GoalTextColumn && kindOf(index) == GoalPlace::Kind::Subgoal)
        editor->setGeometry(option.rect.adjusted(SubgoalIndent, 0, 0, 0));
}

} // namespace kavela::desktop
