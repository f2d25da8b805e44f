// Opens a race as the analyzer does, so that faults can be put in its way.

#include "analysis/open_race.h"

#include <iostream>

namespace {

class StandardErrorAlerts : public kavela::Alerts {
public:
    void show(const kavela::Alert& alert) override { std::cerr << alert.text << '\n'; }
};

} // namespace

int main(int argc, char** argv) {
    if (argc != 2)
        return 2;
    StandardErrorAlerts alerts;
    const auto log = [](std::string_view line) { std::cerr << line << '\n'; };
    return kavela::openRace(argv[1], log, alerts, kavela::systemNow) ? 0 : 1;
}
