#include "splitdata/record_table.h"

#include <algorithm>
#include <fstream>

namespace kavela::test {

using nlohmann::json;

RecordTable::RecordTable() {
    std::ifstream file(KAVELA_TEST_DATA "/split_versions/records.json");
    const json table = json::parse(file);
    for (const auto& document : table.at("documents"))
        m_documents.push_back({document.at(0), document.at(1)});
    for (const auto& [name, members] : table.at("records").items())
        m_records[name] = membersOf(table.at("records"), name);
}

RecordTable::Members RecordTable::membersOf(const json& records, const std::string& name) {
    const json& record = records.at(name);
    // A later version names the one before it, what it added or changed, and with null what it
    // lost.
    Members members = record.contains("after") ? membersOf(records, record["after"]) : Members{};
    for (const auto& [key, type] : record.items()) {
        if (type.is_null())
            members.erase(key);
        else if (key != "after")
            members[key] = type;
    }
    return members;
}

bool RecordTable::accepts(const std::string& type, const json& value) const {
    if (type.front() == '[') {
        const std::string inner = type.substr(1, type.size() - 2);
        return value.is_array() && std::all_of(value.begin(), value.end(), [&](const json& entry) {
                   return accepts(inner, entry);
               });
    }
    const auto record = m_records.find(type);
    if (record == m_records.end())
        return acceptsPlain(type, value);
    return value.is_object() &&
           std::all_of(record->second.begin(), record->second.end(), [&](const auto& member) {
               const auto found = value.find(member.first);
               return found != value.end() && accepts(member.second, *found);
           });
}

bool RecordTable::acceptsPlain(const std::string& type, const json& value) {
    if (type == "number")
        return value.is_number();
    if (type == "bool")
        return value.is_boolean();
    if (type == "string" || type == "blob")
        return value.is_string();
    return value.is_number_integer(); // "int", "int32", "uint32"
}

std::string RecordTable::labelOf(const json& document) const {
    const auto found =
        std::find_if(m_documents.begin(), m_documents.end(), [&](const Document& candidate) {
            return accepts(candidate.record, document);
        });
    return found == m_documents.end() ? "none" : found->label;
}

} // namespace kavela::test
