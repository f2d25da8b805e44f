#include "desktop/page/phone_page_dialog.h"

#include "desktop/shell/qt_text.h"
#include "facts/fact_store.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <map>
#include <utility>

namespace kavela::desktop {

std::vector<PhonePageCrew> phonePageCrews(const FactStore& facts) {
    std::map<std::pair<TextId, TextId>, std::size_t> known;
    std::vector<PhonePageCrew> crews;
    for (const RunRow& run : facts.runs()) {
        if (facts.text(run.crewKey).empty())
            continue;
        const auto [place, isNew] =
            known.emplace(std::pair(run.crewKey, run.categoryKey), crews.size());
        if (isNew)
            crews.push_back({std::string(facts.text(run.crewKey)),
                             qtText(facts.text(run.crew)),
                             qtText(facts.text(run.category)),
                             {}});
        QStringList& races = crews[place->second].races;
        const QString path = qtText(facts.text(facts.fileOf(run).path));
        if (races.isEmpty() || races.last() != path)
            races.append(path);
    }
    std::ranges::stable_sort(crews, [](const PhonePageCrew& a, const PhonePageCrew& b) {
        return QString::localeAwareCompare(a.name, b.name) < 0;
    });
    return crews;
}

PhonePageDialog::PhonePageDialog(PhonePageRequest request, QWidget* parent)
    : QDialog(parent),
      m_request(std::move(request)),
      m_crews(new QComboBox),
      m_clips(new QCheckBox(tr("&Cut the runs out of their films"))),
      m_remark(new QLabel) {
    setWindowTitle(tr("Page for an athlete"));
    m_crews->setObjectName("crew");
    m_clips->setObjectName("clips");
    // Letters find a crew; what is no crew is not taken.
    m_crews->setEditable(true);
    m_crews->setInsertPolicy(QComboBox::NoInsert);
    m_crews->completer()->setFilterMode(Qt::MatchContains);
    m_crews->completer()->setCompletionMode(QCompleter::PopupCompletion);
    m_crews->setMinimumContentsLength(32);
    for (const PhonePageCrew& crew : m_request.crews)
        m_crews->addItem(crew.category.isEmpty()
                             ? crew.name
                             : crew.name + QStringLiteral(" · ") + crew.category);
    const auto shown = std::ranges::find(m_request.crews, m_request.shownCrew, &PhonePageCrew::key);
    m_crews->setCurrentIndex(
        shown == m_request.crews.end() ? -1 : static_cast<int>(shown - m_request.crews.begin()));
    m_remark->setWordWrap(true);
    m_remark->setForegroundRole(QPalette::PlaceholderText);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_save = buttons->addButton(tr("&Save…"), QDialogButtonBox::AcceptRole);
    m_save->setObjectName("save");
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const form = new QFormLayout(this);
    form->addRow(tr("&Athlete"), m_crews);
    form->addRow(m_clips);
    form->addRow(m_remark);
    form->addRow(buttons);
    m_save->setDefault(true); // once it is part of the dialog: a button asks that for it
    connect(m_crews, &QComboBox::currentTextChanged, this, &PhonePageDialog::showChoice);
    showChoice();
}

const PhonePageCrew* PhonePageDialog::crew() const {
    const int place = m_crews->findText(m_crews->currentText(), Qt::MatchFixedString);
    return place < 0 || place >= static_cast<int>(m_request.crews.size())
               ? nullptr
               : &m_request.crews[static_cast<std::size_t>(place)];
}

bool PhonePageDialog::wantsClips() const {
    return m_clips->isChecked();
}

void PhonePageDialog::showChoice() {
    const PhonePageCrew* const chosen = crew();
    m_save->setEnabled(chosen != nullptr);
    if (chosen == nullptr)
        m_remark->setText(tr("Choose one of the athletes of the list."));
    else if (chosen->races.size() == 1)
        m_remark->setText(tr("One file for the telephone, of one race as it was last saved. Films "
                             "lie in the folder beside it."));
    else
        m_remark->setText(tr("One file for the telephone, the season of %1 files as they were last "
                             "saved. Films lie in the folder beside it.")
                              .arg(chosen->races.size()));
}

} // namespace kavela::desktop
