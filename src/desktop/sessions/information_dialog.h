#pragma once

#include "boatmotion/sessions.h"
#include "desktop/shell/entry_dialog.h"
#include "desktop/shell/forms/record_form.h"

namespace kavela::desktop {

/// Athlete, place, kind and equipment of a session. What nobody touched stays as it was: a number
/// with all its decimals, a text with its spaces.
class InformationDialog : public EntryDialog {
    Q_OBJECT

public:
    explicit InformationDialog(const infosessionSmart_v3& info, QWidget* parent = nullptr);

    void accept() override;
    [[nodiscard]] const infosessionSmart_v3& information() const { return m_info; }

private:
    void addFields();

    infosessionSmart_v3 m_info;
    RecordForm<infosessionSmart_v3> m_form;
};

} // namespace kavela::desktop
