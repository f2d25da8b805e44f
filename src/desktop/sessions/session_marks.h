#pragma once

#include <QObject>

#include <optional>
#include <vector>

namespace kavela::desktop {

class Replay;
class SessionDocument;

/// The marks between which the segments of a session lie, edited where the replay stands: each
/// change is a step of the undo stack.
class SessionMarks : public QObject {
    Q_OBJECT

public:
    SessionMarks(SessionDocument& document, Replay& replay, QObject* parent);

    /// Marks the moment of the replay, where it has none.
    void mark();
    /// That nearest to the replay, however far: it is shown where it is.
    void removeNearest();
    void removeAll();
    /// Kept inside the session, and never moved onto another one.
    void moveNearest(double seconds);
    void moveNearestHere();
    /// Moves the replay to a mark before (negative) or behind its moment.
    void goTo(int steps);

signals:
    /// What became of the marks, for a line of text.
    void told(const QString& text);

private:
    [[nodiscard]] const std::vector<double>& marks() const;
    [[nodiscard]] std::optional<std::size_t> nearest() const;
    [[nodiscard]] bool hasMarkAt(double moment) const;
    void set(const QString& what, std::vector<double> marks);

    SessionDocument& m_document;
    Replay& m_replay;
};

} // namespace kavela::desktop
