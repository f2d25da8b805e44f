#include "desktop/preview/report_preview.h"

#include "common/error.h"
#include "desktop/preview/page_view.h"
#include "desktop/preview/report_printing.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/theme.h"
#include "report/paged_report.h"
#include "report/pdf_file.h"

#include <QAction>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QToolButton>

#include <cmath>
#include <stdexcept>

namespace kavela::desktop {

namespace {

QString askForFile(QWidget* over, const QString& suggested) {
    QFileDialog dialog(over, ReportPreview::tr("Save as PDF"), QString(),
                       ReportPreview::tr("PDF documents (*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    dialog.setDirectory(QFileInfo(suggested).path());
    dialog.selectFile(QFileInfo(suggested).fileName());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

bool askForPrinter(QPrinter& printer, QWidget* over) {
    QPrintDialog dialog(&printer, over);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    return dialog.exec() == QDialog::Accepted;
}

/// A button that does what an action does and shows its key in its tip.
template <class Button>
Button* buttonOf(QAction& action) {
    auto* const button = new Button;
    button->setText(action.text());
    button->setToolTip(QStringLiteral("%1 (%2)").arg(
        action.toolTip(), action.shortcut().toString(QKeySequence::NativeText)));
    button->setFocusPolicy(Qt::TabFocus);
    QObject::connect(button, &QAbstractButton::clicked, &action, &QAction::trigger);
    QObject::connect(&action, &QAction::changed, button,
                     [button, &action] { button->setEnabled(action.isEnabled()); });
    if constexpr (std::is_same_v<Button, QPushButton>) {
        button->setAutoDefault(false);
        button->setMinimumWidth(button->sizeHint().width() + theme::LargeSpacing);
    }
    return button;
}

QLabel* quietLabel() {
    auto* const label = new QLabel;
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

ReportPreview::ReportPreview(std::vector<NamedReport> reports, PreviewFailures failures,
                             QWidget* parent)
    : QDialog(parent),
      m_reports(std::move(reports)),
      m_failures(std::move(failures)),
      m_chooseFile(askForFile),
      m_choosePrinter(askForPrinter) {
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    m_view = new PageView;
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeBar());
    column->addWidget(m_view, 1);
    connect(m_view, &PageView::changed, this, &ReportPreview::updateBar);
    resize(1080, 800);
    m_view->setFocus();
    refresh();
}

ReportPreview::~ReportPreview() {
    m_view->setReport(nullptr);
}

QAction* ReportPreview::addKey(const QString& text, const QList<QKeySequence>& keys,
                               const std::function<void()>& act) {
    auto* const action = new QAction(text, this);
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, act);
    addAction(action);
    return action;
}

void ReportPreview::makeLabels() {
    m_choice = new QComboBox;
    m_choice->setObjectName("report");
    m_choice->setAccessibleName(tr("Report"));
    for (const NamedReport& report : m_reports)
        m_choice->addItem(report.name);
    if (m_reports.size() < 2)
        m_choice->hide();
    connect(m_choice, &QComboBox::currentIndexChanged, this, &ReportPreview::refresh);
    connect(m_choice, &QComboBox::activated, this, [this] { m_view->setFocus(); });
    m_page = new QLabel;
    m_page->setObjectName("page");
    m_zoom = quietLabel();
    m_zoom->setObjectName("zoom");
    m_zoom->setAlignment(Qt::AlignCenter);
    m_zoom->setMinimumWidth(m_zoom->fontMetrics().horizontalAdvance(tr("%1 %").arg(400)));
    m_saved = quietLabel();
    m_saved->setObjectName("saved");
    // A long name must not widen the window.
    m_saved->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QWidget* ReportPreview::makeBar() {
    makeLabels();
    QAction* const out =
        addKey(QStringLiteral("−"), {Qt::CTRL | Qt::Key_Minus}, [this] { m_view->zoomOut(); });
    out->setToolTip(tr("Smaller"));
    QAction* const in =
        addKey(QStringLiteral("+"), {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal},
               [this] { m_view->zoomIn(); });
    in->setToolTip(tr("Larger"));
    QAction* const fit =
        addKey(tr("Fit width"), {Qt::CTRL | Qt::Key_0}, [this] { m_view->fitWidth(); });
    m_print = addKey(tr("Print…"), {Qt::CTRL | Qt::Key_P}, [this] { print(); });
    m_save = addKey(tr("Save as PDF…"), {Qt::CTRL | Qt::Key_S}, [this] { savePdf(); });
    QAction* const close = addKey(tr("Close"), {QKeySequence(Qt::Key_Escape), Qt::CTRL | Qt::Key_W},
                                  [this] { reject(); });

    auto* const bar = new QWidget;
    auto* const row = new QHBoxLayout(bar);
    row->setContentsMargins(theme::LargeSpacing, theme::Spacing, theme::LargeSpacing,
                            theme::Spacing);
    row->setSpacing(theme::Spacing);
    row->addWidget(m_choice);
    row->addWidget(m_page);
    row->addSpacing(theme::LargeSpacing);
    row->addWidget(buttonOf<QToolButton>(*out));
    row->addWidget(m_zoom);
    row->addWidget(buttonOf<QToolButton>(*in));
    row->addWidget(buttonOf<QToolButton>(*fit));
    row->addSpacing(theme::LargeSpacing);
    row->addWidget(m_saved, 1);
    row->addWidget(buttonOf<QPushButton>(*m_save));
    row->addWidget(buttonOf<QPushButton>(*m_print));
    row->addWidget(buttonOf<QPushButton>(*close));
    return bar;
}

int ReportPreview::chosen() const {
    return m_choice->currentIndex();
}

void ReportPreview::showReport(int number) {
    m_choice->setCurrentIndex(number);
}

void ReportPreview::refresh() {
    const int page = m_view->currentPage();
    std::unique_ptr<report::PagedReport> made;
    if (chosen() >= 0)
        made = m_reports[static_cast<std::size_t>(chosen())].make();
    m_view->setReport(made.get());
    m_report = std::move(made);
    m_view->goToPage(page);
    m_saved->clear();
    updateBar();
}

void ReportPreview::updateBar() {
    const int pages = m_view->pageCount();
    m_page->setText(pages == 0 ? tr("No pages")
                               : tr("Page %1 of %2").arg(m_view->currentPage() + 1).arg(pages));
    m_zoom->setText(tr("%1 %").arg(std::lround(m_view->zoom() * 100)));
    m_save->setEnabled(pages > 0);
    m_print->setEnabled(pages > 0);
    const QString title = m_report ? m_report->documentTitle() : QString();
    setWindowTitle(title.isEmpty() ? tr("Preview – Kavela")
                                   : tr("%1, preview – Kavela").arg(title));
}

QString ReportPreview::suggestedPath() const {
    const QString& suggested = m_reports[static_cast<std::size_t>(chosen())].suggestedPath;
    return m_folder.isEmpty() ? suggested : m_folder + '/' + QFileInfo(suggested).fileName();
}

void ReportPreview::savePdf() {
    const QString path = m_chooseFile(this, suggestedPath());
    if (path.isEmpty())
        return;
    m_saved->clear();
    try {
        disk::writeAwaited(
            *this, path.toStdString(), report::pdfFor(*m_report, path.toStdString()),
            [this, path](const std::exception_ptr& fault) { noteSaved(path, fault); });
    } catch (const FileError& error) {
        tellFileError(error.reason());
    }
}

void ReportPreview::noteSaved(const QString& path, const std::exception_ptr& fault) {
    if (fault) {
        tellFileError(causeOf(fault));
        return;
    }
    m_folder = QFileInfo(path).path();
    m_saved->setText(tr("Saved as %1").arg(QFileInfo(path).fileName()));
    m_saved->setToolTip(path);
}

void ReportPreview::print() {
    QPrinter printer(QPrinter::HighResolution);
    preparePrinter(printer, *m_report);
    if (!m_choosePrinter(printer, this))
        return;
    if (printer.outputFormat() == QPrinter::PdfFormat)
        printIntoFile(printer);
    else if (!printReport(*m_report, printer))
        m_failures.showAlert({"Failed to print", "The printer does not take the pages."}, this);
}

void ReportPreview::printIntoFile(const QPrinter& printer) {
    try {
        disk::writeAwaited(*this, printer.outputFileName().toStdString(),
                           printedPdf(*m_report, printer), [this](const std::exception_ptr& fault) {
                               if (fault)
                                   tellFileError(causeOf(fault));
                           });
    } catch (const std::runtime_error& error) {
        tellFileError(error.what());
    }
}

void ReportPreview::tellFileError(const std::string& reason) {
    m_failures.log("Failed to create file");
    m_failures.showAlert({"Failed to create file", reason}, this);
}

} // namespace kavela::desktop
