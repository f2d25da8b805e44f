#pragma once

#include "desktop/shell/document.h"
#include "vision/track_file.h"

namespace kavela::desktop {

/// The path of something on a film that is being edited. Its film is named in full here, and from
/// the path's folder in its file.
class TrackDocument : public Document<track001> {
    Q_OBJECT

public:
    using Document::Document;
    ~TrackDocument() override { keepPending(); }

    /// What is wrong where is told in an alert.
    [[nodiscard]] FileReading reading(const QString& path, QWidget* over);
    /// Begins a path on a film that has none; saving puts it beside the film.
    void startOn(const QString& film, QWidget* over);

    [[nodiscard]] const FilmTrack& track() const { return m_track; }

protected:
    void follow() override { m_track = trackOf(value()); }
    [[nodiscard]] QString summary() const override;
    [[nodiscard]] EditedFile::Content contentNow() const override;
    [[nodiscard]] EditedFile::Content contentFor(const QString& path) const override;
    [[nodiscard]] bool recover(const std::string& content) override;

private:
    FilmTrack m_track; ///< what the value holds
};

} // namespace kavela::desktop
