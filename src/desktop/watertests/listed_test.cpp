#include "desktop/watertests/listed_test.h"

#include "planning/eight_test.h"
#include "planning/test_entry.h"

#include <QCoreApplication>

namespace kavela::desktop {

TestKind ListedTest::kind() const {
    if (!run())
        return TestKind::Eight;
    return run()->kind == water_test::Sprint ? TestKind::Sprint : TestKind::Lap;
}

QString ListedTest::athlete() const {
    return QString::fromStdString(run() ? run()->test.athlete : eight()->run.athlete);
}

ReferenceDate ListedTest::date() const {
    return run() ? run()->test.date : eight()->date;
}

QString ListedTest::day() const {
    return QString::fromStdString(dayText(date()));
}

QString ListedTest::location() const {
    return QString::fromStdString(run() ? run()->test.location : eight()->location);
}

QString ListedTest::title() const {
    const QString name =
        athlete().isEmpty() ? QCoreApplication::translate("ListedTest", "No name") : athlete();
    return name + ", " + day();
}

QString kindText(TestKind kind) {
    switch (kind) {
    case TestKind::Lap:
        return QCoreApplication::translate("ListedTest", "Lap test");
    case TestKind::Sprint:
        return QCoreApplication::translate("ListedTest", "Sprint");
    case TestKind::Eight:
        return QCoreApplication::translate("ListedTest", "Eight test");
    }
    return {};
}

QString shortKindText(TestKind kind) {
    switch (kind) {
    case TestKind::Lap:
        return QCoreApplication::translate("ListedTest", "Lap");
    case TestKind::Sprint:
        return kindText(kind);
    case TestKind::Eight:
        return QCoreApplication::translate("ListedTest", "Eight");
    }
    return {};
}

testData tableRunOf(const ListedTest& test) {
    if (test.run())
        return test.run()->test;
    const datafor8& eight = test.eight()->run;
    testData run;
    run.athlete = eight.athlete;
    run.date = test.date();
    const auto splits = splitsOf(eight);
    run.splits.assign(splits.begin(), splits.end());
    run.totalTime = isWhole(eight) ? eight.totalsplit : 0;
    run.leftRotations = eight.zrotsubmaxL;
    run.rightRotations = eight.zrotsubmaxR;
    return run;
}

} // namespace kavela::desktop
