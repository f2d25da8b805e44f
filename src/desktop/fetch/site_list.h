#pragma once

#include <QListWidget>

#include <string>
#include <vector>

namespace kavela::desktop {

/// The servers beside that of a source, each with a tick that lets films come from it.
class SiteList : public QListWidget {
    Q_OBJECT

public:
    explicit SiteList(QWidget* parent = nullptr);

    /// All of `sites`, of which `ticked` are ticked.
    void show(const std::vector<std::string>& sites, const std::vector<std::string>& ticked);
    using QWidget::show;

signals:
    void ticked(const std::string& site, bool isTicked);

private:
    bool m_isShowing = false;
};

} // namespace kavela::desktop
