#pragma once

#include <QDialog>
#include <QStringList>

class QListWidget;

namespace kavela::desktop {

/// How the documents of a tool are called where one is chosen.
struct DocumentKind {
    QString title;            ///< of the dialog
    QString plural;           ///< in the list of kinds of files
    QString suffix;           ///< without the point
    QString proposed;         ///< the name of a new one, without suffix
    QStringList further = {}; ///< other suffixes of what the tool opens too, without the point

    /// The kinds of files that a dialog offers where one is opened.
    [[nodiscard]] QString openFilter() const;
};

/// A document to open, or to begin under a name that was chosen. An empty path for none.
struct DocumentChoice {
    QString path;
    bool isNew = false;
};

/// The documents of a tool that were opened before, and the ways to begin a new one or to open
/// another: a new one is named as if it were saved, since it will be saved there.
class DocumentChoiceDialog : public QDialog {
    Q_OBJECT

public:
    /// `recent` are files of the tool, the latest first.
    DocumentChoiceDialog(DocumentKind kind, const QStringList& recent, QWidget* parent);

    [[nodiscard]] const DocumentChoice& choice() const { return m_choice; }

private:
    void takeRecent();
    void nameNew();
    void openOther();

    DocumentKind m_kind;
    DocumentChoice m_choice;
    QString m_folder; ///< where other files are looked for
    QListWidget* m_recent;
};

} // namespace kavela::desktop
