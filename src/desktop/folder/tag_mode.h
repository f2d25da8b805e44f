#pragma once

#include "desktop/film/film_mode.h"
#include "splittaking/folder/film_list.h"

#include <QObject>
#include <QString>

#include <optional>
#include <vector>

namespace kavela::desktop {

class FilmShelf;
class FilmStage;
class Workspace;

/// The tags of the film in front: they stand on its time line, and a key sets one at the frame that
/// is meant. Beside them stand the ends of what is to be cut.
class TagMode : public QObject, public FilmMode {
    Q_OBJECT

public:
    TagMode(Workspace& workspace, FilmShelf& shelf, FilmStage& stage);

    /// The film whose tags these are; empty for none.
    void setFilm(const QString& path);
    [[nodiscard]] const QString& film() const { return m_film; }

    /// The names that can be set by a key: those that the coach saved, the first ones by 1 to 9.
    [[nodiscard]] QStringList names() const;
    /// What the key of marking sets.
    [[nodiscard]] const QString& currentName() const { return m_name; }
    /// One that is not among the saved names yet is saved.
    void setCurrentName(const QString& name);

    /// Where the cut begins or ends; nothing where that was not said of this film.
    [[nodiscard]] const std::optional<CMTime>& cutFirst() const { return m_first; }
    [[nodiscard]] const std::optional<CMTime>& cutLast() const { return m_last; }
    /// They become the frame that is meant now.
    void setCutFirst();
    void setCutLast();
    void clearCut();

    /// The tags or the film are others now.
    void refresh();

    [[nodiscard]] bool hasSelection() const override { return m_selected.has_value(); }
    void markHere() override;
    void moveMarkHere() override;
    void nudgeMark(int frames) override;
    void deleteMark() override;
    bool stepMark(int step) override;
    [[nodiscard]] std::vector<LineMark> marks() const override;
    [[nodiscard]] std::optional<std::size_t> selectedMark() const override { return m_selected; }
    void goToMark(std::size_t number) override;
    void dropMark(std::size_t number, double seconds) override;
    /// Sets the tag of that name.
    void pressNumber(int number) override;

signals:
    void cutChanged();

private:
    [[nodiscard]] std::vector<FilmTag> tags() const;
    [[nodiscard]] std::optional<FilmTag> selectedTag() const;
    void setTag(const QString& name);
    void moveTag(const FilmTag& tag, const CMTime& moment);
    void setCutEnd(std::optional<CMTime> TagMode::*end);

    Workspace& m_workspace;
    FilmShelf& m_shelf;
    FilmStage& m_stage;
    QString m_film;
    QString m_name;
    std::optional<std::size_t> m_selected; ///< among the tags of the film
    std::optional<CMTime> m_first;
    std::optional<CMTime> m_last;
};

} // namespace kavela::desktop
