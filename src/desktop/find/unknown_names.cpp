#include "desktop/find/unknown_names.h"

#include "desktop/shell/qt_text.h"
#include "performance/unknown_names.h"

#include <QCoreApplication>

namespace kavela::desktop {

namespace {

QString words(const char* text) {
    return QCoreApplication::translate("FindWindow", text);
}

} // namespace

QStringList unknownNameSentences(const Query& query, const FactStore& facts) {
    QStringList sentences;
    for (const UnknownName& unknown : unknownNames(query, facts)) {
        QString sentence = words("Nobody is called “%1” in these files.").arg(qtText(unknown.name));
        if (!unknown.likeIt.empty())
            sentence += ' ' + words("Like it: %1.").arg(joined(unknown.likeIt));
        sentences.append(sentence);
    }
    return sentences;
}

} // namespace kavela::desktop
