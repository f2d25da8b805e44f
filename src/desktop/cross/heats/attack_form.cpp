#include "desktop/cross/heats/attack_form.h"

#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"
#include "splittaking/annotations/film_marks.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>

#include <algorithm>

namespace kavela::desktop {

namespace {

QLineEdit& editOf(QComboBox& combo) {
    return *combo.lineEdit();
}

QComboBox* textCombo(const char* name) {
    auto* combo = new QComboBox;
    combo->setObjectName(name);
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(7);
    return combo;
}

QPushButton* formButton(const char* name, const QString& text, const QString& tip) {
    auto* made = new QPushButton(text);
    made->setObjectName(name);
    made->setToolTip(tip);
    made->setFocusPolicy(Qt::TabFocus);
    return made;
}

/// Shows a text unless the coach is typing another one.
void showText(QLineEdit& edit, const std::string& text) {
    if (!edit.hasFocus() || !edit.isModified())
        edit.setText(QString::fromStdString(text));
}

void refill(QComboBox& combo, const std::vector<std::string>& texts) {
    const QSignalBlocker blocked(combo);
    const QString shown = combo.currentText();
    const bool isModified = editOf(combo).isModified();
    combo.clear();
    for (const std::string& text : texts)
        combo.addItem(QString::fromStdString(text));
    combo.setEditText(shown);
    editOf(combo).setModified(isModified);
}

} // namespace

QString momentText(const CMTime& moment) {
    return isTaken(moment) ? shownHundredths(moment.seconds()) : QStringLiteral("–");
}

AttackForm::AttackForm(QWidget* parent)
    : QWidget(parent),
      m_attacker(new QComboBox),
      m_defenders(new QHBoxLayout),
      m_success(new QCheckBox(tr("Passed"))),
      m_side(textCombo("attackSide")),
      m_place(textCombo("attackPlace")),
      m_comment(new QLineEdit),
      m_start(new QLabel),
      m_end(new QLabel),
      m_noEnd(formButton("attackNoEnd", tr("No end"), tr("Takes the end of the attack out"))) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    for (const auto make :
         {&AttackForm::makeNames, &AttackForm::makeWords, &AttackForm::makeMoments}) {
        auto* row = new QHBoxLayout;
        (this->*make)(*row);
        column->addLayout(row);
    }
}

void AttackForm::makeNames(QHBoxLayout& row) {
    m_attacker->setObjectName("attacker");
    m_attacker->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_attacker->setMinimumContentsLength(14);
    m_success->setObjectName("attackSucceeded");
    m_success->setToolTip(tr("The attacker went past"));
    m_success->setFocusPolicy(Qt::TabFocus);
    m_defenders->setSpacing(2);
    row.addWidget(new QLabel(tr("Attacker")));
    row.addWidget(m_attacker, 1);
    row.addWidget(new QLabel(tr("on")));
    row.addLayout(m_defenders);
    row.addWidget(m_success);
    connect(m_attacker, &QComboBox::activated, this, [this](int index) {
        const std::string name = m_attacker->itemData(index).toString().toStdString();
        emit edited(tr("attacker"), [name](actiondata030& attack) {
            attack.attacker = name;
            std::erase(attack.defenders, name);
        });
    });
    connect(m_success, &QCheckBox::clicked, this, [this](bool isOn) {
        emit edited(tr("outcome of an attack"),
                    [isOn](actiondata030& attack) { attack.success = isOn; });
    });
}

