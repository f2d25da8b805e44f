#pragma once

#include "desktop/shell/document.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "common/text_file.h"
#include "desktop/desktop.h"
#include "desktop/path_text.h"
#include "desktop/saving.h"
#include "desktop/shell/autosave_place.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/home_window.h"
#include "desktop/slow_disk.h"
#include "desktop/team/team_window.h"
#include "desktop/tools.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QListWidget>
#include <QTest>

#include <filesystem>
#include <fstream>
#include <sstream>

/// A document of the plainest kind.

namespace kavela::test {

/// An entry that counts how many of it there are.
struct Entry {
    static inline int alive = 0;

    explicit Entry(int value = 0) : number(value) { ++alive; }
    Entry(const Entry& other) : number(other.number) { ++alive; }
    Entry(Entry&& other) noexcept : number(other.number) { ++alive; }
    Entry& operator=(const Entry&) = default;
    Entry& operator=(Entry&&) noexcept = default;
    ~Entry() { --alive; }

    friend bool operator==(const Entry& a, const Entry& b) { return a.number == b.number; }

    int number;
};

struct Counted {
    std::vector<Entry> entries;
};

} // namespace kavela::test

namespace kavela::desktop {

template <>
struct LargeParts<test::Counted> {
    static constexpr auto lists = std::tuple([](auto& value) -> auto& { return value.entries; });
    static constexpr auto wholes = std::tuple();
};

} // namespace kavela::desktop

namespace kavela::test {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace fs = std::filesystem;

/// A document of numbers, a line each.
class Numbers : public desktop::Document<Counted> {
public:
    using Document::Document;
    ~Numbers() override { keepPending(); }

    void startAt(const QString& path) { start({}, path, nullptr); }
    void add(int number) {
        edit("number", [&](Counted& value) { value.entries.emplace_back(number); });
    }
    [[nodiscard]] std::vector<int> numbers() const {
        std::vector<int> numbers;
        for (const Entry& entry : value().entries)
            numbers.push_back(entry.number);
        return numbers;
    }

protected:
    [[nodiscard]] Content contentNow() const override {
        return [numbers = numbers()] {
            std::string text;
            for (const int number : numbers)
                text += std::to_string(number) + '\n';
            return text;
        };
    }
    [[nodiscard]] bool recover(const std::string& content) override {
        Counted value;
        std::istringstream lines(content);
        for (int number = 0; lines >> number;)
            value.entries.emplace_back(number);
        startFrom(std::move(value));
        return true;
    }
    [[nodiscard]] QString summary() const override {
        return QString("%1 numbers").arg(numbers().size());
    }
};

class DocumentTest : public ::testing::Test {
protected:
    DocumentTest() {
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setAnswer([this](const Alert& question) {
            m_questions.push_back(question.text);
            return true;
        });
    }
    ~DocumentTest() override { desktop::disk::waitForAll(); }

    [[nodiscard]] fs::path file(const char* name) const { return m_folder.path() / name; }
    [[nodiscard]] desktop::Autosave autosave() const {
        return desktop::Autosave(pathText(file("kept")));
    }

    TempFolder m_folder;
    Recorder m_recorder;
    std::vector<std::string> m_questions;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{8e8}; }};
};

} // namespace kavela::test
