#include "desktop/compose/compare_form.h"

#include "common/text.h"
#include "desktop/compose/split_choice.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace kavela::desktop {

namespace {

using TextChoices = std::vector<std::pair<QString, std::string>>;
using SizeChoice = std::pair<std::int64_t, std::int64_t>;

constexpr double LongestMoment = 86400; // seconds

QString formText(const char* text) {
    return QCoreApplication::translate("CompareForm", text);
}

template <class Kind>
std::pair<QString, std::string> wordChoice(const char* text, Kind kind) {
    return {formText(text), std::string(wordOf(kind))};
}

NumberFacts freeMoment() {
    return {.least = -LongestMoment,
            .most = LongestMoment,
            .decimals = 2,
            .step = 0.5,
            .unit = QStringLiteral("s")};
}

} // namespace

CompareForm::CompareForm(Edit edit, QWidget* parent)
    : RecordForm(std::move(edit), Arrangement::Below, parent) {
    choice(
        {.name = "layout", .label = formText("&Layout")},
        TextChoices{wordChoice(KAVELA_TEXT("Side by side"), LayoutKind::SideBySide),
                    wordChoice(KAVELA_TEXT("Above each other"), LayoutKind::Stacked),
                    wordChoice(KAVELA_TEXT("Two by two"), LayoutKind::TwoByTwo),
                    wordChoice(KAVELA_TEXT("One within the other"), LayoutKind::PictureInPicture),
                    wordChoice(KAVELA_TEXT("Ghost: seen through"), LayoutKind::Ghost),
                    wordChoice(KAVELA_TEXT("Left and right of a line"), LayoutKind::Wipe)},
        &composejob002::layout);
    number({.name = "wipe", .label = formText("Line at"), .tip = formText("0 left, 1 right")},
           {.least = 0, .most = 1, .decimals = 2, .step = 0.05}, &composejob002::wipe);
    choice(
        {.name = "synchronise", .label = formText("&Together")},
        TextChoices{wordChoice(KAVELA_TEXT("at the start"), Synchronise::Start),
                    wordChoice(KAVELA_TEXT("at one split"), Synchronise::Split),
                    wordChoice(KAVELA_TEXT("at every split, waiting"), Synchronise::Waiting),
                    wordChoice(KAVELA_TEXT("at every split, stretched"), Synchronise::Stretched)},
        &composejob002::synchronise);
    splitChoice({.name = "split", .label = formText("Split")}, 0, &composejob002::split);
    addTimes();
    addCaptions();
    addOutput();
}

template <class Member>
void CompareForm::splitChoice(const FieldFacts& facts, int least, Member member) {
    auto* const choice = new SplitChoice(least, CompareForm::tr("the start"));
    const std::size_t field = addPart(
        facts, choice, [choice](const QVariant& value) { choice->setSplit(value.toInt()); },
        [choice] { return QVariant(choice->split()); });
    bind<std::int64_t>(
        field, member,
        [](std::int64_t split) {
            return static_cast<int>(std::clamp<std::int64_t>(split, 0, SplitChoice::MostSplits));
        },
        [](const QVariant& chosen) { return std::int64_t{chosen.toInt()}; });
    connect(choice, &QComboBox::currentIndexChanged, this, [this, field] { takeField(field); });
    m_splits.push_back(choice);
}

void CompareForm::showSplits(std::size_t count, const std::vector<std::string>& titles) {
    for (SplitChoice* const choice : m_splits)
        choice->setSplits(count, titles);
}

