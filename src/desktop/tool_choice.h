#pragma once

namespace kavela::desktop {

class Desktop;
class Workspace;
struct ToolKind;

/// Lets the coach choose what a tool is to open or begin, and has that opened.
class ToolChoice {
public:
    ToolChoice(Desktop& program, Workspace& workspace)
        : m_program(program), m_workspace(workspace) {}

    void choose(const ToolKind& tool) const;

private:
    void chooseDocument(const ToolKind& tool) const;
    void chooseFilesOrFolder(const ToolKind& tool) const;

    Desktop& m_program;
    Workspace& m_workspace;
};

} // namespace kavela::desktop
