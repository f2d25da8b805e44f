#pragma once

#include "vision/slit_file.h"

#include <QObject>
#include <QString>

#include <exception>
#include <functional>

namespace kavela::desktop {

/// The lines over a film and what was refused on them, in a file beside the film. It is written at
/// every change, beside the window.
class SlitKeeping : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Reads what belongs to a film, beside the window; nothing where it has no lines yet. What
    /// cannot be read is told, and is put aside under another name before lines are written there.
    void open(const QString& film);
    [[nodiscard]] const slitfile001& file() const { return m_file; }
    /// Changes and writes it; refused as long as it is being read.
    void edit(const std::function<void(slitfile001&)>& change);
    /// The same for lines as they were before an edit, or after one that was taken back: not told
    /// as another edit.
    void putBack(slitfile001 file);

signals:
    void opened(); ///< another film, whose lines are still to come
    /// Something is not as it was; ahead of changed().
    void edited(const slitfile001& before);
    void changed();
    /// It could not be read or written, and why; the next change tries to write again.
    void failed(const QString& why);

private:
    void takeRead(slitfile001 file, const QString& name, const std::exception_ptr& fault);
    void write();

    QString m_film;
    slitfile001 m_file;
    int m_readings = 0; ///< how often a film was opened
    bool m_isReading = false;
    bool m_isUnreadable = false; ///< what stands under the name was not made by this window
};

} // namespace kavela::desktop
