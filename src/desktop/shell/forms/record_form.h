#pragma once

#include "desktop/shell/forms/field_form.h"
#include "desktop/shell/forms/field_texts.h"

#include <QStringList>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

namespace kavela::desktop {

/// A value of a record that is no plain member of it.
template <class Get, class Set>
struct Access {
    Get get; ///< of a const record
    Set set; ///< of a record, with the value
};
template <class Get, class Set>
Access(Get, Set) -> Access<Get, Set>;

/// A form for one record. Its fields are bound to what they show by a pointer to a member, by a
/// function that gives the member, or by Access. What is typed leaves as one change of the record
/// each, named after its field.
template <class Record>
class RecordForm : public FieldForm {
public:
    using Change = std::function<void(Record&)>;
    /// Makes a change a step of undo, and shows the record again.
    using Edit = std::function<void(const QString& what, const Change& change)>;

    explicit RecordForm(Edit edit, Arrangement arrangement = Arrangement::Below,
                        QWidget* parent = nullptr)
        : FieldForm(arrangement, parent), m_edit(std::move(edit)) {}

    using QWidget::show;
    /// The record as it is now; null for none. Another record gives up what was typed for the one
    /// before, which commit() takes.
    void show(const Record* record, bool isOther = false) { showValues(valuesOf(record), isOther); }

    /// One line of text, without blanks at its ends and repeated ones.
    template <class Member>
    void text(const FieldFacts& facts, Member member, const QStringList& proposals = {}) {
        bind<std::string>(addLine(facts, proposals), member, shownText, typedText);
    }

    /// A remark in one line, without blanks at its ends; those between its words are as they were
    /// typed, by which some line things up.
    template <class Member>
    void remark(const FieldFacts& facts, Member member, const QStringList& proposals = {}) {
        bind<std::string>(addLine(facts, proposals), member, shownText, typedRemark);
    }

    /// A text of several lines, as it is typed.
    template <class Member>
    void longText(const FieldFacts& facts, Member member, int lines) {
        bind<std::string>(addLongText(facts, lines), member, shownText,
                          [](const QVariant& typed) { return typed.toString().toStdString(); });
    }

    /// One line that is read and written by functions; `parse` throws RefusedEntry.
    template <class Member, class Shown, class Parse>
    void line(const FieldFacts& facts, Member member, Shown shown, Parse parse) {
        bind<ValueOf<Member>>(
            addLine(facts), member, std::move(shown),
            [parse](const QVariant& typed) { return parse(typed.toString().trimmed()); });
    }

    template <class Member>
    void whole(const FieldFacts& facts, const NumberFacts& number, Member member) {
        using Value = ValueOf<Member>;
        bind<Value>(
            addWhole(facts, number), member,
            [number](const Value& value) {
                return static_cast<int>(
                    std::clamp(static_cast<double>(value), number.least, number.most));
            },
            [](const QVariant& typed) { return static_cast<Value>(typed.toInt()); });
    }

    template <class Member>
    void number(const FieldFacts& facts, const NumberFacts& number, Member member) {
        bind<double>(
            addNumber(facts, number), member, [](double value) { return value; },
            [](const QVariant& typed) { return typed.toDouble(); });
    }

    /// A day; the time of day stays. No day at all is the moment 0.
    template <class Member>
    void date(const FieldFacts& facts, Member member) {
        bind<ReferenceDate>(addDate(facts), member, shownDay, typedDayAfter);
    }

    /// A moment to the second, as the clock of the computer's place shows it.
    template <class Member>
    void moment(const FieldFacts& facts, Member member) {
        bind<ReferenceDate>(addMoment(facts), member, shownMoment, typedMoment);
    }

    template <class Member>
    void check(const FieldFacts& facts, Member member) {
        bind<bool>(
            addCheck(facts), member, [](bool value) { return value; },
            [](const QVariant& typed) { return typed.toBool(); });
    }

    /// One of several values, by the texts that stand for them.
    template <class Member, class Value>
    void choice(const FieldFacts& facts, const std::vector<std::pair<QString, Value>>& choices,
                Member member) {
        QStringList texts;
        for (const auto& [text, value] : choices)
            texts.append(text);
        bind<Value>(
            addChoice(facts, texts), member,
            [choices](const Value& value) {
                const auto found =
                    std::ranges::find(choices, value, &std::pair<QString, Value>::second);
                return found == choices.end() ? -1 : static_cast<int>(found - choices.begin());
            },
            [choices](const QVariant& typed) {
                return choices.at(static_cast<std::size_t>(typed.toInt())).second;
            });
    }

    /// A text with a list of proposals, which propose() gives.
    template <class Member>
    void editableChoice(const FieldFacts& facts, Member member) {
        bind<std::string>(addEditableChoice(facts), member, shownText, typedText);
    }

protected:
    bool take(std::size_t field, const QVariant& typed, const QString& what) override {
        const Change change = m_bindings.at(field).take(typed);
        if (change)
            m_edit(what, change);
        return change != nullptr;
    }

private:
    struct Binding {
        std::function<QVariant(const Record&)> show;
        std::function<Change(const QVariant&)> take; ///< nothing where the value is the same
    };

    template <class Member>
    static decltype(auto) valueIn(const Record& record, const Member& member) {
        if constexpr (requires { member.get(record); })
            return member.get(record);
        else
            return std::invoke(member, record);
    }
    template <class Member>
    using ValueOf = std::remove_cvref_t<decltype(valueIn(std::declval<const Record&>(),
                                                         std::declval<const Member&>()))>;

    template <class Member, class Value>
    static void setIn(Record& record, const Member& member, const Value& value) {
        if constexpr (requires { member.set(record, value); })
            member.set(record, value);
        else
            std::invoke(member, record) = value;
    }

protected:
    /// What a new field shows of the record, and what becomes of what is typed there: `parse` gets
    /// it, and where it wants it the value from before.
    template <class Value, class Member, class Shown, class Parse>
    void bind(std::size_t field, Member member, Shown shown, Parse parse) {
        auto current = std::make_shared<Value>();
        m_bindings.resize(field + 1);
        m_bindings[field] = {
            [=](const Record& record) {
                *current = valueIn(record, member);
                return QVariant(shown(*current));
            },
            [=](const QVariant& typed) -> Change {
                Value value{};
                if constexpr (std::is_invocable_v<Parse, const QVariant&, const Value&>)
                    value = parse(typed, *current);
                else
                    value = parse(typed);
                if (value == *current)
                    return {};
                return [=](Record& record) { setIn(record, member, value); };
            }};
    }

private:
    std::vector<QVariant> valuesOf(const Record* record) const {
        std::vector<QVariant> values;
        for (const Binding& binding : m_bindings)
            if (record)
                values.push_back(binding.show(*record));
        return values;
    }

    Edit m_edit;
    std::vector<Binding> m_bindings;
};

} // namespace kavela::desktop
