#include "desktop/shell/menu_keys.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QSet>
#include <QString>

#include <utility>

namespace kavela::desktop {

namespace {

/// The letter that reaches a text of a menu, small; null for none.
QChar menuKeyOf(const QString& text) {
    const QKeySequence key = QKeySequence::mnemonic(text);
    return key.isEmpty() ? QChar() : QChar(static_cast<int>(key[0].key())).toLower();
}

/// A text without the sign before its letter; a doubled sign stands for itself.
QString withoutMenuKey(const QString& text) {
    QString bare;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != '&')
            bare += text[i];
        else if (i + 1 < text.size() && text[i + 1] == '&') {
            bare += "&&";
            ++i;
        }
    }
    return bare;
}

bool isOnEveryKeyboard(QChar letter) {
    return letter.unicode() < 0x80 && letter.isLetterOrNumber();
}

/// Where a letter stands that is free, before the tabulator behind which a shortcut may be shown;
/// -1 for nowhere.
qsizetype placeOfFreeKey(const QString& bare, const QSet<QChar>& taken) {
    const qsizetype end = bare.contains('\t') ? bare.indexOf('\t') : bare.size();
    for (const bool isInitial : {true, false})
        for (qsizetype i = 0; i < end; ++i)
            if (isOnEveryKeyboard(bare[i]) && !taken.contains(bare[i].toLower()) &&
                (!isInitial || i == 0 || !bare[i - 1].isLetterOrNumber()))
                return i;
    return -1;
}

} // namespace

void partMenuKeys(const QList<QAction*>& actions) {
    QSet<QChar> taken;
    QList<QAction*> later;
    for (QAction* const action : actions) {
        if (action->menu())
            partMenuKeys(action->menu()->actions());
        const QChar key = menuKeyOf(action->text());
        if (key.isNull())
            continue;
        if (taken.contains(key))
            later.append(action);
        taken.insert(key);
    }
    for (QAction* const action : std::as_const(later)) {
        QString text = withoutMenuKey(action->text());
        if (const qsizetype place = placeOfFreeKey(text, taken); place >= 0) {
            taken.insert(text[place].toLower());
            text.insert(place, '&');
        }
        action->setText(text);
    }
}

} // namespace kavela::desktop
