#pragma once

#include <nlohmann/json.hpp>

#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace kavela::test {

/// What each document type must hold, from a table of its own (data/split_versions/records.json),
/// and a plain checker over it: the second opinion on which release wrote a document.
class RecordTable {
public:
    struct Document {
        std::string label;  ///< "0.31"
        std::string record; ///< "splittakerdata031"
        friend void PrintTo(const Document& document, std::ostream* out) { *out << document.label; }
    };

    RecordTable();

    /// Newest first.
    [[nodiscard]] const std::vector<Document>& documents() const { return m_documents; }
    /// Whether a value is of a type of the table: "int", "[string]", "[[CMTime]]", a record.
    [[nodiscard]] bool accepts(const std::string& type, const nlohmann::json& value) const;
    /// The label of the newest document type that accepts a document; "none" when no type does.
    [[nodiscard]] std::string labelOf(const nlohmann::json& document) const;

private:
    using Members = std::map<std::string, std::string>;
    [[nodiscard]] static bool acceptsPlain(const std::string& type, const nlohmann::json& value);
    [[nodiscard]] static Members membersOf(const nlohmann::json& records, const std::string& name);

    std::vector<Document> m_documents;
    std::map<std::string, Members> m_records;
};

} // namespace kavela::test
