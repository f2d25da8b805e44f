#pragma once

#include "splitdata/records.h"

#include <QWidget>

#include <functional>
#include <vector>

class QFormLayout;
class QLabel;
class QLineEdit;

namespace kavela::desktop {

class TakingDocument;
class Workspace;

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
    /// How a field shows a run, and how it takes over what was typed; it throws RefusedEntry.
    struct Field {
        QLineEdit* edit;
        std::function<QString(const athletedata031&)> show;
        std::function<void(const QString&)> take;
    };

    void addField(QFormLayout& form, const QString& title, const char* name,
                  std::function<QString(const athletedata031&)> show,
                  std::function<void(const QString&)> take);
    void addTexts(QFormLayout& form);
    void addTimes(QFormLayout& form);
    void takeField(const Field& field);
    void takeSeconds(const QString& text, double sectiondata030::*member, const QString& what);
    void takePenalty(const QString& text);
    void edit(const QString& what, const std::function<void(athletedata031&)>& change);
    void refresh();

    TakingDocument& m_document;
    int m_run = -1;
    std::vector<Field> m_fields;
    QLabel* m_figures;
};

} // namespace kavela::desktop
