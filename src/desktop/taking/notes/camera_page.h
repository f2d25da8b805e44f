#pragma once

#include "desktop/shell/tables/column_model.h"
#include "desktop/taking/notes/note_page.h"
#include "splittaking/annotations/camera_sync.h"

#include <map>

class QComboBox;
class QLabel;
class QPushButton;

namespace kavela::desktop {

class ColumnTable;

/// A moment that was found on both films.
struct SyncRow {
    SyncMark mark;
    double seconds = 0; ///< of the run
};

/// The fixed cameras of a run: their films are attached, shown beside the run's own, and brought
/// into step by moments that were marked on both.
class CameraPage : public NotePage {
    Q_OBJECT

public:
    explicit CameraPage(NoteDesk& desk);

    /// Shows the camera of a run that has one, as long as the coach has chosen none.
    void enter() override;
    void refresh() override;
    /// The frames shown are one moment.
    void mark(const Stamps& stamps) override;
    [[nodiscard]] bool removeCurrent() override;

    /// Where on the run's film a moment of a fixed camera's film lies, in seconds; nothing as long
    /// as they are not in step.
    [[nodiscard]] std::optional<double> ownSeconds(std::int64_t camera, double seconds) const;
    /// Sets the film beside in step, once it was opened.
    void bringIntoStep();
    /// The film was attached to the run, and is shown.
    void showFilm(const QString& name);

signals:
    void attachWanted();
    void besideChanged(); ///< another camera is shown beside the film, or none

private:
    void makeParts();
    void choose(const QString& film);
    void detach();
    void attachToAll();
    void showCameras();
    void showMarks();
    [[nodiscard]] QString nameOf(std::size_t camera) const;
    [[nodiscard]] std::optional<double> lagByDates(std::size_t camera) const;
    [[nodiscard]] std::optional<ReferenceDate> began(const QString& film) const;

    QString m_film; ///< shown beside every run that has it; empty for none
    bool m_hasChosen = false;
    ColumnModel<SyncRow> m_marks;
    mutable std::map<QString, std::optional<ReferenceDate>> m_began; ///< by film
    QComboBox* m_cameras = nullptr;
    QPushButton* m_detach = nullptr;
    QPushButton* m_all = nullptr;
    QLabel* m_next = nullptr;
    QLabel* m_step = nullptr;
    ColumnTable* m_table = nullptr;
};

} // namespace kavela::desktop
