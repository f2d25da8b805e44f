#include "desktop/penalties/penalty_filter.h"

#include "desktop/shell/growth.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/theme.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

#include <algorithm>
#include <set>
#include <vector>

namespace kavela::desktop {

namespace {

constexpr int WidestBox = 260;

} // namespace

PenaltyFilter::PenaltyFilter(QWidget* parent) : QWidget(parent) {
    const std::array<QString, Parts> titles{tr("&Category"), tr("&Phase"), tr("Cre&w")};
    constexpr std::array<const char*, Parts> Names{"category", "phase", "crew"};
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(theme::Spacing, theme::SmallSpacing, theme::Spacing, 0);
    row->setSpacing(theme::Spacing);
    for (std::size_t part = 0; part < Parts; ++part) {
        auto* const box = new QComboBox;
        m_boxes[part] = box;
        box->setObjectName(Names[part]);
        box->addItem(tr("All"), QString());
        box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        box->setMaximumWidth(grown(*this, WidestBox));
        auto* label = new QLabel(titles[part]);
        label->setBuddy(box);
        row->addWidget(label);
        row->addWidget(box);
        connect(box, &QComboBox::currentIndexChanged, this, &PenaltyFilter::changed);
    }
    row->addStretch();
}

void PenaltyFilter::offer(const FactStore& facts) {
    std::array<Offered, Parts> offered;
    std::set<std::array<TextId, Parts>> seen; // few runs have a crew of their own
    for (const RunRow& run : facts.runs()) {
        if (!seen.insert({run.categoryKey, run.phaseKey, run.crewKey}).second)
            continue;
        const auto add = [&](Part part, TextId key, TextId text) {
            if (!facts.text(key).empty())
                offered[part].emplace(qtText(facts.text(key)), qtText(facts.text(text)));
        };
        add(Category, run.categoryKey, run.category);
        add(Phase, run.phaseKey, run.phase);
        add(Crew, run.crewKey, run.crew);
    }
    const PenaltyChoice before = choice();
    {
        const QSignalBlocker quiet(this);
        for (const Part part : {Category, Phase, Crew})
            fill(part, offered[part]);
    }
    if (!(choice() == before))
        emit changed();
}

void PenaltyFilter::fill(Part part, const Offered& offered) {
    std::vector<std::pair<QString, QString>> sorted; // what is read, its key
    for (const auto& [key, text] : offered)
        sorted.emplace_back(text, key);
    std::ranges::sort(sorted, [](const auto& a, const auto& b) {
        return QString::localeAwareCompare(a.first, b.first) < 0;
    });
    QComboBox& box = *m_boxes[part];
    const QSignalBlocker quiet(&box);
    const QString before = box.currentData().toString();
    box.clear();
    box.addItem(tr("All"), QString());
    for (const auto& [text, key] : sorted)
        box.addItem(text, key);
    box.setCurrentIndex(std::max(box.findData(before), 0));
}

std::string PenaltyFilter::keyOf(Part part) const {
    return m_boxes[part]->currentData().toString().toStdString();
}

PenaltyChoice PenaltyFilter::choice() const {
    return {keyOf(Category), keyOf(Phase), keyOf(Crew)};
}

std::vector<std::pair<QString, QString>> PenaltyFilter::crews() const {
    std::vector<std::pair<QString, QString>> crews;
    const QComboBox& box = *m_boxes[Crew];
    for (int i = 1; i < box.count(); ++i)
        crews.emplace_back(box.itemData(i).toString(), box.itemText(i));
    return crews;
}

void PenaltyFilter::chooseCrew(const QString& key) {
    if (const int index = m_boxes[Crew]->findData(key); index > 0)
        m_boxes[Crew]->setCurrentIndex(index);
}

/// One change, however many of the boxes said something.
void PenaltyFilter::clear() {
    const PenaltyChoice before = choice();
    for (QComboBox* const box : m_boxes) {
        const QSignalBlocker quiet(box);
        box->setCurrentIndex(0);
    }
    if (!(choice() == before))
        emit changed();
}

} // namespace kavela::desktop
