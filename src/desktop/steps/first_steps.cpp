#include "desktop/steps/first_steps.h"

#include "desktop/film/film_deck.h"
#include "desktop/losses/losses_window.h"
#include "desktop/page/phone_page_dialog.h"
#include "desktop/preview/report_preview.h"
#include "desktop/race/race_window.h"
#include "desktop/shell/edited_file.h"
#include "desktop/shell/workspace.h"
#include "desktop/taking/taking_window.h"
#include "desktop/why/why_window.h"

#include <QApplication>
#include <QEvent>
#include <QUndoStack>

#include <array>

namespace kavela::desktop {

namespace {

constexpr const char* StepsKey = "firstSteps";
constexpr const char* Begun = "begun"; ///< kept from the first start on
constexpr const char* Dismissed = "dismissed";

QString nameOfStep(FirstSteps::Step step) {
    constexpr std::array<const char*, FirstSteps::Count> Names{"race", "why", "losses", "film",
                                                               "report"};
    return Names.at(static_cast<std::size_t>(step));
}

} // namespace

FirstSteps::FirstSteps(Workspace& workspace) : m_workspace(workspace) {
    const QStringList kept = workspace.remembered(StepsKey);
    const bool isUsed =
        !workspace.recentFiles().isEmpty() || !workspace.remembered("place/home").isEmpty();
    for (int step = 0; step < Count; ++step)
        if (const QString name = nameOfStep(static_cast<Step>(step)); kept.contains(name))
            m_done.insert(name);
    m_isOffered = !kept.contains(Dismissed) && !isAllDone() && (!kept.isEmpty() || !isUsed);
    if (kept.isEmpty())
        keep();
    if (m_isOffered)
        qApp->installEventFilter(this);
}

bool FirstSteps::isDone(Step step) const {
    return m_done.contains(nameOfStep(step));
}

void FirstSteps::note(Step step) {
    if (!m_isOffered || isDone(step))
        return;
    m_done.insert(nameOfStep(step));
    keep();
    emit changed();
}

void FirstSteps::dismiss() {
    qApp->removeEventFilter(this);
    m_isOffered = false;
    keep();
    emit changed();
}

void FirstSteps::keep() const {
    QStringList kept{m_isOffered ? Begun : Dismissed};
    for (int step = 0; step < Count; ++step)
        if (isDone(static_cast<Step>(step)))
            kept.append(nameOfStep(static_cast<Step>(step)));
    m_workspace.remember(StepsKey, kept);
}

bool FirstSteps::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show && watched->isWidgetType())
        if (auto& widget = static_cast<QWidget&>(*watched); widget.isWindow())
            notice(widget);
    return QObject::eventFilter(watched, event);
}

/// A film is noticed when it plays, and a split when it is taken.
void FirstSteps::notice(QWidget& window) {
    if (qobject_cast<RaceWindow*>(&window))
        note(Step::Race);
    else if (qobject_cast<WhyWindow*>(&window))
        note(Step::Why);
    else if (qobject_cast<LossesWindow*>(&window))
        note(Step::Losses);
    else if (qobject_cast<ReportPreview*>(&window) || qobject_cast<PhonePageDialog*>(&window))
        note(Step::Report);
    if (auto* const taking = qobject_cast<TakingWindow*>(&window); taking && taking->file())
        connect(&taking->file()->undoStack(), &QUndoStack::indexChanged, this, [this](int index) {
            if (index > 0)
                note(Step::Film);
        });
    for (FilmDeck* const deck : window.findChildren<FilmDeck*>())
        connect(deck, &FilmDeck::stateChanged, this, [this, deck] {
            if (deck->isPlaying())
                note(Step::Film);
        });
}

} // namespace kavela::desktop
