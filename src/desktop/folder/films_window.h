#pragma once

#include "desktop/folder/film_cutting.h"
#include "desktop/folder/film_shelf.h"
#include "desktop/folder/thumbnail_store.h"
#include "desktop/shell/tool_window.h"

#include <memory>

class QComboBox;
class QLabel;

namespace kavela::desktop {

class FilmBrowser;
class FilmPlaying;
class FilmStage;
class FilmsActions;
class TagMode;

/// The films of a folder beside the stage that plays them.
class FilmsWindow : public ToolWindow {
    Q_OBJECT

public:
    explicit FilmsWindow(Workspace& workspace, QString thumbnailFolder = userThumbnailFolder());
    ~FilmsWindow() override;

    /// The folder.
    [[nodiscard]] QStringList paths() const override;
    /// Shows a folder, or the folder of a film with that film in front. Reading goes on beside the
    /// window.
    [[nodiscard]] bool open(const QString& path) override;
    void chooseFolder();
    /// Folders opened before, the latest first.
    [[nodiscard]] static QStringList recentFolders(const Workspace& workspace);

    /// Shows what becomes of the chosen films, or of all that are shown where one or none is
    /// chosen, and renames them.
    void askAndRename();
    void markWatched(bool isWatched);
    /// Typing goes to the filter.
    void typeFilter();

    [[nodiscard]] FilmShelf& shelf() { return m_shelf; }
    [[nodiscard]] ThumbnailStore& looks() { return m_looks; }
    [[nodiscard]] FilmBrowser& browser() const { return *m_browser; }
    [[nodiscard]] FilmStage& stage() const { return *m_stage; }
    [[nodiscard]] TagMode& tags() const { return *m_tags; }
    [[nodiscard]] FilmPlaying& playing() const { return *m_playing; }
    [[nodiscard]] FilmCutting& cutting() const { return *m_cutting; }
    [[nodiscard]] QString status() const;

signals:
    void pathsChanged();

protected:
    void takeFiles(const QStringList& paths) override;

private:
    void makeParts();
    [[nodiscard]] QWidget* makeTagBar();
    void connectParts();
    void showTitle();
    void showStatus();
    void showTagNames();
    void chooseWanted();
    void takeNames(const FilmRenames& names);

    FilmShelf m_shelf;
    ThumbnailStore m_looks;
    QString m_wanted; ///< a film to be chosen once it is listed
    FilmStage* m_stage = nullptr;
    FilmBrowser* m_browser = nullptr;
    TagMode* m_tags = nullptr;
    FilmPlaying* m_playing = nullptr;
    FilmCutting* m_cutting = nullptr;
    FilmsActions* m_actions = nullptr;
    QComboBox* m_tagName = nullptr;
    QLabel* m_status = nullptr;
};

} // namespace kavela::desktop
