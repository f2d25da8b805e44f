#include "desktop/folder/rename_films_dialog.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

ColumnModel<PlannedName>::Columns plannedColumns() {
    Column<PlannedName> now;
    now.title = RenameFilmsDialog::tr("Now");
    now.show = [](const PlannedName& name) { return Cell{qtText(name.from)}; };
    Column<PlannedName> then;
    then.title = RenameFilmsDialog::tr("Then");
    then.show = [](const PlannedName& name) {
        Cell cell{name.isOther() ? qtText(name.to) : RenameFilmsDialog::tr("stays")};
        if (!name.fault.empty()) {
            cell.text = RenameFilmsDialog::tr("stays: %1").arg(qtText(name.fault));
            cell.look = Cell::Look::Warning;
        } else if (!name.isOther()) {
            cell.look = Cell::Look::Quiet;
        }
        return cell;
    };
    return {std::move(now), std::move(then)};
}

} // namespace

RenameFilmsDialog::RenameFilmsDialog(std::vector<ListedFilm> films, std::vector<std::string> taken,
                                     const QString& pattern, QWidget* parent)
    : QDialog(parent),
      m_films(std::move(films)),
      m_taken(std::move(taken)),
      m_planned(plannedColumns(), RowsKnownBy::Number),
      m_pattern(new QLineEdit(pattern)),
      m_note(new QLabel),
      m_preview(new ColumnTable(m_planned, "plannedNames")) {
    setWindowTitle(tr("Rename films"));
    resize(820, 520);
    m_pattern->setObjectName("namingPattern");
    m_note->setTextFormat(Qt::PlainText);
    m_note->setWordWrap(true);
    m_preview->keepOrder();
    m_preview->stretchAll();
    auto* const words =
        new QLabel(tr("How the films are to be called: {name}, {category}, {phase}, "
                      "{bib} and {number} stand for what is known of each. Split "
                      "files of the folder follow."));
    words->setWordWrap(true);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_rename = buttons->addButton(tr("Rename"), QDialogButtonBox::AcceptRole);
    m_rename->setDefault(true);
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addWidget(words);
    column->addWidget(m_pattern);
    column->addWidget(m_preview, 1);
    column->addWidget(m_note);
    column->addWidget(buttons);
    connect(m_pattern, &QLineEdit::textChanged, this, &RenameFilmsDialog::plan);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    plan();
}

QString RenameFilmsDialog::pattern() const {
    return m_pattern->text().trimmed();
}

void RenameFilmsDialog::plan() {
    const std::string wanted = pattern().toStdString();
    if (const auto fault = faultOfNaming(wanted)) {
        m_planned.show({});
        m_note->setText(qtText(*fault));
        m_rename->setEnabled(false);
        return;
    }
    m_planned.show(planNames(m_films, wanted, m_taken));
    const auto others = std::ranges::count_if(m_planned.rows(), &PlannedName::isOther);
    const auto stuck = std::ranges::count_if(
        m_planned.rows(), [](const PlannedName& name) { return !name.fault.empty(); });
    QString note = tr("%1 of %2 films get another name.").arg(others).arg(m_films.size());
    if (stuck > 0)
        note += ' ' + tr("%1 lack what the pattern asks for.").arg(stuck);
    m_note->setText(note);
    m_rename->setEnabled(others > 0);
}

FilmRenames RenameFilmsDialog::names() const {
    FilmRenames names;
    for (const PlannedName& name : m_planned.rows())
        if (name.isOther())
            names.push_back({name.from, name.to});
    return names;
}

} // namespace kavela::desktop
