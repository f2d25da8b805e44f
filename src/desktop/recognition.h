#pragma once

#include "desktop/opened_as.h"
#include "desktop/shell/background_work.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace kavela::desktop {

/// Finds out as what files are opened, beside the windows: large ones are parsed for it. The
/// program is not left meanwhile for want of a window.
class Recognition {
public:
    struct File {
        QString path;
        OpensAs as = OpensAs::NotReady;
        QStringList races;      ///< of a folder of races
        QString splitFile = {}; ///< of a film: the one beside it that has its run; empty for none
    };
    struct Found {
        std::vector<File> files; ///< in the order in which they were asked for
        /// Who keeps it until the windows have read their files spares them the parsing.
        std::shared_ptr<const HeldDocuments> held;
    };
    using Told = std::function<void(const Found& found)>;

    /// Tells what these are: before it returns where that is known soon, else from the event loop,
    /// as long as this is there.
    void recognise(const QStringList& paths, const Told& told);
    [[nodiscard]] bool isRunning() const { return !m_running.isEmpty(); }
    /// All that it has yet to tell of.
    [[nodiscard]] QStringList paths() const;
    /// Whether it has yet to tell of this file, by whatever path.
    [[nodiscard]] bool isAt(const QString& path) const;

private:
    QMap<int, QStringList> m_running; ///< in the order in which they began
    int m_last = 0;
    BackgroundWork m_work;
};

} // namespace kavela::desktop
