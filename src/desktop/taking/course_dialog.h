#pragma once

#include "desktop/shell/entry_dialog.h"
#include "splitdata/records.h"

class QComboBox;
class QDateEdit;
class QFormLayout;
class QLineEdit;
class QTableWidget;

namespace kavela::desktop {

class WholeBox;
class Workspace;

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
    void addText(QFormLayout& form, const QString& title, const char* name,
                 std::string infodata031::*member);
    void fillSections();
    void shareEvenly();
    void resizeSections(int splits);
    [[nodiscard]] bool takeGates();
    [[nodiscard]] bool takeSections();
    [[nodiscard]] bool refuse(const std::string& reason, QWidget* field);

    Workspace& m_workspace;
    infodata031 m_info;
    std::vector<std::pair<QLineEdit*, std::string infodata031::*>> m_texts;
    QDateEdit* m_date = nullptr;
    QComboBox* m_session = nullptr;
    QLineEdit* m_gates = nullptr;
    QLineEdit* m_upGates = nullptr;
    WholeBox* m_splits = nullptr;
    QTableWidget* m_sections = nullptr;
};

} // namespace kavela::desktop
