#include "desktop/home_screen.h"

#include "desktop/desktop.h"
#include "desktop/earlier_work.h"
#include "desktop/shell/bring_to_front.h"
#include "desktop/shell/home_window.h"
#include "desktop/steps/steps_box.h"
#include "desktop/tool_choice.h"
#include "desktop/tools.h"

#include <QDir>
#include <QFileInfo>

namespace kavela::desktop {

namespace {

QIcon toolIcon(const char* name) {
    return QIcon(QString(":/icons/%1.svg").arg(name));
}

} // namespace

void HomeScreen::show() {
    if (!m_window) {
        Tools tools;
        for (const HomeGroup& group : homeGroups()) {
            tools.push_back({group.title, {}});
            for (const ToolKind* const tool : group.tools)
                tools.back().tools.push_back({tool->title, tool->sentence, toolIcon(tool->icon),
                                              [this, tool] { m_choice.choose(*tool); }});
        }
        m_window = new HomeWindow(m_workspace, tools);
        m_window->setAttribute(Qt::WA_DeleteOnClose);
        if (m_firstSteps.isOffered())
            m_window->addBelowHeader(new StepsBox(m_firstSteps));
        QObject::connect(m_window, &HomeWindow::settingsRequested, &m_program,
                         &Desktop::openSettings);
        QObject::connect(m_window, &HomeWindow::sampleRequested, &m_program,
                         &Desktop::openSampleSeason);
        QObject::connect(m_window, &HomeWindow::filesRequested, &m_program,
                         [this](const QStringList& files) { m_program.openAll(files); });
    }
    m_window->show();
    bringToFront(*m_window);
    showKeptWork();
}

void HomeScreen::showKeptWork() {
    if (!isShown())
        return;
    m_earlierWork.listPutOff(*m_window, [this](const std::vector<Autosave::Found>& works) {
        std::vector<HomeWindow::KeptWork> lines;
        for (const Autosave::Found& work : works) {
            const QFileInfo file(work.label.path);
            QStringList line{file.fileName(), work.label.note,
                             work.when.toString("yyyy-MM-dd HH:mm")};
            line.removeAll(QString());
            lines.push_back({line.join(QStringLiteral("   ")),
                             QDir::toNativeSeparators(file.absoluteFilePath()),
                             [this, work] { m_earlierWork.bringBack(work); }});
        }
        m_window->showKeptWork(lines);
    });
}

void HomeScreen::close() {
    delete m_window;
}

bool HomeScreen::isShown() const {
    return m_window && m_window->isVisible();
}

QWidget* HomeScreen::window() const {
    return m_window;
}

} // namespace kavela::desktop
