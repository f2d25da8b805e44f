#pragma once

#include "compose/compose_job.h"
#include "desktop/shell/document.h"

namespace kavela::desktop {

/// A comparison of films that is being edited. Its files are named in full here, and from the
/// comparison's folder in its file.
class CompareDocument : public Document<composejob002> {
    Q_OBJECT

public:
    using Document::Document;
    ~CompareDocument() override { keepPending(); }

    /// What is wrong where is told in an alert.
    [[nodiscard]] FileReading reading(const QString& path, QWidget* over);
    /// A new comparison of these films; the path is where saving will propose to put it. What it
    /// begins with needs no saving.
    void startNew(const QString& path, composejob002 job, QWidget* over);
    /// A new one under a name that is free in a folder.
    void createNew(const QString& folder, composejob002 job, QWidget* over);

protected:
    [[nodiscard]] QString summary() const override;
    [[nodiscard]] EditedFile::Content contentNow() const override;
    [[nodiscard]] EditedFile::Content contentFor(const QString& path) const override;
    [[nodiscard]] bool recover(const std::string& content) override;
};

} // namespace kavela::desktop
