#include "desktop/charts/chart.h"

#include "desktop/charts/read_out.h"
#include "desktop/shell/theme.h"

#include <QKeyEvent>
#include <QLabel>
#include <QStackedLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

/// Larger than the text around it, but no headline.
QFont messageFont(const QWidget& widget) {
    QFont font = theme::titleFont(widget);
    font.setWeight(QFont::Normal);
    return font;
}

} // namespace

QString runsText(std::size_t count) {
    return count == 1 ? Chart::tr("1 run") : Chart::tr("%1 runs").arg(count);
}

Chart::Chart(QWidget* parent)
    : QWidget(parent),
      m_plot(new ChartPlot(this)),
      m_labels(new SeriesLabels(*m_plot)),
      m_message(new QLabel(this)),
      m_stack(new QStackedLayout(this)),
      m_readOut(new ReadOut(m_plot)) {
    m_message->setAlignment(Qt::AlignCenter);
    m_message->setWordWrap(true);
    m_message->setMargin(theme::PageMargin);
    m_message->setAutoFillBackground(true);
    m_message->setBackgroundRole(QPalette::Base);
    m_message->setForegroundRole(QPalette::PlaceholderText);
    m_stack->addWidget(m_message);
    m_stack->addWidget(m_plot);
    setFocusProxy(m_plot);
    setMinimumSize(320, 200);
    connectPlot();
}

void Chart::connectPlot() {
    connect(m_plot, &ChartPlot::themeChanged, this, &Chart::invalidate);
    connect(m_plot, &ChartPlot::hovered, this, [this](QPointF at) { hoverAt(at); });
    connect(m_plot, &ChartPlot::hoverEnded, this, [this] { leaveCursor(); });
    connect(m_plot, &ChartPlot::clicked, this, [this](QPointF at) {
        if (const auto id = m_labels->idAt(at))
            toggleSeries(*id);
        else
            clickAt(at);
    });
    connect(m_plot, &ChartPlot::doubleClicked, this, [this](QPointF at) {
        const auto id = m_labels->idAt(at);
        if (!id) {
            m_plot->fit();
            return;
        }
        toggleSeries(*id); // takes back what the first click of the two did
        isolateSeries(*id);
    });
    connect(m_plot, &ChartPlot::keyPressed, this, [this](QKeyEvent* event) { handleKey(*event); });
}

void Chart::setRace(const ChartRace& race) {
    m_race = race;
    m_slots.clear();
    m_selectedCount = 0;
    std::erase_if(m_hidden, [](int id) { return id >= 0; });
    m_plot->fit();
    invalidate();
}

void Chart::setSelection(const std::vector<std::size_t>& runs) {
    std::set<std::size_t> chosen(runs.begin(), runs.end());
    chosen.erase(chosen.lower_bound(m_race.size()), chosen.end());
    m_selectedCount = chosen.size();
    std::erase_if(m_slots, [&](const auto& slot) { return !chosen.contains(slot.first); });
    std::set<std::size_t> taken;
    for (const auto& [run, slot] : m_slots)
        taken.insert(slot);
    std::size_t next = 0;
    for (const std::size_t run : chosen) {
        if (m_slots.contains(run))
            continue;
        while (taken.contains(next))
            ++next;
        if (next >= MostSeries)
            break;
        m_slots[run] = next++;
    }
    std::erase_if(m_hidden, [&](int id) {
        return id >= 0 && !m_slots.contains(static_cast<std::size_t>(id));
    });
    invalidate();
}

void Chart::setReference(const CourseReference& reference) {
    m_reference = reference;
    if (usesReference())
        invalidate();
}

void Chart::setPenaltiesIncluded(bool included) {
    if (included == m_penaltiesIncluded)
        return;
    m_penaltiesIncluded = included;
    invalidate();
}

std::vector<Chart::SelectedRun> Chart::selectedRuns() const {
    std::vector<SelectedRun> runs;
    for (const auto& [run, slot] : m_slots)
        runs.push_back({run, seriesStyle(slot, palette())});
    return runs;
}

QColor Chart::colourOf(std::size_t run) const {
    const auto slot = m_slots.find(run);
    return slot == m_slots.end() ? QColor() : seriesStyle(slot->second, palette()).colour;
}

QString Chart::leftOutNote() const {
    if (m_selectedCount <= m_slots.size())
        return {};
    return tr(" · %1 of %2 selected runs").arg(m_slots.size()).arg(m_selectedCount);
}

SeriesLabel Chart::labelOf(const SelectedRun& selected) const {
    SeriesLabel label;
    label.id = seriesId(selected.run);
    label.name = m_race.label(selected.run);
    label.style = selected.style;
    label.isHidden = !isShown(label.id);
    return label;
}

void Chart::invalidate() {
    m_isStale = true;
    if (isVisible())
        refresh();
}

void Chart::refresh() {
    if (!m_isStale)
        return;
    m_isStale = false;
    m_plot->clearPlottables();
    leaveCursor();
    m_plot->applyTheme();
    const QString reason = emptyReason();
    m_message->setFont(messageFont(*this));
    m_message->setText(reason);
    m_stack->setCurrentWidget(reason.isEmpty() ? static_cast<QWidget*>(m_plot) : m_message);
    if (reason.isEmpty())
        fill();
    else
        m_labels->setLabels({});
}

QString Chart::emptyMessage() {
    refresh();
    return m_message->text();
}

ChartPlot& Chart::plot() {
    refresh();
    return *m_plot;
}

QString Chart::csv() {
    refresh();
    return m_message->text().isEmpty() ? csvText() : QString();
}

void Chart::toggleSeries(int id) {
    if (m_hidden.erase(id) == 0)
        m_hidden.insert(id);
    invalidate();
}

void Chart::isolateSeries(int id) {
    std::set<int> others;
    for (const SeriesLabel& label : m_labels->labels())
        if (label.id != id)
            others.insert(label.id);
    m_hidden = m_hidden == others ? std::set<int>() : others;
    invalidate();
}

void Chart::moveCursor(int) {}

void Chart::leaveCursor() {
    m_readOut->hide();
}

void Chart::handleKey(QKeyEvent& event) {
    const std::optional<int> focused = m_labels->focusedId();
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        moveCursor(event.key() == Qt::Key_Left ? -1 : 1);
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
        m_labels->moveFocus(event.key() == Qt::Key_Up ? -1 : 1);
        m_plot->replot(QCustomPlot::rpQueuedReplot);
        break;
    case Qt::Key_Space:
        if (focused)
            toggleSeries(*focused);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (focused)
            isolateSeries(*focused);
        break;
    case Qt::Key_Escape:
        leaveCursor();
        break;
    default:
        return;
    }
    event.accept();
}

void Chart::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    refresh();
}

} // namespace kavela::desktop
