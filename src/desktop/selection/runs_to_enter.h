#pragma once

#include "desktop/people/found_lines.h"
#include "results/selection_takeover.h"

#include <set>

namespace kavela::desktop {

/// Runs on their way into a race of a selection: what a file has, what was ticked and given to
/// athletes by hand, and what would become of the selection.
class RunsToEnter {
public:
    /// `document` must outlive this one and stay as it is.
    RunsToEnter(const selectionracesStruct_v3& document, std::size_t race, FoundRuns found,
                BonusKind bonus);

    /// The athletes of the selection, and whether one comes into question for a line: those of its
    /// category, or all where the selection has no such category.
    [[nodiscard]] std::vector<KnownPerson> people() const;
    [[nodiscard]] bool mayBe(int line, std::size_t person) const;

    /// What is shown: the runs of athletes of the selection, the athletes whom the race leaves
    /// without a result, the runs of others, and the lines that could not be read.
    [[nodiscard]] std::vector<FoundLine> lines();
    void tick(int line, bool isTaken);
    /// All runs of the same name and category go with the one chosen.
    void choose(int line, const Belonging& whose);

    /// What is to be entered.
    [[nodiscard]] FoundRuns chosen() const;

    struct Counts {
        std::size_t results = 0;
        std::size_t newAthletes = 0;
        std::size_t withoutResult = 0;
        std::size_t unused = 0; ///< runs and lines that stay out
    };
    /// As of the lines asked for last.
    [[nodiscard]] const Counts& counts() const { return m_counts; }

private:
    struct Outcome;
    /// What a line stands for.
    struct Place {
        enum Kind { Run, Athlete, Refusal } kind = Run;
        std::size_t at = 0;
    };

    [[nodiscard]] FoundLine runLine(std::size_t run, const Outcome& outcome) const;
    [[nodiscard]] FoundLine athleteLine(const AthletePlace& athlete, const Outcome& outcome) const;
    [[nodiscard]] FoundLine refusalLine(const RefusedLine& refused) const;
    [[nodiscard]] std::optional<AthletePlace> athleteWith(std::size_t run,
                                                          const Outcome& outcome) const;
    [[nodiscard]] QString runRemark(std::size_t run, const Outcome& outcome) const;
    [[nodiscard]] QString resultBefore(const AthletePlace& athlete) const;
    [[nodiscard]] Outcome outcome() const;
    void findLikelyNames();

    const selectionracesStruct_v3& m_document;
    std::size_t m_race;
    FoundRuns m_found;
    BonusKind m_bonus;
    std::vector<AthletePlace> m_people;
    std::vector<std::size_t> m_order;     ///< of the runs, those of known athletes in front
    std::size_t m_known = 0;              ///< how many those are
    std::vector<QString> m_likely;        ///< by run: who may be meant
    std::vector<bool> m_isTicked;         ///< by run
    std::vector<AthletePlace> m_athletes; ///< without a run, as shown
    std::set<AthletePlace> m_kept;        ///< of those, who keep their result
    std::vector<Place> m_places;          ///< by line
    Counts m_counts;
};

} // namespace kavela::desktop
