#pragma once

#include <QWidget>

namespace kavela::desktop {

/// Where the files of a session are dropped: a recording on the left, a processed session on the
/// right. It fills an empty window, and lies over it while a file is dragged.
class DropAreas : public QWidget {
    Q_OBJECT

public:
    explicit DropAreas(QWidget* parent = nullptr);

signals:
    void recordingRequested();
    void sessionRequested();
};

} // namespace kavela::desktop
