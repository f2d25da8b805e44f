#include "desktop/race/race_header.h"

#include "desktop/race/race_document.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/theme.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <algorithm>

namespace kavela::desktop {

namespace {

/// Refills a filter with the values that the runs have, the choice of all in front.
void fill(QComboBox& box, const QString& all, const RaceSet& set, std::string analyzerdata::*field,
          const QString& chosen) {
    const QSignalBlocker blocker(box);
    QStringList values;
    for (const analyzerdata& run : set.alldata)
        if (const QString value = qtText(run.*field); !value.isEmpty() && !values.contains(value))
            values.append(value);
    box.clear();
    box.addItem(all, QString());
    for (const QString& value : values)
        box.addItem(value, value);
    box.setCurrentIndex(std::max(0, box.findData(chosen)));
    box.setVisible(values.size() > 1);
}

QString countText(std::size_t shown, std::size_t all) {
    if (shown == all)
        return all == 1 ? RaceHeader::tr("1 run")
                        : RaceHeader::tr("%n runs", nullptr, static_cast<int>(all));
    return RaceHeader::tr("%1 of %2 runs").arg(shown).arg(all);
}

QLabel* quietLabel() {
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

QComboBox* choice(const char* name, const QString& spokenName) {
    auto* box = new QComboBox;
    box->setObjectName(name);
    box->setAccessibleName(spokenName);
    return box;
}

} // namespace

RaceHeader::RaceHeader(RaceDocument& document, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_title(new QLabel),
      m_subtitle(quietLabel()),
      m_count(quietLabel()),
      m_phase(choice("phase", tr("Phase"))),
      m_category(choice("category", tr("Category"))),
      m_name(new QLineEdit) {
    m_title->setTextFormat(Qt::PlainText);
    m_title->setFont(theme::titleFont(*this));
    m_count->setObjectName("count");
    m_name->setObjectName("name");
    m_name->setPlaceholderText(tr("Name"));
    m_name->setClearButtonEnabled(true);
    m_name->setMaximumWidth(grown(*this, 200));
    for (QComboBox* box : {m_phase, m_category})
        connect(box, &QComboBox::currentIndexChanged, this, &RaceHeader::applyFilter);
    connect(m_name, &QLineEdit::textChanged, this, &RaceHeader::applyFilter);

    auto* words = new QVBoxLayout;
    words->setSpacing(0);
    words->addWidget(m_title);
    words->addWidget(m_subtitle);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(theme::Spacing);
    row->addLayout(words, 1);
    for (QWidget* widget : std::initializer_list<QWidget*>{m_count, m_phase, m_category, m_name})
        row->addWidget(widget, 0, Qt::AlignBottom);
}

void RaceHeader::showRace() {
    m_title->setText(m_document.title());
    m_subtitle->setText(m_document.subtitle());
    const RunFilter& filter = m_document.filter();
    fill(*m_phase, tr("All phases"), m_document.wholeSet(), &analyzerdata::phase, filter.phase);
    fill(*m_category, tr("All categories"), m_document.wholeSet(), &analyzerdata::category,
         filter.category);
    const QScopedValueRollback showing(m_isShowing, true);
    m_name->setText(filter.name);
}

void RaceHeader::showCount(const QString& remark) {
    QStringList parts{remark, countText(m_document.shownSet().alldata.size(),
                                        m_document.wholeSet().alldata.size())};
    parts.removeAll(QString());
    m_count->setText(parts.join(QStringLiteral(" · ")));
}

void RaceHeader::applyFilter() {
    if (m_isShowing)
        return;
    m_document.setFilter({m_phase->currentData().toString(), m_category->currentData().toString(),
                          m_name->text().trimmed()});
}

void RaceHeader::findName() {
    m_name->setFocus();
    m_name->selectAll();
}

} // namespace kavela::desktop
