#include "desktop/shell/alert_boxes.h"

#include "desktop/shell/theme.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

/// A box of the toolkit with more lines than these may be higher than the screen.
constexpr qsizetype MostLines = 12;

/// A list, such as of lines that were left out, is read by scrolling.
void showList(const QString& title, const QString& text, QWidget* parent) {
    QDialog dialog(parent);
    dialog.setWindowTitle("Kavela");
    auto* column = new QVBoxLayout(&dialog);
    if (!title.isEmpty()) {
        auto* head = new QLabel(title);
        head->setTextFormat(Qt::PlainText);
        head->setFont(theme::titleFont(dialog));
        head->setWordWrap(true);
        column->addWidget(head);
    }
    auto* list = new QPlainTextEdit(text);
    list->setReadOnly(true);
    column->addWidget(list, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    column->addWidget(buttons);
    dialog.resize(620, 400);
    dialog.exec();
}

} // namespace

void AlertBoxes::show(const Alert& alert) {
    const QString title = QString::fromStdString(alert.title);
    const QString text = QString::fromStdString(alert.text);
    if (text.count('\n') >= MostLines) {
        showList(title, text, m_parent);
        return;
    }
    QMessageBox box(m_parent);
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle("Kavela");
    box.setTextFormat(Qt::PlainText);
    box.setText(title.isEmpty() ? text : title);
    if (!title.isEmpty())
        box.setInformativeText(text);
    box.exec();
}

} // namespace kavela::desktop
