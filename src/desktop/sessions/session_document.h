#pragma once

#include "boatmotion/session_editing.h"
#include "desktop/shell/document.h"

#include <memory>

namespace kavela::desktop {

template <>
struct LargeParts<EditedSession> {
    static constexpr auto lists = std::tuple();
    static constexpr auto wholes = std::tuple(
        [](auto& edited) -> auto& { return edited.session.strokesData; },
        [](auto& edited) -> auto& { return edited.session.heart; },
        [](auto& edited) -> auto& { return edited.session.gps; });
};

/// A session that is being worked on: a recording that was converted, or a processed session that
/// was read. Its file is the processed session; the recording is saved apart.
class SessionDocument : public Document<EditedSession> {
    Q_OBJECT

public:
    using Document::Document;
    ~SessionDocument() override { keepPending(); }

    /// What it holds now, for who works on it beside the window.
    [[nodiscard]] const std::shared_ptr<const EditedSession>& held() const { return shared(); }
    /// The document is this session from now on, under a path that may not exist yet.
    void show(EditedSession session, const QString& path, QWidget* over);
    /// Whether there is anything in it yet.
    [[nodiscard]] bool hasSession() const;

protected:
    [[nodiscard]] Content contentNow() const override;
    [[nodiscard]] bool recover(const std::string& content) override;
};

/// Where the processed session of a recording is proposed to be saved: beside it, under a name that
/// is not taken.
[[nodiscard]] QString proposedPath(const QString& recording);

} // namespace kavela::desktop
