#include "splitdata/athlete_keys.h"

#include <gmock/gmock.h>

namespace kavela::test {

TEST(AthleteKeys, TellThePhaseThatAFileWritesInItsOwnWay) {
    struct Row {
        const char* written;
        const char* phase;
    };
    for (const Row& row :
         {Row{"1st run", "Heats 1"}, Row{"HEATS-2", "Heats 2"}, Row{"Semi", "Semifinal"},
          Row{"Finals", "Final"}, Row{"Final A", ""}, Row{"", ""}})
        EXPECT_EQ(teamPhase(row.written), row.phase) << row.written;
}

} // namespace kavela::test
