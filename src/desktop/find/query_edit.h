#pragma once

#include "facts/query_completion.h"

#include <QPlainTextEdit>
#include <QTimer>

class QCompleter;
class QStringListModel;

namespace kavela::desktop {

/// The line in which a query is typed. Words that may stand at the cursor are offered: Tab takes
/// the first or the chosen one, Enter asks for the query as it stands. Faults are underlined.
class QueryEdit : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit QueryEdit(QWidget* parent = nullptr);

    /// From where names and numbers are offered.
    void setValues(ValuesOf valuesOf) { m_values = std::move(valuesOf); }

    [[nodiscard]] QString text() const;
    /// Shows what was not typed here; nothing is offered or told then.
    void setText(const QString& text);
    /// Underlines a fault: bytes of the text as UTF-8. What is missing is shown where it should be.
    void showFault(std::size_t place, std::size_t length);
    void clearFault();
    /// What is offered now; nothing while the list is closed.
    [[nodiscard]] QStringList offered() const;

signals:
    /// Nothing was typed for a moment.
    void rested();
    /// Enter.
    void entered();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;
    void changeEvent(QEvent* event) override;

private:
    void noteTyping();
    void offer(bool isAskedFor);
    void take(const QString& word);
    [[nodiscard]] bool isOpen() const;
    void fitHeight();

    ValuesOf m_values;
    QCompleter* m_completer;
    QStringListModel* m_words;
    QTimer m_rest;
    int m_begin = 0; ///< of the word that is completed
    bool m_isShowing = false;
};

} // namespace kavela::desktop
