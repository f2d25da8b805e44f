#pragma once

#include "splitdata/cross_records.h"

#include <QWidget>

#include <string_view>

class QFormLayout;
class QLabel;
class QLineEdit;
class QToolButton;

namespace kavela::desktop {

class FaultLabel;
class TakingDocument;

/// Gates as the coach types them, in the order of the course, or what is wrong with the text.
struct CourseGates {
    std::vector<std::int64_t> gates; ///< each once; empty on a fault
    std::string fault;               ///< empty when the text is fine
};

/// Reads gate numbers set apart by commas, semicolons or blanks, such as "1, 2, 3, 4".
[[nodiscard]] CourseGates parseCourseGates(std::string_view text);

/// The course of a cross race in one line, which opens to be typed: phase, category, gates and the
/// gate after which the roll is made. It stands open as long as there are no gates. What is typed
/// is taken when a field is left; a text that makes no sense stays there with its fault.
class CourseStrip : public QWidget {
    Q_OBJECT

public:
    explicit CourseStrip(TakingDocument& document, QWidget* parent = nullptr);

    void refresh();
    /// Opens the fields with the cursor at the gates, or closes them.
    void toggle();
    /// Takes what is being typed. False, with the fault shown, when it makes no sense.
    bool commit();

private:
    void addField(QFormLayout& form, const QString& title, QLineEdit& field, const char* name);
    void setOpen(bool isOpen);
    [[nodiscard]] QString summary() const;
    bool refuse(const QString& fault);

    TakingDocument& m_document;
    QLabel* m_summary;
    QToolButton* m_open;
    QWidget* m_fields;
    QLineEdit* m_phase;
    QLineEdit* m_category;
    QLineEdit* m_gates;
    QLineEdit* m_roll;
    FaultLabel* m_fault;
    crossinfodata030 m_shown; ///< what the fields were filled from
};

} // namespace kavela::desktop
