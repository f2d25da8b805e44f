#include "boatmotion/sessions.h"
#include "common/json_encode.h"
#include "splitdata/history/documents.h"
#include "splitdata/history/versions.h"
#include "vision/track_file.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>

/// Writes the seed corpora, a document of every type with one entry in each array, and the
/// dictionary of all keys.
namespace {

using namespace kavela;
using namespace kavela::history;
namespace fs = std::filesystem;

/// Fills records with values that differ from the empty ones and from each other.
class Filler {
public:
    void fill(double& value) { value = 0.1 * ++m_count; }
    void fill(std::int64_t& value) { value = ++m_count; }
    void fill(std::int32_t& value) { value = 600; }
    void fill(std::uint32_t& value) { value = 1; }
    void fill(bool& value) { value = true; }
    void fill(std::string& value) { value = std::to_string(++m_count) + " é\n"; }
    void fill(Blob& value) { value.bytes = {static_cast<unsigned char>(++m_count)}; }
    void fill(ReferenceDate& value) { value.seconds = 7e8 + 0.5 * ++m_count; }

    template <class T>
    void fill(std::vector<T>& values) {
        fill(values.emplace_back());
    }

    template <Record T>
    void fill(T& record) {
        boost::mp11::mp_for_each<MembersOf<T>>([&](auto member) { fill(record.*member.pointer); });
    }

private:
    int m_count = 0;
};

void writeFile(const fs::path& path, const std::string& content) {
    fs::create_directories(path.parent_path());
    if (!(std::ofstream(path, std::ios::binary) << content).flush())
        throw fs::filesystem_error("cannot write", path, std::make_error_code(std::errc::io_error));
}

/// Collects the keys of everything that it writes.
class SeedFolder {
public:
    explicit SeedFolder(fs::path folder) : m_folder(std::move(folder)) {}

    template <Record T>
    void add(const std::string& harness, const std::string& name) {
        T record;
        Filler().fill(record);
        const std::string text = encode(record);
        writeFile(m_folder / "corpus" / harness / (name + ".json"), text);
        collectKeys(text);
    }

    /// Split files, newest first.
    template <Record... T>
    void addEveryVersion() {
        const DocumentVersion* version = documentVersions().data();
        (add<T>("split_file", std::string((version++)->record)), ...);
    }

    void writeDictionary() const {
        std::string lines;
        for (const std::string& key : m_keys)
            lines += R"("\")" + key + R"(\":")" + '\n';
        writeFile(m_folder / "json.dict", lines);
    }

private:
    void collectKeys(std::string_view text) {
        for (auto end = text.find("\":"); end != text.npos; end = text.find("\":", end + 1)) {
            const auto begin = text.rfind('"', end - 1) + 1;
            m_keys.emplace(text.substr(begin, end - begin));
        }
    }

    fs::path m_folder;
    std::set<std::string> m_keys;
};

} // namespace

int main(int count, char** words) {
    if (count != 2) {
        std::cerr << "Call: kavela_fuzz_seeds FOLDER\n";
        return 2;
    }
    SeedFolder seeds(words[1]);
    seeds.addEveryVersion<
        splittakerdata031, splittakerdata030, splittakerdata029, splittakerdata028,
        splittakerdata027, splittakerdata026, splittakerdata025, splittakerdata024,
        splittakerdata023, splittakerdata022, splittakerdata021, splittakerdata020,
        splittakerdata019, splittakerdata018, splittakerdata017, splittakerdata016,
        splittakerdata015, splittakerdata014, splittakerdata013, splittakerdata012,
        splittakerdata011, splittakerdata05, splittakerdataOLD2, splittakerdataOLD>();
    seeds.add<splittakerdata031>("split_document", "splittakerdata031");
    seeds.add<bmrawdata_v4>("raw_session", "bmrawdata_v4");
    seeds.add<bmrawdata_v5>("raw_session", "bmrawdata_v5");
    seeds.add<bmrawdata_v5>("stroke_analysis", "bmrawdata_v5");
    seeds.add<smartAlldata>("smart_session", "smartAlldata");
    seeds.add<smartAlldata_v3>("smart_session", "smartAlldata_v3");
    seeds.add<smartAlldata_v4>("smart_session", "smartAlldata_v4");
    seeds.add<smartAlldata_v5>("smart_session", "smartAlldata_v5");
    seeds.add<varoTestAlldata>("test_session", "varoTestAlldata");
    seeds.add<track001>("track_file", "track001");
    seeds.writeDictionary();
    return 0;
}
