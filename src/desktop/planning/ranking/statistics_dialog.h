#pragma once

#include "desktop/planning/ranking/split_statistics.h"

#include <QDialog>

namespace kavela::desktop {

/// What split files have of an athlete's season, and which of them tell nothing, before it replaces
/// what stands there.
class StatisticsDialog : public QDialog {
    Q_OBJECT

public:
    StatisticsDialog(const statisticsplanning_v3& before, const statisticsplanning_v3& found,
                     std::size_t files, const std::vector<SplitStatistics::LeftOut>& leftOut,
                     QWidget* parent);
};

} // namespace kavela::desktop
