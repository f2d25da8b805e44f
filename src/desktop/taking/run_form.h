#pragma once

#include "analysis/run_figures.h"
#include "common/why.h"
#include "desktop/shell/forms/record_form.h"
#include "splitdata/records.h"

#include <QWidget>

#include <functional>
#include <optional>

namespace kavela::desktop {

class TakingDocument;
class WhyLabel;

/// What is known of the selected run beside its splits, to be looked at and corrected: crew,
/// category, phase, hand, the real time with its penalties, the sprint; and what follows from its
/// times, each figure with its answer why.
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
    void addFigures();
    void showFigures();
    /// Why a figure of the run that follows from its marks is what it is.
    [[nodiscard]] std::optional<Reason> whyMarked(RunFigure figure) const;
    /// What the form answers for the key where no figure is asked.
    [[nodiscard]] std::optional<Reason> whyExpected() const;

    TakingDocument& m_document;
    int m_run = -1;
    RecordForm<athletedata031> m_form;
    WhyLabel* m_total;
    WhyLabel* m_penalties;
    WhyLabel* m_expected;
    WhyLabel* m_perfect;
};

} // namespace kavela::desktop
