#pragma once

#include "compose/compose_job.h"
#include "desktop/shell/forms/record_form.h"

namespace kavela::desktop {

/// How films are seen together: layout, synchronisation, part, speed, captions, size.
class CompareForm : public RecordForm<composejob002> {
public:
    explicit CompareForm(Edit edit, QWidget* parent = nullptr);

    /// Shows a job; fields that mean nothing for it are hidden.
    void showComparison(const composejob002& job, bool isOther = false);

private:
    void addTimes();
    void addCaptions();
    void addOutput();
};

} // namespace kavela::desktop
