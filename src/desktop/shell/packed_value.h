#pragma once

#include "common/record_equality.h"

#include <memory>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace kavela::desktop {

/// What of a value is large, for a kind of value whose steps of undo shall not each hold all of it.
/// Specialised by functions that lead from a value to one of its parts. Lists are shared entry by
/// entry, as the athletes of a file; wholes as they are, as the samples of a recording.
template <class Value>
struct LargeParts {
    static constexpr auto lists = std::tuple();
    static constexpr auto wholes = std::tuple();
};

/// A value taken apart, so that two of them share what is the same in both: a step of the undo
/// stack costs what it changed.
template <class Value>
class PackedValue {
    using Parts = LargeParts<Value>;
    static constexpr bool IsWhole = std::tuple_size_v<decltype(Parts::lists)> == 0 &&
                                    std::tuple_size_v<decltype(Parts::wholes)> == 0;

    template <class Part>
    using Of = std::remove_cvref_t<std::invoke_result_t<Part, Value&>>;
    template <class... Lists>
    static std::tuple<std::vector<std::shared_ptr<const typename Of<Lists>::value_type>>...>
    entriesOf(const std::tuple<Lists...>&);
    template <class... Wholes>
    static std::tuple<std::shared_ptr<const Of<Wholes>>...> partsOf(const std::tuple<Wholes...>&);

public:
    /// `before` is one to share with; null for none.
    PackedValue(std::shared_ptr<const Value> value, const PackedValue* before) {
        if constexpr (IsWhole) {
            m_rest = std::move(value);
        } else {
            Value rest = *value;
            packLists(rest, before, Indices<decltype(Parts::lists)>());
            packWholes(rest, before, Indices<decltype(Parts::wholes)>());
            m_rest = std::make_shared<const Value>(std::move(rest));
        }
    }

    [[nodiscard]] std::shared_ptr<const Value> value() const {
        if constexpr (IsWhole) {
            return m_rest;
        } else {
            auto value = std::make_shared<Value>(*m_rest);
            unpackLists(*value, Indices<decltype(Parts::lists)>());
            unpackWholes(*value, Indices<decltype(Parts::wholes)>());
            return value;
        }
    }

private:
    template <class Tuple>
    using Indices = std::make_index_sequence<std::tuple_size_v<std::remove_cvref_t<Tuple>>>;

    template <class Part>
    static std::shared_ptr<const Part> shared(Part part,
                                              const std::shared_ptr<const Part>* before) {
        return before && *before && isSame(**before, part)
                   ? *before
                   : std::make_shared<const Part>(std::move(part));
    }

    /// An entry is looked for at its own place first: most edits change one and move none.
    template <class Entry>
    static std::shared_ptr<const Entry>
    sharedEntry(Entry entry, std::size_t place,
                const std::vector<std::shared_ptr<const Entry>>* before) {
        if (before && place < before->size() && isSame(*(*before)[place], entry))
            return (*before)[place];
        for (std::size_t other = 0; before && other < before->size(); ++other)
            if (isSame(*(*before)[other], entry))
                return (*before)[other];
        return std::make_shared<const Entry>(std::move(entry));
    }

    template <std::size_t... I>
    void packLists(Value& rest, const PackedValue* before, std::index_sequence<I...>) {
        [[maybe_unused]] const auto pack = [](auto& list, auto& packed, const auto* known) {
            for (std::size_t place = 0; place < list.size(); ++place)
                packed.push_back(sharedEntry(std::move(list[place]), place, known));
            list = {};
        };
        (pack(std::get<I>(Parts::lists)(rest), std::get<I>(m_entries),
              before ? &std::get<I>(before->m_entries) : nullptr),
         ...);
    }

    template <std::size_t... I>
    void packWholes(Value& rest, const PackedValue* before, std::index_sequence<I...>) {
        ((std::get<I>(m_parts) = shared(std::exchange(std::get<I>(Parts::wholes)(rest), {}),
                                        before ? &std::get<I>(before->m_parts) : nullptr)),
         ...);
    }

    template <std::size_t... I>
    void unpackLists(Value& value, std::index_sequence<I...>) const {
        [[maybe_unused]] const auto unpack = [](auto& list, const auto& packed) {
            for (const auto& entry : packed)
                list.push_back(*entry);
        };
        (unpack(std::get<I>(Parts::lists)(value), std::get<I>(m_entries)), ...);
    }

    template <std::size_t... I>
    void unpackWholes(Value& value, std::index_sequence<I...>) const {
        ((std::get<I>(Parts::wholes)(value) = *std::get<I>(m_parts)), ...);
    }

    std::shared_ptr<const Value> m_rest;
    decltype(entriesOf(Parts::lists)) m_entries;
    decltype(partsOf(Parts::wholes)) m_parts;
};

} // namespace kavela::desktop
