#include "desktop/watertests/tests_document.h"

#include "common/folded_text.h"
#include "common/json_encode.h"
#include "desktop/shell/workspace.h"
#include "planning/eight_test.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace kavela::desktop {

FileReading TestsDocument::reading(const QString& path, QWidget* over) {
    return readingBy(
        path, over, tr("It is no file of tests, or a damaged one: %1"),
        [path] { return readTestsFile(path.toStdString()); },
        [this](onWaterTests tests) { return listOf(std::move(tests)); });
}

void TestsDocument::startNew(const QString& path, QWidget* over) {
    start({}, path, over);
}

void TestsDocument::createNew(const QString& folder, QWidget* over) {
    QString path = QDir(folder).filePath("Tests.kvtest");
    for (int number = 2; QFileInfo::exists(path); ++number)
        path = QDir(folder).filePath(QString("Tests %1.kvtest").arg(number));
    startNew(path, over);
}

void TestsDocument::append(TestList& list, Content test) {
    list.push_back(std::make_shared<const ListedTest>(ListedTest{++m_lastId, std::move(test)}));
}

TestList TestsDocument::listOf(onWaterTests tests) {
    TestList list;
    for (onWaterTest& test : tests.tests)
        append(list, std::move(test));
    for (onWaterEight& eight : tests.eights)
        append(list, std::move(eight));
    return list;
}

const ListedTest* TestsDocument::find(TestId id) const {
    const auto test =
        std::ranges::find_if(value(), [&](const auto& entry) { return entry->id == id; });
    return test == value().end() ? nullptr : test->get();
}

QStringList TestsDocument::athletes() const {
    QStringList names;
    for (const auto& test : value())
        if (!test->athlete().isEmpty())
            names.append(test->athlete());
    names.removeDuplicates();
    std::ranges::sort(names, [](const QString& a, const QString& b) {
        return isNaturallyBefore(a.toStdString(), b.toStdString());
    });
    return names;
}

std::vector<TestId> TestsDocument::add(const QString& what, std::vector<Content> tests) {
    std::vector<TestId> ids;
    edit(what, [&](TestList& list) {
        for (Content& test : tests) {
            append(list, std::move(test));
            ids.push_back(m_lastId);
        }
    });
    return ids;
}

void TestsDocument::remove(std::span<const TestId> tests) {
    if (std::ranges::none_of(tests, [this](TestId id) { return find(id) != nullptr; }))
        return;
    edit(tr("removal of tests"), [&](TestList& list) {
        std::erase_if(list, [&](const auto& entry) {
            return std::ranges::find(tests, entry->id) != tests.end();
        });
    });
}

void TestsDocument::editTest(TestId id, const QString& what,
                             const std::function<void(ListedTest&)>& change) {
    const ListedTest* const before = find(id);
    if (!before)
        return;
    auto after = std::make_shared<ListedTest>(*before);
    change(*after);
    if (auto* const eight = std::get_if<onWaterEight>(&after->test))
        scoreEightTest(eight->run);
    edit(what, [&](TestList& list) {
        for (auto& entry : list)
            if (entry->id == id)
                entry = after;
    });
}

template <class Test>
void TestsDocument::editAs(TestId id, const QString& what,
                           const std::function<void(Test&)>& change) {
    const ListedTest* const test = find(id);
    if (test && std::holds_alternative<Test>(test->test))
        editTest(id, what, [&](ListedTest& edited) { change(std::get<Test>(edited.test)); });
}

void TestsDocument::editRun(TestId id, const QString& what,
                            const std::function<void(onWaterTest&)>& change) {
    editAs(id, what, change);
}

void TestsDocument::editEight(TestId id, const QString& what,
                              const std::function<void(onWaterEight&)>& change) {
    editAs(id, what, change);
}

EditedFile::Content TestsDocument::contentNow() const {
    return [list = shared()] {
        onWaterTests tests;
        for (const auto& entry : *list) {
            if (entry->run())
                tests.tests.push_back(*entry->run());
            else
                tests.eights.push_back(*entry->eight());
        }
        return encode(tests);
    };
}

bool TestsDocument::recover(const std::string& content) {
    try {
        auto recognised = recogniseTests(JsonDocument::fromText(content));
        if (!recognised.tests)
            return false;
        startFrom(listOf(std::move(*recognised.tests)));
        return true;
    } catch (const DecodeError& error) {
        workspace().log()(error.what());
        return false;
    }
}

QString TestsDocument::summary() const {
    const std::size_t count = value().size();
    return count == 1 ? tr("1 test") : tr("%n tests", nullptr, static_cast<int>(count));
}

} // namespace kavela::desktop
