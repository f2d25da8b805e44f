#include "desktop/find/empty_search.h"

#include "desktop/shell/theme.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <initializer_list>

namespace kavela::desktop {

EmptySearch::EmptySearch(QWidget* parent) : QWidget(parent) {
    auto* const title = new QLabel(tr("Drop a folder of split files (.kvx) here"));
    title->setFont(theme::titleFont(*this));
    auto* const text = new QLabel(tr("All races below it are searched. They are only read."));
    text->setForegroundRole(QPalette::PlaceholderText);
    auto* const open = new QPushButton(tr("Search a folder…"));
    connect(open, &QPushButton::clicked, this, &EmptySearch::folderRequested);
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(theme::LargeSpacing);
    column->addStretch();
    for (QWidget* const part : std::initializer_list<QWidget*>{title, text, open})
        column->addWidget(part, 0, Qt::AlignHCenter);
    column->addStretch();
}

} // namespace kavela::desktop
