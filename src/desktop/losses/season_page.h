#pragma once

#include "desktop/shell/tables/column_model.h"
#include "performance/loss_season.h"

#include <QWidget>

#include <optional>
#include <string>

class QLabel;

namespace kavela::desktop {

class ColumnTable;
class IntervalChart;
class LossState;

/// Where an athlete loses time over all the runs that are open: by what, with the interval and what
/// it says, and what is to be trained, with the clips to see it in. It is that of the run's crew,
/// until another one is asked for.
class SeasonPage : public QWidget {
    Q_OBJECT

public:
    explicit SeasonPage(LossState& state, QWidget* parent = nullptr);

    /// As lists write the name; in all categories.
    void setAthlete(const QString& athlete);

    [[nodiscard]] const SeasonLosses& season() const { return m_season; }
    /// Whose season, against what.
    [[nodiscard]] SeasonLossQuery query() const;
    [[nodiscard]] ColumnTable& table() const { return *m_table; }
    [[nodiscard]] ColumnTable& clips() const { return *m_clipTable; }
    [[nodiscard]] IntervalChart& chart() const { return *m_chart; }
    [[nodiscard]] QString summary() const;
    [[nodiscard]] QString advice() const;
    void askAndSave();

signals:
    void clipActivated(const kavela::LossClip& clip);
    /// A run of the season is to be shown by itself.
    void runActivated(std::size_t run);
    void savingFailed(const QString& path, const QString& reason);

protected:
    void showEvent(QShowEvent* event) override;

private:
    struct ClipLine {
        LossClip clip;
        QString what;
        QString run;
    };
    using Rows = ColumnModel<SeasonLossRow>;
    using Clips = ColumnModel<ClipLine>;

    [[nodiscard]] static Rows::Columns rowColumns();
    [[nodiscard]] static Clips::Columns clipColumns();
    void makeLayout();
    void makeAnswers();
    void noteChange();
    void refresh();
    void showRows();
    void showClips();
    [[nodiscard]] QString summaryText() const;
    [[nodiscard]] QString adviceText() const;

    LossState& m_state;
    std::optional<QString> m_athlete;  ///< another one than the run's
    std::optional<std::string> m_crew; ///< of the run that was shown when that was asked
    QString m_name;
    SeasonLosses m_season;
    bool m_isStale = true;
    Rows m_rows;
    Clips m_clips;
    QLabel* m_summary;
    QLabel* m_advice;
    ColumnTable* m_table;
    ColumnTable* m_clipTable;
    IntervalChart* m_chart;
};

} // namespace kavela::desktop
