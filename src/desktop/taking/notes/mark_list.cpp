#include "desktop/taking/notes/mark_list.h"

#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"

#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QSignalBlocker>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

QString titleOf(MarkKind kind) {
    switch (kind) {
    case MarkKind::Start:
        return MarkList::tr("Start");
    case MarkKind::Split:
        return MarkList::tr("Splits");
    case MarkKind::MicroSplit:
        return MarkList::tr("Micro splits");
    case MarkKind::Upstream:
        return MarkList::tr("Upstream gates");
    case MarkKind::Stroke:
        return MarkList::tr("Strokes");
    case MarkKind::TimeLoss:
        return MarkList::tr("Time losses");
    case MarkKind::Tag:
        break;
    }
    return MarkList::tr("Tags");
}

QString filmText(const FilmOfRun& film) {
    switch (film.kind) {
    case FilmKind::Own:
        return film.number == 0 ? QString() : MarkList::tr(" · camera %1").arg(film.number + 1);
    case FilmKind::Fixed:
        return MarkList::tr(" · fixed camera %1").arg(film.number + 1);
    case FilmKind::Versus:
        break;
    }
    return MarkList::tr(" · other run");
}

/// Where a mark lies on another film than the run's own, by that film's clock.
QString filmText(const ListedMark& listed) {
    const QString film = filmText(listed.mark.film);
    return film.isEmpty() || !listed.filmSeconds
               ? film
               : MarkList::tr("%1 at %2").arg(film, shownHundredths(*listed.filmSeconds));
}

} // namespace

MarkList::MarkList(QWidget* parent)
    : QWidget(parent), m_kinds(new QToolButton), m_clips(new QToolButton), m_tree(new QTreeWidget) {
    m_tree->setObjectName("marks");
    m_tree->setRootIsDecorated(false);
    m_tree->setUniformRowHeights(true);
    m_tree->setHeaderLabels({tr("Time"), tr("Mark")});
    m_tree->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_tree->setToolTip(tr("Times are of this run, whatever film a mark lies on. A click shows the "
                          "frame of a mark; Ctrl and Shift choose several for their clips"));
    m_kinds->setObjectName("markKinds");
    m_kinds->setText(tr("Kinds"));
    m_kinds->setPopupMode(QToolButton::InstantPopup);
    m_kinds->setToolTip(tr("The kinds of marks that are listed"));
    makeFilterMenu();
    makeClipMenu();
    auto* title = new QLabel(tr("Marks of the run"));
    title->setFont(theme::titleFont(*this));
    auto* row = new QHBoxLayout;
    row->addWidget(title, 1);
    row->addWidget(m_clips);
    row->addWidget(m_kinds);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addLayout(row);
    column->addWidget(m_tree, 1);
    connect(m_tree, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
        if (m_tree->selectedItems().size() > 1)
            return; // several are being chosen for their clips
        const auto place = static_cast<std::size_t>(item->data(0, Qt::UserRole).toULongLong());
        emit chosen(m_rows.at(place).handle);
    });
}

void MarkList::makeFilterMenu() {
    auto* menu = new QMenu(m_kinds);
    connect(menu->addAction(tr("All kinds")), &QAction::triggered, this,
            [this] { setFilter(MarkFilter().set()); });
    menu->addSeparator();
    for (std::size_t kind = 0; kind < MarkKinds; ++kind) {
        QAction* const action = menu->addAction(titleOf(static_cast<MarkKind>(kind)));
        action->setCheckable(true);
        action->setChecked(true);
        action->setData(static_cast<qulonglong>(kind));
        connect(action, &QAction::triggered, this, [this, kind](bool isOn) {
            MarkFilter filter = m_filter;
            filter.set(kind, isOn);
            setFilter(filter);
        });
    }
    m_kinds->setMenu(menu);
}

void MarkList::makeClipMenu() {
    m_clips->setObjectName("clips");
    m_clips->setText(tr("Clips"));
    m_clips->setPopupMode(QToolButton::MenuButtonPopup);
    m_clips->setToolTip(tr("Plays the clips of the chosen marks one after another; of all that are "
                           "listed when not several are chosen"));
    connect(m_clips, &QToolButton::clicked, this, &MarkList::clipsWanted);
    auto* menu = new QMenu(m_clips);
    for (const int seconds : {1, 2, 3, 5, 8}) {
        QAction* const action =
            menu->addAction(tr("%n second(s) before and after a mark", nullptr, seconds));
        action->setCheckable(true);
        action->setData(seconds);
        connect(action, &QAction::triggered, this, [this, seconds] {
            setClipSeconds(seconds);
            emit clipSecondsChanged(seconds);
        });
    }
    m_clips->setMenu(menu);
    setClipSeconds(m_clipSeconds);
}

void MarkList::setClipSeconds(int seconds) {
    m_clipSeconds = seconds;
    for (QAction* const action : m_clips->menu()->actions())
        action->setChecked(action->data().toInt() == seconds);
}

std::vector<MarkHandle> MarkList::forClips() const {
    const bool hasChosen = m_tree->selectedItems().size() > 1;
    std::vector<MarkHandle> handles;
    for (int row = 0; row < m_tree->topLevelItemCount(); ++row) {
        const QTreeWidgetItem* const item = m_tree->topLevelItem(row);
        if (!hasChosen || item->isSelected())
            handles.push_back(
                m_rows.at(static_cast<std::size_t>(item->data(0, Qt::UserRole).toULongLong()))
                    .handle);
    }
    return handles;
}

void MarkList::setFilter(const MarkFilter& filter) {
    m_filter = filter;
    for (QAction* const action : m_kinds->menu()->actions())
        if (action->isCheckable())
            action->setChecked(m_filter.test(action->data().toULongLong()));
    show();
    emit filterChanged();
}

void MarkList::setMarks(const std::vector<ListedMark>& marks, const Film& film) {
    m_rows.clear();
    for (const ListedMark& listed : marks) {
        const LaneMark& mark = listed.mark;
        const bool isOutside = mark.film == FilmOfRun{} && film.to > film.from &&
                               (mark.seconds < film.from || mark.seconds > film.to);
        m_rows.push_back({mark.handle,
                          listed.seconds ? shownHundredths(*listed.seconds) : QStringLiteral("–"),
                          QString::fromStdString(mark.text) + filmText(listed) +
                              (isOutside ? tr(" · outside the film") : QString())});
    }
    show();
}

void MarkList::setSelected(const std::optional<MarkHandle>& handle) {
    m_selected = handle;
    show();
}

void MarkList::show() {
    const QSignalBlocker blocked(m_tree);
    m_tree->clear();
    QList<QTreeWidgetItem*> items;
    QTreeWidgetItem* current = nullptr;
    for (std::size_t place = 0; place < m_rows.size(); ++place) {
        const Row& row = m_rows[place];
        if (!m_filter.test(static_cast<std::size_t>(row.handle.kind)))
            continue;
        auto* item = new QTreeWidgetItem({row.time, row.text});
        item->setData(0, Qt::UserRole, static_cast<qulonglong>(place));
        item->setTextAlignment(0, Qt::AlignRight | Qt::AlignVCenter);
        items.append(item);
        if (row.handle == m_selected)
            current = item;
    }
    m_tree->addTopLevelItems(items);
    if (current) {
        m_tree->setCurrentItem(current);
        m_tree->scrollToItem(current);
    }
}

} // namespace kavela::desktop
