#pragma once

#include "results/selection_takeover.h"

#include <QObject>

class QWidget;

namespace kavela::desktop {

class SelectionDocument;
class Workspace;

/// What the menus of a selection do to its races, categories and athletes: it asks for what it
/// needs, refuses what cannot be, and makes one step of undo of each.
class SelectionEdits : public QObject {
    Q_OBJECT

public:
    /// Questions and refusals stand over `window`.
    SelectionEdits(SelectionDocument& document, Workspace& workspace, QWidget& window);

    void askForNewRace();
    void addRace(const QString& location);
    void renameRace();
    void removeRace();
    /// One of the races; nothing where there is none, which is told, or none is chosen.
    [[nodiscard]] std::optional<std::size_t> askForRace(const QString& title);

    /// The categories of the sport are offered; a selection may have others. False when none was
    /// added.
    bool askForCategory();
    void addCategory(const QString& label);

    /// An athlete needs a race and a category: what is missing is asked for first.
    void askForAthlete(std::size_t category);
    void addAthlete(std::size_t category, const NewAthlete& athlete);
    void editAthlete(const AthletePlace& place);
    void removeAthlete(const AthletePlace& place);

    void makeZerosMissing();

signals:
    void categoryAdded(std::size_t category);
    void athleteAdded(std::size_t athlete);

private:
    [[nodiscard]] bool hasRace();
    void refuse(const QString& reason);

    SelectionDocument& m_document;
    Workspace& m_workspace;
    QWidget& m_window;
};

} // namespace kavela::desktop
