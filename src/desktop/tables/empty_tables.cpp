#include "desktop/tables/empty_tables.h"

#include "desktop/shell/theme.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kavela::desktop {

EmptyTables::EmptyTables(QWidget* parent) : QWidget(parent) {
    auto* const title = new QLabel(tr("Drop a list of results here"));
    title->setFont(theme::titleFont(*this));
    auto* const text = new QLabel(
        tr("Text (CSV, tabs, columns of blanks), a spreadsheet (.xlsx, .ods), what was copied from "
           "a page, or a race that carries a list. Lists are only read."));
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignCenter);
    text->setForegroundRole(QPalette::PlaceholderText);
    auto* const files = new QPushButton(tr("Open a list…"));
    auto* const copied = new QPushButton(tr("Open what was copied"));
    connect(files, &QPushButton::clicked, this, &EmptyTables::filesWanted);
    connect(copied, &QPushButton::clicked, this, &EmptyTables::clipboardWanted);
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(theme::LargeSpacing);
    column->addStretch();
    column->addWidget(title, 0, Qt::AlignHCenter);
    column->addWidget(text); // over the whole width: how high it is follows from that
    for (QPushButton* const button : {files, copied})
        column->addWidget(button, 0, Qt::AlignHCenter);
    column->addStretch();
}

} // namespace kavela::desktop
