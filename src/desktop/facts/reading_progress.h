#pragma once

#include <QWidget>

class QProgressBar;

namespace kavela::desktop {

class WatchedFacts;

/// How far the reading of files is, with a button that ends it. Only there while files are read.
class ReadingProgress : public QWidget {
    Q_OBJECT

public:
    /// The facts must outlive it.
    explicit ReadingProgress(WatchedFacts& facts, QWidget* parent = nullptr);

    /// Files are being read, or not any more.
    void showReading(bool isReading);

private:
    QProgressBar* m_bar;
};

} // namespace kavela::desktop
