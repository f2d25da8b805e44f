#pragma once

#include "performance/table_join.h"
#include "tables/table_steps.h"

#include <boost/describe.hpp>

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What a coach made of a list, as a file: the list itself as it was read, so that it needs no
/// other file, and the steps. docs/file-formats.md tells the meaning of every member.
namespace kavela {

struct tableline001 {
    std::int64_t number = 0;
    std::vector<std::string> fields = {};
};
BOOST_DESCRIBE_STRUCT(tableline001, (), (number, fields))

struct tablerefused001 {
    std::int64_t line = 0;
    std::int64_t column = 0;
    std::string text = {};
    std::string reason = {};
};
BOOST_DESCRIBE_STRUCT(tablerefused001, (), (line, column, text, reason))

struct tablelist001 {
    std::string name = {};
    std::string separator = {};
    std::vector<tableline001> lines = {};
    std::vector<tablerefused001> refused = {};
    std::vector<std::string> notes = {};
};
BOOST_DESCRIBE_STRUCT(tablelist001, (), (name, separator, lines, refused, notes))

struct tablestep001 {
    std::string step = {};
    std::vector<std::string> words = {};
    bool isOn = false;
};
BOOST_DESCRIBE_STRUCT(tablestep001, (), (step, words, isOn))

struct tableathlete001 {
    std::string name = {};
    std::vector<std::string> categories = {};
};
BOOST_DESCRIBE_STRUCT(tableathlete001, (), (name, categories))

struct tableanswer001 {
    std::int64_t line = 0;
    std::int64_t athlete = -1; ///< by place among the athletes; -1 for nobody
};
BOOST_DESCRIBE_STRUCT(tableanswer001, (), (line, athlete))

struct tablework001 {
    std::string source = {};     ///< path of the list's file; empty for what was copied
    std::string sourcelist = {}; ///< which of that file's lists
    std::string title = {};
    tablelist001 list = {};
    std::vector<tablestep001> steps = {};
    bool isJoined = false;
    std::vector<tableathlete001> joinedathletes = {};
    std::vector<tableanswer001> answers = {};
};
BOOST_DESCRIBE_STRUCT(tablework001, (),
                      (source, sourcelist, title, list, steps, isJoined, joinedathletes, answers))

/// The extension of such files.
inline constexpr std::string_view TableWorkExtension = "kvtable";

/// What was made of a list, at one moment. Copies share what they have in common.
struct TableWork {
    std::string source;              ///< path of the list's file; empty for the clipboard
    std::string list;                ///< which of the file's lists
    std::string title;               ///< how the coach calls it
    std::optional<TableSteps> steps; ///< none before a list was opened
    std::shared_ptr<const std::vector<KnownAthlete>> athletes; ///< null: joined with nobody
    /// By line of the list who is meant, by place among the athletes; none for nobody.
    std::map<std::int64_t, std::optional<std::size_t>> answers;
};

/// As text, of work with a list.
[[nodiscard]] std::string tableWorkText(const TableWork& work);

/// Whether bytes are such a text rather than a list.
[[nodiscard]] bool isTableWork(std::string_view bytes);

/// Throws DecodeError for a text that is none, or whose steps cannot be taken.
[[nodiscard]] TableWork readTableWork(std::string_view text);

} // namespace kavela
