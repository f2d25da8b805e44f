#pragma once

#include "desktop/shell/entry_dialog.h"
#include "planning/planning_records.h"

#include <chrono>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QTimeEdit;

namespace kavela::desktop {

class NumberBox;
class FaultLabel;

/// A training session: when, where, what, and how much of each training category. What a file holds
/// beyond the fields stays as it is.
class SessionDialog : public EntryDialog {
    Q_OBJECT

public:
    /// `firstDay` is that of the week; titles and places used before are offered again.
    SessionDialog(const sessioninmicro_v5& session, std::chrono::sys_days firstDay,
                  const QStringList& titles, const QStringList& places, QWidget* parent);

    /// The session as it is entered.
    [[nodiscard]] sessioninmicro_v5 session() const;

private:
    void makeFields();
    void makeValues();
    void showSession();
    [[nodiscard]] std::chrono::sys_days chosenDay() const;
    void putWhen(sessioninmicro_v5& session) const;

    sessioninmicro_v5 m_session;
    std::chrono::sys_days m_firstDay;
    QComboBox* m_day;
    QCheckBox* m_hasTime;
    QTimeEdit* m_time;
    QComboBox* m_zone;
    QLineEdit* m_title;
    QLineEdit* m_place;
    QPlainTextEdit* m_description;
    FaultLabel* m_faults;
    std::vector<NumberBox*> m_values;
    int m_shownDay = 0; ///< as the dialog opened, to tell what the coach changed
    QString m_shownZone;
};

} // namespace kavela::desktop
