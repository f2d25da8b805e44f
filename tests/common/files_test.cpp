#include "common/error.h"
#include "common/file_reader.h"
#include "common/file_size_limit.h"
#include "common/safe_file.h"
#include "common/temp_folder.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

#include <stdexcept>

namespace kavela::test {

namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

std::string textOf(const fs::path& path) {
    return std::string(std::string_view(readObjectText(path)));
}

/// What is said against a file; empty when it is read.
std::string readFaultOf(const fs::path& path) {
    try {
        (void)readObjectText(path);
        return {};
    } catch (const DecodeError& error) {
        return error.what();
    } catch (const FileError& error) {
        return error.reason();
    }
}

fs::path sparseFile(const TempFolder& folder, const std::string& start, off_t size) {
    const fs::path path = folder.add("sparse.kvx", start);
    EXPECT_EQ(::truncate(path.c_str(), size), 0);
    return path;
}

unsigned modeOf(const fs::path& path) {
    return static_cast<unsigned>(fs::status(path).permissions());
}

} // namespace

TEST(FileReader, SaysWhatKeepsItFromReading) {
    const TempFolder folder;
    const fs::path pipe = folder.path() / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    fs::create_symlink("loop", folder.path() / "loop");
    const std::string noObject = "this is no JSON object: it does not begin with {";
    const std::string blank = "the file holds nothing but blanks";
    EXPECT_EQ(readFaultOf(folder.path() / "missing"), "there is no such file");
    EXPECT_EQ(readFaultOf(folder.path()), "this is a folder, not a file");
    EXPECT_EQ(readFaultOf(pipe), "this is not an ordinary file");
    EXPECT_NE(readFaultOf(folder.path() / "loop"), "");
    EXPECT_EQ(readFaultOf(folder.add("a", "")), "the file is empty");
    EXPECT_EQ(readFaultOf(folder.add("a", " \r\n\t")), blank);
    EXPECT_EQ(readFaultOf(folder.add("a", "\xEF\xBB\xBF")), blank);
    EXPECT_EQ(readFaultOf(folder.add("a", "\xEF\xBB")), noObject);
    EXPECT_EQ(readFaultOf(folder.add("a", "[{}]")), noObject);
    EXPECT_EQ(readFaultOf(folder.add("blank", std::string(50 << 20, ' '))), blank);
    EXPECT_EQ(readFaultOf(sparseFile(folder, "", off_t(2) << 30)), noObject);
    EXPECT_EQ(readFaultOf(sparseFile(folder, "{", off_t(5) << 30)),
              "the file is too large for a document (over 4 GB)");
}

TEST(FileReader, TakesTheDocumentOutOfBlanksAndAfterAByteOrderMark) {
    const TempFolder folder;
    const std::string document = "{\"a\": 1}";
    for (const std::size_t blanks : {0U, 1U, 65535U, 65536U, 65537U, 131072U}) {
        const std::string space(blanks, '\n');
        for (const char* mark : {"", "\xEF\xBB\xBF"})
            EXPECT_EQ(textOf(folder.add("a", mark + space + document + space)), document) << blanks;
    }
}

class SafeFile : public testing::Test {
protected:
    /// Writes where it must not succeed; the folder is to stay as it is.
    void expectRefused(const fs::path& path, const std::string& content = "new") {
        const auto before = m_folder.names();
        EXPECT_THROW(writeFileSafely(path, content), FileError) << path;
        EXPECT_EQ(m_folder.names(), before);
    }

    TempFolder m_folder;
    fs::path m_file = m_folder.path() / "race.kvx";
};

TEST_F(SafeFile, ReplacesTheContentAndKeepsThePermissions) {
    const mode_t mask = ::umask(027);
    writeFileSafely(m_file, "new");
    ::umask(mask);
    EXPECT_EQ(modeOf(m_file), 0640U);
    for (const unsigned mode : {0600U, 0664U, 0755U}) {
        (void)m_folder.add("race.kvx", "a longer old content");
        ASSERT_EQ(::chmod(m_file.c_str(), mode), 0);
        writeFileSafely(m_file, "");
        EXPECT_EQ(contentOf(m_file), "");
        EXPECT_EQ(modeOf(m_file), mode);
    }
    EXPECT_THAT(m_folder.names(), ElementsAre("race.kvx"));
}

