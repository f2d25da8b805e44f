#include "desktop/page/phone_pages.h"

#include "common/safe_file.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/language.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/workspace.h"
#include "page/clips/page_clips.h"
#include "page/race_files.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace kavela::desktop {

namespace {

/// The whole work, on a thread of its own. Returns what the page lacks; nothing is written once it
/// was stopped. Throws where the page cannot be made.
QStringList makePhonePage(const PhonePageJob& job, const WorkSteps& steps) {
    std::vector<std::filesystem::path> paths;
    for (const QString& race : job.races)
        paths.emplace_back(race.toStdString());
    const std::filesystem::path target = job.target.toStdString();
    page::ReadRaces read = page::readRaces(paths);
    QStringList remarks;
    for (const page::UnreadRace& race : read.failed)
        remarks.append(qtText(race.reason));
    if (job.wantsClips) {
        const auto orders = page::clipOrders(read.races, job.choice, target);
        const auto all = static_cast<std::int64_t>(orders.size());
        const auto faults = page::cutClips(orders, steps.stopToken(), [&](std::size_t done) {
            steps.tellProgress(static_cast<std::int64_t>(done), all);
        });
        for (const page::ClipFault& fault : faults)
            remarks.append(PhonePages::tr("No clip of %1: %2")
                               .arg(qtText(fault.film.filename().string()), qtText(fault.reason)));
    }
    if (steps.isCancelled())
        return {};
    const std::vector<page::PageFilm> films = page::filmsBeside(read.races, target);
    const auto text = page::athletePage(std::move(read.races), job.choice, films);
    if (!text)
        throw std::runtime_error(
            PhonePages::tr("The saved files have no run of this athlete.").toStdString());
    writeFileSafely(target, *text);
    return remarks;
}

QString proposedPhonePage(const PhonePageCrew& crew) {
    QString name = crew.name;
    name.replace(QStringLiteral(" / "), QStringLiteral(" & "));
    for (QChar& letter : name)
        if (QStringLiteral("/\\:*?\"<>|").contains(letter))
            letter = '_';
    while (name.startsWith('.') || name.startsWith(' '))
        name.remove(0, 1);
    constexpr qsizetype Longest = 80;
    return QFileInfo(crew.races.value(0)).path() + '/' +
           (name.isEmpty() ? QStringLiteral("athlete") : name.left(Longest)) +
           QStringLiteral(".html");
}

} // namespace

PhonePages::PhonePages(Workspace& workspace, QWidget& window)
    : QObject(&window), m_workspace(workspace), m_window(window) {
    connect(this, &PhonePages::written, this, &PhonePages::showWritten);
    connect(this, &PhonePages::failed, this, &PhonePages::tellFailed);
}

TableSettings PhonePages::settingsOf(const Workspace& workspace) {
    const Preferences& preferences = workspace.preferences();
    TableSettings settings;
    settings.penaltiesIncluded = preferences.boolean("penaltiesIncluded");
    settings.penaltiesVisible = preferences.boolean("penaltiesVisible");
    settings.colorMode = preferences.string("colorMode");
    return settings;
}

void PhonePages::ask(PhonePageRequest request) {
    if (request.crews.empty()) {
        m_workspace.showAlert(
            {tr("Page for an athlete").toStdString(),
             tr("There is no run of a named athlete in the split files that are open.")
                 .toStdString()},
            &m_window);
        return;
    }
    auto* const dialog = new PhonePageDialog(std::move(request), &m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] { askForFile(*dialog); });
    dialog->open();
}

void PhonePages::askForFile(const PhonePageDialog& dialog) {
    const PhonePageCrew* const crew = dialog.crew();
    if (crew == nullptr)
        return;
    PhonePageJob job{crew->races, dialog.request().shown, {}, dialog.wantsClips()};
    job.choice.crewKey = crew->key;
    job.choice.language = spokenLanguage(m_workspace).toStdString();
    // Colours are among all that the window compares, unless the crew races in several categories.
    if (std::ranges::count(dialog.request().crews, crew->key, &PhonePageCrew::key) > 1)
        job.choice.category = crew->category.toStdString();
    QFileDialog files(&m_window, tr("Save the page of %1").arg(crew->name), {},
                      tr("Pages (*.html *.htm)"));
    files.setAcceptMode(QFileDialog::AcceptSave);
    files.setDefaultSuffix(QStringLiteral("html"));
    const QString proposed = proposedPhonePage(*crew);
    files.setDirectory(QFileInfo(proposed).path());
    files.selectFile(QFileInfo(proposed).fileName());
    if (files.exec() != QDialog::Accepted)
        return;
    job.target = files.selectedFiles().value(0);
    write(job);
}

void PhonePages::write(const PhonePageJob& job) {
    const QString target = job.target;
    if (const std::string complaint = page::complaintAboutPageName(target.toStdString());
        !complaint.empty()) {
        emit failed(target, qtText(complaint));
        return;
    }
    if (std::ranges::any_of(job.races,
                            [&](const QString& race) { return isSameFile(race, target); })) {
        emit failed(target, tr("The page cannot be written over a race that it is made from."));
        return;
    }
    m_work.runOver(
        {&m_window, tr("Making the page…"), true},
        [job](const WorkSteps& steps) { return makePhonePage(job, steps); },
        [this, target](const QStringList& remarks) { emit written(target, remarks); },
        {.failed = [this, target](const std::exception_ptr& fault) {
            emit failed(target, qtText(causeOf(fault)));
        }});
}

void PhonePages::showWritten(const QString& path, const QStringList& remarks) {
    auto* const box = new QMessageBox(&m_window);
    box->setObjectName("pageWritten");
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIcon(remarks.isEmpty() ? QMessageBox::Information : QMessageBox::Warning);
    box->setWindowTitle(tr("Page for an athlete"));
    box->setTextFormat(Qt::PlainText);
    box->setText(tr("%1 is written.").arg(QFileInfo(path).fileName()));
    box->setInformativeText(remarks.join('\n'));
    const auto opens = [box](const QString& text, const QString& what) {
        auto* const button = box->addButton(text, QMessageBox::ActionRole);
        connect(button, &QPushButton::clicked, box,
                [what] { QDesktopServices::openUrl(QUrl::fromLocalFile(what)); });
    };
    opens(tr("&Open it"), path);
    opens(tr("Show in &folder"), QFileInfo(path).absolutePath());
    box->addButton(QMessageBox::Close);
    box->open();
}

void PhonePages::tellFailed(const QString& path, const QString& reason) {
    m_workspace.log()("Failed to create file");
    m_workspace.showAlert({"Failed to create file",
                           QFileInfo(path).fileName().toStdString() + ": " + reason.toStdString()},
                          &m_window);
}

} // namespace kavela::desktop
