#pragma once

#include "desktop/splitfile/film_files.h"
#include "splittaking/race_day/start_list.h"

#include <QDate>
#include <QDialog>

class QDateEdit;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace kavela::desktop {

class Workspace;

/// A start list is pasted, or taken from a file, and shown with what of it can be taken before it
/// is.
class StartListDialog : public QDialog {
    Q_OBJECT

public:
    /// `phase` and `day` are proposed.
    StartListDialog(const FilmFiles& files, const Workspace& workspace, const QString& phase,
                    const QDate& day, QWidget* parent);

    [[nodiscard]] const StartList& list() const { return m_list; }
    [[nodiscard]] QString phase() const;
    [[nodiscard]] QDate day() const;

private:
    void makeLayout();
    void readFile();
    void readText();

    const FilmFiles& m_files;
    const Workspace& m_workspace;
    StartList m_list;
    QLineEdit* m_phase;
    QDateEdit* m_day;
    QPlainTextEdit* m_text;
    QLabel* m_count;
    QPlainTextEdit* m_refused;
    QPushButton* m_take = nullptr;
};

} // namespace kavela::desktop
