#include "desktop/facts/facts_status.h"

#include "desktop/facts/failed_files.h"
#include "desktop/facts/reading_progress.h"
#include "desktop/facts/watched_facts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <utility>

namespace kavela::desktop {

FactsStatus::FactsStatus(WatchedFacts& facts, QWidget* parent)
    : QWidget(parent),
      m_facts(facts),
      m_progress(new ReadingProgress(facts)),
      m_text(new QLabel),
      m_failed(new QPushButton(tr("Which ones?"))) {
    m_text->setObjectName("status");
    m_failed->setObjectName("failed");
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    for (QWidget* const part : {static_cast<QWidget*>(m_progress), static_cast<QWidget*>(m_text),
                                static_cast<QWidget*>(m_failed)})
        row->addWidget(part);
    connect(&m_facts, &WatchedFacts::readingChanged, this, &FactsStatus::showReading);
    connect(m_failed, &QPushButton::clicked, this, &FactsStatus::showFailed);
    showReading();
}

void FactsStatus::showReading() {
    m_progress->showReading(m_facts.isReading());
    m_failed->setVisible(!m_facts.failed().empty());
}

void FactsStatus::show(QStringList parts) {
    const auto failed = static_cast<int>(m_facts.failed().size());
    if (m_facts.isIncomplete())
        parts << tr("reading was cancelled: not all files are here");
    if (failed > 0)
        parts << (failed == 1 ? tr("1 file could not be read")
                              : tr("%n files could not be read", nullptr, failed));
    if (const auto copies = static_cast<int>(m_facts.copies().size()); copies > 0)
        parts << (copies == 1 ? tr("1 copy of a file does not count")
                              : tr("%n copies of files do not count", nullptr, copies));
    m_failed->setVisible(failed > 0);
    tell(parts.join(QStringLiteral(" · ")));
}

void FactsStatus::tell(const QString& text) {
    m_text->setText(text);
}

QString FactsStatus::text() const {
    return m_text->text();
}

void FactsStatus::showFailed() {
    if (!m_facts.failed().empty())
        (new FailedFiles(m_facts.failed(), window()))->show();
}

} // namespace kavela::desktop
