#pragma once

#include <QCoreApplication>

#include <exception>

namespace kavela::desktop {

class AthleteList;
class PlanningDocument;
class PlanView;
class ToolWindow;
class Workspace;

/// What an athlete is given of a planning: reports on paper, and weeks for a calendar.
class PlanningHandouts {
    Q_DECLARE_TR_FUNCTIONS(PlanningHandouts)

public:
    PlanningHandouts(const PlanningDocument& document, const AthleteList& athletes,
                     const PlanView& plan, Workspace& workspace, ToolWindow& window);

    /// The week in front and the whole season.
    void previewReports();
    /// The week in front as an iCalendar file; told whether it was written.
    void writeCalendar(const QString& path) const;
    void askForCalendar();

private:
    static void noteCalendar(const Workspace& workspace, ToolWindow& window, const QString& path,
                             const std::exception_ptr& fault);
    void tell(const QString& text) const;

    const PlanningDocument& m_document;
    const AthleteList& m_athletes;
    const PlanView& m_plan;
    Workspace& m_workspace;
    ToolWindow& m_window;
};

} // namespace kavela::desktop
