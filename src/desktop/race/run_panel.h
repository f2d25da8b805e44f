#pragma once

#include <QWidget>

#include <optional>

class QLabel;
class QTableWidget;

namespace kavela::desktop {

class RaceDocument;

/// One run in detail: its sections with penalties, gaps and places, its penalties by gate, totals
/// and expected time. With two runs, the second is held against the first.
class RunPanel : public QWidget {
    Q_OBJECT

public:
    explicit RunPanel(RaceDocument& document, QWidget* parent = nullptr);

    /// Shows a run by its number among the shown ones, held against another one if given.
    void showRun(std::optional<std::size_t> run, std::optional<std::size_t> against);

private:
    void fillHeading(std::size_t run, std::optional<std::size_t> against);
    void fillSections(std::size_t run, std::optional<std::size_t> against);

    RaceDocument& m_document;
    QLabel* m_name;
    QLabel* m_facts;
    QLabel* m_gates;
    QTableWidget* m_sections;
    QLabel* m_empty;
};

} // namespace kavela::desktop
