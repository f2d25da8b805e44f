#pragma once

#include "boatmotion/strokes/motion_analysis.h"
#include "desktop/shell/entry_dialog.h"
#include "desktop/shell/tables/column_model.h"
#include "desktop/watertests/tests_document.h"

#include <vector>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace kavela::desktop {

class NumberBox;
class WholeBox;
class EntryTable;
class SeriesChart;

/// Where a section of a test ends in a recording, and how long it is, in seconds.
struct SectionMark {
    double end = 0;
    double time = 0;
};

/// Which part of a recording is which test: its marks are proposed from the strokes and turns, and
/// can be changed.
class TakeRecordingDialog : public EntryDialog {
    Q_OBJECT

public:
    /// `athlete` is proposed where the recording names none. Throws MotionError for a recording
    /// that cannot be analysed.
    TakeRecordingDialog(bmrawdata_v5 session, const std::string& athlete,
                        QWidget* parent = nullptr);
    ~TakeRecordingDialog() override;

    [[nodiscard]] TestsDocument::Content test() const;

private:
    void makeFields(const std::string& athlete);
    void layOut();
    void connectParts();
    void analyse();
    void suggest();
    void showMarks();
    [[nodiscard]] QString missingText() const;
    void showCurve();
    [[nodiscard]] std::vector<Column<SectionMark>> markColumns();
    [[nodiscard]] TestKind kind() const;
    [[nodiscard]] double begin() const;

    bmrawdata_v5 m_session;
    MotionAnalysis m_motion;
    /// The start and the end of each section, on the clock of the samples.
    std::vector<double> m_moments;
    QComboBox* m_kind;
    QLineEdit* m_athlete;
    QLineEdit* m_location;
    WholeBox* m_laps;
    NumberBox* m_distance;
    NumberBox* m_turnLimit;
    ColumnModel<SectionMark> m_marks;
    EntryTable* m_table;
    SeriesChart* m_chart;
    QLabel* m_found;
    QLabel* m_fault;
    QPushButton* m_take = nullptr;
};

} // namespace kavela::desktop
