#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace kavela::desktop {

/// Does work on a thread of its own and returns when it is done, while windows stay alive; the
/// window takes no keys and clicks meanwhile, and a progress dialog over it says what is being done
/// when it takes long. What the work throws is thrown here.
void doBeside(QWidget* over, const QString& what, const std::function<void()>& work);

} // namespace kavela::desktop
