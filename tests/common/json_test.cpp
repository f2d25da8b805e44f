#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/temp_folder.h"

#include <gmock/gmock.h>

#include <bit>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <random>

namespace kavela::test {

struct Mark {
    double x = 0;
    std::vector<std::int64_t> ns;
};
BOOST_DESCRIBE_STRUCT(Mark, (), (x, ns))

/// One member of every kind that the formats know.
struct Everything {
    std::int64_t whole = 0;
    double number = 0;
    bool flag = false;
    std::string text;
    Blob blob;
    ReferenceDate date;
    CMTime stamp;
    std::vector<Mark> marks;
};
BOOST_DESCRIBE_STRUCT(Everything, (), (whole, number, flag, text, blob, date, stamp, marks))

namespace {

using testing::Each;
using testing::HasSubstr;

constexpr const char* Sample =
    R"({"whole":1,"number":2.5,"flag":true,"text":"a","blob":"AQID","date":0,)"
    R"("stamp":{"value":-7,"timescale":600,"flags":3,"epoch":0},)"
    R"("marks":[{"x":0.5,"ns":[]},{"x":2,"ns":[4,5]}]})";

/// The sample with one passage exchanged.
std::string sampleWith(std::string_view passage, std::string_view instead) {
    std::string json = Sample;
    const auto at = json.find(passage);
    EXPECT_NE(at, std::string::npos) << passage;
    return json.replace(at, passage.size(), instead);
}

/// What is said against a text; empty when it reads as the record.
std::string faultOf(const std::string& json) {
    try {
        (void)decodeText<Everything>(json);
        return {};
    } catch (const DecodeError& error) {
        return error.what();
    }
}

std::string refusalOf(const Everything& record) {
    try {
        return "written: " + encode(record);
    } catch (const EncodeError& error) {
        return error.what();
    }
}

double numberOf(const std::string& text) {
    return decodeText<Everything>(sampleWith("2.5", text)).number;
}

std::string nested(std::size_t depth) {
    return std::string(depth, '[') + std::string(depth, ']');
}

} // namespace

TEST(JsonReader, NamesThePlaceAndTheFault) {
    const std::string notBase64 = "blob: a base64 string was expected, found other text";
    struct Row {
        const char* passage;
        const char* instead;
        std::string fault;
    };
    for (const Row& row : std::initializer_list<Row>{
             {"\"flag\":true,", "", "flag: the key is missing"},
             {"\"flag\"", "\"Flag\"", "flag: the key is missing"},
             {":1,", ":\"1\",", "whole: an integer was expected, found a string"},
             {":1,", ":null,", "whole: an integer was expected, found null"},
             {":1,", ":3.0,",
              "whole: an integer was expected, found a number that is no 64-bit integer"},
             {":1,", ":9223372036854775808,",
              "whole: the integer 9223372036854775808 is out of range"},
             {"2.5", "true", "number: a number was expected, found a boolean"},
             {"true", "0", "flag: a boolean was expected, found an integer"},
             {"\"a\"", "[]", "text: a string was expected, found an array"},
             {"\"AQID\"", "5", "blob: a base64 string was expected, found an integer"},
             {"AQID", "AQI", notBase64},
             {"AQID", "A===", notBase64},
             {"AQID", "AQ=D", notBase64},
             {"AQID", "====", notBase64},
             {"AQID", "AQ\\n=", notBase64},
             {"AQID", "AQ-_", notBase64},
             {"\"date\":0", "\"date\":{}", "date: a number was expected, found an object"},
             {"600", "2147483648", "stamp.timescale: the integer 2147483648 is out of range"},
             {"\"flags\":3", "\"flags\":-1", "stamp.flags: the integer -1 is out of range"},
             {",\"epoch\":0", "", "stamp.epoch: the key is missing"},
             {"{\"x\":0.5,\"ns\":[]}", "7", "marks[0]: an object was expected, found an integer"},
             {"5]}", "\"5\"]}", "marks[1].ns[1]: an integer was expected, found a string"},
             {"\"x\":2", "\"y\":2", "marks[1].x: the key is missing"}})
        EXPECT_EQ(faultOf(sampleWith(row.passage, row.instead)), row.fault);
}

TEST(JsonReader, RefusesWhatIsNoJson) {
    const std::string sample = Sample;
    for (std::size_t length = 0; length < sample.size(); ++length)
        EXPECT_NE(faultOf(sample.substr(0, length)), "") << "cut off after " << length;
    for (const char* number : {"1e400", "-1e400", "01", "+1", "-", ".5", "5.", "1e", "NaN", "0x10",
                               "--99999999999999999999", "099999999999999999999"})
        EXPECT_THAT(faultOf(sampleWith("2.5", number)), HasSubstr("not JSON")) << number;
    for (const char* text : {"\n", "\x01", "\\x", "\\u12", "\xff", "\xc0\xaf", "\xed\xa0\x80",
                             "\xf4\x90\x80\x80", "\\ud800", "\\udc00\\ud800", "\\ud800a"})
        EXPECT_NE(faultOf(sampleWith("\"a\"", '"' + std::string(text) + '"')), "") << text;
    EXPECT_NE(faultOf(sample + sample), "");
    EXPECT_NE(faultOf("[" + sample + "]"), "");
    EXPECT_THAT(faultOf("{\"deep\":" + nested(1'000'000) + "}"), HasSubstr("nested too deeply"));
}

TEST(JsonReader, TakesEveryOrderAndWhatItDoesNotKnow) {
    const std::string shuffled =
        R"( {"marks":[{"ns":[],"more":{"x":9},"x":0.5},{"x":2,"ns":[4,5]}],"date":0,"unknown":)" +
        nested(500) +
        R"(,"stamp":{"epoch":0,"flags":3,"timescale":600,"value":-7},"blob":"AQID",)"
        "\r\n\t"
        R"("text":"\u0061","flag":true,"number":25e-1,"whole":1} )";
    EXPECT_EQ(encode(decodeText<Everything>(shuffled)), Sample);
    const auto twice =
        decodeText<Everything>(sampleWith("{\"whole\":1", "{\"whole\":1,\"whole\":2"));
    EXPECT_TRUE(twice.whole == 1 || twice.whole == 2);
    EXPECT_EQ(twice.marks.size(), 2U);
}

TEST(JsonReader, TakesEveryNumberThatADoubleCanHold) {
    EXPECT_EQ(numberOf("3"), 3);
    EXPECT_EQ(numberOf("1E5"), 100000);
    EXPECT_EQ(numberOf("-9223372036854775808"), -0x1p63);
    EXPECT_EQ(numberOf("-9223372036854775809"), -0x1p63);
    EXPECT_EQ(numberOf("18446744073709551615"), 0x1p64);
    EXPECT_EQ(numberOf("123456789012345678901234567890"), 123456789012345678901234567890.0);
    EXPECT_EQ(numberOf("1e-400"), 0);
    EXPECT_EQ(numberOf("5e-324"), 5e-324);
    EXPECT_TRUE(std::signbit(numberOf("-0.0")));
    // A number too wide for an integer makes the text be read again; nothing else in it changes.
    const std::string digits = "\\\" 99999999999999999999 \\\\";
    auto record = decodeText<Everything>(
        sampleWith("2.5,\"flag\":true,\"text\":\"a\"",
                   "99999999999999999999,\"flag\":true,\"text\":\"" + digits + "\""));
    EXPECT_EQ(record.text, "\" 99999999999999999999 \\");
    EXPECT_EQ(record.number, 1e20);
}

/// What a file is and what it holds come from one reading, as long as nobody writes it meanwhile.
TEST(JsonDocumentFile, IsReadOnceWhileItIsHeldAndUnchanged) {
    const TempFolder folder;
    const auto path = folder.add("list.json", R"({"number": 1})");
    const auto written = std::filesystem::last_write_time(path);
    const auto numberNow = [&] {
        return std::int64_t(JsonDocument::fromFile(path).root()["number"]);
    };
    const auto overwrite = [&](const char* text, std::chrono::seconds later) {
        std::ofstream(path) << text;
        std::filesystem::last_write_time(path, written + later);
    };
    {
        const JsonDocument held = JsonDocument::fromFile(path);
        overwrite(R"({"number": 2})", std::chrono::seconds(0));
        EXPECT_EQ(numberNow(), 1) << "not read again";
        overwrite(R"({"number": 3})", std::chrono::seconds(1));
        EXPECT_EQ(numberNow(), 3) << "written meanwhile";
        EXPECT_EQ(std::int64_t(held.root()["number"]), 1);
    }
    overwrite(R"({"number": 4})", std::chrono::seconds(1));
    EXPECT_EQ(numberNow(), 4) << "nobody holds it any more";
    std::filesystem::remove(path);
    EXPECT_THROW((void)numberNow(), FileError);
}

TEST(JsonWriter, WritesTheShortestNumberThatReadsBackTheSame) {
    EXPECT_EQ(encode(std::vector{12.0, 0.1, -0.0, 95.23, 1.0 / 3, 1e21, 1e-7, 5e-324}),
              "[12,0.1,-0.0,95.23,0.3333333333333333,1e+21,1e-07,5e-324]");
    std::vector<double> values{0x1p63, 0x1p64, -0x1.8p65, 123456789012345680000.0,
                               0x1.fffffffffffffp1023};
    std::mt19937_64 dice(7);
    while (values.size() < 20000)
        if (const auto value = std::bit_cast<double>(dice()); std::isfinite(value))
            values.push_back(value);
    Everything record = decodeText<Everything>(Sample);
    record.marks.clear();
    for (const double value : values)
        record.marks.push_back({value, {}});
    const auto back = decodeText<Everything>(encode(record));
    for (std::size_t i = 0; i < values.size(); ++i)
        ASSERT_EQ(back.marks[i].x, values[i]) << i;
}

TEST(JsonWriter, WritesTextsThatReadBackTheSame) {
    Everything record = decodeText<Everything>(Sample);
    record.text.clear();
    for (char c = 1; c < 0x7f; ++c)
        record.text += c;
    record.text += std::string("\0\x7f", 2) + "é\u2028\U0001F6F6";
    const std::string json = encode(record);
    EXPECT_THAT(std::vector<unsigned char>(json.begin(), json.end()), Each(testing::Ge(0x20)));
    EXPECT_EQ(decodeText<Everything>(json).text, record.text);
    EXPECT_EQ(decodeText<Everything>(sampleWith("\"a\"", "\"\\ud83d\\udef6\\/\"")).text,
              "\U0001F6F6/");
}

TEST(JsonWriter, WritesBytesAsBase64AndEmptyListsOut) {
    EXPECT_EQ(encode(std::vector<Blob>{{{}}, {{1}}, {{1, 2}}, {{0xfb, 0xff, 0}}}),
              R"(["","AQ==","AQI=","+/8A"])");
    Everything record = decodeText<Everything>(sampleWith("AQID", ""));
    EXPECT_THAT(record.blob.bytes.list(), testing::IsEmpty());
    record = decodeText<Everything>(sampleWith("AQID", "+/8AAAECAA=="));
    EXPECT_THAT(record.blob.bytes.list(), testing::ElementsAre(0xfb, 0xff, 0, 0, 1, 2, 0));
    EXPECT_THAT(encode(Everything{}), testing::EndsWith("\"marks\":[]}"));
}

TEST(JsonWriter, RefusesWhatJsonCannotHoldAndNamesThePlace) {
    Everything record;
    record.marks = {{}, {std::nan(""), {}}};
    EXPECT_EQ(refusalOf(record), "marks[1].x: a number that is not finite cannot be written");
    record = {};
    record.date.seconds = -HUGE_VAL;
    EXPECT_EQ(refusalOf(record), "date: a number that is not finite cannot be written");
    for (const char* text : {"\xff", "caf\xe9", "\xed\xa0\x80", "\xe2\x82"}) {
        record = {};
        record.text = text;
        EXPECT_EQ(refusalOf(record), "text: a text that is not valid UTF-8 cannot be written");
    }
}

} // namespace kavela::test
