#pragma once

#include "desktop/shell/forms/record_form.h"
#include "desktop/watertests/listed_test.h"

class QLabel;

namespace kavela::desktop {

/// Who did a test, when and where.
class FactsForm : public QWidget {
    Q_OBJECT

public:
    /// `edit` makes a change of a test a step of undo.
    explicit FactsForm(RecordForm<ListedTest>::Edit edit, QWidget* parent = nullptr);

    /// `athletes` are proposed while a name is typed.
    void show(const ListedTest& test, const QStringList& athletes, bool isOther);
    /// Begins to type the name.
    void focusAthlete();

private:
    QLabel* m_kind;
    RecordForm<ListedTest> m_form;
};

} // namespace kavela::desktop
