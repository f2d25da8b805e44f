#include "desktop/taking/day/start_list_dialog.h"

#include "common/error.h"
#include "common/text_file.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"

#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace kavela::desktop {

StartListDialog::StartListDialog(const FilmFiles& files, const Workspace& workspace,
                                 const QString& phase, const QDate& day, QWidget* parent)
    : QDialog(parent),
      m_files(files),
      m_workspace(workspace),
      m_phase(new QLineEdit(phase)),
      m_day(new QDateEdit(day)),
      m_text(new QPlainTextEdit),
      m_count(new QLabel),
      m_refused(new QPlainTextEdit) {
    setWindowTitle(tr("Start list"));
    m_phase->setObjectName("startPhase");
    m_day->setObjectName("startDay");
    m_day->setCalendarPopup(true);
    m_text->setObjectName("startList");
    m_text->setPlaceholderText(tr("12,Ann Lee,K1W,10:01:30"));
    m_text->setTabChangesFocus(true);
    m_count->setObjectName("startCount");
    m_refused->setObjectName("startRefused");
    m_refused->setReadOnly(true);
    constexpr int RefusedHeight = 90;
    m_refused->setMaximumHeight(grown(*this, RefusedHeight));
    makeLayout();
    connect(m_text, &QPlainTextEdit::textChanged, this, &StartListDialog::readText);
    readText();
    resize(640, 480);
    m_text->setFocus();
}

void StartListDialog::makeLayout() {
    auto* const form = new QFormLayout;
    form->addRow(tr("Day"), m_day);
    form->addRow(tr("Phase"), m_phase);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_take = buttons->addButton(tr("Take over"), QDialogButtonBox::AcceptRole);
    auto* const file = buttons->addButton(tr("From a file…"), QDialogButtonBox::ActionRole);
    connect(file, &QPushButton::clicked, this, &StartListDialog::readFile);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const what = new QLabel(
        tr("Paste the list: bib, name, category and start time or order, or with titles in its "
           "first line. Boats that are in this phase already are corrected."));
    what->setWordWrap(true);
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addLayout(form);
    column->addWidget(what);
    column->addWidget(m_text, 1);
    column->addWidget(m_count);
    column->addWidget(m_refused);
    column->addWidget(buttons);
}

void StartListDialog::readFile() {
    const QString file =
        m_files.choose(tr("Start list"), tr("Lists (*.csv *.txt);;All files (*)")).value(0);
    if (file.isEmpty())
        return;
    try {
        m_text->setPlainText(qtText(readListText(file.toStdString()).text));
    } catch (const FileError& error) {
        m_workspace.showAlert({"", error.what()}, this);
    } catch (const DecodeError& error) {
        m_workspace.showAlert({"", error.what()}, this);
    }
}

void StartListDialog::readText() {
    m_list = parseStartList(m_text->toPlainText().toStdString());
    m_count->setText(tr("Starts: %1. Lines that cannot be taken: %2.")
                         .arg(m_list.starts.size())
                         .arg(m_list.refused.size()));
    QStringList refused;
    for (const RefusedLine& line : m_list.refused)
        refused.append(tr("Line %1: %2").arg(line.line).arg(qtText(line.reason)));
    m_refused->setPlainText(refused.join('\n'));
    m_refused->setVisible(!refused.isEmpty());
    m_take->setEnabled(!m_list.starts.empty());
}

QString StartListDialog::phase() const {
    return m_phase->text().trimmed();
}

QDate StartListDialog::day() const {
    return m_day->date();
}

} // namespace kavela::desktop
