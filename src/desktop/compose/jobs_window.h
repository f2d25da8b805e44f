#pragma once

#include "desktop/compose/render_queue.h"
#include "desktop/shell/tables/column_model.h"

#include <QWidget>

#include <cstdint>
#include <vector>

class QPushButton;

namespace kavela::desktop {

class ColumnTable;

/// The films that are being composed: how far each is, to be stopped, and where it stands when it
/// is there. One for the whole program.
class JobsWindow : public QWidget {
    Q_OBJECT

public:
    /// Brings it to the front, and makes it where there is none.
    static JobsWindow& showOf(Workspace& workspace);

    [[nodiscard]] ColumnTable& table() const { return *m_table; }
    void stopChosen();
    void showFolder();

protected:
    /// Films that are not there yet: asks whether they go on.
    void closeEvent(QCloseEvent* event) override;

private:
    explicit JobsWindow(Workspace& workspace);
    void showJobs();
    void enableButtons();
    [[nodiscard]] const RenderJob* chosen() const;

    Workspace& m_workspace;
    RenderQueue& m_queue;
    ColumnModel<RenderJob> m_rows;
    ColumnTable* m_table;
    QPushButton* m_stop;
    QPushButton* m_folder;
    QPushButton* m_clear;
};

/// How a job stands, in a few words: "42 %, 1:20 left".
[[nodiscard]] QString renderStateText(const RenderJob& job);

/// Asks what becomes of films that are being composed as a window closes: whether it may close.
/// Where they are not to go on, they are stopped.
[[nodiscard]] bool mayLeaveRenders(Workspace& workspace, const std::vector<std::uint64_t>& jobs,
                                   QWidget* over);

} // namespace kavela::desktop
