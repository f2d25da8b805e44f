#pragma once

#include "splitdata/film_marks.h"
#include "splitdata/records.h"

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

/// Edits that all notes of a run share: of moments on films, and of lists that a file may hold
/// shorter than their siblings.
namespace kavela {

/// Times the micro splits and strokes anew from their marks, after the start of the run was moved.
/// Notes without a mark keep the time they have.
void retimeNotes(athletedata031& run);

/// Entry `index` of a list; throws std::out_of_range that calls it `what` when there is none.
template <class List>
[[nodiscard]] auto& entryOf(List& list, std::size_t index, const char* what) {
    if (index >= list.size())
        throw std::out_of_range(std::string(what) + " " + std::to_string(index + 1) +
                                " does not exist");
    return list[index];
}

/// Writes an entry, filling a list that is too short with empty entries before it.
template <class T>
void setPadded(std::vector<T>& list, std::size_t index, T value) {
    if (index >= list.size())
        list.resize(index + 1);
    list[index] = std::move(value);
}

/// Takes an entry out of a list; nothing when the list does not reach that far.
template <class T>
void eraseEntry(std::vector<T>& list, std::size_t index) {
    if (index < list.size())
        list.erase(list.begin() + static_cast<std::ptrdiff_t>(index));
}

} // namespace kavela
