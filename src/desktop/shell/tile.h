#pragma once

#include "desktop/shell/tool.h"

#include <QAbstractButton>

namespace kavela::desktop {

/// A tool on the home screen: icon, title, and some lines that say what it is for.
class Tile : public QAbstractButton {
    Q_OBJECT

public:
    /// How many lines the longest of these takes: tiles beside each other are equally high. A third
    /// one where two do not hold it.
    [[nodiscard]] static int linesFor(const QStringList& purposes, const QWidget& over);

    Tile(const Tool& tool, int lines, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    QString m_purpose;
    int m_lines;
};

} // namespace kavela::desktop
