#include "desktop/course/course_part_form.h"

#include "desktop/shell/number_box.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/theme.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int HighestNumber = 999; ///< where the race tells no other
constexpr double WidestPicture = 10'000;

/// The other one that has the number takes the one that becomes free: none is there twice.
template <class Part>
void exchangeNumber(std::vector<Part>& parts, std::int64_t Part::*number, std::int64_t from,
                    std::int64_t to) {
    for (Part& part : parts)
        if (part.*number == to)
            part.*number = from;
}

} // namespace

CoursePartForm::CoursePartForm(QWidget* parent)
    : QWidget(parent),
      m_name(new QLabel),
      m_numberTitle(new QLabel(tr("&Number"))),
      m_number(new WholeBox),
      m_upstream(new QCheckBox(tr("&Upstream gate"))),
      m_textTitle(new QLabel(tr("Na&me or text"))),
      m_text(new QLineEdit),
      m_width(new NumberBox) {
    m_number->setObjectName("partNumber");
    m_upstream->setObjectName("partUpstream");
    m_text->setObjectName("partText");
    m_width->setObjectName("pictureWidth");
    m_numberTitle->setBuddy(m_number);
    m_textTitle->setBuddy(m_text);
    m_width->setRange(0, WidestPicture);
    m_width->setDecimals(1);
    m_width->setSuffix(tr(" m"));
    m_width->setSpecialValueText(tr("not measured"));
    auto* const widthTitle = new QLabel(tr("&Width of the picture"));
    widthTitle->setBuddy(m_width);
    m_name->setFont(theme::titleFont(*this));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    for (QWidget* const field :
         {static_cast<QWidget*>(m_name), static_cast<QWidget*>(m_numberTitle),
          static_cast<QWidget*>(m_number), static_cast<QWidget*>(m_upstream),
          static_cast<QWidget*>(m_textTitle), static_cast<QWidget*>(m_text)})
        column->addWidget(field);
    column->addStretch();
    column->addWidget(widthTitle);
    column->addWidget(m_width);
    connect(m_number, &WholeBox::valueChanged, this, &CoursePartForm::setNumber);
    connect(m_upstream, &QCheckBox::clicked, this, &CoursePartForm::turnDirection);
    connect(m_text, &QLineEdit::editingFinished, this, &CoursePartForm::setText);
    connect(m_width, &NumberBox::valueChanged, this, &CoursePartForm::setWidth);
}

void CoursePartForm::show(const CourseDraft& draft, const std::optional<CoursePart>& part) {
    m_draft = draft;
    m_part = part;
    const std::int64_t* const number = numberIn(m_draft);
    const std::string* const text = textIn(m_draft);
    const std::optional<std::int64_t> shown = gate();
    const QSignalBlocker noNumber(m_number);
    const QSignalBlocker noWidth(m_width);
    QString name = m_part ? qtText(courseNameOf(m_draft.design, *m_part)) : QString();
    if (!name.isEmpty())
        name[0] = name[0].toUpper();
    m_name->setText(name.isEmpty() ? tr("Nothing selected") : name);
    const std::int64_t most = shown ? m_draft.gates : m_draft.splits;
    if (number) {
        m_number->setRange(1, static_cast<int>(std::max(most > 0 ? most : HighestNumber, *number)));
        m_number->showValue(static_cast<int>(*number));
    }
    m_upstream->setChecked(shown && std::ranges::count(m_draft.upGates, *shown) > 0);
    if (text && !m_text->isModified())
        m_text->setText(qtText(*text));
    m_numberTitle->setVisible(number);
    m_number->setVisible(number);
    m_upstream->setVisible(shown.has_value());
    m_textTitle->setVisible(text);
    m_text->setVisible(text);
    m_width->showValue(m_draft.design.size);
}

std::int64_t* CoursePartForm::numberIn(CourseDraft& draft) const {
    if (!m_part || !hasPart(draft.design, *m_part))
        return nullptr;
    if (m_part->kind == CoursePart::Kind::Gate)
        return &draft.design.gates[m_part->index].number;
    if (m_part->kind == CoursePart::Kind::SplitLine)
        return &draft.design.splitlines[m_part->index].split;
    return nullptr;
}

std::string* CoursePartForm::textIn(CourseDraft& draft) const {
    if (!m_part || !hasPart(draft.design, *m_part))
        return nullptr;
    if (m_part->kind == CoursePart::Kind::Line)
        return &draft.design.lines[m_part->index].name;
    if (m_part->kind == CoursePart::Kind::Text)
        return &draft.design.texts[m_part->index].text;
    return nullptr;
}

std::optional<std::int64_t> CoursePartForm::gate() const {
    if (!m_part || m_part->kind != CoursePart::Kind::Gate || !hasPart(m_draft.design, *m_part))
        return {};
    return m_draft.design.gates[m_part->index].number;
}

/// A direction belongs to the number: the race tells it, and not the drawing.
void CoursePartForm::turnDirection() {
    const std::optional<std::int64_t> turned = gate();
    if (!turned)
        return;
    if (m_draft.gates > 0 && *turned > m_draft.gates) {
        m_upstream->setChecked(false);
        emit told(tr("The race has %1 gates only. Race and course says how many there are.")
                      .arg(m_draft.gates));
        return;
    }
    emit edited(tr("direction of gate %1").arg(*turned), withDirectionTurned(m_draft, *turned),
                false);
}

void CoursePartForm::setNumber(int number) {
    CourseDraft after = m_draft;
    std::int64_t* const kept = numberIn(after);
    if (!kept || *kept == number)
        return;
    if (gate())
        exchangeNumber(after.design.gates, &coursegate001::number, *kept, number);
    else
        exchangeNumber(after.design.splitlines, &coursesplitline001::split, *kept, number);
    *kept = number;
    emit edited(tr("number %1").arg(number), after, false);
}

void CoursePartForm::setText() {
    CourseDraft after = m_draft;
    std::string* const kept = textIn(after);
    const std::string typed = m_text->text().toStdString();
    m_text->setModified(false);
    if (!kept || *kept == typed)
        return;
    *kept = typed;
    emit edited(tr("name"), after, false);
}

void CoursePartForm::setWidth(double metres) {
    CourseDraft after = m_draft;
    after.design.size = metres;
    emit edited(tr("width of the picture"), after, true);
}

} // namespace kavela::desktop
