#pragma once

#include "preferences/preferences.h"

#include <QDialog>

class QVBoxLayout;

namespace kavela::desktop {

class Workspace;

/// Every preference that a coach may change, grouped; each change is applied at once.
class SettingsWindow : public QDialog {
    Q_OBJECT

public:
    explicit SettingsWindow(Workspace& workspace, QWidget* parent = nullptr);

private:
    [[nodiscard]] QWidget* editor(const PreferenceEntry& entry);
    /// How the program looks and speaks, which no preference of the table holds.
    void addLook(QVBoxLayout& form);
    [[nodiscard]] QWidget* languageEditor();
    [[nodiscard]] QWidget* schemeEditor();
    [[nodiscard]] QWidget* newerVersionEditor();
    [[nodiscard]] QWidget* colourModeEditor();
    [[nodiscard]] QWidget* switchEditor(const PreferenceEntry& entry);
    [[nodiscard]] QWidget* numberEditor(const PreferenceEntry& entry);
    [[nodiscard]] QWidget* listEditor(const PreferenceEntry& entry);
    [[nodiscard]] QWidget* urlEditor(const PreferenceEntry& entry);

    Workspace& m_workspace;
};

} // namespace kavela::desktop
