#include "desktop/taking/notes/tag_page.h"

#include "desktop/film/film_deck.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/film_table.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/taking/notes/clip_player.h"
#include "splittaking/annotations/custom_tags.h"
#include "splittaking/annotations/refusals.h"
#include "splittaking/annotations/remembered_texts.h"
#include "splittaking/annotations/upstream_gates.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr const char* SavedKey = "savedtags";
constexpr const char* IndexKey = "comtagIndex";
constexpr const char* JustPartKey = "tagmodeplaysjustpart";

std::vector<Column<TagRow>> tagColumns() {
    return {
        numberColumn<TagRow>(
            TagPage::tr("Time"), [](const TagRow& row) { return row.seconds; }, shownHundredths),
        textColumn<TagRow>(TagPage::tr("Tag"),
                           [](const TagRow& row) { return qtText(row.mark.text); })};
}

} // namespace

TagPage::TagPage(NoteDesk& desk)
    : NotePage(desk),
      m_name(new QComboBox),
      m_justPart(new QCheckBox(tr("Play just the tagged part"))),
      m_tags(tagColumns(), RowsKnownBy::Number),
      m_table(filmTable(m_tags, "tags")) {
    m_name->setObjectName("tagName");
    m_name->setEditable(true);
    m_name->setInsertPolicy(QComboBox::NoInsert);
    m_name->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_name->setMinimumContentsLength(8); // a long name must not make the page wider
    m_justPart->setObjectName("tagJustPart");
    m_table->stretch({1});
    auto* rename = new QPushButton(tr("Rename the tag"));
    rename->setObjectName("tagRename");
    rename->setToolTip(tr("Gives the selected tag the name above"));
    auto* hint = new QLabel(tr("M sets the tag at the frame shown."));
    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setVerticalSpacing(theme::SmallSpacing);
    form->addRow(hint);
    form->addRow(tr("Tag"), m_name);
    form->addRow(rename);
    form->addRow(m_justPart);
    form->addRow(m_table);
    connect(rename, &QPushButton::clicked, this, &TagPage::renameChosen);
    connect(m_justPart, &QCheckBox::toggled, this,
            [this](bool isOn) { m_desk.workspace.setPreference(JustPartKey, isOn); });
    connect(m_name, &QComboBox::activated, this, [this] { remember(name()); });
    connect(m_name->lineEdit(), &QLineEdit::textEdited, this, [this] { m_isTaken = false; });
    connect(m_name->lineEdit(), &QLineEdit::returnPressed, this, &TagPage::takeName);
    connect(m_table, &ColumnTable::clicked, this, [this](const QModelIndex& cell) {
        const MarkHandle tag = m_tags.row(m_table->placeAt(cell)).mark.handle;
        emit picked(tag);
        playPart();
    });
}

std::optional<Alert> TagPage::refusal() const {
    return tagModeRefusal(m_desk.record() != nullptr);
}

QStringList TagPage::names() const {
    std::vector<athletedata031> runs; // their tags only: recordings of sensors are large
    for (const TakenRun& run : m_desk.document.value().runs)
        runs.emplace_back().customData = run.record->customData;
    QStringList texts;
    for (const std::string& text :
         tagNames(m_desk.document.info(), m_desk.workspace.preferences().array(SavedKey), runs))
        texts.append(QString::fromStdString(text));
    return texts;
}

QString TagPage::name() const {
    return m_name->currentText().trimmed();
}

/// A new name is saved for reuse, and the one chosen is offered first the next time.
void TagPage::remember(const QString& name) {
    if (!names().contains(name)) {
        const std::vector<std::string> used{name.toStdString()};
        m_desk.workspace.setPreference(
            SavedKey, withRemembered(m_desk.workspace.preferences().array(SavedKey), used));
    }
    m_desk.workspace.setPreference(
        IndexKey, static_cast<std::int64_t>(std::max<qsizetype>(0, names().indexOf(name))));
}

/// Enter takes the name; once more it is the marking key, as everywhere else.
void TagPage::takeName() {
    if (name().isEmpty())
        return;
    if (m_isTaken) {
        markHere();
        return;
    }
    m_isTaken = true;
    remember(name());
    emit told(tr("Enter sets the tag %1 at the frame shown. Esc gives the keys back to the film.")
                  .arg(name()));
}

/// What is being typed stays.
void TagPage::showNames() {
    const QSignalBlocker blocked(m_name);
    const QString typed = m_name->currentText();
    const QStringList texts = names();
    m_name->clear();
    m_name->addItems(texts);
    const auto last = m_desk.workspace.preferences().integer(IndexKey);
    m_name->setCurrentText(typed.isEmpty() ? texts.value(static_cast<qsizetype>(last)) : typed);
}

void TagPage::showTable() {
    const athletedata031* const run = m_desk.record();
    std::vector<TagRow> rows;
    if (run)
        for (const LaneMark& mark : annotationLanes(*run, m_desk.document.info()).marks)
            if (mark.kind == MarkKind::Tag && mark.film.kind == FilmKind::Own)
                rows.push_back({mark, runSecondsAt(*run, mark.time)});
    m_tags.show(std::move(rows));
}

void TagPage::refresh() {
    showNames();
    const QSignalBlocker blocked(m_justPart);
    m_justPart->setChecked(m_desk.workspace.preferences().boolean(JustPartKey));
    showTable();
}

void TagPage::mark(const Stamps& stamps) {
    if (name().isEmpty()) {
        emit told(tr("Choose or type the name of the tag first."));
        return;
    }
    const QString text = name();
    if (refuses(refusalOfTag(*m_desk.record(), 0, text.toStdString(), stamps.front())))
        return;
    remember(text);
    const auto fixed = m_desk.fixedCamera ? m_desk.fixedMoment : std::nullopt;
    edit(tr("tag %1").arg(text), [&](athletedata031& run) {
        const TagHandle tag = addTag(run, 0, text.toStdString(), stamps.front());
        if (fixed)
            (void)setFixedMoment(run, tag, static_cast<std::int64_t>(*m_desk.fixedCamera), *fixed);
    });
    emit marked(MarkKind::Tag, stamps.front());
    emit flashed(text);
}

void TagPage::choose(const LaneMark& mark) {
    m_chosen = mark;
}

void TagPage::renameChosen() {
    if (!m_chosen || name().isEmpty()) {
        emit told(tr("Select a tag and write its new name."));
        return;
    }
    const QString text = name();
    remember(text);
    edit(tr("tag renamed"), [&](athletedata031& run) {
        renameTag(run, {m_chosen->handle.record, m_chosen->handle.entry}, text.toStdString());
    });
}

void TagPage::playPart() {
    if (!m_chosen || m_desk.deck.cameras() == 0)
        return;
    if (!m_desk.workspace.preferences().boolean(JustPartKey)) {
        m_desk.clips.stop();
        m_desk.deck.seek(m_chosen->time);
        m_desk.deck.play(1);
        return;
    }
    double end = m_chosen->seconds + PartSeconds;
    for (const TagRow& row : m_tags.rows())
        if (row.mark.film == m_chosen->film && row.mark.seconds > m_chosen->seconds)
            end = std::min(end, row.mark.seconds);
    m_desk.clips.play({{m_chosen->seconds, end}});
}

} // namespace kavela::desktop
