#pragma once

#include <QObject>

namespace kavela::desktop {

class FilmStage;
class SplitBar;
class SplitMode;
class TakingDocument;

/// What is shown of the splits of the run in front: their marks on the time line, their times in
/// the bar, the time of the section that the boat is in, and where the next one is to be expected.
class SplitsShown : public QObject {
    Q_OBJECT

public:
    /// Belongs to the stage.
    SplitsShown(const TakingDocument& document, FilmStage& stage, const SplitMode& splits,
                SplitBar& bar);

    void show();
    /// Also tells the film, which decodes what is near beforehand.
    void showExpected();

private:
    void showTimes();
    void showRunning();

    const TakingDocument& m_document;
    FilmStage& m_stage;
    const SplitMode& m_splits;
    SplitBar& m_bar;
};

} // namespace kavela::desktop
