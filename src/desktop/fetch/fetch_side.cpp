#include "desktop/fetch/fetch_side.h"

#include "desktop/fetch/fetch_window.h"
#include "desktop/fetch/site_list.h"
#include "desktop/shell/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace kavela::desktop {

namespace {

using fetch::filmsource001;

QPushButton* sideButton(const QString& text, const QString& tip) {
    auto* const button = new QPushButton(text);
    button->setToolTip(tip);
    return button;
}

} // namespace

FetchSide::FetchSide(Edit edit, QWidget* parent) : QWidget(parent), m_sites(new SiteList) {
    makeForm(std::move(edit));
    QPushButton* const bibs = sideButton(FetchWindow::tr("Choose a list…"),
                                         FetchWindow::tr("Start list, results, split file"));
    QPushButton* const folder =
        sideButton(FetchWindow::tr("Choose a folder…"), FetchWindow::tr("For the films"));
    connect(bibs, &QPushButton::clicked, this, &FetchSide::bibsWanted);
    connect(folder, &QPushButton::clicked, this, &FetchSide::folderWanted);
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(bibs);
    buttons->addWidget(folder);
    buttons->addStretch();
    // Later: the list is shown anew, and the item that was ticked must not go meanwhile.
    connect(m_sites, &SiteList::ticked, this, &FetchSide::siteTicked, Qt::QueuedConnection);
    auto* const sites = new QLabel(FetchWindow::tr("Other se&rvers that films may come from"));
    sites->setBuddy(m_sites);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(theme::Spacing, theme::Spacing, theme::Spacing, theme::Spacing);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_form);
    column->addLayout(buttons);
    column->addWidget(sites);
    column->addWidget(m_sites);
    column->addStretch();
}

void FetchSide::makeForm(Edit edit) {
    m_form = new RecordForm<filmsource001>(
        [edit = std::move(edit)](const QString& /*what*/,
                                 const RecordForm<filmsource001>::Change& change) {
            edit(change);
        });
    m_form->text({.name = "address",
                  .label = FetchWindow::tr("&Address"),
                  .tip = FetchWindow::tr(
                      "Of one film, with {bib}, {category}, {phase} or {run} where they stand "
                      "({bib:3} is 014); or of a list: a page, JSON, M3U8 or WebDAV folder"),
                  .placeholder = "https://films.example.org/{bib:3}.mp4"},
                 &filmsource001::address);
    m_form->text(
        {.name = "bibs",
         .label = FetchWindow::tr("&Bibs from"),
         .tip = FetchWindow::tr("Start list or results (a column is called bib), or a split file"),
         .placeholder = FetchWindow::tr("start list, results or split file")},
        &filmsource001::bibs);
    m_form->text(
        {.name = "folder",
         .label = FetchWindow::tr("F&older"),
         .tip = FetchWindow::tr("Where the films are put; no file there is ever overwritten"),
         .placeholder = FetchWindow::tr("for the films")},
        &filmsource001::folder);
    m_form->text(
        {.name = "names",
         .label = FetchWindow::tr("&Names"),
         .tip = FetchWindow::tr("Of the files: {name}, {category}, {phase}, {bib} and {number}")},
        &filmsource001::names);
    for (const QLineEdit* const field : m_form->findChildren<QLineEdit*>()) // once it is taken
        connect(field, &QLineEdit::returnPressed, this, &FetchSide::entered, Qt::QueuedConnection);
}

} // namespace kavela::desktop
