#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace kavela::desktop {

/// What the program was started with.
struct StartOptions {
    QStringList files;  ///< files and folders to open
    bool isNew = false; ///< another program, also where one runs
    QString fault;      ///< an option that does not exist; empty for none
};

/// Reads the arguments behind the program's name; those of the toolkit are taken out before.
[[nodiscard]] StartOptions startOptions(const QStringList& arguments);

/// The text that answers --help or --version, where one of them is among the arguments: no window
/// is needed for it.
[[nodiscard]] std::optional<QString> answerWithoutWindow(const QStringList& arguments,
                                                         const QString& version);

} // namespace kavela::desktop
