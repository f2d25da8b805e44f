#include "desktop/splitfile/code_combo.h"

#include <QSignalBlocker>

namespace kavela::desktop {

CodeCombo::CodeCombo(LabelList list, QWidget* parent) : QComboBox(parent), m_list(list) {
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(8);
    setCode(0);
    connect(this, &QComboBox::activated, this, [this] { emit codeChosen(code()); });
}

void CodeCombo::setCode(std::int64_t code) {
    const QSignalBlocker blocked(this);
    clear();
    const auto labels = labelsOf(m_list);
    for (std::size_t i = 0; i < labels.size(); ++i)
        addItem(QString::fromUtf8(labels[i].text.data(), std::ssize(labels[i].text)),
                static_cast<qlonglong>(i));
    if (code < 0 || code >= std::ssize(labels))
        addItem(QString::fromStdString(labelOf(m_list, code)), static_cast<qlonglong>(code));
    setCurrentIndex(findData(static_cast<qlonglong>(code)));
}

std::int64_t CodeCombo::code() const {
    return currentData().toLongLong();
}

} // namespace kavela::desktop
