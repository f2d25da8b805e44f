#pragma once

#include "boatmotion/imports/sensor_csv.h"

#include <QDialog>

#include <functional>

class QLabel;
class QPushButton;

namespace kavela::desktop {

class CsvPreviewTable;
class CsvReading;
class CsvUnitsForm;

/// How a list of samples is to be read: its first lines with a choice over each column, units, and
/// what the whole list gives, read again after each change.
class CsvMappingDialog : public QDialog {
    Q_OBJECT

public:
    /// `remembered`: how lists were read before, see boatmotion/imports/csv_memory.h.
    explicit CsvMappingDialog(SensorCsv csv, QWidget* parent = nullptr,
                              std::vector<std::string> remembered = {});
    ~CsvMappingDialog() override;

    [[nodiscard]] const CsvMapping& mapping() const { return m_mapping; }
    /// How lists are read from then on, with this one read as it is shown.
    [[nodiscard]] std::vector<std::string> remembered() const;

    /// What was read, once the dialog was accepted; the dialog has none afterwards.
    [[nodiscard]] CsvImport takeImport();

    /// Takes what is being typed; a list that has to be read again for it is imported when it was.
    void accept() override;

private:
    void layOut();
    void showBeginning();
    void guessAgain();
    void showMapping(const CsvMapping& mapping);
    void edit(const std::function<void(CsvMapping&)>& change);
    void readAgain();
    void tellResult();
    void tellFault(const QString& fault);
    void proposeStart();

    CsvReading* m_reading;
    CsvUnitsForm* m_units;
    CsvPreviewTable* m_table;
    QLabel* m_result;
    QLabel* m_details;
    QPushButton* m_import = nullptr;
    QLabel* m_hint = nullptr;
    QPushButton* m_guessAgain = nullptr;
    std::vector<std::string> m_remembered;
    CsvMapping m_mapping;
    bool m_isStartSet = false; ///< by the coach
    bool m_isAccepted = false; ///< as soon as the list was read
};

/// "12,345 samples, 100 per second, 2 min 3 s", with positions and heart rates where there are any.
[[nodiscard]] QString importText(const CsvImport& import);

} // namespace kavela::desktop
