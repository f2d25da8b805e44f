#include "desktop/motion/recording_list.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/charts/sensor_series.h"
#include "desktop/motion/motion_recordings.h"
#include "desktop/shell/theme.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace kavela::desktop {

namespace {

enum Role { SessionRole = Qt::UserRole, DataRole, FoundRole, OddRole };
constexpr int TickSize = 16;
constexpr int Lines = 4;

/// Four lines; those below the name are quieter and may be cut, which a tool tip makes good.
class RecordingDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex&) const override {
        return {120, Lines * option.fontMetrics.height() + 2 * theme::Spacing};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        const QString name = std::exchange(item.text, QString());
        // The style draws the ground, the tick and the colour at the height of the name.
        item.widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &item, painter,
                                            item.widget);
        QStyleOptionViewItem tick = item;
        tick.rect = tickRect(option);
        tick.state = option.state & ~(QStyle::State_HasFocus | QStyle::State_Selected);
        tick.state |= item.checkState == Qt::Checked ? QStyle::State_On : QStyle::State_Off;
        item.widget->style()->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &tick, painter,
                                            item.widget);
        paintLines(*painter, item, index, name);
    }

    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override {
        // A click near the tick turns it, wherever the style would have put it.
        if (event->type() != QEvent::MouseButtonRelease)
            return event->type() == QEvent::MouseButtonDblClick ||
                   QStyledItemDelegate::editorEvent(event, model, option, index);
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (!tickRect(option).adjusted(-8, -8, 8, 8).contains(mouse->pos()))
            return false;
        const bool isOn = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        return model->setData(index, isOn ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    }

private:
    static QRect tickRect(const QStyleOptionViewItem& option) {
        return {option.rect.left() + theme::Spacing,
                option.rect.top() + theme::Spacing + (option.fontMetrics.height() - TickSize) / 2,
                TickSize, TickSize};
    }

    static void paintLines(QPainter& painter, const QStyleOptionViewItem& item,
                           const QModelIndex& index, const QString& name) {
        const bool isSelected = item.state.testFlag(QStyle::State_Selected);
        const QColor text =
            item.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
        const QColor quiet = isSelected ? text : theme::quietText(item.palette);
        const int height = item.fontMetrics.height();
        const int left = item.rect.left() + 2 * theme::Spacing + TickSize;
        QRect line(left, item.rect.top() + theme::Spacing,
                   item.rect.right() - left - theme::Spacing, height);
        painter.save();
        const QRect swatch(left, line.center().y() - 2, 18, 4);
        if (isSelected) // the colour may be hard to tell from that of the selection
            painter.fillRect(swatch.adjusted(-2, -2, 2, 2), item.palette.color(QPalette::Base));
        painter.fillRect(swatch, index.data(Qt::DecorationRole).value<QColor>());
        const auto write = [&](const QRect& rect, const QString& what, const QColor& colour) {
            painter.setPen(colour);
            painter.drawText(rect, Qt::AlignLeft | Qt::AlignVCenter,
                             item.fontMetrics.elidedText(what, Qt::ElideRight, rect.width()));
        };
        painter.setFont(item.font);
        write(line.adjusted(18 + theme::Spacing, 0, 0, 0), name, text);
        write(line.translated(0, height), index.data(SessionRole).toString(), quiet);
        write(line.translated(0, 2 * height), index.data(DataRole).toString(), quiet);
        const bool isOdd = index.data(OddRole).toBool() && !isSelected;
        write(line.translated(0, 3 * height), index.data(FoundRole).toString(),
              isOdd ? missedColour(item.palette) : quiet);
        painter.restore();
    }
};

} // namespace

