#pragma once

#include "facts/fact_store.h"

#include <QComboBox>

#include <memory>

namespace kavela::desktop {

class RunList;

/// Chooses a run among those of many files: from the list, or by any letters of the crew, phase,
/// category and race, whatever their case and accents.
class RunPicker : public QComboBox {
    Q_OBJECT

public:
    explicit RunPicker(QWidget* parent = nullptr);

    void setFacts(std::shared_ptr<const FactStore> facts);
    /// By its place in the store.
    void showRun(std::size_t run);
    /// What typed letters mean: the first run that has them; nothing for none.
    [[nodiscard]] std::optional<std::size_t> found(const QString& typed) const;

signals:
    void runChosen(std::size_t run);

private:
    void takeTyped();

    RunList* m_list;
};

} // namespace kavela::desktop
