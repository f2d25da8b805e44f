#pragma once

#include <qcustomplot.h>

#include <QStringList>

namespace kavela::desktop {

/// The names of rows beside a plot whose row k stands from k to k + 1: as many as there is room
/// for.
class RowTicker : public QCPAxisTicker {
public:
    explicit RowTicker(const QCPAxisRect& rect) : m_rect(rect) {}

    /// Names wider than so many pixels are cut.
    void setNames(const QStringList& names, const QFont& font, int width);

private:
    [[nodiscard]] QString getTickLabel(double tick, const QLocale& locale, QChar formatChar,
                                       int precision) override;
    [[nodiscard]] QVector<double> createTickVector(double tickStep, const QCPRange& range) override;
    [[nodiscard]] int getSubTickCount(double /*tickStep*/) override { return 0; }

    const QCPAxisRect& m_rect;
    QStringList m_names;
    double m_height = 1; ///< pixels of a name
};

} // namespace kavela::desktop
