#pragma once

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;

namespace kavela::desktop {

class RaceDocument;

/// What stands above a race: its title, how many of its runs are shown, and by which phase,
/// category and name they are chosen.
class RaceHeader : public QWidget {
    Q_OBJECT

public:
    explicit RaceHeader(RaceDocument& document, QWidget* parent = nullptr);

    /// Shows title, choices and filter of the document, which may be others.
    void showRace();
    /// Counts the runs that are shown; in front stands what else there is to say, if anything.
    void showCount(const QString& remark);
    void findName();

private:
    void applyFilter();

    RaceDocument& m_document;
    QLabel* m_title;
    QLabel* m_subtitle;
    QLabel* m_count;
    QComboBox* m_phase;
    QComboBox* m_category;
    QLineEdit* m_name;
    bool m_isShowing = false; ///< what changes now is not the coach's doing
};

} // namespace kavela::desktop
