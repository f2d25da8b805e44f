#pragma once

#include "common/alerts.h"
#include "common/log.h"

#include <QDialog>

#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class QComboBox;
class QLabel;
class QPrinter;

namespace kavela::report {
class PagedReport;
}

namespace kavela::desktop {

class PageView;

/// One of the reports that a preview offers, made when it is chosen.
struct NamedReport {
    QString name;
    QString suggestedPath; ///< where "Save as PDF…" first proposes to save it
    std::function<std::unique_ptr<report::PagedReport>()> make;
};

/// Where a preview tells of its failures.
struct PreviewFailures {
    DiagnosticLog log;
    std::function<void(const Alert& alert, QWidget* over)> showAlert;
};

/// Reports as they come out of the printer, to be looked at, saved as PDF and printed. All by
/// keyboard: see the tips of its buttons and PageView.
class ReportPreview : public QDialog {
    Q_OBJECT

public:
    /// Gives the path to write to, empty for none; it is told the one to propose.
    using ChooseFile = std::function<QString(QWidget* over, const QString& suggested)>;
    /// Lets the user set a printer up; false when nothing shall be printed.
    using ChoosePrinter = std::function<bool(QPrinter& printer, QWidget* over)>;

    /// Shows the first of the reports.
    ReportPreview(std::vector<NamedReport> reports, PreviewFailures failures,
                  QWidget* parent = nullptr);
    ~ReportPreview() override;

    /// Shows another of the reports.
    void showReport(int number);
    /// Makes the report again, as when what it shows has changed; the page looked at stays.
    void refresh();

    [[nodiscard]] PageView& view() const { return *m_view; }

    /// Other questions than the platform's dialogs.
    void setChooseFile(ChooseFile choose) { m_chooseFile = std::move(choose); }
    void setChoosePrinter(ChoosePrinter choose) { m_choosePrinter = std::move(choose); }

private:
    void makeLabels();
    QWidget* makeBar();
    QAction* addKey(const QString& text, const QList<QKeySequence>& keys,
                    const std::function<void()>& act);
    [[nodiscard]] int chosen() const;
    [[nodiscard]] QString suggestedPath() const;
    void updateBar();
    void savePdf();
    void print();
    void printIntoFile(const QPrinter& printer);
    void noteSaved(const QString& path, const std::exception_ptr& fault);
    void tellFileError(const std::string& reason);

    std::vector<NamedReport> m_reports;
    PreviewFailures m_failures;
    ChooseFile m_chooseFile;
    ChoosePrinter m_choosePrinter;
    std::unique_ptr<report::PagedReport> m_report;
    QString m_folder; ///< that was saved to last
    PageView* m_view = nullptr;
    QComboBox* m_choice = nullptr;
    QLabel* m_page = nullptr;
    QLabel* m_zoom = nullptr;
    QLabel* m_saved = nullptr;
    QAction* m_save = nullptr;
    QAction* m_print = nullptr;
};

} // namespace kavela::desktop
