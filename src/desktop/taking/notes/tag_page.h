#pragma once

#include "desktop/shell/tables/column_model.h"
#include "desktop/taking/notes/note_page.h"

class QCheckBox;
class QComboBox;

namespace kavela::desktop {

class ColumnTable;

/// A tag on the run's own film.
struct TagRow {
    LaneMark mark;
    double seconds = 0; ///< of the run
};

/// The coach's own tags. Names are those of the file, the ones saved for reuse, or typed anew; the
/// one chosen last is remembered.
class TagPage : public NotePage {
    Q_OBJECT

public:
    explicit TagPage(NoteDesk& desk);

    [[nodiscard]] std::optional<Alert> refusal() const override;
    void refresh() override;
    [[nodiscard]] std::optional<MarkKind> kind() const override { return MarkKind::Tag; }
    void mark(const Stamps& stamps) override;
    void choose(const LaneMark& mark) override;
    void unchoose() override { m_chosen.reset(); }
    /// Plays from the chosen tag, and where the coach wants just that, no further than its part:
    /// to the next tag, at most PartSeconds.
    void playPart();
    void renameChosen();

    static constexpr double PartSeconds = 10;

private:
    [[nodiscard]] QStringList names() const;
    [[nodiscard]] QString name() const;
    void remember(const QString& name);
    void takeName();
    void showNames();
    void showTable();

    QComboBox* m_name;
    QCheckBox* m_justPart;
    ColumnModel<TagRow> m_tags;
    ColumnTable* m_table;
    std::optional<LaneMark> m_chosen;
    bool m_isTaken = false; ///< the name that stands there was taken by Enter
};

} // namespace kavela::desktop
