#include "desktop/cross/heats/attack_form.h"

#include "desktop/cross/heats/defender_buttons.h"
#include "desktop/shell/forms/record_form.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"
#include "splittaking/annotations/film_marks.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int AttackerLetters = 14; ///< that are read without opening the list
constexpr int WordLetters = 7;

QPushButton* formButton(const char* name, const QString& text, const QString& tip) {
    auto* made = new QPushButton(text);
    made->setObjectName(name);
    made->setToolTip(tip);
    made->setFocusPolicy(Qt::TabFocus);
    return made;
}

void setLetters(QComboBox& combo, int letters) {
    combo.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo.setMinimumContentsLength(letters);
}

QStringList qtTexts(const std::vector<std::string>& texts) {
    QStringList made;
    for (const std::string& text : texts)
        made.append(qtText(text));
    return made;
}

std::vector<std::string> plainTexts(const QStringList& texts) {
    std::vector<std::string> made;
    for (const QString& text : texts)
        made.push_back(text.toStdString());
    return made;
}

} // namespace

/// The fields of an attack that are no plain texts: its boats are those of the heat.
class AttackFields : public RecordForm<actiondata030> {
public:
    explicit AttackFields(Edit edit) : RecordForm(std::move(edit), Arrangement::Beside) {}

    /// Nobody attacks himself: who attacks defends no more.
    void attacker(const FieldFacts& facts, QComboBox* combo) {
        const std::size_t at = addPart(
            facts, combo,
            [combo](const QVariant& name) {
                combo->setCurrentIndex(name.isValid() ? combo->findData(name) : -1);
            },
            [combo] { return combo->currentData(); });
        const Access named{[](const actiondata030& attack) { return attack.attacker; },
                           [](actiondata030& attack, const std::string& name) {
                               attack.attacker = name;
                               std::erase(attack.defenders, name);
                           }};
        bind<std::string>(at, named, shownText,
                          [](const QVariant& name) { return name.toString().toStdString(); });
        connect(combo, &QComboBox::activated, this, [this, at] { takeField(at); });
    }

    void defenders(const FieldFacts& facts, DefenderButtons* buttons) {
        const std::size_t at = addPart(
            facts, buttons,
            [buttons](const QVariant& names) { buttons->setNames(names.toStringList()); },
            [buttons] { return QVariant(buttons->names()); });
        bind<std::vector<std::string>>(
            at, &actiondata030::defenders, qtTexts,
            [](const QVariant& names) { return plainTexts(names.toStringList()); });
        connect(buttons, &DefenderButtons::clicked, this, [this, at] { takeField(at); });
    }
};

QString momentText(const CMTime& moment) {
    return isTaken(moment) ? shownHundredths(moment.seconds()) : QStringLiteral("–");
}

AttackForm::AttackForm(QWidget* parent)
    : QWidget(parent),
      m_attacker(new QComboBox),
      m_defenders(new DefenderButtons),
      m_start(new QLabel),
      m_end(new QLabel),
      m_noEnd(formButton("attackNoEnd", tr("No end"), tr("Takes the end of the attack out"))) {
    const auto edit = [this](const QString& what, const AttackFields::Change& change) {
        emit edited(what, change);
    };
    m_boats = new AttackFields(edit);
    m_words = new AttackFields(edit);
    makeBoats();
    makeWords();
    auto* moments = new QHBoxLayout;
    makeMoments(*moments);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addWidget(m_boats);
    column->addWidget(m_words);
    column->addLayout(moments);
    for (const char* const name : {"attacker", "attackSide", "attackPlace"})
        findChild<QWidget*>(name)->setAccessibleName({}); // which is told by SpokenNames in full
}

void AttackForm::makeBoats() {
    setLetters(*m_attacker, AttackerLetters);
    m_boats->attacker(
        {.name = "attacker", .label = tr("Attacker"), .what = tr("attacker"), .stretch = 1},
        m_attacker);
    m_boats->defenders({.name = "defenders", .label = tr("on"), .what = tr("defenders")},
                       m_defenders);
    m_boats->check({.name = "attackSucceeded",
                    .label = tr("Passed"),
                    .what = tr("outcome of an attack"),
                    .tip = tr("The attacker went past")},
                   &actiondata030::success);
    m_boats->findChild<QWidget*>("attackSucceeded")->setFocusPolicy(Qt::TabFocus);
}