void AttackForm::makeWords(QHBoxLayout& row) {
    m_comment->setObjectName("attackComment");
    m_comment->setPlaceholderText(tr("Comment"));
    row.addWidget(new QLabel(tr("Side")));
    row.addWidget(m_side, 1);
    row.addWidget(new QLabel(tr("Place")));
    row.addWidget(m_place, 1);
    row.addWidget(m_comment, 2);
    const auto take = [this](QLineEdit* edit, const QString& what,
                             std::string actiondata030::*member) {
        const auto act = [=, this] {
            edit->setModified(false);
            takeText(what, member, edit->text());
        };
        connect(edit, &QLineEdit::editingFinished, this, act);
        connect(edit, &QLineEdit::returnPressed, edit, &QWidget::clearFocus);
        return act;
    };
    connect(m_side, &QComboBox::activated, this,
            take(m_side->lineEdit(), tr("side of an attack"), &actiondata030::side));
    connect(m_place, &QComboBox::activated, this,
            take(m_place->lineEdit(), tr("place of an attack"), &actiondata030::place));
    take(m_comment, tr("comment on an attack"), &actiondata030::comments);
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

void AttackForm::takeText(const QString& what, std::string actiondata030::*member,
                          const QString& text) {
    const std::string taken = text.trimmed().toStdString();
    if (m_attack && (*m_attack).*member != taken)
        emit edited(what, [=](actiondata030& attack) { attack.*member = taken; });
}

void AttackForm::commit() {
    for (QLineEdit* const edit : {m_side->lineEdit(), m_place->lineEdit(), m_comment})
        if (edit->hasFocus() && edit->isModified())
            emit edit->editingFinished();
}

void AttackForm::show(const actiondata030* attack, const std::vector<BoatLook>& boats) {
    m_attack = attack ? std::optional(*attack) : std::nullopt;
    m_boats = boats;
    setEnabled(attack);
    const actiondata030 shown = m_attack.value_or(actiondata030{});
    const QSignalBlocker blocked(m_attacker);
    m_attacker->clear();
    for (const BoatLook& boat : boats)
        m_attacker->addItem(boat.cue + QStringLiteral("  ") + QString::fromStdString(boat.name),
                            QString::fromStdString(boat.name));
    const QString attacker = QString::fromStdString(shown.attacker);
    if (attack && m_attacker->findData(attacker) < 0)
        m_attacker->addItem(tr("?  %1").arg(attacker.isEmpty() ? tr("unnamed") : attacker),
                            attacker);
    m_attacker->setCurrentIndex(attack ? m_attacker->findData(attacker) : -1);
    m_success->setChecked(shown.success);
    showDefenders();
    showText(editOf(*m_side), shown.side);
    showText(editOf(*m_place), shown.place);
    showText(*m_comment, shown.comments);
    const auto moment = [&](std::size_t entry) {
        return entry < shown.time.size() ? momentText(shown.time[entry]) : QStringLiteral("–");
    };
    m_start->setText(tr("Start %1").arg(moment(0)));
    m_end->setText(tr("End %1").arg(moment(1)));
    m_noEnd->setEnabled(shown.time.size() > 1);
}

/// A button per boat; those that a file names beyond the heat have one too, to be taken out.
void AttackForm::showDefenders() {
    std::vector<BoatLook> looks = m_boats;
    for (const std::string& name : m_attack ? m_attack->defenders : std::vector<std::string>{})
        if (std::ranges::count(looks, name, &BoatLook::name) == 0)
            looks.push_back(lookOf(m_boats, name, palette()));
    while (m_defenderButtons.size() < looks.size()) {
        auto* made = new QToolButton;
        made->setObjectName(QStringLiteral("defender%1").arg(m_defenderButtons.size() + 1));
        made->setCheckable(true);
        made->setFocusPolicy(Qt::TabFocus);
        m_defenders->addWidget(made);
        m_defenderButtons.push_back(made);
        connect(made, &QToolButton::clicked, this, [this, made](bool isOn) {
            const std::string name = made->property("boat").toString().toStdString();
            emit edited(tr("defenders"), [=](actiondata030& attack) {
                std::erase(attack.defenders, name);
                if (isOn)
                    attack.defenders.push_back(name);
            });
        });
    }
    for (std::size_t i = 0; i < m_defenderButtons.size(); ++i) {
        QToolButton& shown = *m_defenderButtons[i];
        shown.setVisible(i < looks.size());
        if (i >= looks.size())
            continue;
        const QString name = QString::fromStdString(looks[i].name);
        const bool isOn = m_attack && std::ranges::count(m_attack->defenders, looks[i].name) > 0;
        shown.setProperty("boat", name);
        shown.setText(isOn ? QStringLiteral("✓ ") + looks[i].cue : looks[i].cue);
        shown.setToolTip(tr("%1 defends").arg(name));
        shown.setAccessibleName(shown.toolTip());
        shown.setChecked(isOn);
        shown.setEnabled(m_attack && (isOn || looks[i].name != m_attack->attacker));
    }
}

void AttackForm::offer(const std::vector<std::string>& sides,
                       const std::vector<std::string>& places) {
    refill(*m_side, sides);
    refill(*m_place, places);
}

} // namespace kavela::desktop
