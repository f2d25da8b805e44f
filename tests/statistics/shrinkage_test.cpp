#include "statistics/close.h"
#include "statistics/shrinkage.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace kavela::test {

namespace {

void expectShrunk(const ShrunkRate& shrunk, const std::vector<double>& expected) {
    EXPECT_NEAR(shrunk.rate, expected[0], Close);
    EXPECT_NEAR(shrunk.interval.low, expected[1], Close);
    EXPECT_NEAR(shrunk.interval.high, expected[2], Close);
    EXPECT_NEAR(shrunk.above, expected[3], Close);
}

} // namespace

TEST(Shrinkage, LeavesLittleOfRatesThatDifferByChanceOnly) {
    const std::vector<CountOf> gates{{5, 68}, {0, 40}, {2, 60}, {1, 30}, {0, 12}, {0, 0}, {3, 70}};
    const CommonRate common = commonRate(gates);
    EXPECT_NEAR(common.mean, 0.04092526690391459, Close);
    EXPECT_NEAR(common.strength, 2000, 1e-6) << "as strong as it may be";
    expectShrunk(shrunkRate(gates[0], common), {0.04199735677361179, 0.0350041694790984,
                                                0.04949403778476641, 0.5837454636973065});
    expectShrunk(shrunkRate(gates[5], common), {0.04092526690391459, 0.033910296852932634,
                                                0.048462054054076095, 0.4862176644036308});
}

TEST(Shrinkage, LeavesMuchOfRatesThatTrulyDiffer) {
    const std::vector<CountOf> gates{{30, 60}, {1, 50}, {2, 40}, {20, 45}};
    const CommonRate common = commonRate(gates);
    EXPECT_NEAR(common.mean, 0.2729591836734694, Close);
    EXPECT_NEAR(common.strength, 2.1309505699035225, Close);
    expectShrunk(shrunkRate(gates[0], common),
                 {0.4922130153731023, 0.38875138622975336, 0.5959620986436549, 0.9998672093965469});
    const std::vector<CountOf> opposites{{0, 50}, {50, 50}, {0, 50}, {50, 50}};
    EXPECT_DOUBLE_EQ(commonRate(opposites).strength, 1) << "as weak as it may be";
}

TEST(Shrinkage, HasAUsualStrengthWhereRowsTellNothingOfASpread) {
    struct Row {
        const char* name;
        std::vector<CountOf> rows;
        double mean;
    };
    for (const Row& row : {Row{"no rows", {}, 0.5}, Row{"two rows", {{5, 68}, {0, 2}}, 5.5 / 71},
                           Row{"two with a chance", {{5, 68}, {0, 2}, {0, 0}}, 5.5 / 71},
                           Row{"one chance each", {{1, 1}, {0, 1}, {0, 1}, {0, 1}}, 0.3}}) {
        const CommonRate common = commonRate(row.rows);
        EXPECT_DOUBLE_EQ(common.mean, row.mean) << row.name;
        EXPECT_EQ(common.strength, 20) << row.name;
    }
}

TEST(Shrinkage, HoldsAtBothEndsOfARate) {
    for (const std::size_t touched : {0U, 400U}) {
        const std::vector<CountOf> rows{{touched, 400}, {touched, 400}, {touched, 400}};
        const CommonRate common = commonRate(rows);
        const ShrunkRate shrunk = shrunkRate(rows[0], common);
        EXPECT_TRUE(shrunk.interval.low >= 0 && shrunk.interval.high <= 1);
        EXPECT_TRUE(shrunk.interval.low <= shrunk.rate && shrunk.rate <= shrunk.interval.high);
    }
}

TEST(Shrinkage, RefusesWhatIsNoRate) {
    EXPECT_THROW((void)commonRate(std::vector<CountOf>{{1, 4}, {3, 2}}), std::invalid_argument);
    EXPECT_THROW((void)shrunkRate({3, 2}, {0.1, 20}), std::invalid_argument);
    EXPECT_THROW((void)shrunkRate({0, 2}, {0, 20}), std::invalid_argument);
    EXPECT_THROW((void)shrunkRate({2, 2}, {1, 20}), std::invalid_argument);
}

} // namespace kavela::test
