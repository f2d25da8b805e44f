#pragma once

#include <qcustomplot.h>

#include <QStringList>

namespace kavela::desktop {

/// The sections of the course along an axis: section k from k to k + 1, its title in the middle, a
/// line of the grid at each split.
class SectionTicker : public QCPAxisTicker {
public:
    /// Titles wider than the pixels that a section has are cut, and where not even that would be
    /// readable the sections are numbered, all or every so many.
    void setTitles(const QStringList& titles) { m_titles = titles; }
    void fit(double pixelsOfSection, const QFont& font);

private:
    [[nodiscard]] QString getTickLabel(double tick, const QLocale& locale, QChar formatChar,
                                       int precision) override;
    [[nodiscard]] QVector<double> createTickVector(double tickStep, const QCPRange& range) override;
    [[nodiscard]] QVector<double> createSubTickVector(int subTickCount,
                                                      const QVector<double>& ticks) override;

    QStringList m_titles;
    qsizetype m_step = 1; ///< sections from one title to the next
    double m_pixels = 0;
    QFont m_font;
};

/// Numbers with their sign and a real minus, as gaps are read.
class GapTicker : public QCPAxisTicker {
private:
    [[nodiscard]] QString getTickLabel(double tick, const QLocale& locale, QChar formatChar,
                                       int precision) override;
};

/// Puts a section ticker on the x axis of a plot and keeps its titles fitting.
[[nodiscard]] QSharedPointer<SectionTicker> showSections(QCustomPlot& plot);

} // namespace kavela::desktop
