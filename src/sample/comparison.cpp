#include "sample/comparison.h"

namespace kavela::sample {

// The record belongs to a library that needs FFmpeg, which the season is made without.
std::string comparisonOfFinal() {
    const auto film = [](int run) {
        return R"({"splitFile":"riverside_cup.kvx","run":)" + std::to_string(run) +
               R"(,"camera":1,"film":"","names":"","category":"","startsAt":0,"points":[]})";
    };
    return R"({"films":[)" + film(49) + "," + film(50) +
           R"(],"layout":"side by side","wipe":0.5,"synchronise":"waiting","split":0,)"
           R"("range":{"kind":"run","fromSplit":0,"toSplit":0,"from":0,"to":0},"speed":1,)"
           R"("captions":{"names":true,"clock":true,"splits":true,"section":true,)"
           R"("penalties":true,"gap":true},"sound":0,)"
           R"("output":{"file":"","width":1280,"height":720,"small":false}})";
}

} // namespace kavela::sample
