#include "desktop/facts/reading_progress.h"

#include "desktop/facts/watched_facts.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"

#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>

namespace kavela::desktop {

ReadingProgress::ReadingProgress(WatchedFacts& facts, QWidget* parent)
    : QWidget(parent), m_bar(new QProgressBar) {
    m_bar->setMaximumWidth(grown(*m_bar, 200));
    auto* const stop = new QPushButton(tr("Stop reading"));
    stop->setObjectName("stop");
    auto* const line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(theme::Spacing);
    line->addWidget(m_bar);
    line->addWidget(stop);
    connect(stop, &QPushButton::clicked, &facts, &WatchedFacts::cancel);
    connect(&facts, &WatchedFacts::progressed, this, [this](int read, int of) {
        m_bar->setRange(0, of);
        m_bar->setValue(read);
        m_bar->setFormat(tr("%1 of %2 files").arg(read).arg(of));
    });
    hide();
}

/// How many files there are is not known before the folders were looked through.
void ReadingProgress::showReading(bool isReading) {
    m_bar->setRange(0, 0);
    setVisible(isReading);
}

} // namespace kavela::desktop
