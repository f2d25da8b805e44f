#pragma once

#include "common/why.h"
#include "desktop/shell/forms/record_form.h"
#include "splitdata/records.h"

#include <QWidget>

#include <functional>
#include <optional>

class QLabel;

namespace kavela::desktop {

class TakingDocument;

/// What is known of the selected run beside its splits, to be looked at and corrected: crew,
/// category, phase, hand, the real time with its penalties, the sprint; and what follows from its
/// times.
class RunForm : public QWidget {
    Q_OBJECT

public:
    explicit RunForm(TakingDocument& document, QWidget* parent = nullptr);

    /// Shows a run, -1 for none. What was typed for the run before is taken over first.
    void showRun(int run);
    /// The run that is shown stands elsewhere in the list now.
    void runMoved(int run);
    /// Takes over what is being typed.
    void commit();

private:
    void addFields();
    void edit(const QString& what, const std::function<void(athletedata031&)>& change);
    void refresh(bool isOther);
    /// Why the figure at a point of the form is what it is, the expected time for the key.
    [[nodiscard]] std::optional<Reason> whyAt(const QPoint& at) const;

    TakingDocument& m_document;
    int m_run = -1;
    RecordForm<athletedata031> m_form;
    QLabel* m_figures;
};

} // namespace kavela::desktop
