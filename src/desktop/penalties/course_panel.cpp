#include "desktop/penalties/course_panel.h"

#include "desktop/charts/interval_chart.h"
#include "desktop/penalties/drawn_rates.h"
#include "desktop/penalties/penalty_contents.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/theme.h"
#include "desktop/why/why_popup.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

CoursePanel::CoursePanel(QWidget* parent)
    : QWidget(parent),
      m_title(new QLabel(tr("C&ourse of"))),
      m_courses(new QComboBox),
      m_remark(new QLabel),
      m_chart(new IntervalChart),
      m_drawn(new DrawnRates) {
    m_courses->setObjectName("course");
    m_courses->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_title->setBuddy(m_courses);
    auto* row = new QHBoxLayout;
    row->addWidget(m_title);
    row->addWidget(m_courses);
    row->addWidget(m_remark);
    row->addStretch();
    m_remark->setObjectName("pictureRemark");
    m_remark->setForegroundRole(QPalette::PlaceholderText);
    m_remark->hide();
    auto* column = new QVBoxLayout(this);
    column->setSpacing(theme::Spacing);
    column->addLayout(row);
    column->addWidget(m_chart, 1);
    column->addWidget(m_drawn, 1);
    m_drawn->hide();
    m_title->hide();
    m_courses->hide();
    connect(m_courses, &QComboBox::currentIndexChanged, this, &CoursePanel::showCourse);
    connect(m_chart, &IntervalChart::markActivated, this, [this](std::size_t mark) {
        if (const CourseOfRates* const shown = course(); shown && mark < shown->gates.size())
            emit gateActivated(shown->file, shown->gates[mark].gate);
    });
    connect(m_drawn, &DrawnRates::gateActivated, this, [this](qint64 gate) {
        if (const CourseOfRates* const shown = course())
            emit gateActivated(shown->file, gate);
    });
    answerWhy(m_chart->focusProxy(), [this](const QPoint& at) {
        return whyOf(at.x() < 0 ? m_chart->current() : m_chart->markAt(at));
    });
}

/// By its path: the number of a file changes as others come and go.
void CoursePanel::show(const SharedFigures& figures) {
    const QString before = m_courses->currentData().toString();
    m_figures = figures;
    {
        const QSignalBlocker quiet(m_courses);
        m_courses->clear();
        for (const CourseOfRates& each : figures->courses)
            m_courses->addItem(qtText(each.label), qtText(figures->facts->text(
                                                       figures->facts->files()[each.file].path)));
        m_courses->setCurrentIndex(
            m_courses->count() == 0 ? -1 : std::max(m_courses->findData(before), 0));
    }
    m_title->setVisible(m_courses->count() > 1);
    m_courses->setVisible(m_courses->count() > 1);
    showCourse();
}

void CoursePanel::showNext(int step) {
    if (const int count = m_courses->count(); count > 0)
        m_courses->setCurrentIndex((m_courses->currentIndex() + step + count) % count);
}

const CourseOfRates* CoursePanel::course() const {
    const int index = m_courses->currentIndex();
    return m_figures && index >= 0 ? &m_figures->courses.at(static_cast<std::size_t>(index))
                                   : nullptr;
}

void CoursePanel::showCourse() {
    askForPicture();
    showChart();
}

void CoursePanel::showChart() {
    const CourseOfRates* const shown = course();
    IntervalChartContent content = courseContent(shown ? *shown : CourseOfRates());
    // The gates stand on the drawing below; faint behind the chart it would only be in the way.
    content.backdrop = m_picture.drawn ? QImage() : m_picture.image;
    m_drawn->show(m_picture.drawn, shown ? *shown : CourseOfRates());
    m_drawn->setVisible(m_picture.drawn != nullptr);
    m_chart->show(std::move(content));
    m_remark->setText(m_picture.isBroken
                          ? tr("The drawing of the course in this file cannot be shown.")
                          : QString());
    m_remark->setVisible(m_picture.isBroken);
}

/// Facts leave pictures out. The one that is there stays while only the question is another.
void CoursePanel::askForPicture() {
    const QString file = course() ? m_courses->currentData().toString() : QString();
    const auto facts = m_figures ? m_figures->facts : nullptr;
    if (file == m_pictureOf && facts == m_pictureFacts)
        return;
    if (file != m_pictureOf)
        m_picture = {};
    m_pictureOf = file;
    m_pictureFacts = facts;
    const int asked = ++m_asked;
    if (file.isEmpty())
        return;
    m_work.run([path = file.toStdString()] { return coursePictureIn(path); },
               [this, asked](const CoursePicture& picture) {
                   if (asked != m_asked)
                       return;
                   const bool isSame = picture.image.isNull() && m_picture.image.isNull() &&
                                       picture.isBroken == m_picture.isBroken;
                   m_picture = picture;
                   if (!isSame) // the cursor stays where there is nothing to paint
                       showChart();
               },
               {[](const std::exception_ptr&) {}, {}}); // no picture then
}

std::optional<Reason> CoursePanel::whyOf(std::optional<std::size_t> mark) const {
    const CourseOfRates* const shown = course();
    if (!shown || !mark || *mark >= shown->gates.size())
        return {};
    const auto gate = static_cast<std::uint64_t>(shown->gates[*mark].gate);
    return m_figures->why("rate/gate/" + courseKey(*m_figures->facts, shown->file, gate));
}

} // namespace kavela::desktop
