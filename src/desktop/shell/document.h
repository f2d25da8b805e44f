#pragma once

#include "common/error.h"
#include "desktop/shell/edited_file.h"
#include "desktop/shell/file_reading.h"
#include "desktop/shell/packed_value.h"

#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

namespace kavela::desktop {

/// An edited file that holds one value, which never changes: an edit puts another one in its place.
/// So whoever writes it on another thread holds it. The steps of the undo stack share what is large
/// in the values before and after: see LargeParts.
///
/// A document that derives from it calls keepWork() in its destructor: only it can still make its
/// content.
template <class Value>
class Document : public EditedFile {
public:
    using EditedFile::EditedFile;

    [[nodiscard]] const Value& value() const { return *m_value; }

    /// One step of the undo stack; `what` names it there.
    void edit(const QString& what, const std::function<void(Value&)>& change) {
        auto after = std::make_shared<Value>(*m_value);
        change(*after);
        settle(*after);
        if (!m_packed)
            m_packed = std::make_shared<const Packed>(m_value, nullptr);
        auto packed = std::make_shared<const Packed>(after, m_packed.get());
        undoStack().push(new Step(*this, what, m_packed, packed, std::move(after)));
    }

protected:
    /// Brings what follows from the rest up to date, in every value before it is held.
    virtual void settle(Value& /*value*/) {}
    /// Brings up to date what the document has computed from its value.
    virtual void follow() {}

    [[nodiscard]] const std::shared_ptr<const Value>& shared() const { return m_value; }

    void start(Value value, const QString& path, QWidget* over) {
        startFrom(std::move(value));
        begin(path, over);
        emit changed();
    }

    /// How a file is read and started from. `read` throws FileError or DecodeError; as it runs on
    /// any thread, it touches nothing of the document. `valueOf` makes the value of what it gives.
    /// `damaged` tells of a file that cannot be decoded, with a place for the fault.
    template <class Read, class ValueOf = std::identity>
    [[nodiscard]] FileReading readingBy(const QString& path, QWidget* over, const QString& damaged,
                                        Read read, ValueOf valueOf = {}) {
        return [this, path, over, damaged, read, valueOf]() -> TakeIn {
            std::string reason;
            try {
                using Held = std::decay_t<std::invoke_result_t<const Read&>>;
                const auto held = std::make_shared<Held>(read());
                return [this, path, over, valueOf, held] {
                    start(valueOf(std::move(*held)), path, over);
                    return true;
                };
            } catch (const FileError& error) {
                reason = error.reason();
            } catch (const DecodeError& error) {
                reason = damaged.arg(QString::fromStdString(error.what())).toStdString();
            }
            return [this, path, over, reason] {
                tellUnreadable(path, reason, over);
                return false;
            };
        };
    }

    /// No step of the undo stack leads behind this value.
    void startFrom(Value value) {
        settle(value);
        m_value = std::make_shared<Value>(std::move(value));
        m_packed.reset();
        follow();
    }

private:
    using Packed = PackedValue<Value>;

    class Step : public QUndoCommand {
    public:
        /// `value` is what comes after, for the time when the step is taken first.
        Step(Document& document, const QString& what, std::shared_ptr<const Packed> before,
             std::shared_ptr<const Packed> after, std::shared_ptr<const Value> value)
            : QUndoCommand(what),
              m_document(document),
              m_before(std::move(before)),
              m_after(std::move(after)),
              m_value(std::move(value)) {}
        void undo() override { m_document.show(m_before, m_before->value()); }
        void redo() override {
            auto value = m_value ? std::exchange(m_value, nullptr) : m_after->value();
            m_document.show(m_after, std::move(value));
        }

    private:
        Document& m_document;
        std::shared_ptr<const Packed> m_before;
        std::shared_ptr<const Packed> m_after;
        std::shared_ptr<const Value> m_value;
    };

    void show(std::shared_ptr<const Packed> packed, std::shared_ptr<const Value> value) {
        m_packed = std::move(packed);
        m_value = std::move(value);
        follow();
        noteEdit();
        emit changed();
    }

    std::shared_ptr<const Value> m_value = std::make_shared<Value>();
    std::shared_ptr<const Packed> m_packed; ///< the same, once it was edited
};

} // namespace kavela::desktop
