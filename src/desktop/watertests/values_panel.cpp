#include "desktop/watertests/values_panel.h"

#include "desktop/shell/theme.h"
#include "desktop/shell/typing.h"
#include "desktop/watertests/eight_form.h"
#include "desktop/watertests/entry_table.h"
#include "desktop/watertests/facts_form.h"
#include "desktop/watertests/section_form.h"
#include "desktop/watertests/tests_document.h"
#include "planning/test_oddities.h"

#include <QLabel>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

QString oddityText(const ListedTest& test) {
    QStringList lines;
    for (const std::string& line :
         test.run() ? odditiesOf(test.run()->test) : odditiesOf(test.eight()->run))
        lines.append(QString::fromUtf8("⚠ ") + QString::fromStdString(line));
    return lines.join('\n');
}

} // namespace

ValuesPanel::ValuesPanel(TestsDocument& document, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_facts(new FactsForm([this](const QString& what, const auto& change) {
          if (m_id)
              m_document.editTest(*m_id, what, change);
      })),
      m_oddities(new QLabel),
      m_sections(new SectionForm),
      m_eight(new EightForm),
      m_forms(new QStackedWidget),
      m_whole(new QWidget),
      m_nothing(new QLabel(tr("No test yet.\n\nAdd one by hand with Ctrl+N, or drop split files "
                              "and recordings here."))) {
    m_oddities->setObjectName("oddities");
    m_oddities->setWordWrap(true);
    m_nothing->setAlignment(Qt::AlignCenter);
    m_nothing->setForegroundRole(QPalette::PlaceholderText);
    m_forms->addWidget(m_sections);
    m_forms->addWidget(m_eight);
    auto* form = new QVBoxLayout(m_whole);
    form->setContentsMargins(theme::LargeSpacing, theme::LargeSpacing, theme::LargeSpacing,
                             theme::LargeSpacing);
    form->setSpacing(theme::LargeSpacing);
    form->addWidget(m_facts);
    form->addWidget(m_oddities);
    form->addWidget(m_forms, 1);
    auto* scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setWidget(m_whole);
    m_scroll = scroll;
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(scroll, 1);
    column->addWidget(m_nothing, 1);
    connect(&m_document, &TestsDocument::changed, this, [this] { showTest(false); });
    connect(m_sections, &SectionForm::edited, this,
            [this](const QString& what, const auto& change) {
                if (m_id)
                    m_document.editRun(*m_id, what, change);
            });
    connect(m_eight, &EightForm::edited, this, [this](const QString& what, const auto& change) {
        if (m_id)
            m_document.editEight(*m_id, what, change);
    });
    showTest(true);
}

void ValuesPanel::show(std::optional<TestId> test) {
    if (test == m_id)
        return;
    (void)takeTyping(*this);
    m_id = test;
    showTest(true);
}

void ValuesPanel::showTest(bool isOther) {
    const ListedTest* const test = m_id ? m_document.find(*m_id) : nullptr;
    m_scroll->setVisible(test != nullptr);
    m_nothing->setVisible(test == nullptr);
    if (!test)
        return;
    m_facts->show(*test, m_document.athletes(), isOther);
    const QString oddities = oddityText(*test);
    m_oddities->setText(oddities);
    m_oddities->setVisible(!oddities.isEmpty());
    if (test->run())
        m_sections->show(*test->run(), isOther);
    else
        m_eight->show(*test->eight(), isOther);
    m_forms->setCurrentWidget(test->run() ? static_cast<QWidget*>(m_sections) : m_eight);
}

void ValuesPanel::focusAthlete() {
    m_facts->focusAthlete();
}

} // namespace kavela::desktop
