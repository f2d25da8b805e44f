#pragma once

#include "desktop/help/guide.h"

#include <QMainWindow>

#include <vector>

class QAction;
class QLabel;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;
class QUrl;

namespace kavela::desktop {

class GuideText;
class Workspace;

/// The user guide in a window: its contents at the left, which a search leaves only the chapters of
/// that have the words, and its text with a way back.
class GuideWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit GuideWindow(Workspace& workspace, QWidget* parent = nullptr);

    /// Shows the first chapter of a title; the page stays where there is none.
    void showChapter(const QString& title);
    /// The title of the chapter that is read; empty above the first one.
    [[nodiscard]] QString chapter() const;
    void goBack();
    void goForward();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void makeBar();
    [[nodiscard]] QWidget* makeContents();
    void fillContents();
    void goTo(int block);
    void visit(int block);
    void follow(const QUrl& link);
    void search(const QString& query);
    void findNext();
    void showPlace();
    [[nodiscard]] int chapterAt(int block) const;

    GuideText* m_text;
    QTreeWidget* m_contents = nullptr;
    QLineEdit* m_search = nullptr;
    QLabel* m_found = nullptr;
    QAction* m_back = nullptr;
    QAction* m_forward = nullptr;
    QList<GuideChapter> m_chapters;
    QList<QTreeWidgetItem*> m_items; ///< of each chapter
    std::vector<int> m_visited{0};   ///< blocks, in the order of the visits
    std::size_t m_visit = 0;         ///< that is on the page
};

} // namespace kavela::desktop
