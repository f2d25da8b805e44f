#pragma once

#include "planning/variability_import.h"

#include <QDialog>

namespace kavela::desktop {

/// What a list of variability measurements would bring, before anything is taken in: how many are
/// new, and every line that is left out, with the reason.
class VariabilityDialog : public QDialog {
    Q_OBJECT

public:
    /// `added` of the measurements of the list are new.
    VariabilityDialog(const QString& fileName, const VariabilityList& list, std::size_t added,
                      QWidget* parent);

private:
    [[nodiscard]] QWidget* makeSkippedLines(const std::vector<SkippedMeasurement>& skipped);
};

} // namespace kavela::desktop
