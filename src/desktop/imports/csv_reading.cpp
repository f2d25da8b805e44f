#include "desktop/imports/csv_reading.h"

#include <memory>

namespace kavela::desktop {

void CsvReading::start(const CsvMapping& mapping) {
    m_result.reset();
    const int number = ++m_number;
    // The thread before is asked to stop and waited for: it looks at every line.
    m_worker = std::jthread(
        [this, mapping, number](const std::stop_token& stop) { read(mapping, stop, number); });
}

void CsvReading::stop() {
    m_result.reset();
    ++m_number;
    m_worker.request_stop();
}

/// In the thread; what it found goes to the window's own.
void CsvReading::read(const CsvMapping& mapping, const std::stop_token& stop, int number) {
    const auto tell = [&](auto act) {
        QMetaObject::invokeMethod(
            this,
            [this, number, act = std::move(act)] {
                if (number == m_number)
                    act();
            },
            Qt::QueuedConnection);
    };
    try {
        auto found = std::make_shared<CsvImport>(m_csv.read(mapping, stop));
        tell([this, found] {
            m_result = std::move(*found);
            emit finished();
        });
    } catch (const std::exception& error) {
        tell([this, reason = QString::fromUtf8(error.what())] { emit failed(reason); });
    }
}

} // namespace kavela::desktop
