#pragma once

#include "splitdata/annotation_labels.h"

#include <QComboBox>

namespace kavela::desktop {

/// A code of an annotation, chosen by its words. A code that the list does not know is shown as
/// its number and kept.
class CodeCombo : public QComboBox {
    Q_OBJECT

public:
    explicit CodeCombo(LabelList list, QWidget* parent = nullptr);

    /// Shows a code without telling.
    void setCode(std::int64_t code);
    /// Shows none, where a file does not tell.
    void clearCode() { setCurrentIndex(-1); }
    [[nodiscard]] std::int64_t code() const; ///< 0 where none is shown

signals:
    /// The coach chose another code.
    void codeChosen(std::int64_t code);

private:
    LabelList m_list;
};

} // namespace kavela::desktop
