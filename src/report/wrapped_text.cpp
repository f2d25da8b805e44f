#include "report/wrapped_text.h"

#include "common/display_text.h"

#include <QPainter>
#include <QStringList>

namespace kavela::report {

namespace {

constexpr std::size_t LongestText = 2000;
constexpr qsizetype LongestLine = 250; ///< characters; more fit no page

bool fits(const QString& text, const Typeface& typeface, const TextStyle& style, qreal width) {
    return text.size() <= LongestLine && typeface.width(text, style) <= width;
}

/// How many characters of a word fit a width; at least one, never half of a pair.
qsizetype fittingLength(const QString& word, const Typeface& typeface, const TextStyle& style,
                        qreal width) {
    qsizetype enough = 1;
    qsizetype beyond = std::min(word.size(), LongestLine);
    while (beyond - enough > 1) {
        const qsizetype middle = (enough + beyond) / 2;
        (fits(word.left(middle), typeface, style, width) ? enough : beyond) = middle;
    }
    if (!word[enough - 1].isHighSurrogate())
        return enough;
    return enough > 1 ? enough - 1 : enough + 1;
}

void wrapParagraph(std::vector<QString>& lines, const QString& paragraph, const Typeface& typeface,
                   const TextStyle& style, qreal width) {
    QString line;
    const auto finish = [&] {
        if (!line.isEmpty())
            lines.push_back(std::exchange(line, QString()));
    };
    for (QString word : paragraph.split(' ', Qt::SkipEmptyParts)) {
        const QString longer = line.isEmpty() ? word : line + ' ' + word;
        if (fits(longer, typeface, style, width)) {
            line = longer;
            continue;
        }
        finish();
        while (word.size() > 1 && !fits(word, typeface, style, width)) {
            const qsizetype length = fittingLength(word, typeface, style, width);
            lines.push_back(word.left(length));
            word.remove(0, length);
        }
        line = word;
    }
    finish();
}

} // namespace

std::vector<QString> wrappedLines(std::string_view text, const Typeface& typeface,
                                  const TextStyle& style, qreal width) {
    std::vector<QString> lines;
    const bool isTooLong = text.size() > LongestText;
    std::string_view rest = text.substr(0, LongestText);
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        wrapParagraph(lines, QString::fromStdString(printable(rest.substr(0, end))).simplified(),
                      typeface, style, width);
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    if (isTooLong && !lines.empty())
        lines.back() += QChar(0x2026);
    return lines;
}

void putLines(PageBuilder& pages, const std::vector<QString>& lines, const TextStyle& style,
              const Typeface& typeface, const QString& mark, qreal indent) {
    const qreal height = lineHeight(style);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (pages.space().height() < height)
            pages.newPage();
        const QString before = i == 0 ? mark : QString();
        pages.put(height, [=, line = lines[i]](QPainter& painter, const QRectF& place) {
            typeface.draw(painter, place, Qt::AlignLeft, before, style);
            typeface.draw(painter, place.adjusted(indent, 0, 0, 0), Qt::AlignLeft, line, style);
        });
    }
}

} // namespace kavela::report
