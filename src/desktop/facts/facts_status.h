#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace kavela::desktop {

class ReadingProgress;
class WatchedFacts;

/// The line below a window of facts: how far reading is, with a button that ends it, a sentence of
/// the window's own, what could not be read, and which files that are.
class FactsStatus : public QWidget {
    Q_OBJECT

public:
    /// `facts` has to outlive it.
    explicit FactsStatus(WatchedFacts& facts, QWidget* parent = nullptr);

    /// The window's own parts of the line; what is to be said of the files follows them.
    void show(QStringList parts);
    /// Stands in the line until show().
    void tell(const QString& text);
    [[nodiscard]] QString text() const;

    /// Each with its reason; nothing where all were read.
    void showFailed();

private:
    void showReading();

    WatchedFacts& m_facts;
    ReadingProgress* m_progress;
    QLabel* m_text;
    QPushButton* m_failed;
};

} // namespace kavela::desktop
