#include "performance/loss_reasons.h"

#include "common/delimited_text.h"
#include "performance/loss_counts.h"
#include "performance/loss_ways.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>

namespace kavela {

namespace {

/// What stands behind the run in an id.
enum class LossIdForm { ReferenceAndPlace, Reference, Place, Nothing };

struct LossIdWord {
    std::string_view word;
    LossNumber number;
    LossIdForm form;
};

constexpr std::array LossIdWords{
    LossIdWord{"loss", LossNumber::Loss, LossIdForm::ReferenceAndPlace},
    LossIdWord{"losspercent", LossNumber::Percent, LossIdForm::ReferenceAndPlace},
    LossIdWord{"between", LossNumber::Between, LossIdForm::ReferenceAndPlace},
    LossIdWord{"gateloss", LossNumber::Gate, LossIdForm::ReferenceAndPlace},
    LossIdWord{"entranceloss", LossNumber::Entrance, LossIdForm::ReferenceAndPlace},
    LossIdWord{"exitloss", LossNumber::Exit, LossIdForm::ReferenceAndPlace},
    LossIdWord{"gap", LossNumber::Gap, LossIdForm::Reference},
    LossIdWord{"paddling", LossNumber::Paddling, LossIdForm::Reference},
    LossIdWord{"penaltygap", LossNumber::Penalties, LossIdForm::Reference},
    LossIdWord{"timing", LossNumber::Timing, LossIdForm::Reference},
    LossIdWord{"explained", LossNumber::Explained, LossIdForm::Reference},
    LossIdWord{"xtimediff", LossNumber::ExpectedTime, LossIdForm::Nothing},
    LossIdWord{"interest", LossNumber::Interest, LossIdForm::Place},
};

struct SeasonIdWord {
    std::string_view word;
    SeasonLossNumber number;
    bool hasRow;
};

constexpr std::array SeasonIdWords{
    SeasonIdWord{"seasonruns", SeasonLossNumber::Runs, true},
    SeasonIdWord{"seasonloss", SeasonLossNumber::Loss, true},
    SeasonIdWord{"seasonpercent", SeasonLossNumber::Percent, true},
    SeasonIdWord{"seasonrun", SeasonLossNumber::PerRun, true},
    SeasonIdWord{"seasonshare", SeasonLossNumber::Share, true},
    SeasonIdWord{"seasongap", SeasonLossNumber::Gap, false},
    SeasonIdWord{"seasonpenalties", SeasonLossNumber::Penalties, false},
};

struct NoteIdWord {
    std::string_view word;
    LossNoteNumber number;
};

constexpr std::array NoteIdWords{NoteIdWord{"noted", LossNoteNumber::Lost},
                                 NoteIdWord{"gained", LossNoteNumber::Gained},
                                 NoteIdWord{"notecount", LossNoteNumber::Count}};
constexpr std::array<std::string_view, 4> CountIdWords{"total", "place", "strokes", "penalty"};
constexpr std::string_view WayWord = "way";

/// Takes the text before the next slash off an id.
std::string_view takeWord(std::string_view& id) {
    const std::size_t slash = id.find('/');
    const std::string_view word = id.substr(0, slash);
    id = slash == std::string_view::npos ? std::string_view() : id.substr(slash + 1);
    return word;
}

std::optional<std::size_t> takeNumber(std::string_view& id) {
    const std::string_view word = takeWord(id);
    std::size_t number = 0;
    const bool isNumber = !word.empty() && word.front() >= '0' && word.front() <= '9';
    return isNumber && parseField(word, number) ? std::optional(number) : std::nullopt;
}

bool namesReference(LossIdForm form) {
    return form == LossIdForm::ReferenceAndPlace || form == LossIdForm::Reference;
}

bool namesPlace(LossIdForm form) {
    return form == LossIdForm::ReferenceAndPlace || form == LossIdForm::Place;
}

/// What a recorder was told; nothing when that is no number.
std::optional<Reason> toldReason(const Why& why) {
    Reason reason = why.reason();
    return reason.rule ? std::optional(std::move(reason)) : std::nullopt;
}

std::optional<Reason> explainRun(const FactStore& facts, const LossIdWord& word,
                                 LossReference reference, std::string_view rest) {
    const auto run = takeNumber(rest);
    if (!run || *run >= facts.runs().size())
        return std::nullopt;
    if (const std::string_view text = namesReference(word.form) ? takeWord(rest) : "";
        !text.empty()) {
        const auto named = lossReferenceOf(text);
        if (!named)
            return std::nullopt;
        reference = *named;
    }
    const auto at = namesPlace(word.form) ? takeNumber(rest) : std::optional<std::size_t>(0);
    if (!at || !rest.empty())
        return std::nullopt;
    Why why;
    (void)lossesOf(facts, LossRivals(facts), *run, reference, {word.number, *at}, &why);
    return toldReason(why);
}

std::optional<Reason> explainWay(const FactStore& facts, std::string_view rest) {
    const auto run = takeNumber(rest);
    const auto entry = takeNumber(rest);
    if (!run || !entry || *run >= facts.runs().size() ||
        *entry >= facts.waysOf(facts.runs()[*run]).size())
        return std::nullopt;
    Why why;
    (void)wayCost(facts, *run, *entry, &why);
    return toldReason(why);
}

/// What stands beside the losses of a run.
std::optional<Reason> explainCount(const FactStore& facts, std::string_view word,
                                   std::string_view rest) {
    const auto run = takeNumber(rest);
    const bool isOfSection = word == "strokes" || word == "penalty";
    const auto section = isOfSection ? takeNumber(rest) : std::optional<std::size_t>(0);
    if (!run || !section || !rest.empty() || *run >= facts.runs().size() ||
        (isOfSection && (*section < 1 || *section > facts.sectionsOf(facts.runs()[*run]).size())))
        return std::nullopt;
    Why why;
    if (word == "total")
        (void)lossTotal(facts, *run, &why);
    else if (word == "place")
        (void)placeInGroup(facts, LossRivals(facts).groupOf(*run), *run, &why);
    else if (word == "strokes" && !stretchStrokes(facts, *run, *section, *section, &why))
        return std::nullopt;
    else if (word == "penalty")
        (void)stretchPenalties(facts, *run, *section, *section, &why);
    return toldReason(why);
}

/// A number of some runs' notes; nothing when the id is of another kind.
std::optional<Reason> explainNotes(const FactStore& facts, std::span<const std::size_t> runs,
                                   std::string_view id) {
    const auto word = std::ranges::find(NoteIdWords, takeWord(id), &NoteIdWord::word);
    if (word == NoteIdWords.end())
        return std::nullopt;
    const std::string_view field = takeWord(id);
    Why why;
    (void)lossNotesOf(facts, runs, {field, id, word->number}, &why);
    return toldReason(why);
}

} // namespace

std::string lossId(LossNumber number, std::size_t run, const LossReference& reference,
                   std::size_t at) {
    const auto found = std::ranges::find(LossIdWords, number, &LossIdWord::number);
    if (found == LossIdWords.end())
        return {};
    std::string id = std::string(found->word) + '/' + std::to_string(run);
    if (namesReference(found->form))
        id += '/' + textOf(reference);
    if (namesPlace(found->form))
        id += '/' + std::to_string(at);
    return id;
}

std::string lossNoteId(const LossNoteQuestion& question) {
    const auto word = std::ranges::find(NoteIdWords, question.number, &NoteIdWord::number);
    return std::string(word->word) + '/' + std::string(question.field) + '/' +
           std::string(question.key);
}

std::string wayCostId(std::size_t run, std::size_t entry) {
    return std::string(WayWord) + '/' + std::to_string(run) + '/' + std::to_string(entry);
}

std::string seasonLossId(const SeasonLossQuestion& question) {
    const auto found = std::ranges::find(SeasonIdWords, question.number, &SeasonIdWord::number);
    if (found == SeasonIdWords.end())
        return {};
    std::string id(found->word);
    return found->hasRow ? id + '/' + std::string(question.field) + '/' + std::string(question.key)
                         : id;
}

std::optional<Reason> explainLoss(const FactStore& facts, const LossReference& reference,
                                  std::string_view id) {
    std::string_view rest = id;
    const std::string_view word = takeWord(rest);
    if (word == WayWord)
        return explainWay(facts, rest);
    if (std::ranges::find(CountIdWords, word) != CountIdWords.end())
        return explainCount(facts, word, rest);
    const auto found = std::ranges::find(LossIdWords, word, &LossIdWord::word);
    if (found != LossIdWords.end())
        return explainRun(facts, *found, reference, rest);
    std::vector<std::size_t> all(facts.runs().size());
    std::iota(all.begin(), all.end(), std::size_t{0});
    return explainNotes(facts, all, id);
}

std::optional<Reason> explainSeasonLoss(const FactStore& facts, const SeasonLossQuery& query,
                                        std::string_view id) {
    std::string_view rest = id;
    const std::string_view word = takeWord(rest);
    const auto found = std::ranges::find(SeasonIdWords, word, &SeasonIdWord::word);
    if (found == SeasonIdWords.end()) {
        auto noted = explainNotes(facts, seasonRuns(facts, query), id);
        return noted ? noted : explainLoss(facts, query.reference, id);
    }
    const std::string_view field = found->hasRow ? takeWord(rest) : std::string_view();
    Why why;
    (void)seasonLosses(facts, query, {found->number, field, rest}, &why);
    return toldReason(why);
}

} // namespace kavela
