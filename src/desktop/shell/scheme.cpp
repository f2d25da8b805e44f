#include "desktop/shell/scheme.h"

#include "desktop/shell/theme.h"
#include "desktop/shell/workspace.h"

#include <QApplication>

namespace kavela::desktop {

namespace {

constexpr const char* SchemeKey = "scheme";
constexpr const char* LightName = "light";
constexpr const char* DarkName = "dark";

Scheme schemeOf(const QString& name) {
    if (name == DarkName)
        return Scheme::Dark;
    return name == LightName ? Scheme::Light : Scheme::System;
}

bool isSystemDark() {
    QApplication::setPalette(QPalette()); // what the platform and the style make of it
    return theme::isDark(QApplication::palette());
}

} // namespace

Scheme chosenScheme(const Workspace& workspace) {
    return schemeOf(workspace.remembered(SchemeKey).value(0));
}

void chooseScheme(Workspace& workspace, Scheme scheme) {
    workspace.remember(SchemeKey, scheme == Scheme::Dark    ? QStringList{DarkName}
                                  : scheme == Scheme::Light ? QStringList{LightName}
                                                            : QStringList());
    applyScheme(workspace);
}

void applyScheme(const Workspace& workspace) {
    const Scheme wanted = schemeOf(qEnvironmentVariable("KAVELA_SCHEME"));
    const Scheme scheme = wanted == Scheme::System ? chosenScheme(workspace) : wanted;
    const bool isDark = scheme == Scheme::System ? isSystemDark() : scheme == Scheme::Dark;
    QApplication::setPalette(isDark ? theme::darkPalette() : theme::lightPalette());
}

} // namespace kavela::desktop
