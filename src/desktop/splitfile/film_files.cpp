#include "desktop/splitfile/film_files.h"

#include "desktop/splitfile/folder_films.h"
#include "desktop/splitfile/taking_document.h"

#include <QFileDialog>
#include <QObject>

namespace kavela::desktop {

FilmFiles::FilmFiles(TakingDocument& document, Workspace& workspace, QWidget& window)
    : m_document(document),
      m_workspace(workspace),
      m_window(window),
      m_chooseFiles([this](const QString& title, const QString& filter) {
          return QFileDialog::getOpenFileNames(&m_window, title, m_document.folder(), filter);
      }),
      m_chooseFolder([this](const QString& title) {
          return QFileDialog::getExistingDirectory(&m_window, title, m_document.folder());
      }) {}

QStringList FilmFiles::choose(const QString& title, const QString& filter) const {
    return m_chooseFiles(title, filter);
}

QStringList FilmFiles::chooseFilms(const QString& title) const {
    return choose(title, videoFilter());
}

QStringList FilmFiles::copied(const QStringList& films) const {
    return copiedIntoFolder(m_document.folder(), films, m_workspace, &m_window);
}

std::optional<QStringList> FilmFiles::search(const std::function<bool()>& mayGoOn) const {
    const QString folder = m_chooseFolder(QObject::tr("Where are the films now?"));
    if (folder.isEmpty() || !mayGoOn())
        return std::nullopt;
    return m_document.findFilms(folder);
}

} // namespace kavela::desktop
