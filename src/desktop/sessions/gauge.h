#pragma once

#include <QWidget>

#include <optional>

namespace kavela::desktop {

/// One value at the cursor, where it lies in its range, and what the range is.
class Gauge : public QWidget {
    Q_OBJECT

public:
    Gauge(QString name, QString unit, int decimals, QWidget* parent = nullptr);

    /// The least and the greatest value of the session; nothing where no value is known.
    void setRange(std::optional<std::pair<double, double>> range);
    void setValue(std::optional<double> value);
    /// A word beside the value, such as the side of the stroke.
    void setNote(const QString& note);
    /// For reading from the bank.
    void setLarge(bool isLarge);

    [[nodiscard]] QString text() const; ///< "52 N", or "–"
    [[nodiscard]] QString rangeText() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintValue(QPainter& painter, const QRectF& area) const;
    void paintScale(QPainter& painter, const QRectF& area) const;
    [[nodiscard]] QFont valueFont() const;
    void showAccessibly();

    QString m_name;
    QString m_unit;
    int m_decimals;
    QString m_note;
    std::optional<std::pair<double, double>> m_range;
    std::optional<double> m_value;
    bool m_isLarge = false;
};

} // namespace kavela::desktop
