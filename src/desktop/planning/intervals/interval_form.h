#pragma once

#include "desktop/shell/forms/record_form.h"
#include "planning/planning_records.h"

class QLabel;

namespace kavela::desktop {

/// Everything of one interval session to type in.
class IntervalForm : public RecordForm<favInvervalSessions_v2> {
public:
    explicit IntervalForm(Edit edit, QWidget* parent = nullptr);

    /// Shows a session; empty and not to be used for a null one.
    void show(const favInvervalSessions_v2* session, bool isOther);
    void editTitle() { editField("title"); }

private:
    QLabel* m_summary;
};

} // namespace kavela::desktop
