#include "desktop/shell/spoken_names.h"

#include "desktop/shell/focus_edge.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QComboBox>
#include <QCoreApplication>
#include <QDockWidget>
#include <QEvent>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QTabWidget>
#include <QTextDocumentFragment>

#include <optional>

namespace kavela::desktop {

namespace {

constexpr int LongestName = 60; ///< characters; a longer label explains, and names nothing

/// Tables, lists and choices whose neighbours do not tell what they hold, by their object names.
const QHash<QString, const char*>& namesOfParts() {
    static const QHash<QString, const char*> Names{
        {"splitTable", QT_TRANSLATE_NOOP("SpokenNames", "Splits")},
        {"trialSplits", QT_TRANSLATE_NOOP("SpokenNames", "Splits of the time trial")},
        {"trials", QT_TRANSLATE_NOOP("SpokenNames", "Time trials")},
        {"heats", QT_TRANSLATE_NOOP("SpokenNames", "Heats")},
        {"attacks", QT_TRANSLATE_NOOP("SpokenNames", "Attacks")},
        {"attacker", QT_TRANSLATE_NOOP("SpokenNames", "Who attacks")},
        {"attackSide", QT_TRANSLATE_NOOP("SpokenNames", "Side of the attack")},
        {"attackPlace", QT_TRANSLATE_NOOP("SpokenNames", "Place of the attack")},
        {"attackers", QT_TRANSLATE_NOOP("SpokenNames", "Attacks by athlete")},
        {"attackPlaces", QT_TRANSLATE_NOOP("SpokenNames", "Attacks by place")},
        {"marks", QT_TRANSLATE_NOOP("SpokenNames", "Notes of the run")},
        {"runs", QT_TRANSLATE_NOOP("SpokenNames", "Runs")},
        {"athletes", QT_TRANSLATE_NOOP("SpokenNames", "Athletes")},
        {"seasons", QT_TRANSLATE_NOOP("SpokenNames", "Results by season")},
        {"averages", QT_TRANSLATE_NOOP("SpokenNames", "Averages")},
        {"ranking", QT_TRANSLATE_NOOP("SpokenNames", "Ranking")},
        {"rates", QT_TRANSLATE_NOOP("SpokenNames", "Touches by gate")},
        {"details", QT_TRANSLATE_NOOP("SpokenNames", "What was noted of penalties")},
        {"costs", QT_TRANSLATE_NOOP("SpokenNames", "What penalties cost")},
        {"thirds", QT_TRANSLATE_NOOP("SpokenNames", "Risk and speed by thirds")},
        {"stretches", QT_TRANSLATE_NOOP("SpokenNames", "Losses by section")},
        {"tests", QT_TRANSLATE_NOOP("SpokenNames", "Tests")},
        {"goals", QT_TRANSLATE_NOOP("SpokenNames", "Goals")},
        {"body", QT_TRANSLATE_NOOP("SpokenNames", "Measures of the body")},
        {"exercises", QT_TRANSLATE_NOOP("SpokenNames", "Exercises")},
        {"intervals", QT_TRANSLATE_NOOP("SpokenNames", "Intervals")},
        {"comparedFilms", QT_TRANSLATE_NOOP("SpokenNames", "Films compared")},
        {"candidates", QT_TRANSLATE_NOOP("SpokenNames", "Films to choose from")},
        {"filmList", QT_TRANSLATE_NOOP("SpokenNames", "Films")},
        {"films", QT_TRANSLATE_NOOP("SpokenNames", "Films")},
        {"files", QT_TRANSLATE_NOOP("SpokenNames", "Files")},
        {"namingPattern", QT_TRANSLATE_NOOP("SpokenNames", "Pattern of the names")},
        {"plannedNames", QT_TRANSLATE_NOOP("SpokenNames", "Names now and then")},
        {"renderJobs", QT_TRANSLATE_NOOP("SpokenNames", "Films being composed")},
        {"recentFiles", QT_TRANSLATE_NOOP("SpokenNames", "Recent files")},
        {"keptWork", QT_TRANSLATE_NOOP("SpokenNames", "Work kept")},
    };
    return Names;
}

/// Without marks of keys and of fields; empty for what is too long to be a name.
QString asName(QString text) {
    if (Qt::mightBeRichText(text))
        text = QTextDocumentFragment::fromHtml(text).toPlainText();
    text = text.remove(u'&').remove("[*]").section(u'\n', 0, 0).trimmed();
    while (text.endsWith(u':') || text.endsWith(u'…'))
        text.chop(1);
    return text.size() > LongestName ? QString() : text;
}

/// The label that stands right before a widget in a layout or one within it; nothing where the
/// widget is not in there.
std::optional<QString> labelBefore(QLayout& layout, const QWidget& widget) {
    for (int i = 0; i < layout.count(); ++i) {
        const QLayoutItem& item = *layout.itemAt(i);
        if (layout.itemAt(i)->widget() == &widget) {
            const auto* const label =
                i > 0 ? qobject_cast<const QLabel*>(layout.itemAt(i - 1)->widget()) : nullptr;
            return label && !label->isHidden() ? asName(label->text()) : QString();
        }
        if (QLayout* const inner = const_cast<QLayoutItem&>(item).layout())
            if (const auto found = labelBefore(*inner, widget))
                return found;
    }
    return std::nullopt;
}

QString titleOver(const QWidget& widget) {
    const QWidget* const parent = widget.parentWidget();
    if (const auto* const group = qobject_cast<const QGroupBox*>(&widget))
        return asName(group->title());
    if (const auto* const dock = qobject_cast<const QDockWidget*>(&widget))
        return asName(dock->windowTitle());
    if (const QWidget* const above = parent ? parent->parentWidget() : nullptr)
        if (const auto* const tabs = qobject_cast<const QTabWidget*>(above))
            if (const int page = tabs->indexOf(const_cast<QWidget*>(&widget)); page >= 0)
                return asName(tabs->tabText(page));
    if (parent && parent->layout())
        return labelBefore(*parent->layout(), widget).value_or(QString());
    return {};
}

QString askedFor(const QWidget& widget) {
    if (const auto* const line = qobject_cast<const QLineEdit*>(&widget))
        return asName(line->placeholderText());
    if (const auto* const box = qobject_cast<const QComboBox*>(&widget))
        return asName(box->placeholderText());
    return {};
}

void giveName(QWidget& widget) {
    if (widget.focusPolicy() == Qt::NoFocus || !widget.accessibleName().isEmpty())
        return;
    QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(&widget);
    if (spoken && spoken->text(QAccessible::Name).isEmpty())
        widget.setAccessibleName(nameFromAround(widget));
}

/// Of our own widgets, those that the keyboard goes to: the toolkit knows no more of them than that
/// they are there. What it has classes for is left to it.
QAccessibleInterface* paintedInterface(const QString& className, QObject* object) {
    if (!className.startsWith("kavela::") || !object->isWidgetType())
        return nullptr;
    auto* const widget = static_cast<QWidget*>(object);
    if (widget->focusPolicy() == Qt::NoFocus)
        return nullptr;
    if (isPainted(*widget))
        return new QAccessibleWidget(widget, className.contains("Chart") ? QAccessible::Chart
                                                                         : QAccessible::Graphic);
    const bool isGroup = widget->layout() && !widget->isWindow() &&
                         widget->metaObject()->superClass() == &QWidget::staticMetaObject;
    return isGroup ? new QAccessibleWidget(widget, QAccessible::Grouping) : nullptr;
}

} // namespace

QString nameFromAround(const QWidget& widget) {
    if (const char* const name = namesOfParts().value(widget.objectName()))
        return QCoreApplication::translate("SpokenNames", name);
    if (const QString asked = askedFor(widget); !asked.isEmpty())
        return asked;
    for (const QWidget* at = &widget; at && !at->isWindow(); at = at->parentWidget())
        if (const QString title = titleOver(*at); !title.isEmpty())
            return title;
    const QString tip = asName(widget.toolTip());
    const QString window = widget.window()->windowTitle().remove("[*]");
    if (tip.isEmpty() && window.isEmpty()) // which waits for its file
        return QStringLiteral("Kavela");
    return tip.isEmpty() ? window : tip;
}

SpokenNames::SpokenNames(QObject* parent) : QObject(parent) {
    QAccessible::installFactory(paintedInterface);
    QAccessible::installActivationObserver(this);
    if (QAccessible::isActive())
        accessibilityActiveChanged(true);
}

SpokenNames::~SpokenNames() {
    QAccessible::removeActivationObserver(this);
    QAccessible::removeFactory(paintedInterface);
}

void SpokenNames::accessibilityActiveChanged(bool active) {
    qApp->removeEventFilter(this);
    if (!active)
        return;
    qApp->installEventFilter(this);
    for (QWidget* const widget : QApplication::allWidgets())
        if (widget->isVisible())
            giveName(*widget);
}

/// Once it is shown, what stands around it is there.
bool SpokenNames::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show && watched->isWidgetType())
        giveName(static_cast<QWidget&>(*watched));
    return QObject::eventFilter(watched, event);
}

} // namespace kavela::desktop
