#pragma once

#include "desktop/film/film_mode.h"
#include "splitdata/cross_records.h"

#include <QWidget>

#include <functional>
#include <optional>

namespace kavela::desktop {

class FilmDeck;
class TakingDocument;
class Workspace;

/// What the pages of a cross race work on.
struct CrossDesk {
    TakingDocument& document;
    FilmDeck& deck; ///< of the page in front
    Workspace& workspace;

    [[nodiscard]] const crossdata030& cross() const;
    /// The frame on the screen; nothing without one, or while another one only stands in for it.
    [[nodiscard]] std::optional<CMTime> moment() const;
    /// Whether keys and buttons have a film to mark on.
    [[nodiscard]] bool hasFilm() const;
};

/// A page of the cross window: what it lists, the film of what is selected there, the marks on that
/// film, and what the keys do to them. The page in front is the mode of the stage. Every edit is
/// one step that can be undone.
class CrossPage : public QWidget, public FilmMode {
    Q_OBJECT

public:
    explicit CrossPage(const CrossDesk& desk) : m_desk(desk) {}

    /// Another content of the document; what was selected stays so as far as it is still there.
    virtual void refresh() = 0;
    /// Another frame on the screen.
    virtual void showFrame() {}
    /// Takes what is being typed.
    virtual void commit() {}

    /// The name of the film of what is selected, in the folder of the document; empty without one.
    [[nodiscard]] virtual QString film() const { return {}; }
    /// The marks on that film; numbered from 0 in their order here. Those without a label stand as
    /// ticks below the time line.
    [[nodiscard]] std::vector<LineMark> marks() const override { return {}; }
    [[nodiscard]] bool hasSelection() const override { return selectedMark().has_value(); }
    virtual void selectMark(std::size_t) {}
    /// The one that was marked last, where that is plain although it is not selected.
    [[nodiscard]] virtual std::optional<std::size_t> lastMark() const { return std::nullopt; }
    /// Whether the keys that go from mark to mark stop at one.
    [[nodiscard]] virtual bool stopsAt(std::size_t) const { return true; }
    /// Gives what is selected another film of the folder, by its bare name.
    virtual void setFilm(const QString&) {}

    // What the keys do.
    virtual void mark(const CMTime&) {}     ///< M, Enter: marks the frame shown
    virtual void moveMark(const CMTime&) {} ///< moves the selected mark
    virtual void removeMark() {}
    virtual void stepRow(int) {} ///< up, down: the row before, the next one
    void pressNumber(int) override {}

    void markHere() override;
    void moveMarkHere() override;
    /// The selected mark, otherwise the last.
    void nudgeMark(int frames) override;
    void deleteMark() override { removeMark(); }
    bool stepMark(int step) override;
    void goToMark(std::size_t number) override;
    void dropMark(std::size_t number, double seconds) override;
    /// A key acts: what the page tells meanwhile is why it did not.
    [[nodiscard]] bool isPressed() const { return m_isPressed; }

signals:
    void filmChanged();                ///< another film, or none
    void marksChanged();               ///< other marks, or another one selected
    void flashed(const QString& text); ///< to be shown on the film for a moment
    void told(const QString& text);    ///< to be shown below the page
    void refused(const QString& why);  ///< what was pressed could not be done

protected:
    void edit(const QString& what, const std::function<void(crossdata030&)>& change);
    /// Acts with the frame that is meant by what is pressed now, as soon as it is known.
    void whenMeant(std::function<void(const CMTime&)> act);

    CrossDesk m_desk;

private:
    void press(void (CrossPage::*act)(const CMTime&));
    void refuse(const QString& why) { emit refused(why); }

    bool m_isPressed = false;
};

} // namespace kavela::desktop
