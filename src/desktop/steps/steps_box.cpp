#include "desktop/steps/steps_box.h"

#include "desktop/shell/theme.h"
#include "desktop/steps/first_steps.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kavela::desktop {

StepsBox::StepsBox(FirstSteps& steps, QWidget* parent)
    : QWidget(parent), m_steps(steps), m_title(new QLabel) {
    setObjectName("firstSteps");
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    auto* const head = new QHBoxLayout;
    m_title->setFont(theme::titleFont(*this));
    auto* const dismiss = new QPushButton(tr("Hide these steps"));
    dismiss->setObjectName("dismissSteps");
    dismiss->setFlat(true);
    head->addWidget(m_title);
    head->addWidget(dismiss);
    head->addStretch(1);
    column->addLayout(head);
    for (int step = 0; step < FirstSteps::Count; ++step) {
        m_lines.append(new QLabel);
        m_lines.back()->setFont(theme::captionFont(*this));
        m_lines.back()->setWordWrap(true);
        column->addWidget(m_lines.back());
    }
    connect(dismiss, &QPushButton::clicked, &m_steps, &FirstSteps::dismiss);
    connect(&m_steps, &FirstSteps::changed, this, &StepsBox::showSteps);
    showSteps();
}

void StepsBox::showSteps() {
    const QStringList texts{
        tr("Open a race: “Try the sample season”."),
        tr("Ask a number of its table why it is what it is: Alt+click, or Shift+F1."),
        tr("See where the time was lost: Ctrl+Shift+L."),
        tr("Play the film of a run, or take a split: Ctrl+T."),
        tr("Make an athlete's report or page: Ctrl+P."),
    };
    for (qsizetype step = 0; step < m_lines.size(); ++step) {
        const bool isDone = m_steps.isDone(static_cast<FirstSteps::Step>(step));
        m_lines[step]->setText((isDone ? QStringLiteral("✓  ") : QStringLiteral("○  ")) +
                               texts[step]);
        // A sign in front of a line says nothing to those who hear it.
        m_lines[step]->setAccessibleName(isDone ? tr("Done: %1").arg(texts[step])
                                                : tr("To do: %1").arg(texts[step]));
        m_lines[step]->setForegroundRole(isDone ? QPalette::PlaceholderText : QPalette::WindowText);
    }
    m_title->setText(m_steps.isAllDone() ? tr("All first steps are done. F1 tells the rest.")
                                         : tr("First steps, three minutes"));
    if (!m_steps.isOffered())
        hide();
}

} // namespace kavela::desktop
