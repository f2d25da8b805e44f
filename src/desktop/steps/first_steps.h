#pragma once

#include <QObject>
#include <QSet>
#include <QString>

namespace kavela::desktop {

class Workspace;

/// What a newcomer tries on the sample season, and which of it was done: it is noticed from the
/// windows that come, and kept for the next start. Who has used the program before is offered
/// nothing.
class FirstSteps : public QObject {
    Q_OBJECT

public:
    enum class Step { Race, Why, Losses, Film, Report };
    static constexpr int Count = 5;

    explicit FirstSteps(Workspace& workspace);

    /// Whether they are to be shown: not once they were dismissed or, at an earlier start, done.
    [[nodiscard]] bool isOffered() const { return m_isOffered; }
    [[nodiscard]] bool isDone(Step step) const;
    [[nodiscard]] bool isAllDone() const { return m_done.size() == Count; }
    void note(Step step);
    void dismiss();

    /// Watches which windows are shown, as long as there is something left to do.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void changed();

private:
    void notice(QWidget& window);
    void keep() const;

    Workspace& m_workspace;
    bool m_isOffered = true;
    QSet<QString> m_done; ///< names of the steps, as they are kept
};

} // namespace kavela::desktop
