#include "desktop/season/empty_season.h"

#include "desktop/season/season_window.h"
#include "desktop/shell/theme.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kavela::desktop {

EmptySeason::EmptySeason(QWidget* parent) : QWidget(parent), m_text(new QLabel) {
    auto* const title =
        new QLabel(SeasonWindow::tr("Drop a team (.kvteam) and the folder of its races here"));
    title->setFont(theme::titleFont(*this));
    m_text->setObjectName("emptyText");
    m_text->setWordWrap(true);
    m_text->setAlignment(Qt::AlignCenter);
    m_text->setForegroundRole(QPalette::PlaceholderText);
    auto* const team = new QPushButton(SeasonWindow::tr("Open a team…"));
    auto* const folder = new QPushButton(SeasonWindow::tr("Add a folder of races…"));
    connect(team, &QPushButton::clicked, this, &EmptySeason::teamWanted);
    connect(folder, &QPushButton::clicked, this, &EmptySeason::folderWanted);
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(theme::LargeSpacing);
    column->addStretch();
    column->addWidget(title, 0, Qt::AlignHCenter);
    column->addWidget(m_text); // over the whole width: beside others its lines would be cut
    for (QPushButton* const button : {team, folder})
        column->addWidget(button, 0, Qt::AlignHCenter);
    column->addStretch();
}

void EmptySeason::tell(const QString& text) {
    m_text->setText(text);
}

} // namespace kavela::desktop
