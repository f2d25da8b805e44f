#pragma once

#include "desktop/people/belonging.h"
#include "desktop/shell/tables/column_model.h"

#include <QStringList>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kavela::desktop {

/// One of those whom a name in a file may mean.
struct KnownPerson {
    std::string name;
    QString detail{}; ///< what tells people of one name apart, such as the category; may be empty
};

/// What a file has for one name: to be looked at, ticked, and given to a person by hand.
struct FoundLine {
    QString name;               ///< as the file writes it
    QStringList facts{};        ///< what else the file says, a text for each column of facts
    std::optional<bool> tick{}; ///< whether it is taken over; none for what cannot be
    Belonging whose{};
    bool isChosenByHand = false; ///< whose it is may be chosen
    QString was{};               ///< what would be replaced; empty where there is nothing
    QString now{};               ///< what would stand there; empty where nothing changes
    QString remark{};            ///< why it stays out, or what to know before it is taken over
    QString key{};               ///< tells it from the others; FoundLines gives it

    [[nodiscard]] bool isTaken() const { return tick.value_or(false); }
};

/// What the columns and the choices are called.
struct FoundTitles {
    QStringList facts;
    QString whose;    ///< such as "Athlete"
    QString nobody;   ///< what stands there while it is nobody's: "not in the team"
    QString leaveOut; ///< the choice to leave a line out
    QString add;      ///< the choice to add a person, with %1 for the name; empty: nobody is added
};

/// The lines of a file before anything of it is taken over: what was found, whose it is, what it
/// would replace. The owner of the model answers what is ticked and chosen with new lines. Whose a
/// line is, is typed as the number of a choice.
class FoundLines : public ColumnModel<FoundLine, QString> {
    Q_OBJECT

public:
    /// Whether a person comes into question for a line.
    using MayBe = std::function<bool(int line, std::size_t person)>;

    FoundLines(FoundTitles titles, std::vector<KnownPerson> people, QObject* parent = nullptr);

    void setMayBe(MayBe mayBe) { m_mayBe = std::move(mayBe); }
    /// A line that says the same as before is the same one, whosever it is now.
    void setLines(std::vector<FoundLine> lines);

    [[nodiscard]] static constexpr int nameColumn() { return 0; }
    [[nodiscard]] int whoseColumn() const { return 1 + static_cast<int>(m_titles.facts.size()); }
    [[nodiscard]] int wasColumn() const { return whoseColumn() + 1; }
    [[nodiscard]] int nowColumn() const { return whoseColumn() + 2; }
    [[nodiscard]] int remarkColumn() const { return whoseColumn() + 3; }

    /// Whose a line may be, the likest names first, and how a choice reads.
    [[nodiscard]] std::vector<Belonging> choicesFor(int line) const;
    [[nodiscard]] QString choiceText(int line, const Belonging& whose) const;

signals:
    void ticked(int line, bool isTaken);
    void chosen(int line, const kavela::desktop::Belonging& whose);

private:
    [[nodiscard]] Columns columns();
    void choose(int line, const QString& typed);
    [[nodiscard]] QString whoseText(const FoundLine& line) const;
    [[nodiscard]] QString personText(std::size_t person) const;

    FoundTitles m_titles;
    std::vector<KnownPerson> m_people;
    std::vector<std::string> m_names; ///< of the people
    MayBe m_mayBe;
};

} // namespace kavela::desktop
