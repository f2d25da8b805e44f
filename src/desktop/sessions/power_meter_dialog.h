#pragma once

#include "boatmotion/power_meter.h"
#include "desktop/shell/entry_dialog.h"

class QLabel;

namespace kavela::desktop {

class NumberBox;

/// What a list of a power meter holds, which lines of it are refused and why, and where in the
/// session it begins.
class PowerMeterDialog : public EntryDialog {
    Q_OBJECT

public:
    PowerMeterDialog(const QString& fileName, const PowerMeterList& list,
                     const EditedSession& session, QWidget* parent = nullptr);

    /// The samples where the coach put them, on the clock of the session.
    [[nodiscard]] std::vector<powermeterData> samples() const;

private:
    [[nodiscard]] double shift() const;
    void showOverlap();

    std::vector<powermeterData> m_placed;
    MomentRange m_moments;
    NumberBox* m_begin;
    QLabel* m_overlap;
};

} // namespace kavela::desktop
