#pragma once

#include "desktop/taking/cell_rows.h"

#include <QWidget>

#include <optional>
#include <vector>

namespace kavela::desktop {

/// The sections of the course in a row: title, and the time taken for each. The section that the
/// boat is in shows its time running along with the film.
class SplitBar : public QWidget {
    Q_OBJECT

public:
    struct Section {
        QString title;
        QString time; ///< empty while it was not taken
    };

    explicit SplitBar(QWidget* parent = nullptr);

    void setSections(std::vector<Section> sections);
    /// The section that is being timed now, counted from 1, and its time so far; none for neither.
    void setRunning(std::optional<std::size_t> split, const QString& time);
    void setSelected(std::optional<std::size_t> split);

    [[nodiscard]] QString timeText(std::size_t split) const;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    void splitClicked(std::size_t split);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void fitRows();
    [[nodiscard]] QRectF placeOf(std::size_t index) const;

    std::vector<Section> m_sections;
    std::optional<std::size_t> m_running;
    QString m_runningTime;
    std::optional<std::size_t> m_selected;
    CellRows m_rows;
};

} // namespace kavela::desktop
