#include "report/season_scope.h"

#include "common/text.h"
#include "report/list_styles.h"
#include "report/wrapped_text.h"

namespace kavela::report {

/// Paper lies about long after the call: figures of a part of the races must not pass for those of
/// all.
void putSeasonScope(PageBuilder& pages, const SeasonData& season, const Typeface& typeface) {
    constexpr TextStyle ScopeStyle{8, false, Ink};
    constexpr qreal ScopeGap = 6 * Point;
    if (!season.starter)
        return;
    const std::string text = say("Only races in which {} starts.", *season.starter);
    putLines(pages, wrappedLines(text, typeface, ScopeStyle, pages.space().width()), ScopeStyle,
             typeface);
    pages.skip(ScopeGap);
}

} // namespace kavela::report
