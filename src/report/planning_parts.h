#pragma once

#include "planning/week_totals.h"
#include "report/page_builder.h"
#include "report/typeface.h"

#include <QDate>

#include <chrono>

/// What the reports of a planning share.
namespace kavela::report {

/// Goals of a plan beyond this number are left out.
constexpr std::size_t MostGoals = 50;

[[nodiscard]] QDate dateOf(std::chrono::sys_days day);

/// A quantity in few characters; a dash for none and for what is no number.
[[nodiscard]] QString amountText(double amount);

/// "29 June – 5 July 2026", with the months in full or short and without the year.
[[nodiscard]] QString weekDates(std::chrono::sys_days first);
[[nodiscard]] QString shortWeekDates(std::chrono::sys_days first);

/// The on-water, endurance and blood tests of a week in one text, each named; empty without any.
[[nodiscard]] QString testsText(const microsplanning_v5& week);

/// The title of a part of the page, with `needed` below it on the same page.
void putPartTitle(PageBuilder& pages, const QString& title, qreal needed, const Typeface& typeface);

/// A table of what is planned and what the sessions add up to, by category, in `width` of the page;
/// categories without anything are left out, and where there is nothing at all it says so.
void putTotals(PageBuilder& pages, const std::vector<CategoryTotal>& totals, qreal width,
               const Typeface& typeface);
[[nodiscard]] qreal totalsHeight(const std::vector<CategoryTotal>& totals);

} // namespace kavela::report
