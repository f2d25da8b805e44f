#pragma once

#include "desktop/shell/typing.h"

#include <QDialog>

namespace kavela::desktop {

/// A dialog with fields that may refuse what is typed: it stays as long as one does.
class EntryDialog : public QDialog {
    Q_OBJECT

public:
    using QDialog::QDialog;

    void accept() override {
        if (takeTyping(*this))
            QDialog::accept();
    }
};

} // namespace kavela::desktop
