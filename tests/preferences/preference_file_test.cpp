#include "app/preference_file.h"

#include "common/temp_folder.h"
#include "preferences/preferences.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

namespace fs = std::filesystem;

struct Content {
    const char* what;
    std::string text;
    bool isPlain; ///< read without the store
};

const std::vector<Content> Contents{
    {"nothing", "", true},
    {"words", "[General]\ncolorMode=Training\npenaltiesVisible=true\n", true},
    {"numbers", "[General]\npredeterminatedsplits=-12\n", true},
    {"zeros in front", "[General]\npredeterminatedsplits=007\n", true},
    {"values of other kinds",
     "[General]\npenaltiesVisible=perhaps\npredeterminatedsplits=3.5\ncolorMode=7\n", true},
    {"a number too large", "[General]\npredeterminatedsplits=99999999999999999999\n", true},
    {"no group named", "colorMode=Training\n", true},
    {"a group named in small letters", "[general]\ncolorMode=Training\n", true},
    {"the same keys in other groups", "[windows]\ncolorMode=Training\n[%General]\ncolorMode=A\n",
     true},
    {"a group that goes on", "[General]\ncolorMode=A\n[b]\nx=1\n[General]\ncolorMode=Training\n",
     true},
    {"the last of two", "[General]\ncolorMode=A\ncolorMode=B\n", true},
    {"another case of letters", "[General]\nColorMode=Training\n", true},
    {"blanks and remarks", "\n ; colorMode=A\n [General] \n\tcolorMode = Training \n", true},
    {"a remark behind a value", "[General]\nx=1;colorMode=Training\n", true},
    {"lines ended as on Windows", "[General]\r\ncolorMode=Training\r\n", true},
    {"a byte order mark", "\xEF\xBB\xBF[General]\ncolorMode=Training\n", true},
    {"what the desktop keeps beside",
     "[General]\nplaces=@ByteArray(\\x1\\xd9;\\n\\\")\nrecent=\"a, \\\"b\\\"\", "
     "/tmp/\xC3\xA9t\xC3\xA9\n"
     "watchedfiles=@Invalid()\npenaltiesIncluded=true\n",
     true},
    {"quotes", "[General]\ncolorMode=\"Training\"\n", false},
    {"an escaped letter", "[General]\ncolorMode=Tr\\x61ining\n", false},
    {"a list", "[General]\ncolorMode=Training, Race\n", false},
    {"an empty value", "[General]\ncolorMode=\n", false},
    {"a value of no kind", "[General]\ncolorMode=@Invalid()\n", false},
    {"a line that goes on", "[General]\nx=a\\\ncolorMode=Training\n", false},
    {"quotes that go on", "[General]\nx=\"a\ncolorMode=Training\n\"\n", false},
    {"an escaped letter of a key", "[General]\n%63olorMode=Training\n", false},
    {"a blank that is none", "[General]\n\vcolorMode=Training\n", false},
    {"a remark ended as long ago", ";x\rcolorMode=Training\n", false},
    {"a byte order mark within",
     "[General]\n\xEF\xBB\xBF"
     "colorMode=Training\n",
     false},
    {"a line without a value", "[General]\ncolorMode\n", false},
    {"lines ended as long ago", "[General]\rcolorMode=Training\r", false},
};

} // namespace

TEST(PreferenceFile, ReadsAsTheStoreDoesOrNotAtAll) {
    const TempFolder folder;
    int number = 0;
    for (const Content& content : Contents) {
        SCOPED_TRACE(content.what);
        const fs::path file = folder.add(std::to_string(++number) + ".ini", content.text);
        const PreferenceFile plain(file);
        const Preferences store(file);
        bool isPlain = true;
        for (const char* key :
             {"colorMode", "penaltiesIncluded", "penaltiesVisible", "predeterminatedsplits"}) {
            const auto value = plain.value(key);
            isPlain &= value.has_value();
            EXPECT_TRUE(!value || *value == store.value(key)) << key;
        }
        EXPECT_EQ(isPlain, content.isPlain);
    }
}

TEST(PreferenceFile, ReadsWhatTheStoreWrote) {
    const TempFolder folder;
    const fs::path file = folder.path() / "store.ini";
    {
        Preferences store(file);
        for (const PreferenceEntry& entry : preferenceTable())
            store.set(entry.key, entry.defaultValue);
        store.set("colorMode", std::string("Training"));
        store.set("predeterminatedsplits", std::int64_t{11});
        store.set("penaltiesVisible", true);
    }
    const PreferenceFile plain(file);
    EXPECT_EQ(plain.value("colorMode"), PreferenceValue("Training"));
    EXPECT_EQ(plain.value("predeterminatedsplits"), PreferenceValue(std::int64_t{11}));
    EXPECT_EQ(plain.value("penaltiesVisible"), PreferenceValue(true));
    EXPECT_EQ(plain.value("penaltiesIncluded"), PreferenceValue(false));
    EXPECT_EQ(plain.value("savedtags"), std::nullopt) << "a list is the store's";
}

TEST(PreferenceFile, TakesDefaultsWithoutAFileAndLeavesAnUnreadableOne) {
    const TempFolder folder;
    EXPECT_EQ(PreferenceFile(folder.path() / "none.ini").value("colorMode"),
              PreferenceValue("Race"));
    EXPECT_EQ(PreferenceFile(folder.path()).value("colorMode"), std::nullopt);
    EXPECT_THROW((void)PreferenceFile(folder.path()).value("noSuchKey"), std::logic_error);
}

} // namespace kavela::test