/// After Enter the keys are the film's again.
void AttackForm::makeWords() {
    m_words->editableChoice(
        {.name = "attackSide", .label = tr("Side"), .what = tr("side of an attack"), .stretch = 1},
        &actiondata030::side);
    m_words->editableChoice({.name = "attackPlace",
                             .label = tr("Place"),
                             .what = tr("place of an attack"),
                             .stretch = 1},
                            &actiondata030::place);
    m_words->remark({.name = "attackComment",
                     .label = {},
                     .what = tr("comment on an attack"),
                     .placeholder = tr("Comment"),
                     .stretch = 2},
                    &actiondata030::comments);
    for (QComboBox* const combo : m_words->findChildren<QComboBox*>())
        setLetters(*combo, WordLetters);
    for (QLineEdit* const line : m_words->findChildren<QLineEdit*>())
        connect(line, &QLineEdit::returnPressed, line, &QWidget::clearFocus);
}

void AttackForm::makeMoments(QHBoxLayout& row) {
    auto* start =
        formButton("attackStart", tr("Start here"), tr("The attack starts at this frame"));
    auto* end = formButton("attackEnd", tr("End here"), tr("The attack ends at this frame"));
    auto* removal = formButton("attackRemoval", tr("Remove"), tr("Removes the attack"));
    m_start->setObjectName("attackStartTime");
    m_end->setObjectName("attackEndTime");
    row.addWidget(m_start);
    row.addWidget(start);
    row.addSpacing(theme::Spacing);
    row.addWidget(m_end);
    row.addWidget(end);
    row.addWidget(m_noEnd);
    row.addStretch();
    row.addWidget(removal);
    connect(start, &QPushButton::clicked, this, &AttackForm::startWanted);
    connect(end, &QPushButton::clicked, this, &AttackForm::endWanted);
    connect(m_noEnd, &QPushButton::clicked, this, &AttackForm::endCleared);
    connect(removal, &QPushButton::clicked, this, &AttackForm::removalWanted);
}

void AttackForm::commit() {
    m_boats->commit();
    m_words->commit();
}

void AttackForm::show(const actiondata030* attack, const std::vector<BoatLook>& boats,
                      bool isOther) {
    setEnabled(attack);
    showBoats(attack, boats);
    m_boats->show(attack, isOther);
    m_words->show(attack, isOther);
    showMoments(attack ? *attack : actiondata030{});
}

/// The boats that there are to choose from.
void AttackForm::showBoats(const actiondata030* attack, const std::vector<BoatLook>& boats) {
    m_attacker->clear();
    for (const BoatLook& boat : boats)
        m_attacker->addItem(boat.cue + QStringLiteral("  ") + qtText(boat.name), qtText(boat.name));
    const QString attacker = attack ? qtText(attack->attacker) : QString();
    if (attack && m_attacker->findData(attacker) < 0)
        m_attacker->addItem(tr("?  %1").arg(attacker.isEmpty() ? tr("unnamed") : attacker),
                            attacker);
    m_defenders->setBoats(boats, attack ? attack->attacker : std::string());
}

void AttackForm::showMoments(const actiondata030& attack) {
    const auto moment = [&](std::size_t entry) {
        return entry < attack.time.size() ? momentText(attack.time[entry]) : QStringLiteral("–");
    };
    m_start->setText(tr("Start %1").arg(moment(0)));
    m_end->setText(tr("End %1").arg(moment(1)));
    m_noEnd->setEnabled(attack.time.size() > 1);
}

void AttackForm::offer(const std::vector<std::string>& sides,
                       const std::vector<std::string>& places) {
    m_words->propose("attackSide", qtTexts(sides));
    m_words->propose("attackPlace", qtTexts(places));
}

} // namespace kavela::desktop
