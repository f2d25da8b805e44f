#pragma once

#include <QString>

class QObject;
class QWidget;

namespace kavela::desktop {

class Workspace;
struct FileWriting;

enum class OtherAnswer { Replace, Look, SaveAs };

/// Asks what becomes of a file that another program changed since it was opened here; `name` is the
/// document's. Enter and Escape look at what that program wrote.
[[nodiscard]] OtherAnswer askAboutOther(const QString& name, const Workspace& workspace,
                                        QWidget* over);

/// Opens that file as a copy, which no window edits; it is copied beside the window, as long as
/// `context` is there.
void showOther(const QString& path, Workspace& workspace, QObject& context);

enum class FailureAnswer { TryAgain, SaveAs, Later };

/// Tells why a file could not be written, and asks how to go on. `isKept` says that the work is
/// kept apart.
[[nodiscard]] FailureAnswer askAboutFailure(const FileWriting& writing, bool isKept,
                                            const Workspace& workspace);

/// Tells that the file of an older layout could not be kept, so that nothing was written.
void tellOlderLost(const FileWriting& writing, const Workspace& workspace);

} // namespace kavela::desktop
