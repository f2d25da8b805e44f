#pragma once

#include <QString>
#include <QStringList>

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

/// Makes the program speak a language, windows and plain libraries alike, and write its numbers
/// where the coach chose it. Called once, before the first window. A language that is not built in
/// leaves everything in English.
void speakLanguage(const QString& code, bool isChosen);

} // namespace kavela::desktop
