#pragma once

#include <QLocale>
#include <QString>

#include <memory>
#include <vector>

class QTranslator;

namespace kavela::desktop {

class Workspace;

/// The language that the coach chose in the settings, such as "de"; empty for that of the system.
[[nodiscard]] QString chosenLanguage(const Workspace& workspace);

/// Remembers a choice, empty for the language of the system. It counts from the next start: texts
/// that stand on the screen were said already.
void chooseLanguage(Workspace& workspace, const QString& code);

/// The language that is to be spoken: that of KAVELA_LANGUAGE, then the chosen one, then the first
/// one of the system that is offered; "en" where none of them is.
[[nodiscard]] QString spokenLanguage(const Workspace& workspace);

/// While it lives, the program speaks a language, windows and plain libraries alike. Made before
/// the first window, and once: names of tools are said when they are first asked for. A language
/// that is not built in leaves everything in English.
class SpokenLanguage {
public:
    /// A language that the coach chose also decides how numbers are written; otherwise that is left
    /// to the country of the system.
    SpokenLanguage(const QString& code, bool isChosen);
    SpokenLanguage(const SpokenLanguage&) = delete;
    SpokenLanguage& operator=(const SpokenLanguage&) = delete;
    ~SpokenLanguage();

private:
    /// Texts of one catalogue; one that is not there adds none.
    void addTexts(const QString& file);

    QLocale m_before;
    std::vector<std::unique_ptr<QTranslator>> m_texts;
};

} // namespace kavela::desktop
