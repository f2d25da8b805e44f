#pragma once

#include <QDialog>

#include <string>
#include <vector>

class QComboBox;
class QDialogButtonBox;

namespace kavela::desktop {

class FaultLabel;

/// The boats of a heat by name, chosen or typed.
class HeatDialog : public QDialog {
    Q_OBJECT

public:
    /// `isNew` asks for the boats of a new heat and leaves out those without a name; otherwise each
    /// of `names` gets a name.
    HeatDialog(const std::vector<std::string>& names, const std::vector<std::string>& offered,
               bool isNew, QWidget* parent);

    /// In the order of the start list.
    [[nodiscard]] std::vector<std::string> names() const;

private:
    void showFault();

    bool m_isNew;
    std::vector<QComboBox*> m_boats;
    FaultLabel* m_fault;
    QDialogButtonBox* m_buttons;
};

} // namespace kavela::desktop
