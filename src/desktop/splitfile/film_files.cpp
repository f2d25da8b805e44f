#include "desktop/splitfile/film_files.h"

#include "desktop/splitfile/folder_films.h"
#include "desktop/splitfile/taking_document.h"

#include <QFileDialog>
#include <QObject>

namespace kavela::desktop {

FilmFiles::FilmFiles(TakingDocument& document, Workspace& workspace, QWidget& window)
    : m_document(document),
      m_window(window),
      m_chooseFiles([this](const QString& title, const QString& filter) {
          return QFileDialog::getOpenFileNames(&m_window, title, m_document.folder(), filter);
      }),
      m_chooseFolder([this](const QString& title) {
          return QFileDialog::getExistingDirectory(&m_window, title, m_document.folder());
      }),
      m_copies(std::make_unique<FolderFilms>(workspace, window)) {}

FilmFiles::~FilmFiles() = default;

QStringList FilmFiles::choose(const QString& title, const QString& filter) const {
    return m_chooseFiles(title, filter);
}

QStringList FilmFiles::chooseFilms(const QString& title) const {
    return choose(title, videoFilter());
}

void FilmFiles::copy(const QStringList& films,
                     const std::function<void(const QStringList&)>& copied) const {
    m_copies->copy(m_document.folder(), films, [copied](const QStringList& names) {
        if (!names.isEmpty())
            copied(names);
    });
}

std::optional<QStringList> FilmFiles::search(const std::function<bool()>& mayGoOn) const {
    const QString folder = m_chooseFolder(QObject::tr("Where are the films now?"));
    if (folder.isEmpty() || !mayGoOn())
        return std::nullopt;
    return m_document.findFilms(folder);
}

} // namespace kavela::desktop
