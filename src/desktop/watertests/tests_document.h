#pragma once

#include "desktop/shell/document.h"
#include "desktop/watertests/listed_test.h"

#include <span>

namespace kavela::desktop {

/// A file of on-water tests that is being edited. An eight test is scored again after every edit of
/// it.
class TestsDocument : public Document<TestList> {
    Q_OBJECT

public:
    using Document::Document;
    ~TestsDocument() override { keepPending(); }

    /// What is wrong where is told in an alert.
    [[nodiscard]] FileReading reading(const QString& path, QWidget* over);
    /// A new file; the path is where saving will propose to put it.
    void startNew(const QString& path, QWidget* over);
    /// The same under a name that is free in a folder.
    void createNew(const QString& folder, QWidget* over);

    /// Null when there is none, as after its removal.
    [[nodiscard]] const ListedTest* find(TestId id) const;
    /// The athletes with a test, by name.
    [[nodiscard]] QStringList athletes() const;

    using Content = std::variant<onWaterTest, onWaterEight>;
    /// Adds tests and returns their names.
    std::vector<TestId> add(const QString& what, std::vector<Content> tests);
    void remove(std::span<const TestId> tests);
    /// One step of the undo stack each; nothing when the test is of another kind or not there.
    void editTest(TestId id, const QString& what, const std::function<void(ListedTest&)>& change);
    void editRun(TestId id, const QString& what, const std::function<void(onWaterTest&)>& change);
    void editEight(TestId id, const QString& what,
                   const std::function<void(onWaterEight&)>& change);

protected:
    [[nodiscard]] QString summary() const override;
    [[nodiscard]] EditedFile::Content contentNow() const override;
    [[nodiscard]] bool recover(const std::string& content) override;

private:
    [[nodiscard]] TestList listOf(onWaterTests tests);
    void append(TestList& list, Content test);
    template <class Test>
    void editAs(TestId id, const QString& what, const std::function<void(Test&)>& change);

    TestId m_lastId = 0;
};

} // namespace kavela::desktop