TEST_F(SafeFile, FollowsLinksAlsoToAFileThatIsNotThereYet) {
    fs::create_directory(m_folder.path() / "archive");
    fs::create_symlink("archive/link", m_file);
    fs::create_symlink("real.kvx", m_folder.path() / "archive" / "link");
    for (const char* content : {"first", "second"}) {
        writeFileSafely(m_file, content);
        EXPECT_TRUE(fs::is_symlink(m_file));
        EXPECT_EQ(contentOf(m_folder.path() / "archive" / "real.kvx"), content);
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(m_folder.path() / "archive"), {}), 2);
}

TEST_F(SafeFile, RefusesWhatIsNoPlaceForAFile) {
    fs::create_directory(m_folder.path() / "folder");
    fs::create_symlink("loop", m_folder.path() / "loop");
    const fs::path plain = m_folder.add("plain", "old");
    for (const char* name : {"folder", "loop", "missing/race.kvx", "plain/race.kvx", "", "folder/"})
        expectRefused(m_folder.path() / name);
    expectRefused(m_folder.path() / std::string(256, 'n'));
    EXPECT_EQ(contentOf(plain), "old");
}

TEST_F(SafeFile, DoesNotReplaceAPipeOrADevice) {
    ASSERT_EQ(::mkfifo(m_file.c_str(), 0600), 0);
    expectRefused(m_file);
    EXPECT_TRUE(fs::is_fifo(m_file));
}

TEST_F(SafeFile, LeavesTheOldFileWholeWhenTheDiskDoesNotTakeTheNew) {
    (void)m_folder.add("race.kvx", "old");
    const FileSizeLimit limit(100);
    expectRefused(m_file, std::string(1000, 'x'));
    EXPECT_EQ(contentOf(m_file), "old");
}

TEST_F(SafeFile, TakesAContentInPiecesWhollyOrNotAtAll) {
    writeFileSafely(m_file, [](const PieceWriter& write) {
        for (const char* piece : {"in ", "", "pieces"})
            write(piece);
    });
    EXPECT_EQ(contentOf(m_file), "in pieces");
    EXPECT_THROW(writeFileSafely(m_file,
                                 [](const PieceWriter& write) {
                                     write("half");
                                     throw std::runtime_error("no more");
                                 }),
                 std::runtime_error);
    EXPECT_EQ(contentOf(m_file), "in pieces");
    EXPECT_THAT(m_folder.names(), ElementsAre("race.kvx"));
}

TEST_F(SafeFile, FindsANameForItsTemporaryFile) {
    const std::string taken = ".race.kvx." + std::to_string(::getpid()) + "-0.tmp";
    const fs::path other = m_folder.add(taken, "theirs");
    writeFileSafely(m_file, "new");
    EXPECT_EQ(contentOf(m_file), "new");
    EXPECT_EQ(contentOf(other), "theirs");
    EXPECT_THAT(m_folder.names(), UnorderedElementsAre("race.kvx", taken));
    const fs::path longest = m_folder.path() / std::string(255, 'n');
    writeFileSafely(longest, "new");
    EXPECT_EQ(contentOf(longest), "new");
}

TEST_F(SafeFile, GivesASecondNameOnlyWhereItIsFree) {
    (void)m_folder.add("race.kvx", "old");
    const fs::path taken = m_folder.add("taken", "theirs");
    EXPECT_FALSE(keepUnderSecondName(m_file, taken));
    EXPECT_EQ(contentOf(taken), "theirs");
    const fs::path second = m_folder.path() / "second";
    EXPECT_TRUE(keepUnderSecondName(m_file, second));
    writeFileSafely(m_file, "new");
    EXPECT_EQ(contentOf(second), "old");
    EXPECT_THROW((void)keepUnderSecondName(m_folder.path() / "missing", m_folder.path() / "third"),
                 FileError);
    EXPECT_THAT(m_folder.names(), UnorderedElementsAre("race.kvx", "taken", "second"));
}

} // namespace kavela::test
