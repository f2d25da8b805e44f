#pragma once

#include "desktop/shell/background_work.h"
#include "results/selection_import.h"
#include "results/selection_takeover.h"

#include <QCoreApplication>
#include <QString>

#include <functional>

class QWidget;

namespace kavela {
struct ListText;
}

namespace kavela::desktop {

class RankingModel;
class SelectionDocument;
class SelectionEdits;
class Workspace;

/// What files bring into a selection: athletes, and results that are looked at first. What cannot
/// be read is told.
class SelectionTakeOver {
    Q_DECLARE_TR_FUNCTIONS(SelectionTakeOver)

public:
    /// `edits` asks for the race; questions and answers stand over `window`.
    SelectionTakeOver(SelectionDocument& document, RankingModel& ranking, SelectionEdits& edits,
                      Workspace& workspace, QWidget& window);

    void askForAthletes();
    void importAthletesFrom(const QString& path);
    /// Results of a list; `help` says how one has to look.
    void askForResults(ResultLayout layout, const char* help);
    void askForSplitFiles();
    /// Results of split files, for a race that is asked for.
    void attachFiles(const QStringList& paths);
    void attachFiles(std::size_t race, const QStringList& paths);

private:
    [[nodiscard]] QString folder() const;
    void readList(const QString& path, const std::function<void(const ListText& list)>& take);
    void importResultsFrom(const QString& path, std::size_t race, ResultLayout layout);
    void lookAndEnter(const QString& path, std::size_t race, FoundRuns found);
    void tell(const QString& text);
    void tellLines(const QStringList& lines);
    void tellUnread(const QString& path, const std::string& reason);
    void tellImported(const ListImport& import, bool isLatin1);

    SelectionDocument& m_document;
    RankingModel& m_ranking;
    SelectionEdits& m_edits;
    Workspace& m_workspace;
    QWidget& m_window;
    BackgroundWork m_reading;
};

} // namespace kavela::desktop
