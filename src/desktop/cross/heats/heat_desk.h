#pragma once

#include "desktop/cross/cross_page.h"
#include "desktop/cross/heats/boat_looks.h"
#include "desktop/cross/heats/heat_front.h"

#include <QObject>

#include <memory>

namespace kavela::desktop {

/// What the parts of the page of heats share: the heat, gate and mark in front, and the one way to
/// change them.
class HeatDesk : public QObject {
    Q_OBJECT

public:
    using Names = std::vector<std::string>;

    /// The colours of boats are those for the palette of the page.
    HeatDesk(const CrossDesk& desk, const QWidget& page);

    [[nodiscard]] const CrossDesk& desk() const { return m_desk; }
    [[nodiscard]] const HeatFront& front() const { return m_front; }
    [[nodiscard]] const crossinfodata030& course() const { return m_desk.cross().crossinfo; }
    /// Null without one.
    [[nodiscard]] const rounddata030* heat() const;
    /// Nothing while the cross course has none.
    [[nodiscard]] std::optional<std::int64_t> gate() const;
    /// The place of a gate on the course.
    [[nodiscard]] std::optional<std::size_t> placeOnCourse(std::int64_t gate) const;
    /// The attack that is selected, whichever of its moments; null without one.
    [[nodiscard]] const actiondata030* attack() const;
    [[nodiscard]] std::vector<BoatLook> looks() const;
    [[nodiscard]] QPalette palette() const { return m_page.palette(); }

    // The order of the boats at the gate in front.

    /// The selected order when it has no gate of its own on the course.
    [[nodiscard]] std::optional<std::size_t> strayOrder() const;
    [[nodiscard]] std::optional<std::size_t> orderInFront() const;
    /// The likely order without what does not fit the heat.
    [[nodiscard]] Names offeredOrder() const;
    [[nodiscard]] Names shownOrder() const;

    // The moments of the heat: its orders, then its attacks.

    [[nodiscard]] std::vector<HeatMark> marks() const;
    [[nodiscard]] bool exists(const HeatMark& mark) const;
    [[nodiscard]] std::optional<CMTime> momentOf(const HeatMark& mark) const;

    void open(std::optional<std::size_t> heat);
    /// An order brings its gate to the front.
    void select(const std::optional<HeatMark>& mark);
    /// Shows its frame, too.
    void goTo(const HeatMark& mark);
    /// An order that is not taken yet; nothing gives it up.
    void draft(std::optional<Names> order, HeatFront::Naming naming);
    void setGate(std::size_t place) { m_front.gate = place; }
    void setNaming(HeatFront::Naming naming) { m_front.naming = naming; }

    using Change = std::function<void(rounddata030& heat, HeatFront& front)>;
    using CrossChange = std::function<void(crossdata030& cross, HeatFront& front)>;
    /// One step of undo, which brings what it selects with it. What it refuses by an
    /// std::invalid_argument is told, and nothing changes.
    void edit(const QString& what, const CrossChange& change);
    /// The same of the heat in front, where there is one.
    void editHeat(const QString& what, const Change& change);
    /// Another content of the document may have fewer heats, gates, boats and marks.
    void follow();

signals:
    void selected(); ///< another mark, or none
    void told(const QString& text);
    void flashed(const QString& text);

private:
    void keepWithin();

    CrossDesk m_desk;
    const QWidget& m_page;
    HeatFront m_front;
    std::shared_ptr<const crossdata030> m_seen; ///< the content that is shown
    bool m_isEditing = false;                   ///< the page itself changes the content now
};

} // namespace kavela::desktop
