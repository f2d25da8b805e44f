#include "desktop/cross/course_strip.h"

#include "common/text.h"
#include "desktop/shell/fault_label.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/theme.h"
#include "desktop/splitfile/taking_document.h"
#include "splittaking/course_setup.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolButton>

#include <algorithm>
#include <array>

namespace kavela::desktop {

namespace {

constexpr std::string_view Separators = " ,;\t";

bool isSame(const crossinfodata030& a, const crossinfodata030& b) {
    return a.phase == b.phase && a.cat == b.cat && a.gates == b.gates &&
           a.rollaftergate == b.rollaftergate;
}

} // namespace

CourseGates parseCourseGates(std::string_view text) {
    CourseGates course;
    while (text.find_first_not_of(Separators) != std::string_view::npos) {
        text.remove_prefix(text.find_first_not_of(Separators));
        const std::string_view word = text.substr(0, text.find_first_of(Separators));
        text.remove_prefix(word.size());
        const auto gate = parseGates(word);
        if (!gate || *gate < 1)
            return {{}, say("\"{}\" is no gate number.", word)};
        if (std::ranges::find(course.gates, *gate) != course.gates.end())
            return {{}, say("Gate {} stands there twice.", *gate)};
        course.gates.push_back(*gate);
    }
    return course;
}

CourseStrip::CourseStrip(TakingDocument& document, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_summary(new QLabel),
      m_open(new QToolButton),
      m_fields(new QWidget),
      m_phase(new QLineEdit),
      m_category(new QLineEdit),
      m_gates(new QLineEdit),
      m_roll(new QLineEdit),
      m_fault(new FaultLabel) {
    m_summary->setObjectName("crossCourse");
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setFont(theme::titleFont(*this));
    m_summary->setWordWrap(true);
    m_open->setText(tr("Course"));
    m_open->setCheckable(true);
    m_open->setFocusPolicy(Qt::NoFocus);
    m_fault->setObjectName("courseFault");
    auto* form = new QFormLayout(m_fields);
    form->setContentsMargins(0, 0, 0, 0);
    form->setVerticalSpacing(theme::SmallSpacing);
    addField(*form, tr("Gates"), *m_gates, "courseGates");
    m_gates->setPlaceholderText(tr("Such as 1, 2, 3, 4"));
    addField(*form, tr("Roll after gate"), *m_roll, "courseRoll");
    m_roll->setPlaceholderText(tr("Empty without a roll"));
    addField(*form, tr("Phase"), *m_phase, "coursePhase");
    addField(*form, tr("Category"), *m_category, "courseCategory");
    auto* row = new QHBoxLayout;
    row->addWidget(m_summary, 1);
    row->addWidget(m_open, 0, Qt::AlignTop);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::Spacing);
    column->addLayout(row);
    column->addWidget(m_fields);
    column->addWidget(m_fault);
    m_fields->hide();
    setFocusProxy(m_gates);
    connect(m_open, &QToolButton::clicked, this, &CourseStrip::toggle);
}

void CourseStrip::addField(QFormLayout& form, const QString& title, QLineEdit& field,
                           const char* name) {
    field.setObjectName(name);
    form.addRow(title, &field);
    connect(&field, &QLineEdit::editingFinished, this, &CourseStrip::commit);
    connect(&field, &QLineEdit::returnPressed, this, [this, &field] {
        if (!commit()) // the key is about to leave the field
            QMetaObject::invokeMethod(
                &field, [&field] { field.setFocus(); }, Qt::QueuedConnection);
    });
}

QString CourseStrip::summary() const {
    const crossinfodata030& info = m_document.cross().crossinfo;
    if (info.gates.empty())
        return tr("Which gates does the cross course have?");
    const auto gates = info.gates.size();
    QStringList parts{qtText(info.phase), qtText(info.cat),
                      gates == 1 ? tr("1 gate") : tr("%n gates", nullptr, static_cast<int>(gates))};
    if (info.rollaftergate > 0)
        parts.append(tr("roll after %1").arg(info.rollaftergate));
    parts.removeAll(QString());
    return parts.join(" · ");
}

void CourseStrip::refresh() {
    const crossinfodata030& info = m_document.cross().crossinfo;
    m_summary->setText(summary());
    if (!isSame(info, m_shown)) {
        m_shown = info;
        m_phase->setText(qtText(info.phase));
        m_category->setText(qtText(info.cat));
        m_gates->setText(joined(info.gates));
        m_roll->setText(info.rollaftergate > 0 ? QString::number(info.rollaftergate) : QString());
        m_fault->tell({});
    }
    if (info.gates.empty())
        setOpen(true);
}

void CourseStrip::setOpen(bool isOpen) {
    m_fields->setVisible(isOpen);
    m_open->setChecked(isOpen);
}

void CourseStrip::toggle() {
    const bool isOpen = !m_fields->isHidden();
    if (isOpen && (!commit() || m_document.cross().crossinfo.gates.empty())) {
        m_open->setChecked(true);
        m_gates->setFocus();
        return;
    }
    setOpen(!isOpen);
    if (isOpen)
        return;
    m_gates->setFocus();
    m_gates->selectAll();
}

bool CourseStrip::refuse(const QString& fault) {
    setOpen(true);
    m_fault->tell(fault);
    return false;
}

bool CourseStrip::commit() {
    const std::array fields{m_phase, m_category, m_gates, m_roll};
    if (std::ranges::none_of(fields, &QLineEdit::isModified))
        return true; // a file may hold what would be refused here
    const CourseGates course = parseCourseGates(m_gates->text().toStdString());
    if (!course.fault.empty())
        return refuse(qtText(course.fault));
    const QString rollText = m_roll->text().trimmed();
    const auto roll = rollText.isEmpty() ? 0 : parseGates(rollText.toStdString()).value_or(-1);
    if (roll < 0)
        return refuse(tr("\"%1\" is no gate number.").arg(rollText));
    if (roll > 0 && std::ranges::find(course.gates, roll) == course.gates.end())
        return refuse(tr("The roll is after gate %1, which is not on the course.").arg(roll));
    m_fault->tell({});
    const crossinfodata030 typed{m_phase->text().trimmed().toStdString(),
                                 m_category->text().trimmed().toStdString(), course.gates, roll};
    for (QLineEdit* const field : fields)
        field->setModified(false);
    if (!isSame(typed, m_shown))
        m_document.editCross(tr("course"), [&](crossdata030& cross) { cross.crossinfo = typed; });
    return true;
}

} // namespace kavela::desktop
