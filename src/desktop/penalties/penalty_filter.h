#pragma once

#include "facts/fact_store.h"
#include "performance/penalty_passages.h"

#include <QWidget>

#include <array>
#include <functional>
#include <map>
#include <utility>
#include <vector>

class QComboBox;

namespace kavela::desktop {

/// Whose penalties are shown: a category, a phase, a crew.
class PenaltyFilter : public QWidget {
    Q_OBJECT

public:
    explicit PenaltyFilter(QWidget* parent = nullptr);

    /// Offers what there is. What was chosen stays chosen while there are runs of it.
    void offer(const FactStore& facts);
    [[nodiscard]] PenaltyChoice choice() const;
    /// All runs again.
    void clear();
    /// The crews that are offered, each by its key and as it is read.
    [[nodiscard]] std::vector<std::pair<QString, QString>> crews() const;
    /// A crew that is not offered changes nothing.
    void chooseCrew(const QString& key);

signals:
    void changed();

private:
    enum Part { Category, Phase, Crew, Parts };

    /// What there is, by key, each as it was first written.
    using Offered = std::map<QString, QString>;

    void fill(Part part, const Offered& offered);
    [[nodiscard]] std::string keyOf(Part part) const;

    std::array<QComboBox*, Parts> m_boxes{};
};

} // namespace kavela::desktop
