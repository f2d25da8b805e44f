#pragma once

#include "desktop/shell/tables/column_model.h"
#include "splittaking/folder/film_naming.h"
#include "splittaking/folder/film_renaming.h"

#include <QDialog>

#include <vector>

class QLabel;
class QLineEdit;
class QPushButton;

namespace kavela::desktop {

class ColumnTable;

/// Asks by which pattern films are to be named, and shows what becomes of each before it is done.
class RenameFilmsDialog : public QDialog {
    Q_OBJECT

public:
    /// `taken` are all names of their folder.
    RenameFilmsDialog(std::vector<ListedFilm> films, std::vector<std::string> taken,
                      const QString& pattern, QWidget* parent);

    [[nodiscard]] QLineEdit& patternLine() const { return *m_pattern; }
    [[nodiscard]] QString pattern() const;
    [[nodiscard]] const std::vector<PlannedName>& planned() const { return m_planned.rows(); }
    /// The films that get another name.
    [[nodiscard]] FilmRenames names() const;
    [[nodiscard]] QPushButton& renameButton() const { return *m_rename; }

private:
    void plan();

    std::vector<ListedFilm> m_films;
    std::vector<std::string> m_taken;
    ColumnModel<PlannedName> m_planned;
    QLineEdit* m_pattern;
    QLabel* m_note;
    ColumnTable* m_preview;
    QPushButton* m_rename;
};

} // namespace kavela::desktop
