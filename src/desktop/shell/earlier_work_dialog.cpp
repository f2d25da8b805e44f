#include "desktop/shell/earlier_work_dialog.h"

#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QPushButton>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

using Work = Autosave::Found;

constexpr QSize Usual{720, 320};

std::vector<Column<Work>> workColumns() {
    const auto moment = [](const Work& work) {
        return Cell{.text = work.when.toString("yyyy-MM-dd HH:mm"),
                    .sortValue = static_cast<double>(work.when.toSecsSinceEpoch())};
    };
    return {
        textColumn<Work>(EarlierWorkDialog::tr("Document"),
                         [](const Work& work) { return QFileInfo(work.label.path).fileName(); }),
        {.title = EarlierWorkDialog::tr("Kept"), .show = moment},
        textColumn<Work>(EarlierWorkDialog::tr("What"),
                         [](const Work& work) { return work.label.note; }),
        textColumn<Work>(EarlierWorkDialog::tr("Then"),
                         [](const Work& work) {
                             return work.isGivenUp ? EarlierWorkDialog::tr("given up")
                                                   : EarlierWorkDialog::tr("put off");
                         }),
        textColumn<Work>(EarlierWorkDialog::tr("Folder"), [](const Work& work) {
            return QDir::toNativeSeparators(QFileInfo(work.label.path).path());
        })};
}

} // namespace

EarlierWorkDialog::EarlierWorkDialog(std::vector<Work> works, QWidget* parent)
    : QDialog(parent), m_works(workColumns()), m_table(new ColumnTable(m_works, "earlierWork")) {
    setWindowTitle(tr("Bring back earlier work"));
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEmptyText(tr("Nothing was kept that is not in a document again."));
    m_table->keepOneChosen();
    m_works.show(std::move(works));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    QPushButton* const back = buttons->addButton(tr("Bring back"), QDialogButtonBox::AcceptRole);
    back->setEnabled(!m_works.rows().empty());
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_table, &QTableView::doubleClicked, this, &QDialog::accept);
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_table, 1);
    column->addWidget(buttons);
    resize(Usual);
    m_table->setFocus();
}

const Work* EarlierWorkDialog::chosen() const {
    const int place = m_table->currentPlace();
    return place < 0 ? nullptr : &m_works.row(place);
}

} // namespace kavela::desktop
