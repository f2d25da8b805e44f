#pragma once

#include "desktop/watertests/listed_test.h"

#include <QWidget>

#include <functional>
#include <optional>

class QLabel;
class QStackedWidget;

namespace kavela::desktop {

class EightForm;
class FactsForm;
class SectionForm;
class TestsDocument;

/// Every value of one test that a coach can type. What is typed is an edit of the document at once.
class ValuesPanel : public QWidget {
    Q_OBJECT

public:
    explicit ValuesPanel(TestsDocument& document, QWidget* parent = nullptr);

    /// Shows another test; what was being typed into the one before is taken first.
    void show(std::optional<TestId> test);
    void focusAthlete();

private:
    void showTest(bool isOther);

    TestsDocument& m_document;
    std::optional<TestId> m_id;
    FactsForm* m_facts;
    QLabel* m_oddities;
    SectionForm* m_sections;
    EightForm* m_eight;
    QStackedWidget* m_forms;
    QWidget* m_whole;
    QWidget* m_scroll = nullptr;
    QLabel* m_nothing;
};

} // namespace kavela::desktop
