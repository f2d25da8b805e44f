#include "splitdata/history/old_versions.h"
#include "splitdata/history/read_old.h"

#include <array>

namespace kavela {

namespace {

using namespace history;

constexpr std::array Versions{
    DocumentVersion{"splittakerdata014", "0.14", readOld<splittakerdata014>},
    DocumentVersion{"splittakerdata013", "0.13", readOld<splittakerdata013>},
    DocumentVersion{"splittakerdata012", "0.12", readOld<splittakerdata012>},
    DocumentVersion{"splittakerdata011", "0.11", readOld<splittakerdata011>},
    DocumentVersion{"splittakerdata05", "0.5", readOld<splittakerdata05>},
    DocumentVersion{"splittakerdataOLD2", "0.4", readOld<splittakerdataOLD2>},
    DocumentVersion{"splittakerdataOLD", "0.2", readOld<splittakerdataOLD>},
};

} // namespace

std::span<const DocumentVersion> versions02To014() {
    return Versions;
}

} // namespace kavela
