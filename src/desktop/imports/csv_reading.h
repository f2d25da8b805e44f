#pragma once

#include "boatmotion/imports/sensor_csv.h"
#include "desktop/shell/background_work.h"

#include <QObject>

#include <memory>
#include <optional>
#include <utility>

namespace kavela::desktop {

/// Reads a list of samples beside the window, which goes on answering. Only the result of the last
/// start is told; an earlier reading is given up.
class CsvReading : public QObject {
    Q_OBJECT

public:
    explicit CsvReading(SensorCsv csv, QObject* parent = nullptr)
        : QObject(parent), m_csv(std::make_shared<const SensorCsv>(std::move(csv))) {}

    [[nodiscard]] const SensorCsv& csv() const { return *m_csv; }

    void start(const CsvMapping& mapping);
    void stop();

    /// What was read; nothing until `finished` and after a failure.
    [[nodiscard]] std::optional<CsvImport>& result() { return m_result; }

signals:
    void finished();
    void failed(const QString& reason);

private:
    std::shared_ptr<const SensorCsv> m_csv; ///< a reading that was given up may be at its last line
    std::optional<CsvImport> m_result;
    BackgroundWork m_work;
};

} // namespace kavela::desktop
