#pragma once

#include <QWidget>

class QLabel;
class QListWidget;
class QPushButton;

namespace kavela::desktop {

/// The folders and files that are searched, and what is in them.
class SearchPlaces : public QWidget {
    Q_OBJECT

public:
    explicit SearchPlaces(QWidget* parent = nullptr);

    void show(const QStringList& paths);
    /// "312 files, 4120 runs"
    void setContent(const QString& content);
    /// How many files could not be read; a button asks which.
    void setFailed(int count);
    [[nodiscard]] const QStringList& paths() const { return m_paths; }
    using QWidget::show;

    void chooseFolder();
    void chooseFiles();
    /// No longer searches the chosen one.
    void removeChosen();

signals:
    void edited(const QStringList& paths);
    void failuresRequested();

private:
    void add(const QStringList& paths);

    QStringList m_paths;
    QListWidget* m_list;
    QLabel* m_content;
    QPushButton* m_failed;
    QPushButton* m_remove;
};

} // namespace kavela::desktop
