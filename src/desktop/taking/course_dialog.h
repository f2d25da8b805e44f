#pragma once

#include "desktop/shell/entry_dialog.h"
#include "desktop/shell/forms/record_form.h"
#include "desktop/shell/tables/column_model.h"
#include "splitdata/records.h"

class QLineEdit;

namespace kavela::desktop {

class ColumnTable;
class WholeBox;
class Workspace;

/// A section of the course as it is typed.
struct SectionTexts {
    QString title;
    QString gates; ///< their numbers
};

/// The race and its course: gates, upstream gates, the sections between the splits and their
/// titles.
class CourseDialog : public EntryDialog {
    Q_OBJECT

public:
    CourseDialog(const infodata031& info, Workspace& workspace, QWidget* parent);

    /// The record as the coach left it, once the dialog is accepted.
    [[nodiscard]] const infodata031& info() const { return m_info; }

    /// Says what is wrong, or takes everything over and closes.
    void accept() override;

private:
    [[nodiscard]] QWidget* makeRace();
    [[nodiscard]] QWidget* makeCourse();
    void makeSections();
    [[nodiscard]] Column<SectionTexts> sectionColumn(const QString& title,
                                                     QString SectionTexts::*text);
    void fillSections();
    void shareEvenly();
    void resizeSections(int splits);
    [[nodiscard]] bool takeGates();
    [[nodiscard]] bool takeSections();
    [[nodiscard]] bool refuse(const std::string& reason, QWidget* field);

    Workspace& m_workspace;
    infodata031 m_info;
    RecordForm<infodata031>* m_race;
    QLineEdit* m_gates = nullptr;
    QLineEdit* m_upGates = nullptr;
    WholeBox* m_splits = nullptr;
    ColumnModel<SectionTexts> m_sections;
    ColumnTable* m_sectionTable = nullptr;
};

} // namespace kavela::desktop
