#include "desktop/shell/language.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/workspace.h"
#include "language/languages.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <utility>

// Resources of a library are only linked where something asks for them, outside of every namespace.
static void takeInTranslations() {
    Q_INIT_RESOURCE(translations);
}

namespace kavela::desktop {

namespace {

constexpr const char* LanguageKey = "language";

/// Asks again without the context: a plain function names one that no class has. Catalogues are
/// built in with all their texts in a context of that name too.
class OwnTexts : public QTranslator {
public:
    using QTranslator::QTranslator;

    [[nodiscard]] QString translate(const char* context, const char* text,
                                    const char* disambiguation, int count) const override {
        const QString said = QTranslator::translate(context, text, disambiguation, count);
        return said.isNull() ? QTranslator::translate("any", text, nullptr, count) : said;
    }
};

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
    // A language that this version no longer offers gives way to that of the system.
    if (!isLanguage(wishes.kavela) && !chosen.isEmpty() && isLanguage(chosen.toStdString()))
        return chosen;
    return QString::fromStdString(languageFor(wishes));
}

SpokenLanguage::SpokenLanguage(const QString& code, bool isChosen) {
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

SpokenLanguage::~SpokenLanguage() {
    for (const auto& texts : m_texts)
        QCoreApplication::removeTranslator(texts.get());
    installCatalogue(nullptr);
    QLocale::setDefault(m_before);
}

void SpokenLanguage::addTexts(const QString& file) {
    auto texts = std::make_unique<OwnTexts>();
    if (texts->load(file) && QCoreApplication::installTranslator(texts.get()))
        m_texts.push_back(std::move(texts));
}

} // namespace kavela::desktop
