#pragma once

#include "boatmotion/sessions.h"
#include "desktop/shell/entry_dialog.h"

#include <array>

class QLineEdit;

namespace kavela::desktop {

class NumberBox;

/// Athlete, place, kind and equipment of a session.
class InformationDialog : public EntryDialog {
    Q_OBJECT

public:
    explicit InformationDialog(const infosessionSmart_v3& info, QWidget* parent = nullptr);

    [[nodiscard]] infosessionSmart_v3 information() const;

private:
    infosessionSmart_v3 m_info;
    std::array<QLineEdit*, 3> m_texts{};
    std::array<NumberBox*, 5> m_numbers{};
    std::array<double, 5> m_shown{}; ///< as the boxes rounded them
};

} // namespace kavela::desktop
