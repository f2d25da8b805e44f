#pragma once

#include "desktop/course/course_draft.h"
#include "desktop/course/course_lens.h"

#include <QWidget>

#include <optional>
#include <vector>

namespace kavela::desktop {

/// What the mouse does on the drawing of a course.
enum class CourseTool { Hold, Gate, SplitLine, Bank, Line, Text };

/// The course while it is drawn, as large as it fits or larger: the wheel and the keys + and −
/// zoom, 0 shows all, the middle button or the left one with Space drags what is seen. It changes
/// nothing itself: what a hand does is told as another draft, and shown as such only while a button
/// of the mouse is down.
class CourseCanvas : public QWidget {
    Q_OBJECT

public:
    explicit CourseCanvas(QWidget* parent = nullptr);

    /// Shows a draft. What is selected stays, where it is still there.
    void show(const CourseDraft& draft);
    using QWidget::show;
    [[nodiscard]] const CourseDraft& draft() const { return m_draft; }

    void setTool(CourseTool tool);
    [[nodiscard]] CourseTool tool() const { return m_tool; }

    [[nodiscard]] const std::optional<CoursePart>& selected() const { return m_selected; }
    void select(std::optional<CoursePart> part);
    /// The next part of all, or the one before; false at the end of them, where none is selected
    /// any more.
    bool selectNext(int step);
    /// The next point of the selected part, and behind the last one the whole.
    void selectNextPoint(int step);

    /// Puts what the tool makes into the middle of the picture, for whom a mouse is not at hand.
    void putInMiddle();
    void removeSelected();
    /// Moves what is selected, in pixels as it is shown.
    void moveSelected(const QPointF& pixels);
    void turnSelected(double degrees);

    /// How near it is looked at.
    [[nodiscard]] const CourseZoom& zoom() const { return m_lens.zoom(); }

    /// Where a point of the picture is shown.
    [[nodiscard]] QPointF placeOf(const coursepoint001& point) const;

    [[nodiscard]] QSize sizeHint() const override { return {820, 540}; }

signals:
    /// What is to become of the draft; `what` names the step. Steps of keys that follow each other
    /// with one name are one.
    void edited(const QString& what, const kavela::desktop::CourseDraft& draft, bool byKey);
    void selectionChanged();
    /// Says why nothing happened, or what to do next.
    void told(const QString& hint);
    /// A text is wanted there.
    void textWanted(const kavela::coursepoint001& at);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool isNext) override;

private:
    /// What a press began and its release ends.
    struct Drag {
        coursepoint001 from;
        coursepoint001 to;
        std::vector<coursepoint001> way;
        CourseDraft before = {};
        std::optional<CourseDraft> after = {}; ///< none as long as nothing moved
    };

    [[nodiscard]] QRectF picture() const { return m_lens.picture(); }
    void showCursor();
    void reveal();
    [[nodiscard]] coursepoint001 pointAt(const QPointF& place) const;
    [[nodiscard]] double widthsOf(double pixels) const;
    void beginDrag(const coursepoint001& at);
    void follow(Drag& drag) const;
    [[nodiscard]] std::optional<CourseDraft> afterTool(const Drag& drag) const;
    [[nodiscard]] std::optional<CourseDraft> afterHold(const Drag& drag) const;
    [[nodiscard]] CourseSpan spanOf(const Drag& drag, const coursepoint001& usual) const;
    [[nodiscard]] QString stepName() const;
    void finish(const std::optional<CourseDraft>& after);
    void sayNoMore();
    void selectNewest(const CourseDraft& after);
    void cancelDrag();
    void edit(const QString& what, coursedesign001 design, bool byKey);
    [[nodiscard]] bool takeKey(const QKeyEvent& event);
    void paintSelected(QPainter& painter) const;

    CourseDraft m_draft;
    report::CoursePainting m_painting;
    CourseTool m_tool = CourseTool::Hold;
    std::optional<CoursePart> m_selected;
    std::optional<Drag> m_drag;
    CourseLens m_lens;
};

} // namespace kavela::desktop
