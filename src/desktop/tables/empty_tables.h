#pragma once

#include <QWidget>

namespace kavela::desktop {

/// What the window of tables shows before it has a list: what it takes, and where from.
class EmptyTables : public QWidget {
    Q_OBJECT

public:
    explicit EmptyTables(QWidget* parent = nullptr);

signals:
    void filesWanted();
    void clipboardWanted();
};

} // namespace kavela::desktop
