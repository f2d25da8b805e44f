#pragma once

#include "analysis/colouring.h"
#include "common/why.h"
#include "performance/loss_charts.h"
#include "performance/losses.h"

#include <QObject>
#include <QStringList>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kavela::desktop {

/// What the window of losses is about: a run, what it is held against, the section that is looked
/// at. Header, charts and tables read it and follow its signals, which is what links them.
class LossState : public QObject {
    Q_OBJECT

public:
    explicit LossState(QObject* parent = nullptr);

    /// The files as they are now. The run stays the one of the same file and crew; where it is
    /// gone, and at first, it is the first whole one.
    void setFacts(std::shared_ptr<const FactStore> facts);
    /// By what the run, the reference and the section are found again at another time; empty
    /// without a run.
    [[nodiscard]] QStringList kept() const;
    /// Goes back to what kept() told. False where the run is not there.
    bool goBackTo(const QStringList& kept);
    /// By its place in the store. A rival as the reference belongs to one file: in another one it
    /// is the winner.
    void setRun(std::size_t run);
    void setReference(const LossReference& reference);
    /// Counted from 1; 0 for none.
    void chooseSection(std::size_t section);
    void setScale(ColourScale scale);

    [[nodiscard]] const std::shared_ptr<const FactStore>& sharedFacts() const { return m_facts; }
    [[nodiscard]] const FactStore& facts() const { return *m_facts; }
    [[nodiscard]] const LossRivals& rivals() const { return *m_rivals; }
    /// Without a run there is nothing else to ask for.
    [[nodiscard]] bool hasRun() const { return m_hasRun; }
    [[nodiscard]] std::size_t run() const { return m_losses.run; }
    [[nodiscard]] const RunRow& row() const { return m_facts->runs()[run()]; }
    [[nodiscard]] const FileRow& file() const { return m_facts->fileOf(row()); }
    [[nodiscard]] const LossReference& reference() const { return m_reference; }
    [[nodiscard]] const RunLosses& losses() const { return m_losses; }
    /// The run and those it competes with, the best first, those without a total behind.
    [[nodiscard]] const std::vector<RunLosses>& group() const { return m_group; }
    /// Place of a run in its group.
    [[nodiscard]] std::optional<int> rankOf(std::size_t run) const { return m_ranks[run]; }
    [[nodiscard]] std::size_t section() const { return m_section; }
    /// The stretch that holds the chosen section; null where none does.
    [[nodiscard]] const Stretch* stretch() const;
    [[nodiscard]] ColourScale scale() const { return m_scale; }

    /// How a number of a run against the reference came about.
    [[nodiscard]] std::optional<Reason> why(std::size_t run, LossNumber number,
                                            std::size_t at = 0) const;
    /// The same of the run that is shown.
    [[nodiscard]] std::optional<Reason> why(LossNumber number, std::size_t at = 0) const {
        return m_hasRun ? why(run(), number, at) : std::nullopt;
    }

signals:
    /// There are other runs to choose from; changed() follows.
    void factsChanged();
    /// The run, the reference or their figures are others.
    void changed();
    void sectionChosen();
    void scaleChanged();

private:
    /// By what a run is found again after its file has changed.
    struct RunKey {
        std::string path;
        std::uint32_t number = 0;
        std::string crew;
        std::string phase;
    };

    [[nodiscard]] RunKey keyOf(std::size_t run) const;
    [[nodiscard]] std::optional<std::size_t> find(const RunKey& key) const;
    [[nodiscard]] std::optional<std::size_t> firstWhole() const;
    void followReference(const RunKey& rival);
    void compute();

    std::shared_ptr<const FactStore> m_facts;
    std::unique_ptr<LossRivals> m_rivals;
    bool m_hasRun = false;
    LossReference m_reference;
    RunLosses m_losses;
    std::vector<RunLosses> m_group;
    std::vector<std::optional<int>> m_ranks; ///< by run of the store
    std::size_t m_section = 0;
    ColourScale m_scale = ColourScale::GreenRed;
};

} // namespace kavela::desktop