void CompareForm::addTimes() {
    choice({.name = "range", .label = formText("Sho&wn")},
           TextChoices{wordChoice(KAVELA_TEXT("the whole run"), RangeKind::Run),
                       wordChoice(KAVELA_TEXT("from split to split"), RangeKind::Splits),
                       wordChoice("free", RangeKind::Free)},
           Access{[](const composejob002& job) { return job.range.kind; },
                  [](composejob002& job, const std::string& kind) {
                      job.range.kind = kind;
                      // What was never chosen is a part that can be shown.
                      if (kind == wordOf(RangeKind::Splits) &&
                          job.range.toSplit <= job.range.fromSplit)
                          job.range.toSplit = job.range.fromSplit + 1;
                      if (kind == wordOf(RangeKind::Free) && !(job.range.to > job.range.from))
                          job.range.to = job.range.from + 10;
                  }});
    splitChoice(
        {.name = "fromSplit", .label = formText("From split")}, 0,
        [](auto& job) -> auto& { return job.range.fromSplit; });
    splitChoice(
        {.name = "toSplit", .label = formText("To split")}, 1,
        [](auto& job) -> auto& { return job.range.toSplit; });
    number(
        {.name = "from", .label = formText("From")}, freeMoment(),
        [](auto& job) -> auto& { return job.range.from; });
    number(
        {.name = "to", .label = formText("To")}, freeMoment(),
        [](auto& job) -> auto& { return job.range.to; });
    choice({.name = "speed",
            .label = formText("Spee&d"),
            .tip = formText("Slow motion has no sound.")},
           std::vector<std::pair<QString, double>>{{QStringLiteral("1"), 1},
                                                   {QStringLiteral("¾"), 0.75},
                                                   {QStringLiteral("½"), 0.5},
                                                   {QStringLiteral("¼"), 0.25},
                                                   {QStringLiteral("⅛"), 0.125}},
           &composejob002::speed);
}

void CompareForm::addCaptions() {
    addSection(formText("To be read in it"));
    check(
        {.name = "names", .label = formText("&Names")},
        [](auto& job) -> auto& { return job.captions.names; });
    check(
        {.name = "clock", .label = formText("&Clock")},
        [](auto& job) -> auto& { return job.captions.clock; });
    check(
        {.name = "splits", .label = formText("Split times and gaps")},
        [](auto& job) -> auto& { return job.captions.splits; });
    check(
        {.name = "section", .label = formText("Section")},
        [](auto& job) -> auto& { return job.captions.section; });
    check(
        {.name = "penalties", .label = formText("Penalties")},
        [](auto& job) -> auto& { return job.captions.penalties; });
    check(
        {.name = "gap", .label = formText("Chart of the gap")},
        [](auto& job) -> auto& { return job.captions.gap; });
}

void CompareForm::addOutput() {
    addSection(formText("The file"));
    choice({.name = "size", .label = formText("Si&ze")},
           std::vector<std::pair<QString, SizeChoice>>{
               {QStringLiteral("1920 × 1080"), {1920, 1080}},
               {QStringLiteral("1280 × 720"), {1280, 720}},
               {QStringLiteral("960 × 540"), {960, 540}},
               {formText("1080 × 1920, upright"), {1080, 1920}},
               {formText("720 × 1280, upright"), {720, 1280}},
               {formText("1080 × 1080, square"), {1080, 1080}}},
           Access{[](const composejob002& job) -> SizeChoice {
                      return {job.output.width, job.output.height};
                  },
                  [](composejob002& job, const SizeChoice& size) {
                      job.output.width = size.first;
                      job.output.height = size.second;
                  }});
    check(
        {.name = "small",
         .label = formText("For sending"),
         .tip = formText("At most 1280 × 720 and coarser: a small file.")},
        [](auto& job) -> auto& { return job.output.small; });
    whole({.name = "sound",
           .label = formText("S&ound of film"),
           .tip = formText("None in slow motion, nor while that film waits or is stretched.")},
          {.least = 0, .most = 4, .none = formText("none")}, &composejob002::sound);
}

void CompareForm::showComparison(const composejob002& job, bool isOther) {
    setFieldVisible("wipe", job.layout == wordOf(LayoutKind::Wipe));
    setFieldVisible("split", job.synchronise == wordOf(Synchronise::Split));
    const bool isSplits = job.range.kind == wordOf(RangeKind::Splits);
    const bool isFree = job.range.kind == wordOf(RangeKind::Free);
    setFieldVisible("fromSplit", isSplits);
    setFieldVisible("toSplit", isSplits);
    setFieldVisible("from", isFree);
    setFieldVisible("to", isFree);
    show(&job, isOther);
}

} // namespace kavela::desktop
