#include "desktop/sessions/drop_areas.h"

#include "desktop/shell/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

/// One of the two, with a dashed edge.
class DropArea : public QWidget {
public:
    DropArea(const QString& title, const QString& what, QPushButton* button) {
        auto* drag = new QLabel(title);
        drag->setFont(theme::titleFont(*this));
        auto* explains = new QLabel(what);
        explains->setForegroundRole(QPalette::PlaceholderText);
        auto* column = new QVBoxLayout(this);
        column->setSpacing(theme::LargeSpacing);
        column->addStretch();
        for (QLabel* const label : {drag, explains}) {
            label->setWordWrap(true);
            label->setAlignment(Qt::AlignCenter);
            column->addWidget(label);
        }
        column->addWidget(button, 0, Qt::AlignCenter);
        column->addStretch();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(theme::quietText(palette()), 1.5, Qt::DashLine));
        painter.setBrush(theme::surface(palette()));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), theme::Spacing,
                                theme::Spacing);
    }
};

} // namespace

DropAreas::DropAreas(QWidget* parent) : QWidget(parent) {
    setAutoFillBackground(true);
    auto* recording = new QPushButton(tr("Import .kvb file"));
    auto* session = new QPushButton(tr("Import .sbm file"));
    connect(recording, &QPushButton::clicked, this, &DropAreas::recordingRequested);
    connect(session, &QPushButton::clicked, this, &DropAreas::sessionRequested);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(theme::PageMargin, theme::PageMargin, theme::PageMargin,
                            theme::PageMargin);
    row->setSpacing(theme::LargeSpacing);
    row->addWidget(new DropArea(tr("Drag .kvb file to top left of the window"),
                                tr("A raw recording of the boat: strokes and turns are found in "
                                   "it."),
                                recording));
    row->addWidget(new DropArea(tr("Drag .sbm file to top right of the window"),
                                tr("A processed session, .sbm or .bms: strokes and turns are in "
                                   "it already."),
                                session));
}

} // namespace kavela::desktop
