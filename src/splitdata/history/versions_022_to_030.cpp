#include "splitdata/history/old_versions.h"
#include "splitdata/history/read_old.h"

#include <array>

namespace kavela {

namespace {

using namespace history;

constexpr std::array Versions{
    DocumentVersion{"splittakerdata030", "0.30", readOld<splittakerdata030>},
    DocumentVersion{"splittakerdata029", "0.29", readOld<splittakerdata029>},
    DocumentVersion{"splittakerdata028", "0.28", readOld<splittakerdata028>},
    DocumentVersion{"splittakerdata027", "0.27", readOld<splittakerdata027>},
    DocumentVersion{"splittakerdata026", "0.26", readOld<splittakerdata026>},
    DocumentVersion{"splittakerdata025", "0.25", readOld<splittakerdata025>},
    DocumentVersion{"splittakerdata024", "0.24", readOld<splittakerdata024>},
    DocumentVersion{"splittakerdata023", "0.23", readOld<splittakerdata023>},
    DocumentVersion{"splittakerdata022", "0.22", readOld<splittakerdata022>},
};

} // namespace

std::span<const DocumentVersion> versions022To030() {
    return Versions;
}

} // namespace kavela
