#pragma once

#include "desktop/course/course_draft.h"

#include <QWidget>

#include <optional>

class QCheckBox;
class QLabel;
class QLineEdit;

namespace kavela::desktop {

class NumberBox;
class WholeBox;

/// What is known of the selected part of a course beside its place: its number, whether a gate is
/// upstream, a name or text; and below it how wide the picture is in metres.
class CoursePartForm : public QWidget {
    Q_OBJECT

public:
    explicit CoursePartForm(QWidget* parent = nullptr);

    void show(const CourseDraft& draft, const std::optional<CoursePart>& part);
    using QWidget::show;
    /// Turns the selected gate from downstream to upstream, or back.
    void turnDirection();

signals:
    void edited(const QString& what, const kavela::desktop::CourseDraft& draft, bool byKey);
    void told(const QString& hint);

private:
    void setNumber(int number);
    void setText();
    void setWidth(double metres);
    [[nodiscard]] std::int64_t* numberIn(CourseDraft& draft) const;
    [[nodiscard]] std::string* textIn(CourseDraft& draft) const;
    [[nodiscard]] std::optional<std::int64_t> gate() const;

    CourseDraft m_draft;
    std::optional<CoursePart> m_part;
    QLabel* m_name;
    QLabel* m_numberTitle;
    WholeBox* m_number;
    QCheckBox* m_upstream;
    QLabel* m_textTitle;
    QLineEdit* m_text;
    NumberBox* m_width;
};

} // namespace kavela::desktop
