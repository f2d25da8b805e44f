#include "desktop/help/guide.h"

#include <QFile>
#include <QHash>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>

/// The guide stands in a static library, which has to be asked for it. Outside any namespace, as
/// the macro wants it.
static void loadGuide() {
    Q_INIT_RESOURCE(guide);
}

namespace kavela::desktop {

namespace {

constexpr const char* WholeProgram = "The desktop program";

const QHash<QString, QString>& chaptersByKind() {
    static const QHash<QString, QString> Chapters{
        {"home", WholeProgram},
        {"settings", "Settings"},
        {"race", "The race analyzer"},
        {"losses", "Time losses"},
        {"penalties", "Penalties"},
        {"taking", "Split taking"},
        {"films", "Films"},
        {"cross", "Kayak cross"},
        {"compare", "Compare films"},
        {"tracking", "Tracking"},
        {"slit", "Slit picture"},
        {"team", "Team results"},
        {"season", "A team's season"},
        {"selection", "Selection races"},
        {"planning", "Planning"},
        {"watertests", "On-water tests"},
        {"motion", "Boat motion: raw recordings"},
        {"session", "Sessions"},
        {"testsession", "Sessions"},
        {"find", "Find"},
        {"tables", "Tables"},
        {"fetch", "Fetch films"},
        {"share", "Share folders"},
    };
    return Chapters;
}

} // namespace

QString guideText() {
    loadGuide();
    QFile file(":/guide/user-guide.md");
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QList<GuideChapter> chaptersOf(const QTextDocument& guide) {
    QList<GuideChapter> chapters;
    for (QTextBlock block = guide.begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level > 1)
            chapters.append({block.text(), level, block.blockNumber(), {}});
        if (!chapters.isEmpty())
            chapters.back().text += block.text() + '\n';
    }
    return chapters;
}

QString guideChapterOn(const QString& kind) {
    return chaptersByKind().value(kind, WholeProgram);
}

QString anchorOf(const QString& title) {
    QString anchor;
    for (const QChar each : title.toLower())
        if (each.isLetterOrNumber() || each == u'-' || each == u'_')
            anchor += each;
        else if (each == u' ')
            anchor += u'-';
    return anchor;
}

bool hasWords(const GuideChapter& chapter, const QString& query) {
    const QStringList words = query.split(u' ', Qt::SkipEmptyParts);
    return std::ranges::all_of(words, [&](const QString& word) {
        return chapter.text.contains(word, Qt::CaseInsensitive);
    });
}

} // namespace kavela::desktop
