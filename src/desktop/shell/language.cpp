#include "desktop/shell/language.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/workspace.h"
#include "language/languages.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

// Resources of a library are only linked where something asks for them, outside of every namespace.
static void takeInTranslations() {
    Q_INIT_RESOURCE(translations);
}

namespace kavela::desktop {

namespace {

constexpr const char* LanguageKey = "language";

/// Asks again without the context: a plain function names one that no class has.
class OwnTexts : public QTranslator {
public:
    using QTranslator::QTranslator;

    [[nodiscard]] QString translate(const char* context, const char* text,
                                    const char* disambiguation, int count) const override {
        const QString said = QTranslator::translate(context, text, disambiguation, count);
        return said.isNull() ? QTranslator::translate("any", text, nullptr, count) : said;
    }
};

/// Texts of one catalogue, for the life of the program; a catalogue that is not there adds none.
void addTexts(const QString& file) {
    auto* const texts = new OwnTexts(QCoreApplication::instance());
    if (texts->load(file))
        QCoreApplication::installTranslator(texts);
    else
        delete texts;
}

} // namespace

QString chosenLanguage(const Workspace& workspace) {
    return workspace.remembered(LanguageKey).value(0);
}

void chooseLanguage(Workspace& workspace, const QString& code) {
    workspace.remember(LanguageKey, code.isEmpty() ? QStringList() : QStringList{code});
}

QString spokenLanguage(const Workspace& workspace) {
    const LanguageWishes wishes = languageWishes();
    const QString chosen = chosenLanguage(workspace);
    const bool isDecided = isLanguage(wishes.kavela);
    // A language that this version no longer offers gives way to that of the system.
    if (!isDecided && !chosen.isEmpty() && isLanguage(chosen.toStdString()))
        return chosen;
    return QString::fromStdString(languageFor(wishes));
}

void speakLanguage(const QString& code, bool isChosen) {
    installCatalogue(builtInCatalogue(code.toStdString()));
    if (isChosen)
        QLocale::setDefault(QLocale(code));
    if (code == qtText(English))
        return;
    takeInTranslations();
    // The later one is asked first: our own words before those of the toolkit.
    addTexts(QStringLiteral(":/translations/qtbase_%1.qm").arg(code));
    addTexts(QStringLiteral(":/translations/kavela_%1.qm").arg(code));
}

} // namespace kavela::desktop
