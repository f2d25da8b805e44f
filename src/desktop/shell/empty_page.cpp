#include "desktop/shell/empty_page.h"

#include "desktop/shell/theme.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kavela::desktop {

EmptyPage::EmptyPage(const QString& title, const QString& text, const std::vector<Way>& ways,
                     QWidget* parent)
    : QWidget(parent), m_text(new QLabel(text)) {
    auto* const heading = new QLabel(title);
    heading->setFont(theme::titleFont(*this));
    m_text->setObjectName("emptyText");
    m_text->setWordWrap(true);
    m_text->setAlignment(Qt::AlignCenter);
    m_text->setForegroundRole(QPalette::PlaceholderText);
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(theme::LargeSpacing);
    column->addStretch();
    column->addWidget(heading, 0, Qt::AlignHCenter);
    column->addWidget(m_text); // over the whole width: how high it is follows from that
    for (const Way& way : ways) {
        auto* const button = new QPushButton(way.title);
        button->setAutoDefault(true); // Enter presses it here, too
        connect(button, &QPushButton::clicked, this, way.take);
        column->addWidget(button, 0, Qt::AlignHCenter);
    }
    column->addStretch();
    setFocusProxy(findChild<QPushButton*>());
}

/// The first button is where the coach goes on.
void EmptyPage::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!window()->focusWidget())
        setFocus();
}

void EmptyPage::tell(const QString& text) {
    m_text->setText(text);
}

} // namespace kavela::desktop
