#include "common/error.h"
#include "update/manifest.h"
#include "update/signature.h"
#include "update/update_rules.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <functional>

namespace kavela::test {
namespace {

using namespace kavela::update;
using nlohmann::json;
using ::testing::HasSubstr;
using ::testing::StartsWith;
using Kind = Verdict::Kind;

json goodManifest() {
    return {{"version", "0.32.0"},
            {"date", "2026-11-22"},
            {"notes", "New:\n- a page for athletes"},
            {"files",
             {{{"platform", "deb-amd64"},
               {"address", "https://example.org/kavela/kavela_0.32.0_amd64.deb"},
               {"size", 1234},
               {"sha256", std::string(64, 'a')}}}}};
}

/// What is told of a manifest; empty where it is taken.
std::string faultOf(const std::string& text) {
    try {
        (void)readManifest(text);
    } catch (const DecodeError& error) {
        return error.what();
    }
    return {};
}

updatemanifest001 offering(const std::string& version) {
    json manifest = goodManifest();
    manifest["version"] = version;
    return readManifest(manifest.dump());
}

struct BadField {
    const char* place; ///< a JSON pointer
    json value;
    const char* told;
};

} // namespace

TEST(UpdateVersion, IsComparedByNumbersAndWrittenInOneWay) {
    EXPECT_LT(parsedVersion("0.9.0"), parsedVersion("0.31.0"));
    EXPECT_LT(parsedVersion("0.31.9"), parsedVersion("1.0.0"));
    EXPECT_EQ(parsedVersion("0.31.0")->text(), "0.31.0");
    for (const char* const text : {"", "1", "1.2", "1.2.3.4", "01.2.3", "1.2.-3", "1.2.3 ",
                                   "v1.2.3", "1..3", "1.2.", "1.2.9999999", "1.2.3-rc1"})
        EXPECT_FALSE(parsedVersion(text)) << text;
}

TEST(UpdateManifest, IsReadAndItsFileHasAName) {
    const updatemanifest001 manifest = readManifest(goodManifest().dump());
    EXPECT_EQ(manifest.version, "0.32.0");
    EXPECT_EQ(fileNameOf(safeAddress(manifest.files.at(0).address).value()),
              "kavela_0.32.0_amd64.deb");
}

TEST(UpdateManifest, TellsWhatIsWrongAndWhere) {
    const std::vector<BadField> cases{
        {"/version", "0.32", "version: three numbers"},
        {"/version", 32, "version: "},
        {"/date", "2026-02-30", "date: "},
        {"/notes", "a bell\a", "notes: "},
        {"/files/0/platform", "deb amd64", "files[0].platform: "},
        {"/files/0/address", "http://example.org/a.deb", "files[0].address: an https address"},
        {"/files/0/address", "http://127.0.0.1.example.org/a.deb", "files[0].address: an https"},
        {"/files/0/address", "https://u:p@example.org/a.deb", "files[0].address: an https"},
        {"/files/0/address", "https://example.org/", "files[0].address: it does not end"},
        {"/files/0/address", "https://example.org/.bashrc", "files[0].address: it does not end"},
        {"/files/0/address", "https://example.org/..%2Fa.deb", "files[0].address: it does not end"},
        {"/files/0/size", 0, "files[0].size: "},
        {"/files/0/size", 1e15, "files[0].size: "},
        {"/files/0/sha256", std::string(64, 'A'), "files[0].sha256: "},
        {"/files/1", goodManifest()["files"][0], "files[1].platform: there is a file"}};
    for (const BadField& each : cases) {
        json manifest = goodManifest();
        manifest[json::json_pointer(each.place)] = each.value;
        EXPECT_THAT(faultOf(manifest.dump()), StartsWith(each.told)) << each.place << each.value;
    }
    EXPECT_THAT(faultOf("{\"version\":"), ::testing::Not(""));
    EXPECT_THAT(faultOf(std::string(MostManifestBytes + 1, ' ')), HasSubstr("longer"));
}

TEST(UpdateManifest, AddressesOfThisComputerMayDoWithoutHttps) {
    EXPECT_TRUE(safeAddress("http://127.0.0.1:8080/a.deb"));
    EXPECT_TRUE(safeAddress("http://localhost/a.deb"));
    EXPECT_TRUE(safeAddress("http://[::1]/a.deb"));
    EXPECT_FALSE(safeAddress("http://localhost.example.org/a.deb"));
    EXPECT_FALSE(safeAddress("ftp://example.org/a.deb"));
}

TEST(UpdateSignature, IsThatOfOneKeyAndOneContent) {
    const KeyPair pair = newKeyPair();
    const PublicKey key = parsedPublicKey(pair.publicKey).value();
    const std::string signature = signatureOf(pair.secretKey, "content");
    EXPECT_EQ(publicKeyOf(pair.secretKey + '\n'), pair.publicKey);
    EXPECT_TRUE(isSignedBy(key, "content", signature + '\n'));
    EXPECT_FALSE(isSignedBy(key, "contenT", signature));
    EXPECT_FALSE(isSignedBy(key, "content", signature.substr(2)));
    EXPECT_FALSE(isSignedBy(key, "content", ""));
    EXPECT_FALSE(isSignedBy(parsedPublicKey(newKeyPair().publicKey).value(), "content", signature));
    EXPECT_FALSE(parsedPublicKey(pair.publicKey + "00"));
}

TEST(UpdateRules, NeverLookWithoutAYesAndAtMostOnceADay) {
    constexpr std::int64_t Day = 86'400;
    EXPECT_FALSE(isLookDue({}, 10 * Day));
    EXPECT_FALSE(isLookDue({.mayLook = false, .lastLook = 0}, 10 * Day));
    EXPECT_TRUE(isLookDue({.mayLook = true}, 10 * Day));
    EXPECT_FALSE(isLookDue({.mayLook = true, .lastLook = 9 * Day + 1}, 10 * Day));
    EXPECT_TRUE(isLookDue({.mayLook = true, .lastLook = 9 * Day}, 10 * Day));
    EXPECT_TRUE(isLookDue({.mayLook = true, .lastLook = 400 * Day}, 10 * Day))
        << "a clock that was wrong must not end it for a year";
}

TEST(UpdateRules, OfferWhatIsNewerAndNeverGoBack) {
    const KnownVersions known{.own = {{0, 31, 0}}};
    const std::string platform = platformName("x86_64", false);
    const Verdict offer = verdictOn(offering("0.32.0"), known, platform, false);
    EXPECT_EQ(offer.kind, Kind::Offer);
    EXPECT_EQ(offer.file->size, 1234);
    EXPECT_EQ(verdictOn(offering("0.31.0"), known, platform, true).kind, Kind::Current);
    EXPECT_EQ(verdictOn(offering("0.30.9"), known, platform, true).kind, Kind::Older);
    EXPECT_EQ(verdictOn(offering("0.32.0"), known, platformName("x86_64", true), true).kind,
              Kind::NoFile);

    KnownVersions later = known;
    later.newestSeen = Version{{0, 33, 0}};
    const Verdict old = verdictOn(offering("0.32.0"), later, platform, true);
    EXPECT_EQ(old.kind, Kind::Older) << "a list of yesterday, signed as it is";
    EXPECT_THAT(old.sentence, HasSubstr("0.33.0, which it had before"));
}

TEST(UpdateRules, KeepAVersionThatWasSkippedFromComingBackByItself) {
    KnownVersions known{.own = {{0, 31, 0}}, .skipped = Version{{0, 32, 0}}};
    EXPECT_EQ(verdictOn(offering("0.32.0"), known, "deb-amd64", false).kind, Kind::Skipped);
    EXPECT_EQ(verdictOn(offering("0.32.0"), known, "deb-amd64", true).kind, Kind::Offer);
    EXPECT_EQ(verdictOn(offering("0.33.0"), known, "deb-amd64", false).kind, Kind::Offer);
}

} // namespace kavela::test
