#pragma once

#include <QString>

class QWidget;

namespace kavela::desktop {

class Workspace;
struct Found;

/// Writes all rows that were found as a list for spreadsheets, and never over a file that was
/// searched. False, after an alert, when it could not be written.
[[nodiscard]] bool isFoundSaved(const Found& found, const QString& path, Workspace& workspace,
                                QWidget* over);

} // namespace kavela::desktop
