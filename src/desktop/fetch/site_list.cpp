#include "desktop/fetch/site_list.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/theme.h"

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int SeenSites = 3; ///< without scrolling

} // namespace

SiteList::SiteList(QWidget* parent) : QListWidget(parent) {
    setObjectName("sites");
    setAccessibleName(tr("Other servers that films may come from"));
    setFixedHeight(SeenSites * (fontMetrics().lineSpacing() + theme::SmallSpacing) +
                   theme::Spacing);
    connect(this, &QListWidget::itemChanged, this, [this](const QListWidgetItem* item) {
        if (!m_isShowing)
            emit ticked(item->text().toStdString(), item->checkState() == Qt::Checked);
    });
}

void SiteList::show(const std::vector<std::string>& sites, const std::vector<std::string>& ticked) {
    m_isShowing = true;
    clear();
    for (const std::string& site : sites) {
        auto* const item = new QListWidgetItem(qtText(site), this);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(std::ranges::find(ticked, site) == ticked.end() ? Qt::Unchecked
                                                                            : Qt::Checked);
    }
    m_isShowing = false;
}

} // namespace kavela::desktop
