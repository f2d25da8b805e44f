#pragma once

#include "desktop/course/course_canvas.h"
#include "desktop/shell/entry_dialog.h"

#include <QString>
#include <QTimer>
#include <QUndoStack>

#include <functional>
#include <optional>

class QAbstractButton;
class QButtonGroup;
class QLabel;

namespace kavela::desktop {

class CoursePartForm;
class Workspace;

/// Where the course of a race is drawn: banks, gates, split lines, lines of runs and words, over
/// white, a photo or the picture that the race has. Every step can be undone; the race is as it was
/// until the coach agrees, and a picture that was not drawn upon stays as it is.
class CourseEditor : public EntryDialog {
    Q_OBJECT

public:
    CourseEditor(const infodata031& info, Workspace& workspace, QWidget* parent);

    /// The race with its course, once the dialog is accepted.
    [[nodiscard]] const infodata031& info() const { return m_info; }
    [[nodiscard]] bool isChanged() const { return !m_steps.isClean(); }

    [[nodiscard]] CourseCanvas& canvas() const { return *m_canvas; }
    [[nodiscard]] QUndoStack& steps() { return m_steps; }
    void setTool(CourseTool tool);

    /// Puts a picture below the drawing; one that cannot be read is told, and changes nothing.
    void usePhoto(const QString& path);
    void useWhite();

    /// Where photos and words come from in place of dialogs, as in tests; nothing for none.
    using ChoosePhoto = std::function<QString()>;
    void setChoosePhoto(ChoosePhoto choose) { m_choosePhoto = std::move(choose); }
    using AskText = std::function<QString()>;
    void setAskText(AskText ask) { m_askText = std::move(ask); }

    /// So long after a step the race with the drawing is told, in milliseconds.
    static constexpr int KeepPause = 3000;

    /// Makes the picture, or says why it cannot.
    void accept() override;
    /// Asks before what was drawn is lost.
    void reject() override;

signals:
    /// The race as it would be with what is drawn so far, soon after every step: an hour's drawing
    /// is not to be lost with the program.
    void drawn(const kavela::infodata031& info);

private:
    void makeParts();
    [[nodiscard]] QWidget* makeTools();
    [[nodiscard]] QWidget* makeGround();
    void makeKeys();
    void showKeys();
    void put(const QString& what, const CourseDraft& draft, bool byKey);
    void putText(const coursepoint001& at);
    void showSelected();
    void tell(const QString& hint);
    void tellDrawn();

    Workspace& m_workspace;
    infodata031 m_info;
    QTimer m_keep; ///< outlives the steps, which are told to be none while they are taken apart
    QUndoStack m_steps;
    CourseCanvas* m_canvas;
    CoursePartForm* m_form;
    QButtonGroup* m_tools;
    QLabel* m_hint;
    ChoosePhoto m_choosePhoto;
    AskText m_askText;
};

} // namespace kavela::desktop
