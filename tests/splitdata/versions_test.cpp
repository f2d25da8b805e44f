#include "common/json_encode.h"
#include "splitdata/version_files.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using nlohmann::json;
using testing::ElementsAreArray;
using testing::IsEmpty;

struct Recognised {
    RecognisedSplitFile file;
    std::vector<std::string> log;

    [[nodiscard]] std::string label() const {
        return file.version ? std::string(file.version->label) : "none";
    }
    /// What spoke against a document type; nothing when it was not tried or it decoded.
    [[nodiscard]] Fault faultOf(const std::string& record) const {
        for (const FailedAttempt& attempt : file.failures)
            if (attempt.record == record)
                return attempt.fault;
        return {};
    }
};

Recognised recognised(const std::string& text) {
    LogRecorder log;
    Recognised result;
    result.file =
        recogniseSplitDocument(JsonDocument::fromText(text), "race.kvx", log.log(), upgradeClock);
    result.log = log.lines;
    return result;
}

/// A place in a document, for the test and as a fault names it.
struct Place {
    json::json_pointer pointer;
    std::string path;
    bool isMember = false; ///< of an object, so that it can be taken away
};

void collectPlaces(const json& node, const Place& at, std::vector<Place>& places) {
    for (std::size_t i = 0; node.is_array() && i < node.size(); ++i) {
        places.push_back({at.pointer / i, at.path + '[' + std::to_string(i) + ']'});
        collectPlaces(node[i], Place(places.back()), places);
    }
    if (!node.is_object())
        return;
    for (const auto& [key, value] : node.items()) {
        places.push_back({at.pointer / key, at.path.empty() ? key : at.path + '.' + key, true});
        collectPlaces(value, Place(places.back()), places);
    }
}

/// The document with one place changed; the name says how, and what a fault then says of the place.
struct Damaged {
    std::string how;
    json document;
    std::string fault;
};

std::vector<Damaged> damages(const json& document, const Place& place) {
    const json& value = document.at(place.pointer);
    std::vector<Damaged> all;
    const auto replaced = [&](const char* how, const json& by, const char* found) {
        all.push_back({how, document, found});
        all.back().document[place.pointer] = by;
    };
    if (place.isMember) {
        all.push_back({"dropped", document, "the key is missing"});
        all.back().document[place.pointer.parent_pointer()].erase(place.pointer.back());
    }
    replaced("null", nullptr, "expected, found null");
    if (value.is_string())
        replaced("a number", 5, "expected, found an integer");
    else
        replaced("a string", "text", "expected, found a string");
    if (value.is_array())
        replaced("emptied", json::array(), "");
    if (value.is_number_integer())
        replaced("a fraction", 1.5, "expected, found a number that is no 64-bit integer");
    return all;
}

} // namespace

class SplitVersions : public EveryRelease {};
INSTANTIATE_TEST_SUITE_P(Releases, SplitVersions, everyRelease(), releaseName);

TEST_P(SplitVersions, IsRecognisedAndBecomesItsCurrentForm) {
    const Recognised found = recognised(contentOf(versionFile(label())));
    EXPECT_EQ(found.label(), label());
    ASSERT_TRUE(found.file.version);
    EXPECT_EQ(found.file.version->record, GetParam().record);
    EXPECT_EQ(found.file.isCurrent(), label() == "0.31");
    EXPECT_THAT(found.log, ElementsAreArray(attemptLines(label())));
    EXPECT_EQ(json::diff(currentForm(label()), json::parse(encode(found.file.document))),
              json::array());
}

/// Every key taken away, every value made another kind, every list emptied, one at a time: the
/// release found is the newest one whose records the document still satisfies, and the file's own
/// release blames exactly the damaged place.
TEST_P(SplitVersions, NearMissIsOnlyEverTheNewestReleaseThatItSatisfies) {
    json document = json::parse(contentOf(versionFile(label())));
    document["athletes"].erase(document["athletes"].begin() + 1, document["athletes"].end());
    std::vector<Place> places;
    collectPlaces(document, Place{json::json_pointer(), {}}, places);
    std::vector<std::string> wrong;
    for (const Place& place : places) {
        for (const Damaged& damaged : damages(document, place)) {
            const Recognised found = recognised(damaged.document.dump());
            const std::string expected = recordTable().labelOf(damaged.document);
            if (found.label() != expected)
                wrong.push_back(place.path + ' ' + damaged.how + ": " + found.label() +
                                " instead of " + expected);
            if (recordTable().accepts(GetParam().record, damaged.document))
                continue;
            const Fault fault = found.faultOf(GetParam().record);
            if (fault.path != place.path || !fault.text.ends_with(damaged.fault))
                wrong.push_back(place.path + ' ' + damaged.how + ": " + fault.message());
        }
    }
    EXPECT_THAT(wrong, IsEmpty());
}

TEST(CurrentSplitFile, IsWrittenByteForByteAsItWasRead) {
    const std::string text = contentOf(versionFile("0.31"));
    EXPECT_EQ(encode(recognised(text).file.document), text);
}

/// Values of the right kind that a record cannot hold all the same.
TEST(CurrentSplitFile, RefusesValuesOutOfRange) {
    const std::string stamp = "/crossracedata/eliphase/0/generals/0/time/";
    const std::string stampPath = "crossracedata.eliphase[0].generals[0].time.";
    const json tooLarge = 9223372036854775808U;
    for (const auto& [key, value] :
         std::vector<std::pair<std::string, json>>{{"value", tooLarge},
                                                   {"timescale", 2147483648},
                                                   {"timescale", -2147483649},
                                                   {"flags", -1},
                                                   {"flags", 4294967296},
                                                   {"epoch", tooLarge}}) {
        json document = currentForm("0.31");
        document[json::json_pointer(stamp + key)] = value;
        const Recognised found = recognised(document.dump());
        EXPECT_EQ(found.label(), "none");
        EXPECT_EQ(found.faultOf("splittakerdata031").message(),
                  stampPath + key + ": the integer " + value.dump() + " is out of range");
    }
    for (const char* notBase64 :
         {"QUI", "QUI*", "Q===", "====", "QUI=QUI=", "QU I", "QUJD\n", "-_-_"}) {
        json document = currentForm("0.31");
        document["athletes"][1]["sectioninfo"]["teamradio"] = {"", notBase64};
        EXPECT_EQ(recognised(document.dump()).faultOf("splittakerdata031").message(),
                  "athletes[1].sectioninfo.teamradio[1]: a base64 string was expected, found other "
                  "text");
    }
}

/// Nothing of a document that no release wrote may be left in the hands of the caller.
TEST(CurrentSplitFile, LeavesNothingOfADocumentThatNothingDecodes) {
    json document = currentForm("0.31");
    document["crossracedata"]["eliphase"] = 0;
    document["athletes"][1]["sectioninfo"]["isfullrun"] = 0;
    const Recognised found = recognised(document.dump());
    EXPECT_EQ(found.label(), "none");
    EXPECT_EQ(found.file.failures.size(), 24U);
    EXPECT_EQ(encode(found.file.document), encode(splittakerdata031{}));
}

} // namespace kavela::test
