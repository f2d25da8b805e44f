#pragma once

#include "desktop/shell/background_work.h"
#include "desktop/shell/tables/column_model.h"
#include "desktop/tables/offered_lists.h"
#include "performance/official_differences.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <optional>

class QComboBox;
class QLabel;

namespace kavela {
struct infodata031;
}

namespace kavela::desktop {

class ColumnTable;
class TakingDocument;
class TakingWindow;
class Workspace;

/// Where official results differ from what was timed on the films, beside the films: each
/// difference is looked at, and taken over in a step of its own.
class OfficialDialog : public QDialog {
    Q_OBJECT

public:
    OfficialDialog(TakingDocument& document, Workspace& workspace, QWidget* parent);
    ~OfficialDialog() override;

    /// Reads the lists of a file and compares with the first; what cannot be read is told.
    void openList(const QString& path);
    /// What is chosen, once it is known whether it still is a difference.
    void takeOverCurrent();
    [[nodiscard]] const std::vector<OfficialDifference>& differences() const {
        return m_rows.rows();
    }
    [[nodiscard]] ColumnTable& table() const { return *m_table; }
    [[nodiscard]] bool isReading() const { return m_work.isRunning() || !m_isOwnRead; }
    /// The differences are still those of before.
    [[nodiscard]] bool isComparing() const { return m_matching.isRunning(); }

signals:
    /// A run of the document, counted from 0, is to be looked at.
    void runRequested(int run);

private:
    using Lines = std::vector<OfficialLine>;
    /// A list to compare with, or why it cannot be.
    struct Source {
        QString title;
        std::shared_ptr<const Lines> lines; ///< null where there is a fault
        QString fault;
    };
    using Act = std::function<void(const OfficialDifference&)>;
    /// What is to be done with a difference that was chosen while it was compared.
    struct Waiting {
        OfficialDifference difference;
        Act act;
    };

    void makeParts();
    /// Both are for any thread.
    [[nodiscard]] static Source sourceOf(const OfferedList& list, const QString& file);
    [[nodiscard]] static std::vector<Source> ownSources(const infodata031& info);
    void followDocument();
    void takeOwn(const std::shared_ptr<const infodata031>& info, std::vector<Source> sources);
    void fillChoices();
    void fillScope(QComboBox& box, const QStringList& texts, const QString& all);
    void chooseFile();
    void compareOther();
    void compare();
    void take(std::vector<OfficialDifference> differences);
    void showNone(const QString& why, bool isOther);
    void withCurrent(Act act);
    void enable();

    TakingDocument& m_document;
    Workspace& m_workspace;
    std::vector<Source> m_own;                 ///< of the race itself
    std::vector<Source> m_opened;              ///< of files
    std::shared_ptr<const infodata031> m_read; ///< whose lists the own ones are
    ColumnModel<OfficialDifference> m_rows;
    QComboBox* m_list;
    QComboBox* m_category;
    QComboBox* m_phase;
    QLabel* m_told;
    ColumnTable* m_table;
    QAction* m_takeOver = nullptr;
    QAction* m_goToRun = nullptr;
    BackgroundWork m_work;
    BackgroundWork m_ownWork; ///< reads the race's lists
    BackgroundWork m_matching;
    std::optional<Waiting> m_waiting;
    bool m_isOwnRead = false;
};

/// Shows the dialog of a window of split taking, which has one.
OfficialDialog& showOfficialDifferences(TakingWindow& window, Workspace& workspace);

} // namespace kavela::desktop
