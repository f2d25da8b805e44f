#include "desktop/imports/csv_reading.h"

namespace kavela::desktop {

void CsvReading::start(const CsvMapping& mapping) {
    stop();
    m_work.run([csv = m_csv,
                mapping](const WorkSteps& steps) { return csv->read(mapping, steps.stopToken()); },
               [this](CsvImport found) {
                   m_result = std::move(found);
                   emit finished();
               },
               {.failed = [this](const std::exception_ptr& fault) {
                   emit failed(QString::fromStdString(messageOf(fault)));
               }});
}

void CsvReading::stop() {
    m_result.reset();
    m_work.cancel();
}

} // namespace kavela::desktop
