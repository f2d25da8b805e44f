#include "desktop/find/kept_queries.h"

#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"

#include <QKeyEvent>

namespace kavela::desktop {

namespace {

constexpr const char* KeptKey = "find/kept";
constexpr const char* LastKey = "find/last";
constexpr int MostLast = 12;
constexpr int KeptRole = Qt::UserRole + 1;

} // namespace

KeptQueries::KeptQueries(Workspace& workspace, QWidget* parent)
    : QListWidget(parent), m_workspace(workspace) {
    setObjectName("keptQueries");
    setAccessibleName(tr("Queries"));
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QListWidget::itemActivated, this, [this](const QListWidgetItem* item) {
        if (item->flags().testFlag(Qt::ItemIsSelectable))
            emit asked(item->text());
    });
    showAll();
}

QStringList KeptQueries::kept() const {
    return m_workspace.remembered(KeptKey);
}

QStringList KeptQueries::last() const {
    return m_workspace.remembered(LastKey);
}

QStringList KeptQueries::examples() {
    return {"runs sort total first 20",
            "gates left style duffek sort time",
            "gates up by athlete best time",
            "sections type up by athlete, cat",
            "penalties touch by gate sort count down",
            "losses lost>0.5 sort lost down",
            "strokes by athlete sort mean",
            "best sprint by athlete",
            "tags by tag sort count down"};
}

QString KeptQueries::chosenKept() const {
    const QListWidgetItem* const item = currentItem();
    return item && item->data(KeptRole).toBool() ? item->text() : QString();
}

void KeptQueries::keep(const QString& query) {
    QStringList all = kept();
    if (query.isEmpty() || all.contains(query))
        return;
    all.append(query);
    m_workspace.remember(KeptKey, all);
    showAll();
}

void KeptQueries::giveUp(const QString& query) {
    QStringList all = kept();
    all.removeAll(query);
    m_workspace.remember(KeptKey, all);
    showAll();
}

/// While a query is typed it is asked again and again: one that only goes on takes the place of the
/// one from before.
void KeptQueries::noteAsked(const QString& query) {
    QStringList all = last();
    if (query.isEmpty() || all.value(0) == query)
        return;
    all.removeAll(query);
    if (!all.isEmpty() && query.startsWith(all.front() + ' '))
        all.removeFirst();
    all.prepend(query);
    m_workspace.remember(LastKey, all.mid(0, MostLast));
    showAll();
}

/// The chosen query stays chosen.
void KeptQueries::showAll() {
    const QString chosen = currentItem() ? currentItem()->text() : QString();
    clear();
    addGroup(tr("Kept"), kept(), true);
    addGroup(tr("Asked last"), last(), false);
    addGroup(tr("Examples"), examples(), false);
    for (int row = 0; row < count(); ++row)
        if (!chosen.isEmpty() && item(row)->text() == chosen) {
            setCurrentRow(row);
            return;
        }
}

void KeptQueries::addGroup(const QString& title, const QStringList& queries, bool isKept) {
    if (queries.isEmpty())
        return;
    auto* const head = new QListWidgetItem(title, this);
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    head->setFont(bold);
    head->setFlags(Qt::ItemIsEnabled);
    for (const QString& query : queries) {
        auto* const item = new QListWidgetItem(query, this);
        item->setToolTip(query);
        item->setData(KeptRole, isKept);
    }
}

void KeptQueries::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete && !chosenKept().isEmpty())
        return giveUp(chosenKept());
    QListWidget::keyPressEvent(event);
}

} // namespace kavela::desktop
