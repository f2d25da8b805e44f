#pragma once

#include <QString>

#include <memory>

class QWidget;

namespace kavela::desktop {

class Workspace;
struct Found;

/// Writes all rows that were found as a list for spreadsheets, beside the window, and never over a
/// file that was searched. An alert over the window tells why it could not be written.
void saveFound(const std::shared_ptr<const Found>& found, const QString& path, Workspace& workspace,
               QWidget& over);

} // namespace kavela::desktop
