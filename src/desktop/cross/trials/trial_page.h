#pragma once

#include "desktop/cross/cross_page.h"
#include "desktop/cross/trials/trial_marking.h"
#include "desktop/shell/tables/column_model.h"

class QComboBox;
class QLabel;
class QStackedWidget;
class QTabBar;

namespace kavela::desktop {

class ColumnTable;
class GateForm;
class RollForm;
class TrialList;

/// A split of the trial in front.
struct SplitRow {
    QString number;
    QString time;
    QString fromStart;
};

/// The time trials of a cross race on film: splits, upstream gates and the roll of one boat at a
/// time, their ranking, and the heats that follow from it. What the marking key marks next is
/// always said.
class TrialPage : public CrossPage {
    Q_OBJECT

public:
    explicit TrialPage(const CrossDesk& desk);

    void refresh() override;
    void showFrame() override;
    void commit() override;

    [[nodiscard]] QString film() const override;
    [[nodiscard]] std::vector<LineMark> marks() const override;
    [[nodiscard]] std::optional<std::size_t> selectedMark() const override {
        return m_front.selectedMark();
    }
    /// Brings the mode of the mark, and its gate in front.
    void selectMark(std::size_t mark) override;
    /// The last split; gates and rolls stand beside each other.
    [[nodiscard]] std::optional<std::size_t> lastMark() const override;
    /// At those of the present mode.
    [[nodiscard]] bool stopsAt(std::size_t mark) const override;

    void mark(const CMTime& moment) override { m_marking.mark(moment); }
    void moveMark(const CMTime& moment) override { m_marking.move(moment); }
    /// Without a selected mark the gate in front, once it has none.
    void removeMark() override { m_marking.remove(); }
    void stepRow(int step) override;
    /// In the mode of the upstream gates.
    bool stepGate(int step) override;
    /// Goes to the split, the gate or the part of the roll of that number.
    void pressNumber(int number) override { m_marking.goToNumber(number); }

    /// The trial in front, by its place in the file; nothing without one.
    [[nodiscard]] std::optional<std::size_t> trial() const { return m_front.place(); }
    void selectTrial(std::size_t trial);
    [[nodiscard]] TrialMode mode() const { return m_front.mode(); }
    void setMode(TrialMode mode) { m_front.setMode(mode); }
    /// The upstream gate that is marked next.
    [[nodiscard]] std::optional<std::int64_t> gate() const { return m_front.gate(); }

    /// Puts the cursor where the name of a new athlete is typed, or of the one in front.
    void startAdding();
    void startRenaming();
    /// Adds a trial for each film of the folder that no trial has yet, named after the film.
    void addFilms(const QStringList& names);
    /// Gives the trial in front another film of the folder.
    void setFilm(const QString& name) override;
    void removeTrial();
    /// Makes heats of as many boats as chosen beside the button; heats that exist stay.
    void makeHeats();

signals:
    void filmWanted(); ///< for the trial in front: setFilm() takes it
    void heatsMade();

private:
    [[nodiscard]] QWidget* makeSeeding();
    [[nodiscard]] QWidget* makeModes();
    void connectParts();
    void connectForms();
    void showTrial();
    void showSplits();
    void showMode();
    void addTrial(const QString& athlete, const QString& film);
    void rename(std::size_t trial, const QString& athlete);

    TrialDesk m_front;
    TrialMarking m_marking;
    ColumnModel<SplitRow> m_splitRows;

    TrialList* m_list;
    QComboBox* m_boats;
    QTabBar* m_bar;
    QLabel* m_next;
    QLabel* m_running;
    QStackedWidget* m_stack;
    ColumnTable* m_splits;
    GateForm* m_gates;
    RollForm* m_roll;
};

} // namespace kavela::desktop
