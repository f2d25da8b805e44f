#include "desktop/losses/athlete_pages.h"

#include "desktop/losses/loss_state.h"
#include "desktop/preview/report_preview.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/workspace.h"
#include "facts/fact_transfer.h"
#include "report/athlete_page.h"
#include "report/pdf_file.h"

#include <QFileDialog>
#include <QFileInfo>

#include <algorithm>
#include <memory>

namespace kavela::desktop {

namespace {

/// Of one race: a store of that file alone, where all that is compared is compared within it.
std::unique_ptr<report::PagedReport> pageOf(const AthletePageChoice& choice) {
    const FactStore& facts = *choice.facts;
    if (!choice.file)
        return report::athletePage(facts, choice.query);
    FactStore race;
    FactTransfer(facts, race).add(*choice.file, facts.text(facts.files()[*choice.file].path));
    return report::athletePage(race, choice.query);
}

} // namespace

AthletePages::AthletePages(const LossState& state, Workspace& workspace, QWidget& window)
    : QObject(&window), m_state(state), m_workspace(workspace), m_window(window) {}

void AthletePages::ask(const SeasonLossQuery& shown) {
    if (!m_state.hasRun())
        return;
    auto* const dialog = new AthletePageDialog(m_state, shown, &m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // What the list was made from may be read anew meanwhile, and runs have other places then.
    connect(&m_state, &LossState::factsChanged, dialog, &QDialog::reject);
    const auto use = [this, dialog](void (AthletePages::*act)(const AthletePageChoice&)) {
        const auto choice = dialog->choice();
        dialog->accept();
        if (choice)
            (this->*act)(*choice);
    };
    connect(dialog, &AthletePageDialog::previewRequested, this,
            [use] { use(&AthletePages::preview); });
    connect(dialog, &AthletePageDialog::saveRequested, this,
            [use] { use(&AthletePages::askAndWrite); });
    dialog->open();
}

void AthletePages::preview(const AthletePageChoice& choice) {
    const PreviewFailures failures{m_workspace.log(), [this](const Alert& alert, QWidget* over) {
                                       m_workspace.showAlert(alert, over);
                                   }};
    std::vector<NamedReport> reports{
        {choice.crew, proposedPath(choice), [choice] { return pageOf(choice); }}};
    auto* const preview = new ReportPreview(std::move(reports), failures, &m_window);
    preview->setAttribute(Qt::WA_DeleteOnClose);
    preview->show();
}

/// Beside the race that it is of, else the first one.
QString AthletePages::proposedPath(const AthletePageChoice& choice) {
    const FactStore& facts = *choice.facts;
    const QString race = qtText(facts.text(facts.files()[choice.file.value_or(0)].path));
    return QFileInfo(race).path() + '/' +
           qtText(report::athletePageFileName(choice.crew.toStdString()));
}

void AthletePages::askAndWrite(const AthletePageChoice& choice) {
    QFileDialog dialog(&m_window, tr("Save the page of the athlete"), {},
                       tr("PDF documents (*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    const QString proposed = proposedPath(choice);
    dialog.setDirectory(QFileInfo(proposed).path());
    dialog.selectFile(QFileInfo(proposed).fileName());
    if (dialog.exec() == QDialog::Accepted)
        write(choice, dialog.selectedFiles().value(0));
}

bool AthletePages::isSource(const FactStore& facts, const QString& path) {
    return std::ranges::any_of(facts.files(), [&](const FileRow& file) {
        return isSameFile(qtText(facts.text(file.path)), path);
    });
}

void AthletePages::write(const AthletePageChoice& choice, const QString& path) {
    if (isSource(*choice.facts, path)) {
        emit failed(path, tr("The page cannot be written over a race that it is made from."));
        return;
    }
    emit writing(path);
    m_work.run([choice, file = path.toStdString()] { report::writePdf(*pageOf(choice), file); },
               [this, path] { emit written(path); },
               {[this, path](const std::exception_ptr& fault) {
                    emit failed(path, qtText(messageOf(fault)));
                },
                {}});
}

} // namespace kavela::desktop
