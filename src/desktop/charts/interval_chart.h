#pragma once

#include "desktop/charts/chart_frame.h"

#include <QImage>
#include <QStringList>

#include <optional>
#include <vector>

class QCPPainter;

namespace kavela::desktop {

/// A figure with its interval. All in the unit of the axis.
struct IntervalMark {
    QString label; ///< below it: "7"
    QString name;  ///< in the read-out: "Gate 7"
    double value = 0;
    double low = 0;
    double high = 0;
    bool hasInterval = true;         ///< otherwise too few values for one: only the figure counts
    std::optional<double> bare = {}; ///< the figure before it was drawn towards the common one
    QStringList told = {};           ///< more in the read-out, a line each
    bool isBold = false;             ///< stands out from the others
    bool isUpstream = false;         ///< a gate of a course
    double share = 0;                ///< how strongly a gate is filled, from 0 to 1
    std::optional<std::size_t> section = {}; ///< of a gate, from 1
    QString group = {};      ///< marks beside each other of one group stand under its name
    QStringList fields = {}; ///< of its line in CSV
};

struct IntervalChartContent {
    QString title;
    QString subtitle; ///< one sentence
    QString xTitle;
    QString yTitle;
    QString valueName;  ///< of the figures: "Ranked"
    QString bareName;   ///< of the bare ones; empty where no mark has one
    QString commonName; ///< of the line that all have in common; empty for no line
    QString emptyText;  ///< told instead, when there is no mark
    std::vector<IntervalMark> marks;
    double common = 0;
    bool isCourse = false; ///< the marks are gates, in the order in which they are paddled
    QImage backdrop = {};  ///< faint behind the marks, as large as it fits; null for none
    QStringList csvTitles;
};

/// Figures with their intervals beside each other: names below, or for the gates of a course the
/// river with its gates in order. An upstream gate has a triangle against the stream, thick poles
/// and a bold number; its figure is a triangle where the others have a circle.
class IntervalChart : public ChartFrame {
    Q_OBJECT

public:
    // What can be hidden.
    static constexpr int ValueSeries = 0;
    static constexpr int BareSeries = 1;
    static constexpr int CommonSeries = 2;

    explicit IntervalChart(QWidget* parent = nullptr);

    using QWidget::show;
    /// Shows other content. The view stays as long as the marks have the same names.
    void show(IntervalChartContent content);
    [[nodiscard]] const IntervalChartContent& content() const { return m_content; }

    /// The mark in whose column a point of the widget is.
    [[nodiscard]] std::optional<std::size_t> markAt(const QPointF& position) const;
    /// The mark at which the cursor stands.
    [[nodiscard]] std::optional<std::size_t> current() const { return m_current; }
    /// Marks the figure that is chosen elsewhere, as in a table; none where there is none.
    void showChosen(std::optional<std::size_t> mark);
    [[nodiscard]] std::optional<std::size_t> chosen() const { return m_chosen; }
    /// Where the figure of a mark stands in the widget.
    [[nodiscard]] QPointF placeOf(std::size_t mark) const;
    /// What the read-out says of a mark.
    [[nodiscard]] QString readOutOf(std::size_t mark) const;

signals:
    /// A mark was clicked.
    void markActivated(std::size_t mark);

private:
    [[nodiscard]] QString emptyReason() const override;
    void fill() override;
    [[nodiscard]] QString csvText() const override;
    void hoverAt(const QPointF& position) override;
    void clickAt(const QPointF& position) override;
    void leaveCursor() override;
    [[nodiscard]] std::vector<QPointF> stops() const override;

    void showLabels();
    void setLimits();
    [[nodiscard]] double pixelsOfMark() const;
    [[nodiscard]] double pixelOf(std::size_t mark) const;
    [[nodiscard]] bool isInView(std::size_t mark) const;
    void paintMarks(QCPPainter& painter) const;
    void paintChosen(QCPPainter& painter) const;
    void paintMark(QCPPainter& painter, std::size_t mark) const;
    void paintBackdrop(QCPPainter& painter) const;
    void paintSections(QCPPainter& painter) const;
    void paintSectionStart(QCPPainter& painter, std::size_t mark) const;
    void paintGroups(QCPPainter& painter) const;
    void paintBelow(QCPPainter& painter) const;
    void paintName(QCPPainter& painter, std::size_t mark, bool isLying) const;
    [[nodiscard]] double roomOfNames() const;
    [[nodiscard]] bool hasRoomForNames() const;

    IntervalChartContent m_content;
    std::optional<std::size_t> m_current;
    std::optional<std::size_t> m_chosen;
};

} // namespace kavela::desktop
