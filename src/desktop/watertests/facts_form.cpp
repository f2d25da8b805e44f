#include "desktop/watertests/facts_form.h"

#include "desktop/shell/theme.h"
#include "planning/test_entry.h"

#include <QLabel>
#include <QVBoxLayout>

namespace kavela::desktop {

namespace {

/// A value that every kind of test has.
template <class Value, class OfRun, class OfEight>
auto ofEither(OfRun ofRun, OfEight ofEight) {
    return Access{[=](const ListedTest& test) -> Value {
                      return test.run() ? ofRun(*test.run()) : ofEight(*test.eight());
                  },
                  [=](ListedTest& test, const Value& value) {
                      if (auto* const run = std::get_if<onWaterTest>(&test.test))
                          ofRun(*run) = value;
                      else
                          ofEight(std::get<onWaterEight>(test.test)) = value;
                  }};
}

const Access Date{[](const ListedTest& test) { return test.date(); },
                  [](ListedTest& test, ReferenceDate date) {
                      if (auto* const run = std::get_if<onWaterTest>(&test.test))
                          moveTo(run->test, date);
                      else
                          moveTo(std::get<onWaterEight>(test.test), date);
                  }};

} // namespace

FactsForm::FactsForm(RecordForm<ListedTest>::Edit edit, QWidget* parent)
    : QWidget(parent), m_kind(new QLabel), m_form(std::move(edit), FieldForm::Arrangement::Beside) {
    m_kind->setFont(theme::titleFont(*this));
    m_form.editableChoice({.name = "athlete",
                           .label = tr("&Athlete"),
                           .placeholder = tr("Name of the athlete"),
                           .stretch = 3},
                          ofEither<std::string>(
                              [](auto& run) -> auto& { return run.test.athlete; },
                              [](auto& eight) -> auto& { return eight.run.athlete; }));
    m_form.date({.name = "date", .label = tr("&Date")}, Date);
    m_form.text({.name = "location", .label = tr("&Location"), .stretch = 2},
                ofEither<std::string>(
                    [](auto& run) -> auto& { return run.test.location; },
                    [](auto& eight) -> auto& { return eight.location; }));
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::Spacing);
    column->addWidget(m_kind);
    column->addWidget(&m_form);
}

void FactsForm::show(const ListedTest& test, const QStringList& athletes, bool isOther) {
    m_kind->setText(kindText(test.kind()));
    m_form.propose("athlete", athletes);
    m_form.show(&test, isOther);
}

void FactsForm::focusAthlete() {
    m_form.editField("athlete");
}

} // namespace kavela::desktop
