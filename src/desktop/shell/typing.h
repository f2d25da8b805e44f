#pragma once

class QWidget;

/// What keys mean while something is being typed.
namespace kavela::desktop {

/// Enter, in the field that has the focus: it takes what was typed, and keeps the focus, since what
/// is typed next is text again and no key of the window. A cell of a table closes. False where no
/// field has the focus, so that Enter may mean something else.
bool endTyping();

/// Ends the typing in a field of `part`, or in a cell of a table there.
void endTypingIn(const QWidget& part);

/// Takes what is being typed in a window, as before it is saved; the cursor stays in its field or
/// table. False, with the cursor in the field, where one holds what cannot be taken.
[[nodiscard]] bool takeTyping(const QWidget& window);

/// For a part that shows something else in the fields of its window: a press on it takes what is
/// typed in them first, and does not reach the part where that is refused. The text would else be
/// gone with what it was typed for. Fields inside the part do not count.
void takeTypingBeforePresses(QWidget& part);

/// Steps the number that is being edited; false where none is.
bool stepNumber(int step);

} // namespace kavela::desktop
