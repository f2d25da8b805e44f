#pragma once

#include "boatmotion/imports/sensor_csv.h"

#include <QObject>

#include <thread>

namespace kavela::desktop {

/// Reads a list of samples beside the window, which goes on answering. Only the result of the last
/// start is told; an earlier reading is given up.
class CsvReading : public QObject {
    Q_OBJECT

public:
    explicit CsvReading(SensorCsv csv, QObject* parent = nullptr)
        : QObject(parent), m_csv(std::move(csv)) {}

    [[nodiscard]] const SensorCsv& csv() const { return m_csv; }

    void start(const CsvMapping& mapping);
    void stop();

    /// What was read; nothing until `finished` and after a failure.
    [[nodiscard]] std::optional<CsvImport>& result() { return m_result; }

signals:
    void finished();
    void failed(const QString& reason);

private:
    void read(const CsvMapping& mapping, const std::stop_token& stop, int number);

    SensorCsv m_csv;
    std::optional<CsvImport> m_result;
    int m_number = 0; ///< of the last start
    std::jthread m_worker;
};

} // namespace kavela::desktop
