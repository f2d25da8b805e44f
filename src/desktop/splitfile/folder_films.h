#pragma once

#include "desktop/shell/background_work.h"

#include <QStringList>

#include <functional>

class QWidget;

namespace kavela::desktop {

class Workspace;

/// What a dialog for films offers.
[[nodiscard]] QString videoFilter();

/// Films belong into the folder of the split file, which knows them by bare names only: those from
/// elsewhere are copied there, one after the other, beside the window, which is locked meanwhile.
/// Why one cannot be is told. A film there is never replaced by another one of its name.
class FolderFilms {
public:
    FolderFilms(Workspace& workspace, QWidget& over) : m_workspace(workspace), m_over(over) {}

    /// Hears the names of those that are in the folder then.
    using Copied = std::function<void(const QStringList& names)>;
    /// Where nothing is to be copied, `copied` is called at once. What follows one that the coach
    /// stopped is left out.
    void copy(const QString& folder, const QStringList& files, const Copied& copied);

private:
    struct Copying;

    void copyNext(Copying copying);
    void copyOne(const QString& from, const QString& to, Copying copying);
    void tellFailure(const QString& text, const QString& name) const;

    Workspace& m_workspace;
    QWidget& m_over;
    BackgroundWork m_work;
};

} // namespace kavela::desktop
