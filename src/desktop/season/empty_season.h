#pragma once

#include <QWidget>

class QLabel;

namespace kavela::desktop {

/// What a season shows as long as it has no team or nobody of it raced: what it is for, and what
/// opens one.
class EmptySeason : public QWidget {
    Q_OBJECT

public:
    explicit EmptySeason(QWidget* parent = nullptr);

    void tell(const QString& text);

signals:
    void teamWanted();
    void folderWanted();

private:
    QLabel* m_text;
};

} // namespace kavela::desktop
