#include "fetch/html_links.h"
#include "fetch/listing.h"
#include "fetch/playlist.h"

#include <gmock/gmock.h>

namespace kavela::test {
namespace {

using namespace kavela::fetch;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

const Address Base = parsedAddress("https://example.org/troja/").value();

std::vector<std::string> addresses(ListingKind kind, std::string_view body) {
    std::vector<std::string> texts;
    for (const ListedFilm& film : filmsInListing(kind, body, Base))
        texts.push_back(film.address.text());
    return texts;
}

std::string refusal(std::string_view playlist) {
    try {
        (void)readPieceList(playlist, Base);
        return "none";
    } catch (const ListingError& error) {
        return error.what();
    }
}

} // namespace

TEST(Listings, OfPagesAreReadAsBrowsersDo) {
    EXPECT_THAT(addresses(ListingKind::Html,
                          "<!doctype html>1 < 2 <a href='014.mp4'>14</a><A HREF=015.MOV>\n"
                          "<!-- <a href=\"016.mp4\"> --><script>'<a href=\"017.mp4\">'</script>"
                          "<video><source class=x src=\"18.mp4?a=1&amp;b=2\"></video>"
                          "<a href=\"readme.txt\">x<a href='014.mp4'>"
                          "<a href=\"https://cdn.example.net/&#x31;9.mp4\"><a href='20.mp4"),
                ElementsAre("https://example.org/troja/014.mp4",
                            "https://example.org/troja/015.MOV",
                            "https://example.org/troja/18.mp4?a=1&b=2",
                            "https://cdn.example.net/19.mp4", "https://example.org/troja/20.mp4"));
    EXPECT_THAT(addresses(ListingKind::Html, "<base href='/b/'><a href=1.mp4>"),
                ElementsAre("https://example.org/b/1.mp4"));
}

TEST(Listings, OfDataHoldAddressesAtAnyDepth) {
    const auto films = filmsInListing(
        ListingKind::Json,
        R"({"n":1,"films":[{"bib":14,"url":"/v/014.mp4","size":2048},["15.mp4","15.mp4",7],
            {"play":"https://cdn.example.net/016.m3u8","poster":"016.jpg"}]})",
        Base);
    ASSERT_THAT(films, SizeIs(3));
    EXPECT_EQ(films[0].address.text(), "https://example.org/v/014.mp4");
    EXPECT_EQ(films[0].size, 2048);
    EXPECT_EQ(films[1].size, std::nullopt);
    EXPECT_TRUE(films[2].isPlaylist);
    EXPECT_THROW((void)filmsInListing(ListingKind::Json, "{\"a\":", Base), ListingError);
}

TEST(Listings, OfFoldersLeaveOutFolders) {
    const auto films = filmsInListing(
        ListingKind::WebDav,
        R"(<?xml version="1.0"?><D:multistatus xmlns:D="DAV:"><D:response><D:href>/troja/</D:href>
        </D:response><D:response><D:href>/troja/a%20014.mp4</D:href><D:propstat><D:prop>
        <D:getcontentlength>99</D:getcontentlength></D:prop></D:propstat></D:response>
        <D:response><D:href>/troja/015.mp4/</D:href></D:response></D:multistatus>)",
        Base);
    ASSERT_THAT(films, SizeIs(1));
    EXPECT_EQ(films[0].name, "a 014.mp4");
    EXPECT_EQ(films[0].size, 99);
    EXPECT_THROW((void)filmsInListing(ListingKind::WebDav, "<multistatus", Base), ListingError);
}

TEST(Listings, OfPlaylistsTellTitlesAndAreNoFilmInPieces) {
    const auto films = filmsInListing(
        ListingKind::M3u8, "#EXTM3U\r\n#EXTINF:90,Bib 14 Ann Lee\r\nabc.mp4\r\n\r\nd.mp4", Base);
    ASSERT_THAT(films, SizeIs(2));
    EXPECT_TRUE(hasBib(films[0].name, 14));
    EXPECT_EQ(films[1].name, "d.mp4");
    EXPECT_THROW((void)filmsInListing(ListingKind::M3u8,
                                      "#EXTM3U\n#EXT-X-TARGETDURATION:4\n#EXTINF:4,\na.ts\n", Base),
                 ListingError);
}