RecordingWords wordsOf(const MotionRecording& recording) {
    const RecordingFacts& facts = recording.facts;
    const QString dot = QStringLiteral(" · ");
    QStringList session;
    const QString athlete = QString::fromStdString(recording.session.athleteinfo.name);
    if (!athlete.isEmpty())
        session << athlete;
    session << QString::fromStdString(dayText(recording.session.info.date))
            << momentText(facts.seconds, 0);
    QStringList data;
    if (facts.rate > 0)
        data << RecordingList::tr("%1 a second").arg(qRound(facts.rate));
    data << (facts.hasPosition ? RecordingList::tr("position") : RecordingList::tr("no position"))
         << (facts.hasHeart ? RecordingList::tr("heart") : RecordingList::tr("no heart"))
         << (facts.hasWatch ? RecordingList::tr("watch") : RecordingList::tr("no watch"));
    QStringList found;
    if (recording.isAnalysing)
        found << RecordingList::tr("looking for strokes…");
    else if (!recording.fault.isEmpty())
        found << recording.fault;
    else if (recording.analysis)
        found << RecordingList::tr("%1 strokes, %2 turns")
                     .arg(recording.analysis->strokes.size())
                     .arg(recording.analysis->turns.size());
    const bool isSideUnknown = recording.analysis && !recording.analysis->isBowKnown;
    if (isSideUnknown && !recording.isAnalysing)
        found << RecordingList::tr("side unknown");
    found << facts.oddities;
    return {.name = QString::fromStdString(recording.data.name),
            .session = session.join(dot),
            .data = data.join(dot),
            .found = found.join(dot),
            .isOdd = !facts.oddities.isEmpty() || !recording.fault.isEmpty() || isSideUnknown};
}

RecordingList::RecordingList(MotionRecordings& recordings, QWidget* parent)
    : QListWidget(parent), m_recordings(recordings) {
    setItemDelegate(new RecordingDelegate(this));
    setAccessibleName(tr("Recordings"));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(&m_recordings, &MotionRecordings::listChanged, this, &RecordingList::fill);
    connect(&m_recordings, &MotionRecordings::analysisChanged, this, &RecordingList::refresh);
    connect(&m_recordings, &MotionRecordings::ticksChanged, this, [this] {
        for (std::size_t i = 0; i < m_recordings.all().size(); ++i)
            refresh(i);
    });
    connect(this, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
        m_recordings.setTicked(static_cast<std::size_t>(row(item)),
                               item->checkState() == Qt::Checked);
    });
    connect(this, &QListWidget::currentRowChanged, this, &RecordingList::chosen);
}

std::optional<std::size_t> RecordingList::current() const {
    const int row = currentRow();
    if (row < 0 || static_cast<std::size_t>(row) >= m_recordings.all().size())
        return std::nullopt;
    return static_cast<std::size_t>(row);
}

void RecordingList::choose(std::size_t index) {
    setCurrentRow(static_cast<int>(index));
}

void RecordingList::moveChoice(int step) {
    if (count() > 0)
        setCurrentRow(std::clamp(currentRow() + step, 0, count() - 1));
}

void RecordingList::removeCurrent() {
    if (const auto index = current())
        m_recordings.remove(*index);
}

void RecordingList::tickCurrent() {
    if (const auto index = current())
        m_recordings.setTicked(*index, !m_recordings.all()[*index]->data.shows);
}

void RecordingList::showCurrentAlone() {
    const auto index = current();
    for (std::size_t i = 0; index && i < m_recordings.all().size(); ++i)
        m_recordings.setTicked(i, i == *index);
}

void RecordingList::fill() {
    const int before = currentRow();
    {
        const QSignalBlocker blocker(this);
        clear();
        for (std::size_t i = 0; i < m_recordings.all().size(); ++i) {
            addItem(new QListWidgetItem);
            refresh(i);
        }
        setCurrentRow(std::min(std::max(before, 0), count() - 1));
    }
    emit chosen();
}

void RecordingList::refresh(std::size_t index) {
    QListWidgetItem* const entry = item(static_cast<int>(index));
    if (!entry)
        return;
    const QSignalBlocker blocker(this);
    const MotionRecording& recording = *m_recordings.all()[index];
    const RecordingWords words = wordsOf(recording);
    entry->setText(words.name);
    entry->setData(SessionRole, words.session);
    entry->setData(DataRole, words.data);
    entry->setData(FoundRole, words.found);
    entry->setData(OddRole, words.isOdd);
    entry->setData(Qt::DecorationRole, seriesStyle(recording.slot, palette()).colour);
    entry->setCheckState(recording.data.shows ? Qt::Checked : Qt::Unchecked);
    entry->setToolTip(QStringList{QString::fromStdString(recording.data.url.string()),
                                  words.session, words.data, words.found}
                          .join('\n'));
    viewport()->update();
}

void RecordingList::changeEvent(QEvent* event) {
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        for (std::size_t i = 0; i < m_recordings.all().size(); ++i)
            refresh(i);
}

} // namespace kavela::desktop
