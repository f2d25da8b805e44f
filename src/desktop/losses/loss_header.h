#pragma once

#include <QWidget>

class QComboBox;
class QLabel;

namespace kavela::desktop {

class LossState;
class RunPicker;

/// Which run is looked at, what it is held against, and the gap between the two in one sentence.
class LossHeader : public QWidget {
    Q_OBJECT

public:
    explicit LossHeader(LossState& state, QWidget* parent = nullptr);

    [[nodiscard]] RunPicker& picker() const { return *m_picker; }
    [[nodiscard]] QComboBox& references() const { return *m_references; }
    [[nodiscard]] QString sentence() const;

    /// Puts the cursor where a run is searched.
    void findRun();

private:
    void makeLayout();
    void connectParts();
    void showState();
    void fillReferences();

    LossState& m_state;
    RunPicker* m_picker;
    QComboBox* m_references;
    QLabel* m_gap;
    QLabel* m_explained;
};

} // namespace kavela::desktop
