#pragma once

#include "planning/planning_records.h"

#include <QWidget>

#include <functional>
#include <vector>

class QFormLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace kavela::desktop {

/// Everything of one interval session to type in. What is typed leaves when its field is left or
/// with Enter.
class IntervalForm : public QWidget {
    Q_OBJECT

public:
    using Change = std::function<void(favInvervalSessions_v2&)>;

    explicit IntervalForm(QWidget* parent = nullptr);

    /// Shows a session; empty and not to be used for a null one.
    void show(const favInvervalSessions_v2* session);
    void editTitle();

signals:
    void changed(const kavela::desktop::IntervalForm::Change& change);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A field of one line: how the session writes it, and what typing does.
    struct Field {
        QLineEdit* edit;
        std::function<QString(const favInvervalSessions_v2&)> shown;
        std::function<Change(const QString&)> typed; ///< throws RefusedEntry
    };

    QLineEdit* add(QFormLayout& form, const char* name, const QString& label,
                   std::function<QString(const favInvervalSessions_v2&)> shown,
                   std::function<Change(const QString&)> typed);
    void addText(QFormLayout& form, const char* name, const QString& label,
                 std::string favInvervalSessions_v2::*text);
    void addDuration(QFormLayout& form, const char* name, const QString& label,
                     double favInvervalSessions_v2::*seconds);
    void addCount(QFormLayout& form, const char* name, const QString& label,
                  std::int64_t favInvervalSessions_v2::*count);
    void addAmount(QFormLayout& form, const char* name, const QString& label,
                   double favInvervalSessions_v2::*amount);
    void take(const Field& field);
    void takeDescription();

    std::vector<Field> m_fields;
    QPlainTextEdit* m_description;
    QLabel* m_summary;
    favInvervalSessions_v2 m_session;
    bool m_hasSession = false;
};

} // namespace kavela::desktop
