#pragma once

#include <QWidget>

class QLabel;

namespace kavela::desktop {

class FirstSteps;

/// The first steps on the home screen: a line for each, ticked when it was done, with the keys that
/// lead there. Hides itself once it is dismissed.
class StepsBox : public QWidget {
    Q_OBJECT

public:
    explicit StepsBox(FirstSteps& steps, QWidget* parent = nullptr);

private:
    void showSteps();

    FirstSteps& m_steps;
    QLabel* m_title;
    QList<QLabel*> m_lines; ///< in the order of the steps
};

} // namespace kavela::desktop
