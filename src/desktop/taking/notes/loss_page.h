#pragma once

#include "desktop/shell/tables/column_model.h"
#include "desktop/splitfile/code_form.h"
#include "desktop/taking/notes/note_page.h"
#include "splittaking/annotations/time_losses.h"

#include <array>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QVBoxLayout;

namespace kavela::desktop {

/// Time lost against another run of the file. A loss stays in hand while its other run is in front,
/// whose start and end of the stretch are marked there.
class LossPage : public NotePage {
    Q_OBJECT

public:
    explicit LossPage(NoteDesk& desk);

    void commit() override;
    void forget() override;
    void refresh() override;
    [[nodiscard]] std::optional<MarkKind> kind() const override { return MarkKind::TimeLoss; }
    /// Start and end of the stretch in turn, on the run in front; the first mark makes the loss.
    /// Once both are marked on its own run, the next press begins the next loss.
    void mark(const Stamps& stamps) override;
    void choose(const LaneMark& mark) override;
    [[nodiscard]] bool removeCurrent() override;
    /// To the run on the other side of the loss in hand, and to the stretch there; false where the
    /// file has none.
    bool goToOtherRun();

private:
    void makeParts();
    void makeMarks(QVBoxLayout& column);
    void makeWords();
    void takeInHand(std::size_t loss);
    [[nodiscard]] const timeloss031* loss() const;
    [[nodiscard]] bool isOnOtherRun() const;
    [[nodiscard]] std::optional<int> otherRun() const;
    [[nodiscard]] int chosenVersus() const;
    void add(std::size_t split);
    void begin();
    void beginAt(const CMTime& moment);
    [[nodiscard]] bool isMarked(std::size_t side) const;
    [[nodiscard]] std::optional<CMTime> stretchOn(int run) const;
    void setMarkHere(LossMark which, const CMTime& moment);
    void change(const QString& what, const std::function<void(timeloss031&)>& act);
    void addReason();
    void showLosses();
    void showVersus();
    void showMarks();
    void showWords();

    static constexpr std::size_t Marks = 4;

    int m_owner = -1;                  ///< run of the losses listed
    std::optional<std::size_t> m_loss; ///< in hand, of the owner's
    QComboBox* m_versus = nullptr;
    QComboBox* m_split = nullptr;
    ColumnModel<timeloss031> m_losses;
    ColumnTable* m_table = nullptr;
    QLabel* m_result = nullptr;
    std::array<QPushButton*, Marks> m_marks{};
    CodeForm<timeloss031> m_words; ///< kinds, reasons and comment of the loss in hand
    std::optional<std::pair<int, std::size_t>> m_told; ///< the loss whose words stand there
    QListWidget* m_reasons = nullptr;
    QLineEdit* m_newReason = nullptr;
    QPushButton* m_other = nullptr;
};

} // namespace kavela::desktop
