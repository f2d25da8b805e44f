#include "desktop/taking/course_dialog.h"

#include "desktop/shell/number_box.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"
#include "splittaking/course_setup.h"
#include "splittaking/messages.h"

#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

#include <cmath>

namespace kavela::desktop {

namespace {

enum SectionColumn { TitleColumn, GatesColumn };

constexpr qint64 ReferenceEpoch = 978307200; // 2001-01-01 in seconds since 1970

QString numbersText(const std::vector<std::int64_t>& numbers) {
    QStringList texts;
    for (const std::int64_t number : numbers)
        texts.append(QString::number(number));
    return texts.join(' ');
}

QDateTime momentOf(ReferenceDate date) {
    return QDateTime::fromSecsSinceEpoch(ReferenceEpoch + std::llround(date.seconds), Qt::UTC);
}

} // namespace

CourseDialog::CourseDialog(const infodata031& info, Workspace& workspace, QWidget* parent)
    : EntryDialog(parent), m_workspace(workspace), m_info(info) {
    setWindowTitle(tr("Race and course"));
    auto* columns = new QHBoxLayout;
    columns->setSpacing(theme::PageMargin);
    columns->addWidget(makeRace());
    columns->addWidget(makeCourse(), 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &CourseDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* whole = new QVBoxLayout(this);
    whole->addLayout(columns, 1);
    whole->addWidget(buttons);
    resize(760, 480);
    m_gates->setFocus();
    m_gates->selectAll();
}

void CourseDialog::addText(QFormLayout& form, const QString& title, const char* name,
                           std::string infodata031::*member) {
    auto* edit = new QLineEdit(qtText(m_info.*member));
    edit->setObjectName(name);
    form.addRow(title, edit);
    m_texts.emplace_back(edit, member);
}

QWidget* CourseDialog::makeRace() {
    auto* box = new QWidget;
    auto* form = new QFormLayout(box);
    form->setContentsMargins(0, 0, 0, 0);
    addText(*form, tr("Title"), "title", &infodata031::title);
    addText(*form, tr("Event"), "event", &infodata031::event);
    addText(*form, tr("Place"), "place", &infodata031::place);
    m_date = new QDateEdit(momentOf(m_info.date).date());
    m_date->setCalendarPopup(true);
    m_date->setDisplayFormat("yyyy-MM-dd");
    form->addRow(tr("Date"), m_date);
    m_session = new QComboBox;
    m_session->setEditable(true);
    m_session->addItems({"Race", "Training", "Test"});
    m_session->setCurrentText(qtText(m_info.session));
    form->addRow(tr("Session"), m_session);
    addText(*form, tr("Category"), "category", &infodata031::category);
    addText(*form, tr("Water"), "water", &infodata031::watertype);
    addText(*form, tr("Technique"), "technique", &infodata031::techniquetype);
    addText(*form, tr("Comments"), "comments", &infodata031::comments);
    return box;
}

QWidget* CourseDialog::makeCourse() {
    m_gates = new QLineEdit(QString::number(m_info.gates));
    m_gates->setObjectName("gates");
    m_upGates = new QLineEdit(numbersText(m_info.upGates));
    m_upGates->setObjectName("upGates");
    m_upGates->setPlaceholderText(tr("Such as 4 8 12"));
    m_splits = new WholeBox;
    m_splits->setObjectName("splits");
    m_splits->setRange(1, static_cast<int>(MostSplits));
    m_splits->setValue(static_cast<int>(m_info.totalsplits));
    m_sections = new QTableWidget(0, 2);
    m_sections->setObjectName("sections");
    m_sections->setHorizontalHeaderLabels({tr("Title"), tr("Gates")});
    m_sections->horizontalHeader()->setSectionResizeMode(GatesColumn, QHeaderView::Stretch);
    auto* share = new QPushButton(tr("Share the gates &evenly"));
    share->setObjectName("share");
    share->setAutoDefault(false);
    connect(m_splits, &WholeBox::valueChanged, this, &CourseDialog::resizeSections);
    connect(share, &QPushButton::clicked, this, &CourseDialog::shareEvenly);

    auto* box = new QWidget;
    auto* form = new QFormLayout(box);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(tr("&Gates"), m_gates);
    form->addRow(tr("&Upstream gates"), m_upGates);
    form->addRow(tr("&Splits"), m_splits);
    form->addRow(m_sections);
    form->addRow(share);
    fillSections();
    return box;
}

void CourseDialog::fillSections() {
    const auto rows = static_cast<std::size_t>(m_splits->value());
    m_sections->setRowCount(static_cast<int>(rows));
    for (std::size_t i = 0; i < rows; ++i) {
        const bool hasTitle = i < m_info.splitTitles.size();
        const bool hasGates = i < m_info.definedsections.size();
        const int row = static_cast<int>(i);
        m_sections->setItem(
            row, TitleColumn,
            new QTableWidgetItem(hasTitle ? qtText(m_info.splitTitles[i]) : QString()));
        m_sections->setItem(
            row, GatesColumn,
            new QTableWidgetItem(hasGates ? numbersText(m_info.definedsections[i]) : QString()));
    }
}

void CourseDialog::resizeSections(int splits) {
    const int before = m_sections->rowCount();
    m_sections->setRowCount(splits);
    for (int row = before; row < splits; ++row)
        for (const int column : {TitleColumn, GatesColumn})
            m_sections->setItem(row, column, new QTableWidgetItem);
}

void CourseDialog::shareEvenly() {
    if (!takeGates())
        return;
    m_info.definedsections = defaultSections(m_info.gates, m_splits->value());
    m_info.splitTitles = sectionTitles(m_info.definedsections);
    fillSections();
}

bool CourseDialog::refuse(const std::string& reason, QWidget* field) {
    m_workspace.showAlert({"", reason}, this);
    field->setFocus();
    return false;
}

bool CourseDialog::takeGates() {
    const auto gates = parseGates(m_gates->text().toStdString());
    if (!gates)
        return refuse(messages::GatesNoNumber, m_gates);
    const GateList upGates = parseGateList(m_upGates->text().toStdString(), *gates);
    if (!upGates.fault.empty())
        return refuse(upGates.fault, m_upGates);
    m_info.gates = *gates;
    m_info.upGates = upGates.gates;
    return true;
}

bool CourseDialog::takeSections() {
    infodata031 taken = m_info;
    taken.totalsplits = m_splits->value();
    taken.splitTitles.clear();
    taken.definedsections.clear();
    bool isDefined = false;
    for (int row = 0; row < m_sections->rowCount(); ++row) {
        taken.splitTitles.push_back(m_sections->item(row, TitleColumn)->text().toStdString());
        const GateList gates =
            parseGateList(m_sections->item(row, GatesColumn)->text().toStdString(), taken.gates);
        if (!gates.fault.empty())
            return refuse(tr("Section %1: ").arg(row + 1).toStdString() + gates.fault, m_sections);
        isDefined = isDefined || !gates.gates.empty();
        taken.definedsections.push_back(gates.gates);
    }
    if (!isDefined)
        taken.definedsections.clear();
    if (const auto fault = faultOfSections(taken))
        return refuse(*fault, m_sections);
    m_info = std::move(taken);
    return true;
}

void CourseDialog::accept() {
    m_splits->takeTyped(); // it has its value only then, and the sections follow it
    if (!takeGates() || !takeSections())
        return;
    for (const auto& [edit, member] : m_texts)
        m_info.*member = edit->text().trimmed().toStdString();
    m_info.session = m_session->currentText().trimmed().toStdString();
    const qint64 days = momentOf(m_info.date).date().daysTo(m_date->date());
    m_info.date.seconds += static_cast<double>(days) * 86400;
    EntryDialog::accept();
}

} // namespace kavela::desktop
