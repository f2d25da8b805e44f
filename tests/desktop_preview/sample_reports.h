#pragma once

#include "report/race_report.h"
#include "sample/races.h"

#include <QPainter>

#include <memory>
#include <vector>

namespace kavela::test {

/// The report of a whole race of the sample season.
inline std::unique_ptr<report::PagedReport> raceReport(const sample::RacePlan& plan,
                                                       report::ReportContent content) {
    const splittakerdata031 race = sample::holdRace(plan);
    return std::make_unique<report::RaceReport>(
        report::reportHeading(race.info), makeRaceSet(race, "a.kvx"), TableSettings(), content);
}

/// Upright pages that note when they are painted, each with a black square inside.
class NotingReport : public report::PagedReport {
public:
    explicit NotingReport(int pages) : m_pages(pages) {}

    [[nodiscard]] QString documentTitle() const override { return QStringLiteral("Notes"); }
    [[nodiscard]] int pageCount() const override { return m_pages; }
    [[nodiscard]] QPageLayout layout() const override {
        return {QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()};
    }
    void paintPage(QPainter& painter, int page) const override {
        painter.fillRect(QRectF(72, 72, 72, 72), Qt::black);
        m_painted.push_back(page);
    }

    [[nodiscard]] const std::vector<int>& painted() const { return m_painted; }

private:
    int m_pages;
    mutable std::vector<int> m_painted;
};

} // namespace kavela::test
