#pragma once

#include "desktop/steps/first_steps.h"

#include <QPointer>

class QWidget;

namespace kavela::desktop {

class Desktop;
class EarlierWork;
class HomeWindow;
class ToolChoice;
class Workspace;

/// The home screen of the program: its tools, the first steps of a new coach, and what was put off.
class HomeScreen {
public:
    HomeScreen(Desktop& program, Workspace& workspace, ToolChoice& choice, EarlierWork& earlierWork)
        : m_program(program),
          m_choice(choice),
          m_earlierWork(earlierWork),
          m_workspace(workspace),
          m_firstSteps(workspace) {}

    /// Brings it to the front; made anew where it was closed.
    void show();
    void close();
    [[nodiscard]] bool isShown() const;
    /// Null where it is closed.
    [[nodiscard]] QWidget* window() const;
    /// Lists what was put off, where it is shown.
    void showKeptWork();

private:
    Desktop& m_program;
    ToolChoice& m_choice;
    EarlierWork& m_earlierWork;
    Workspace& m_workspace;
    FirstSteps m_firstSteps;
    QPointer<HomeWindow> m_window;
};

} // namespace kavela::desktop
