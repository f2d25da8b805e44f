#pragma once

#include <QListWidget>

namespace kavela::desktop {

class Workspace;

/// The queries that are at hand: those that the coach keeps, those asked last, and some examples.
/// Enter or a double click asks one again; Delete gives up one that is kept.
class KeptQueries : public QListWidget {
    Q_OBJECT

public:
    explicit KeptQueries(Workspace& workspace, QWidget* parent = nullptr);

    /// Keeps a query; one that is kept already stays where it is.
    void keep(const QString& query);
    void giveUp(const QString& query);
    /// It was asked: it is the last one now.
    void noteAsked(const QString& query);

    [[nodiscard]] QStringList kept() const;
    [[nodiscard]] QStringList last() const;
    [[nodiscard]] static QStringList examples();
    /// The kept query that is chosen; empty for none.
    [[nodiscard]] QString chosenKept() const;

signals:
    void asked(const QString& query);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showAll();
    void addGroup(const QString& title, const QStringList& queries, bool isKept);

    Workspace& m_workspace;
};

} // namespace kavela::desktop
