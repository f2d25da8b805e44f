#include "desktop/planning/intervals/interval_form.h"

#include "desktop/planning/intervals/interval_texts.h"
#include "desktop/shell/shown_number.h"
#include "planning/training_categories.h"

#include <QLabel>

namespace kavela::desktop {

namespace {

constexpr int NumberWidth = 110;
constexpr int DescriptionLines = 6;

/// Texts keep their own words; the categories are only offered.
QStringList offeredCategories() {
    QStringList categories;
    for (std::size_t i = 0; i < TrainingCategories.size(); ++i)
        categories.append(QString::fromStdString(trainingCategory(i)));
    return categories;
}

QString shownCount(std::int64_t count) {
    return QString::number(count);
}

QString shownAmount(double amount) {
    return shownNumber(amount);
}

} // namespace

IntervalForm::IntervalForm(Edit edit, QWidget* parent)
    : RecordForm(std::move(edit), Arrangement::Below, parent), m_summary(new QLabel) {
    using Session = favInvervalSessions_v2;
    const auto number = [](const char* name, const QString& label, const QString& tip = {}) {
        return FieldFacts{.name = name, .label = label, .tip = tip, .widest = NumberWidth};
    };
    const QString minutes = tr("Minutes and seconds such as 1:30, or seconds");
    text({.name = "title", .label = tr("&Title")}, &Session::title);
    text({.name = "target", .label = tr("T&arget")}, &Session::target, offeredCategories());
    text({.name = "rhythm", .label = tr("Rh&ythm")}, &Session::rhythm);
    line(number("sets", tr("S&ets")), &Session::sets, shownCount, typedRepeats);
    line(number("reps", tr("Re&petitions")), &Session::reps, shownCount, typedRepeats);
    line(number("worktime", tr("&Work"), minutes), &Session::worktime, durationText, typedDuration);
    line(number("workrest", tr("&Rest between repetitions"), minutes), &Session::workrest,
         durationText, typedDuration);
    line(number("setrest", tr("Rest &between sets"), minutes), &Session::setrest, durationText,
         typedDuration);
    addRow(QStringLiteral(" "), m_summary);
    text({.name = "brake", .label = tr("&Kind of rest")}, &Session::brake);
    line(number("volume", tr("&Volume")), &Session::volume, shownAmount, typedAmount);
    line(number("intensity", tr("&Intensity")), &Session::intensity, shownAmount, typedAmount);
    longText({.name = "description", .label = tr("&Description")}, &Session::description,
             DescriptionLines);
    m_summary->setObjectName("duration");
    m_summary->setWordWrap(true);
    m_summary->setForegroundRole(QPalette::PlaceholderText);
    show(nullptr, true);
}

void IntervalForm::show(const favInvervalSessions_v2* session, bool isOther) {
    RecordForm::show(session, isOther);
    m_summary->setText(session ? durationSummary(*session) : QString());
}

} // namespace kavela::desktop
