#pragma once

#include "common/why.h"

#include <QDialog>

#include <vector>

class QTreeWidget;
class QTreeWidgetItem;
class QVBoxLayout;

namespace kavela::desktop {

/// How a number came about: above its rule in words and signs, its full value and how sure it is,
/// below what went into it with the places, and the numbers made on the way, which open. It goes
/// when another window comes to the front.
class WhyWindow : public QDialog {
    Q_OBJECT

public:
    WhyWindow(const Reason& reason, QWidget* parent);

    /// What Copy puts on the clipboard.
    [[nodiscard]] QString text() const;

signals:
    /// A place is to be shown. The window is closed then.
    void placeActivated(const kavela::Place& place);

protected:
    bool event(QEvent* event) override;

private:
    void addHead(QVBoxLayout& column);
    void addTree(QVBoxLayout& column);
    void addButtons(QVBoxLayout& column);
    void addInput(const Input& input, QTreeWidgetItem& under);
    void addPart(const Reason& part, QTreeWidgetItem& under);
    void fitTree();
    void activate(const QTreeWidgetItem& item);
    void copy() const;

    Reason m_reason;
    std::vector<Place> m_places;
    QTreeWidget* m_tree = nullptr;
};

} // namespace kavela::desktop