TEST(Listings, AreKnownByWhatTheyBeginWith) {
    EXPECT_EQ(listingKind("text/plain", "\xEF\xBB\xBF #EXTM3U\n"), ListingKind::M3u8);
    EXPECT_EQ(listingKind("text/html", " [1]"), ListingKind::Json);
    EXPECT_EQ(listingKind("application/xml", "<?xml?><d:multistatus/>"), ListingKind::WebDav);
    EXPECT_EQ(listingKind("application/json", "<html>"), ListingKind::Json);
    EXPECT_EQ(listingKind("", "<html>"), ListingKind::Html);
    EXPECT_EQ(listingKind("", ""), ListingKind::Html);
}

TEST(Bibs, StandInNamesAsWholeNumbers) {
    for (const char* const name : {"014.mp4", "bib14.mp4", "K1W_14_final.mp4", "14-Ann Lee.mp4",
                                   "2026-05-12 14.mp4", "film (14).mp4", "a 14"})
        EXPECT_TRUE(hasBib(name, 14)) << name;
    for (const char* const name : {"114.mp4", "140.mp4", "014a.mp4", "run14.mp4", "2026-14-14.mp4",
                                   "C14.mp4", "14fps.mp4", "99999999999999999914.mp4"})
        EXPECT_FALSE(hasBib(name, 14)) << name;
    EXPECT_FALSE(hasBib("a.mp4", 4));
    EXPECT_FALSE(hasBib("a.3gp", 3));
    EXPECT_FALSE(hasBib("K1M 20.mp4", 1));
    EXPECT_FALSE(hasBib("2026-05-12 20.mp4", 5));
}

TEST(FilmsInPieces, AreRewrittenForAFolder) {
    const PieceList list = readPieceList("#EXTM3U\n#EXT-X-TARGETDURATION:4\n"
                                         "#EXT-X-KEY:METHOD=AES-128,URI=\"/k.bin\",IV=0x1\n"
                                         "#EXT-X-MAP:URI=\"init.mp4\",BYTERANGE=\"9@0\"\n"
                                         "#EXTINF:4,\na.m4s\n#EXTINF:4,\n../b.m4s?x=1,2\n"
                                         "#EXTINF:4,\na.m4s\n#EXT-X-ENDLIST\n",
                                         Base);
    ASSERT_THAT(list.pieces, SizeIs(4));
    EXPECT_EQ(list.pieces[0].text(), "https://example.org/k.bin");
    EXPECT_EQ(list.pieces[3].text(), "https://example.org/b.m4s?x=1,2");
    EXPECT_EQ(list.localText, "#EXTM3U\n#EXT-X-TARGETDURATION:4\n"
                              "#EXT-X-KEY:METHOD=AES-128,URI=\"piece0\",IV=0x1\n"
                              "#EXT-X-MAP:URI=\"piece1\",BYTERANGE=\"9@0\"\n"
                              "#EXTINF:4,\npiece2\n#EXTINF:4,\npiece3\n"
                              "#EXTINF:4,\npiece2\n#EXT-X-ENDLIST\n");
}

TEST(FilmsInPieces, AreTakenInTheBestQuality) {
    const PieceList list =
        readPieceList("#EXTM3U\n#EXT-X-STREAM-INF:BANDWIDTH=800000,CODECS=\"avc1,mp4a\"\nlow.m3u8\n"
                      "#EXT-X-STREAM-INF:AVERAGE-BANDWIDTH=9,BANDWIDTH=2400000\nhigh.m3u8\n"
                      "#EXT-X-STREAM-INF:BANDWIDTH=1200000\nmid.m3u8\n",
                      Base);
    ASSERT_TRUE(list.better);
    EXPECT_EQ(list.better->text(), "https://example.org/troja/high.m3u8");
}

TEST(FilmsInPieces, AreRefusedWhereTheyDoNotEndOrCannotBeOpened) {
    EXPECT_THAT(refusal("#EXTM3U\n#EXTINF:4,\na.ts\n"), HasSubstr("still growing"));
    EXPECT_THAT(refusal("#EXTM3U\n#EXT-X-ENDLIST\n"), HasSubstr("no piece"));
    EXPECT_THAT(refusal("#EXT-X-KEY:METHOD=SAMPLE-AES,URI=\"k\"\na.ts\n#EXT-X-ENDLIST\n"),
                HasSubstr("SAMPLE-AES"));
    EXPECT_THAT(refusal("file:///etc/passwd\n#EXT-X-ENDLIST\n"), HasSubstr("else than a server"));
    std::string endless;
    for (std::size_t i = 0; i <= MostPieces; ++i)
        endless += std::to_string(i) + ".ts\n";
    EXPECT_THAT(refusal(endless + "#EXT-X-ENDLIST\n"), HasSubstr("does not end"));
}

} // namespace kavela::test
