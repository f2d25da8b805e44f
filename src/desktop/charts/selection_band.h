#pragma once

#include <QWidget>

namespace kavela::desktop {

/// What a drag marks in a chart, laid over it.
class SelectionBand : public QWidget {
    Q_OBJECT

public:
    explicit SelectionBand(QWidget* chart);

    /// Marks an area of the chart, with a text in its lower corner.
    void mark(const QRectF& area, const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text;
};

} // namespace kavela::desktop
