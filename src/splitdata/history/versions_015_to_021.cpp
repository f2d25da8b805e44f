#include "splitdata/history/old_versions.h"
#include "splitdata/history/read_old.h"

#include <array>

namespace kavela {

namespace {

using namespace history;

constexpr std::array Versions{
    DocumentVersion{"splittakerdata021", "0.21", readOld<splittakerdata021>},
    DocumentVersion{"splittakerdata020", "0.20", readOld<splittakerdata020>},
    DocumentVersion{"splittakerdata019", "0.19", readOld<splittakerdata019>},
    DocumentVersion{"splittakerdata018", "0.18", readOld<splittakerdata018>},
    DocumentVersion{"splittakerdata017", "0.17", readOld<splittakerdata017>},
    DocumentVersion{"splittakerdata016", "0.16", readOld<splittakerdata016>},
    DocumentVersion{"splittakerdata015", "0.15", readOld<splittakerdata015>},
};

} // namespace

std::span<const DocumentVersion> versions015To021() {
    return Versions;
}

} // namespace kavela
