#pragma once

namespace kavela::desktop {

class TakingWindow;
class Workspace;

/// Shows the sheet of the selected run, with what is noted on it by now, as it comes out of the
/// printer; nothing without a run.
void previewRunSheet(TakingWindow& window, Workspace& workspace);

} // namespace kavela::desktop
