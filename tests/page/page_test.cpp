#include "page/athlete_page.h"
#include "page/html_text.h"
#include "page/page_films.h"
#include "page/race_files.h"

#include "common/json_encode.h"
#include "common/number_text.h"
#include "common/temp_folder.h"
#include "common/text.h"
#include "performance/losses.h"
#include "sample/races.h"
#include "splitdata/athlete_keys.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <limits>
#include <set>

/// What the page of an athlete tells, and that texts of files stay texts.
namespace kavela::test {

namespace {

using testing::HasSubstr;
using testing::Not;

constexpr std::size_t MostBytes = 300'000;

const splittakerdata031& cup() {
    static const splittakerdata031 race = sample::holdRace(sample::riversideCup());
    return race;
}

page::PageChoice choiceOf(const athletedata031& run) {
    page::PageChoice choice;
    choice.crewKey = crewKey(run.names);
    choice.settings.colorMode = "Training";
    return choice;
}

std::string pageOf(std::vector<splittakerdata031> races, const page::PageChoice& choice) {
    std::vector<page::RaceFile> files;
    for (splittakerdata031& race : races)
        files.push_back({std::move(race), "race_" + std::to_string(files.size()) + ".kvx"});
    return page::athletePage(std::move(files), choice).value();
}

std::size_t countOf(const std::string& text, std::string_view part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

/// A run of the heats that did not win.
std::size_t slowRunNumber() {
    const auto& runs = cup().athletes;
    const auto found = std::ranges::find_if(runs, [](const athletedata031& run) {
        return run.names == std::vector<std::string>{"Tobias Rennwald"};
    });
    return static_cast<std::size_t>(found - runs.begin());
}

const athletedata031& slowRun() {
    return cup().athletes.at(slowRunNumber());
}

/// A language of brackets and commas, for the life of a test.
class Bracketed : public TextCatalogue {
public:
    Bracketed() { installCatalogue(this); }
    ~Bracketed() override { installCatalogue(nullptr); }

    [[nodiscard]] std::string_view of(std::string_view text) const override {
        return *m_said.insert('[' + std::string(text) + ']').first;
    }
    [[nodiscard]] std::string_view of(std::string_view text, std::int64_t) const override {
        return of(text);
    }
    [[nodiscard]] char decimalSign() const override { return ','; }

private:
    mutable std::set<std::string> m_said;
};

/// What is read on a page and was not said in its language. Texts of the files stand in <bdi>.
std::string unsaidWords(std::string_view page) {
    std::string words;
    int brackets = 0;
    for (std::size_t at = page.find("<body>"); at < page.size(); ++at) {
        if (page.substr(at).starts_with("<bdi>"))
            at = page.find("</bdi>", at);
        if (page[at] == '<')
            at = page.find('>', at);
        else if (page[at] == '[')
            ++brackets;
        else if (page[at] == ']')
            --brackets;
        else if (brackets == 0)
            words += page[at];
    }
    return words;
}

timeloss031 noteOf(const std::string& versus, const std::string& reason,
                   const std::string& comments) {
    timeloss031 note;
    note.versus = versus;
    note.reasons = {reason};
    note.timeloss = 1.23;
    note.comments = comments;
    return note;
}

} // namespace

TEST(AthletePage, HasTheCellsOfTheAnalyzersTableToTheDigitAndInTheirBands) {
    const athletedata031& run = slowRun();
    const std::string text = pageOf({cup()}, choiceOf(run));
    const RaceSet set = makeRaceSet(cup(), "race_0.kvx");
    const SplitTable table = makeSplitTable(set, choiceOf(run).settings);
    for (const TableRow& row : table.rows) {
        if (row.run->names != run.names)
            continue;
        for (const TableCell& cell : row.cells) {
            if (!cell.background || cell.isBest || cell.isGreyed())
                continue;
            const std::string shown =
                "<td class=k" + std::to_string(static_cast<int>(*cell.band)) + '>' + cell.text;
            // In the run's own splits, and among the others.
            EXPECT_GE(countOf(text, shown), 2U) << shown;
        }
    }
}

TEST(AthletePage, TellsTheLossesOfTheLossesToTheHundredth) {
    const athletedata031& run = slowRun();
    FactStore facts;
    facts.add(cup(), "race_0.kvx");
    const std::vector<RunLosses> losses = lossesOf(facts, LossReference{});
    const ShownLosses& shown = losses.at(slowRunNumber()).shown;
    const std::string text = pageOf({cup()}, choiceOf(run));
    EXPECT_THAT(text, HasSubstr("<b>" + signedText(shown.gap) + "</b> = paddling " +
                                signedText(shown.paddling) + ", penalties " +
                                signedText(shown.penalties)));
    for (const std::int64_t loss : shown.stretches)
        EXPECT_THAT(text, HasSubstr("<td>" + signedText(loss)));
}

TEST(AthletePage, WhatIsNotedOfARunIsThere) {
    splittakerdata031 race = cup();
    athletedata031& run = race.athletes.at(slowRunNumber());
    run.sectioninfo.comments = {"", "Late into the eddy"};
    run.timeslosses = {noteOf("Somebody Else", "Line too wide", "Again")};
    std::ranges::fill(run.sectioninfo.pens, 0);
    run.sectioninfo.pens.at(4) = 2;
    run.sectioninfo.pens.at(8) = 50;
    const std::string text = pageOf({race}, choiceOf(run));
    for (const char* const part :
         {"Late into the eddy", "Somebody Else", "+1.23 s", "Line too wide", "Again",
          ">5<small>+2</small>", ">9<small>+50</small>", "Upstream gates", "<svg "})
        EXPECT_THAT(text, HasSubstr(part));
    EXPECT_THAT(text, HasSubstr(hundredthsText(run.upstreams.front().time)));
}

TEST(AthletePage, SpeaksTheLanguageOfTheProgram) {
    page::PageChoice choice = choiceOf(slowRun());
    choice.language = "cs";
    splittakerdata031 later = cup();
    later.info.date.seconds += 40 * 86400.0;
    const Bracketed language;
    const std::string text = pageOf({cup(), later}, choice);
    EXPECT_THAT(text, HasSubstr("<html lang=\"cs\">"));
    EXPECT_THAT(text, HasSubstr("<th scope=col>[To winner]"));
    FactStore facts;
    facts.add(cup(), "race_0.kvx");
    const std::string total = hundredthsText(facts.runs()[slowRunNumber()].total);
    EXPECT_THAT(text, HasSubstr("<dd>" + saidNumber(total)));
    EXPECT_THAT(text, Not(HasSubstr("<dd>" + total)));
    const std::string unsaid = unsaidWords(text);
    for (const char* const word : {"Times in", "Penalties", "Gap to", "winner", "All runs", "train",
                                   "Strokes", "Most lost", "Comments", "whole", "compared"})
        EXPECT_THAT(unsaid, Not(HasSubstr(word)));
}

TEST(AthletePage, TextsThatAreMarkupStayTexts) {
    const std::string markup = R"(</title><script>x()</script>"'&<b a='x'>)";
    splittakerdata031 race = cup();
    race.info.title = race.info.place = race.info.event = race.info.category = markup;
    std::ranges::fill(race.info.splitTitles, markup);
    for (athletedata031& run : race.athletes) {
        run.phase = run.cat = run.hand = markup;
        run.sectioninfo.comments = {markup};
        run.customData.resize(1);
        run.customData.front().tags = {markup};
        run.customData.front().comments = markup;
        run.timeslosses = {noteOf(markup, markup, markup)};
        run.names = {markup};
    }
    const page::PageFilm film{"x/" + markup, "x/" + markup + ".jpg", markup, {}};
    const auto text =
        page::athletePage({{race, markup + ".kvx"}}, choiceOf(race.athletes.front()), {film});
    ASSERT_TRUE(text);
    EXPECT_THAT(*text, Not(HasSubstr("<script")));
    EXPECT_THAT(*text, Not(HasSubstr("<b a=")));
    EXPECT_EQ(countOf(*text, "</title>"), 1U);
    EXPECT_THAT(*text, HasSubstr("&lt;script&gt;x()"));
    EXPECT_THAT(*text, HasSubstr("src=\"x/%3C/title%3E%3Cscript%3E"));
    EXPECT_EQ(page::escaped("a\x01\xff<\"'"), "a \xEF\xBF\xBD&lt;&quot;&#39;");
}

TEST(AthletePage, IsSmallForARaceOfSixtyRunsAlsoWhereAllAreTheAthletes) {
    EXPECT_LT(pageOf({cup()}, choiceOf(slowRun())).size(), MostBytes / 2);
    splittakerdata031 training = cup();
    training.info.session = "Training";
    training.athletes.resize(std::min<std::size_t>(training.athletes.size(), 60));
    for (athletedata031& run : training.athletes) {
        run.names = {"Only One"};
        run.cat = "K1M";
    }
    const std::string text = pageOf({training}, choiceOf(training.athletes.front()));
    EXPECT_EQ(countOf(text, "<article"), training.athletes.size());
    EXPECT_LT(text.size(), MostBytes);
}

TEST(AthletePage, ASeasonStandsInTheOrderOfItsDaysWithWhatToTrain) {
    splittakerdata031 later = cup();
    later.info.title = "Later cup";
    later.info.date.seconds += 40 * 86400.0;
    splittakerdata031 strange = cup();
    for (athletedata031& run : strange.athletes)
        run.names = {"Nobody of these"};
    const std::string text = pageOf({later, cup(), strange}, choiceOf(slowRun()));
    EXPECT_LT(text.find("<h2><bdi>Riverside Cup"), text.find("<h2><bdi>Later cup"));
    EXPECT_EQ(countOf(text, "<section id=f"), 2U);
    EXPECT_THAT(text, HasSubstr("What to train"));
    EXPECT_THAT(text, HasSubstr("Against the winners"));
    // Whoever else raced is left out but for the winners.
    EXPECT_LT(text.size(), 2 * pageOf({cup()}, choiceOf(slowRun())).size());
}

TEST(AthletePage, DamagedFilesMakeAPageAllTheSame) {
    splittakerdata031 race = cup();
    race.info.gates = 1'000'000'000;
    race.info.upGates = {-5, 1'000'000};
    race.info.definedsections = {{-1, 0, 99'999'999}, {}};
    race.info.totalsplits = 1'000'000'000;
    athletedata031& run = race.athletes.front();
    run.sectioninfo.times = {1e308, -1e308, 0, std::numeric_limits<double>::infinity()};
    run.sectioninfo.pens = {-50, 1'000'000'000'000};
    run.upstreams.resize(1);
    run.upstreams.front().num = -1;
    run.upstreams.front().direction = 99;
    run.upstreams.front().style = -99;
    run.upstreams.front().time = 1e300;
    EXPECT_LT(pageOf({race}, choiceOf(run)).size(), MostBytes * 2);
    page::PageChoice nobody;
    nobody.crewKey = "nobody";
    EXPECT_FALSE(page::athletePage({{race, "a.kvx"}}, nobody));
    EXPECT_FALSE(page::athletePage({}, choiceOf(run)));
}

TEST(PageFilms, ClipsOfRunsAreKnownByTheirNamesAndOthersAreShownAsTheyAre) {
    const TempFolder folder;
    std::filesystem::create_directory(folder.path() / "page");
    std::vector<page::RaceFile> races{{cup(), "a/cup.kvx"}, {cup(), "b/cup.kvx"}};
    const page::PageChoice choice = choiceOf(slowRun());
    const auto page = folder.path() / "page.html";
    for (page::RaceFile& race : races)
        for (athletedata031& run : race.document.athletes)
            run.videoname = {"film.mp4"};
    const auto orders = page::clipOrders(races, choice, page);
    ASSERT_GE(orders.size(), 2U);
    EXPECT_EQ(orders.front().film, "a/film.mp4");
    EXPECT_LT(orders.front().from, orders.front().to);
    for (const page::ClipOrder& order : orders)
        (void)folder.add("page/" + order.target.filename().string() + ".mp4", "");
    (void)folder.add("page/" + orders.front().target.filename().string() + ".jpg", "");
    (void)folder.add("page/Final side by side.mov", "");
    (void)folder.add("page/notes.txt", "");
    const auto films = page::filmsBeside(races, page);
    EXPECT_EQ(films.size(), orders.size() + 1);
    EXPECT_EQ(std::ranges::count_if(films, [](const auto& film) { return !film.run; }), 1);
    EXPECT_EQ(std::ranges::count_if(films, [](const auto& film) { return !film.poster.empty(); }),
              1);
    const auto text = page::athletePage(std::move(races), choice, films);
    ASSERT_TRUE(text);
    EXPECT_EQ(countOf(*text, "<video "), films.size());
    EXPECT_THAT(*text, HasSubstr("src=\"page/Final%20side%20by%20side.mov\""));
    EXPECT_THAT(page::filmsBeside({}, folder.path() / "none.html"), testing::IsEmpty());
}

TEST(PageFiles, AFileThatIsNoRaceIsToldAndTheOthersAreRead) {
    const TempFolder folder;
    const std::vector<std::filesystem::path> paths{folder.add("good.kvx", encode(cup())),
                                                   folder.add("bad.kvx", "no race"),
                                                   folder.path() / "missing.kvx"};
    const page::ReadRaces read = page::readRaces(paths);
    ASSERT_EQ(read.races.size(), 1U);
    EXPECT_EQ(read.races.front().path, paths.front());
    ASSERT_EQ(read.failed.size(), 2U);
    EXPECT_THAT(read.failed.front().reason, HasSubstr("bad.kvx"));
    EXPECT_EQ(page::complaintAboutPageName("a/B.HTML"), "");
    EXPECT_NE(page::complaintAboutPageName("a/page"), "");
}

} // namespace kavela::test
