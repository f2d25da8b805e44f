#pragma once

#include "splitdata/document.h"
#include "splitdata/history/cross_history.h"
#include "splitdata/history/race_history.h"
#include "splitdata/history/run_history.h"

/// The document types before the current one, newest first, as what they are made of.
namespace kavela::history {

/// A document of a release that knew cross races.
template <class Info, class Athlete, class Cross>
struct CrossDocument {
    using Run = Athlete;
    Info info;
    std::vector<Athlete> athletes;
    Cross crossracedata;
    BOOST_DESCRIBE_CLASS(CrossDocument, (), (info, athletes, crossracedata), (), ())
};

/// A document of 0.27 and before.
template <class Info, class Athlete>
struct PlainDocument {
    using Run = Athlete;
    Info info;
    std::vector<Athlete> athletes;
    BOOST_DESCRIBE_CLASS(PlainDocument, (), (info, athletes), (), ())
};

using splittakerdata030 = CrossDocument<infodata030, athletedata030, crossdata030>;
using splittakerdata029 = CrossDocument<infodata027, athletedata029, crossdata028>;
using splittakerdata028 = CrossDocument<infodata027, athletedata028, crossdata028>;
using splittakerdata027 = PlainDocument<infodata027, athletedata025>;
using splittakerdata026 = PlainDocument<infodata026, athletedata025>;
using splittakerdata025 = PlainDocument<infodata025, athletedata025>;
using splittakerdata024 = PlainDocument<infodata018, athletedata024>;
using splittakerdata023 = PlainDocument<infodata018, athletedata023>;
using splittakerdata022 = PlainDocument<infodata018, athletedata022>;
using splittakerdata021 = PlainDocument<infodata018, athletedata021>;
using splittakerdata020 = PlainDocument<infodata018, athletedata020>;
using splittakerdata019 = PlainDocument<infodata018, athletedata019>;
using splittakerdata018 = PlainDocument<infodata018, athletedata018>;
using splittakerdata017 = PlainDocument<infodata016, athletedata017>;
using splittakerdata016 = PlainDocument<infodata016, athletedata015>;
using splittakerdata015 = PlainDocument<infodata015, athletedata015>;
using splittakerdata014 = PlainDocument<infodata014, athletedata014>;
using splittakerdata013 = PlainDocument<infodata013, athletedata013>;
using splittakerdata012 = PlainDocument<infodata012, athletedata012>;
using splittakerdata011 = PlainDocument<infodata011, athletedata012>;
using splittakerdata05 = PlainDocument<infodata05, athletedata012>;
using splittakerdataOLD2 = PlainDocument<infodataOLD2, athletedataOLD2>;
using splittakerdataOLD = PlainDocument<infodataOLD, athletedataOLD>;

} // namespace kavela::history
