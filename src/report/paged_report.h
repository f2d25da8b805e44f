#pragma once

#include <QPageLayout>
#include <QString>

class QPainter;

namespace kavela::report {

/// A report as pages that can be painted anywhere: into a file, onto a printer, as a preview. Needs
/// a QGuiApplication, for its fonts.
class PagedReport {
public:
    virtual ~PagedReport() = default;

    /// What the document is called where a title stands by itself, as on a printer's queue.
    [[nodiscard]] virtual QString documentTitle() const = 0;
    [[nodiscard]] virtual int pageCount() const = 0;

    /// The paper, without margins of the printer's own: the pages bring theirs.
    [[nodiscard]] virtual QPageLayout layout() const = 0;

    /// Paints a page, counted from 0, in points (1/72 inch) from the painter's origin, which is the
    /// top left corner of the paper. The paper itself is not painted. The painter's state is kept.
    virtual void paintPage(QPainter& painter, int page) const = 0;

protected:
    PagedReport() = default;
    PagedReport(const PagedReport&) = default;
    PagedReport(PagedReport&&) = default;
    PagedReport& operator=(const PagedReport&) = default;
    PagedReport& operator=(PagedReport&&) = default;
};

} // namespace kavela::report
