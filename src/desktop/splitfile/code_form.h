#pragma once

#include "desktop/shell/forms/record_form.h"
#include "desktop/splitfile/code_combo.h"

namespace kavela::desktop {

/// A form for a record that has codes of annotations, which are chosen by their words.
template <class Record>
class CodeForm : public RecordForm<Record> {
public:
    using RecordForm<Record>::RecordForm;

    template <class Member>
    void code(const FieldFacts& facts, LabelList list, Member member) {
        auto* const combo = new CodeCombo(list);
        const std::size_t at = this->addPart(
            facts, combo,
            [combo](const QVariant& code) {
                code.isValid() ? combo->setCode(code.toLongLong()) : combo->clearCode();
            },
            [combo] { return QVariant(static_cast<qlonglong>(combo->code())); });
        this->template bind<std::int64_t>(
            at, member, [](std::int64_t code) { return static_cast<qlonglong>(code); },
            [](const QVariant& typed) { return std::int64_t{typed.toLongLong()}; });
        QObject::connect(combo, &CodeCombo::codeChosen, this, [this, at] { this->takeField(at); });
    }
};

} // namespace kavela::desktop
