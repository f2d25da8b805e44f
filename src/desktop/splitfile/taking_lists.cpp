#include "desktop/splitfile/taking_lists.h"

#include "analysis/race_set.h"
#include "common/safe_file.h"
#include "report/pdf_file.h"
#include "report/race_report.h"
#include "splittaking/table_export.h"

#include <utility>

namespace kavela::desktop {

void writeBeside(splittakerdata031 document, const std::filesystem::path& file,
                 const BesideFile& lists) {
    if (document.athletes.empty())
        return;
    std::filesystem::path beside = file;
    if (lists.csv)
        writeFileSafely(beside.replace_extension(".csv"), splitTableCsv(document));
    if (!lists.pdf)
        return;
    const report::ReportHeading heading = report::reportHeading(document.info, file);
    const report::SharedCourse drawn = report::sharedCourse(document.info);
    const RaceSet set = makeRaceSet(std::move(document), file);
    report::writePdf(report::RaceReport(heading, set, {}, report::ReportContent::Race, {}, drawn),
                     beside.replace_extension(".pdf"));
}

} // namespace kavela::desktop
