#pragma once

#include <QList>
#include <QString>

class QTextDocument;

namespace kavela::desktop {

/// A heading of the user guide with what stands below it.
struct GuideChapter {
    QString title;
    int level = 0; ///< 2 for a part, 3 for a chapter of it
    int block = 0; ///< of the heading, in the document
    QString text;  ///< with the title, up to the next heading
};

/// The user guide as it is built into the program, in Markdown.
[[nodiscard]] QString guideText();

/// The chapters of a document that was made of the guide, in their order.
[[nodiscard]] QList<GuideChapter> chaptersOf(const QTextDocument& guide);

/// The title of the chapter on the windows of a kind, that of the program as a whole for a kind
/// that has none. The first chapter of that title is meant.
[[nodiscard]] QString guideChapterOn(const QString& kind);

/// The end of a link to a chapter, as "the-race-analyzer".
[[nodiscard]] QString anchorOf(const QString& title);

/// Whether a chapter has every word of a query, without regard to case.
[[nodiscard]] bool hasWords(const GuideChapter& chapter, const QString& query);

} // namespace kavela::desktop
