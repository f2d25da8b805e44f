#include "desktop/taking/course_dialog.h"

#include "desktop/shell/number_box.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typing.h"
#include "desktop/shell/workspace.h"
#include "splittaking/course_setup.h"
#include "splittaking/messages.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

namespace kavela::desktop {

namespace {

constexpr int GatesColumn = 1; ///< of the sections

QString numbersText(const std::vector<std::int64_t>& numbers) {
    QStringList texts;
    for (const std::int64_t number : numbers)
        texts.append(QString::number(number));
    return texts.join(' ');
}

} // namespace

CourseDialog::CourseDialog(const infodata031& info, Workspace& workspace, QWidget* parent)
    : EntryDialog(parent),
      m_workspace(workspace),
      m_info(info),
      m_race(new RecordForm<infodata031>([this](const QString&, const auto& change) {
          change(m_info);
          m_race->show(&m_info);
      })),
      m_sections({sectionColumn(tr("Title"), &SectionTexts::title),
                  sectionColumn(tr("Gates"), &SectionTexts::gates)},
                 RowsKnownBy::Number) {
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

QWidget* CourseDialog::makeRace() {
    m_race->text({"title", tr("Title")}, &infodata031::title);
    m_race->text({"event", tr("Event")}, &infodata031::event);
    m_race->text({"place", tr("Place")}, &infodata031::place);
    m_race->date({"date", tr("Date")}, &infodata031::date);
    m_race->editableChoice({"session", tr("Session")}, &infodata031::session);
    m_race->propose("session", {"Race", "Training", "Test"});
    m_race->text({"category", tr("Category")}, &infodata031::category);
    m_race->text({"water", tr("Water")}, &infodata031::watertype);
    m_race->text({"technique", tr("Technique")}, &infodata031::techniquetype);
    m_race->remark({"comments", tr("Comments")}, &infodata031::comments);
    m_race->show(&m_info);
    return m_race;
}

Column<SectionTexts> CourseDialog::sectionColumn(const QString& title,
                                                 QString SectionTexts::*text) {
    return {.title = title,
            .show = [text](const SectionTexts& section) { return Cell{section.*text}; },
            .take =
                [this, text](const std::size_t& place, const SectionTexts&, const QString& typed) {
                    std::vector<SectionTexts> sections = m_sections.rows();
                    sections.at(place).*text = typed;
                    m_sections.show(std::move(sections));
                }};
}

/// Its rows are numbered, as messages name them.
void CourseDialog::makeSections() {
    m_sections.setRowTitles([](int place) { return QString::number(place + 1); });
    m_sectionTable = new ColumnTable(m_sections, "sections");
    m_sectionTable->keepOrder();
    m_sectionTable->setSelectionBehavior(QAbstractItemView::SelectItems);
    m_sectionTable->setShowGrid(true);
    m_sectionTable->setAlternatingRowColors(false);
    m_sectionTable->setGoesDown(true);
    m_sectionTable->stretch({GatesColumn});
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
    makeSections();
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
    form->addRow(m_sectionTable);
    form->addRow(share);
    fillSections();
    return box;
}

void CourseDialog::fillSections() {
    std::vector<SectionTexts> sections(static_cast<std::size_t>(m_splits->value()));
    for (std::size_t i = 0; i < sections.size(); ++i) {
        if (i < m_info.splitTitles.size())
            sections[i].title = qtText(m_info.splitTitles[i]);
        if (i < m_info.definedsections.size())
            sections[i].gates = numbersText(m_info.definedsections[i]);
    }
    m_sections.show(std::move(sections));
}

void CourseDialog::resizeSections(int splits) {
    std::vector<SectionTexts> sections = m_sections.rows();
    sections.resize(static_cast<std::size_t>(splits));
    m_sections.show(std::move(sections));
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
    for (const SectionTexts& section : m_sections.rows()) {
        taken.splitTitles.push_back(section.title.toStdString());
        const GateList gates = parseGateList(section.gates.toStdString(), taken.gates);
        if (!gates.fault.empty()) {
            const int place = static_cast<int>(taken.definedsections.size());
            m_sectionTable->choose(place, GatesColumn);
            return refuse(tr("Section %1: ").arg(place + 1).toStdString() + gates.fault,
                          m_sectionTable);
        }
        isDefined = isDefined || !gates.gates.empty();
        taken.definedsections.push_back(gates.gates);
    }
    if (!isDefined)
        taken.definedsections.clear();
    if (const auto fault = faultOfSections(taken))
        return refuse(*fault, m_sectionTable);
    m_info = std::move(taken);
    return true;
}

void CourseDialog::accept() {
    m_splits->takeTyped(); // it has its value only then, and the sections follow it
    if (takeTyping(*this) && m_race->commit() && takeGates() && takeSections())
        EntryDialog::accept();
}

} // namespace kavela::desktop
