#include "desktop/start_options.h"

namespace kavela::desktop {

namespace {

constexpr const char* NewProgram = "--new";

constexpr const char* Usage =
    "Usage: kavela-desktop [OPTIONS] [FILE or FOLDER…]\n"
    "\n"
    "Opens each file in the tool it belongs to: races, films, teams, selections, plannings,\n"
    "tests, recordings and sessions. A folder of films opens for split taking. Without any,\n"
    "what was open when the program was left is opened again.\n"
    "\n"
    "Where the program runs already, it opens the files and comes to the front, and this call\n"
    "ends at once.\n"
    "\n"
    "Options:\n"
    "  -h, --help     print this and leave\n"
    "      --new      start another program all the same, without what the first one has open\n"
    "  -v, --version  print the version and leave\n"
    "  --             what follows is a file, whatever its name begins with\n"
    "\n"
    "KAVELA_SCHEME=light or dark decides about the colours before the settings do.\n";

/// The options in front of "--".
QStringList optionsAmong(const QStringList& arguments) {
    QStringList options;
    for (const QString& argument : arguments) {
        if (argument == "--")
            break;
        if (argument.startsWith('-') && argument.size() > 1)
            options.append(argument);
    }
    return options;
}

} // namespace

StartOptions startOptions(const QStringList& arguments) {
    StartOptions options;
    QStringList unknown = optionsAmong(arguments);
    options.isNew = unknown.removeAll(NewProgram) > 0;
    if (!unknown.isEmpty())
        options.fault =
            QString("There is no option %1. Try kavela-desktop --help.").arg(unknown.constFirst());
    const qsizetype end = arguments.indexOf("--");
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const bool isFile = (end >= 0 && i > end) || !arguments[i].startsWith('-');
        if (isFile && !arguments[i].isEmpty())
            options.files.append(arguments[i]);
    }
    return options;
}

std::optional<QString> answerWithoutWindow(const QStringList& arguments, const QString& version) {
    const QStringList options = optionsAmong(arguments);
    if (options.contains("--help") || options.contains("-h"))
        return QString(Usage);
    if (options.contains("--version") || options.contains("-v"))
        return QString("kavela-desktop %1\n").arg(version);
    return std::nullopt;
}

} // namespace kavela::desktop
