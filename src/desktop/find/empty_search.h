#pragma once

#include <QWidget>

namespace kavela::desktop {

/// What stands in place of the results while nothing is searched: how to begin.
class EmptySearch : public QWidget {
    Q_OBJECT

public:
    explicit EmptySearch(QWidget* parent = nullptr);

signals:
    /// A folder is to be chosen.
    void folderRequested();
};

} // namespace kavela::desktop
