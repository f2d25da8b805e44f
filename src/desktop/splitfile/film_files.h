#pragma once

#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

class QWidget;

namespace kavela::desktop {

class FolderFilms;
class TakingDocument;
class Workspace;

/// How files come to a split file in its window: they are chosen in dialogs, films are copied into
/// its folder, and films that were moved are found again.
class FilmFiles {
public:
    /// Asks over `window`, beginning in the folder of the document.
    FilmFiles(TakingDocument& document, Workspace& workspace, QWidget& window);
    FilmFiles(const FilmFiles&) = delete;
    FilmFiles& operator=(const FilmFiles&) = delete;
    ~FilmFiles();

    /// Where files come from in place of the platform's dialogs, as in tests.
    using ChooseFiles = std::function<QStringList(const QString& title, const QString& filter)>;
    void setChooseFiles(ChooseFiles choose) { m_chooseFiles = std::move(choose); }
    /// The same for a folder; empty for none.
    using ChooseFolder = std::function<QString(const QString& title)>;
    void setChooseFolder(ChooseFolder choose) { m_chooseFolder = std::move(choose); }

    [[nodiscard]] QStringList choose(const QString& title, const QString& filter) const;
    [[nodiscard]] QStringList chooseFilms(const QString& title) const;
    /// Empty for none.
    [[nodiscard]] QString chooseFolder(const QString& title) const { return m_chooseFolder(title); }
    /// Copies films into the folder of the document, and tells the names of those that are there
    /// then, when at least one is.
    void copy(const QStringList& films,
              const std::function<void(const QStringList&)>& copied) const;

    /// Asks in which folder the films are now, and finds them there by their names. Returns those
    /// that were not found; nothing when no folder was named, or `mayGoOn` refused.
    [[nodiscard]] std::optional<QStringList> search(const std::function<bool()>& mayGoOn) const;

private:
    TakingDocument& m_document;
    QWidget& m_window;
    ChooseFiles m_chooseFiles;
    ChooseFolder m_chooseFolder;
    std::unique_ptr<FolderFilms> m_copies;
};

} // namespace kavela::desktop
