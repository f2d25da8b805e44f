#pragma once

#include "performance/season_data.h"
#include "report/page_builder.h"
#include "report/typeface.h"

namespace kavela::report {

/// Says, below the title of a page about a season, whose races alone it is about; nothing where it
/// is about all races.
void putSeasonScope(PageBuilder& pages, const SeasonData& season, const Typeface& typeface);

} // namespace kavela::report
