#pragma once

#include "analysis/athlete_potential.h"
#include "desktop/shell/tables/column_model.h"

#include <QWidget>

class QLabel;

namespace kavela::desktop {

class ColumnTable;
class RaceDocument;

/// The ideal run: the best of every section, who paddled it, and how far the fastest run is from
/// it.
class IdealPanel : public QWidget {
    Q_OBJECT

public:
    explicit IdealPanel(RaceDocument& document, QWidget* parent = nullptr);
    void refresh();

signals:
    /// The run that holds the best of a section.
    void runActivated(std::size_t run);

private:
    /// The best of a section.
    struct Best {
        QString section;
        std::optional<double> time;
        QString by;
        std::optional<std::size_t> run;
    };

    [[nodiscard]] static std::vector<Column<Best>> columns();

    RaceDocument& m_document;
    QLabel* m_summary;
    ColumnModel<Best> m_bests;
    ColumnTable* m_sections;
};

/// What each athlete could do with the best of every own section in one run, the best first.
class PotentialPanel : public QWidget {
    Q_OBJECT

public:
    explicit PotentialPanel(RaceDocument& document, QWidget* parent = nullptr);
    void refresh();

signals:
    /// The best run of an athlete.
    void runActivated(std::size_t run);

private:
    [[nodiscard]] static std::vector<Column<AthletePotential>> columns();

    RaceDocument& m_document;
    ColumnModel<AthletePotential> m_potentials;
    ColumnTable* m_athletes;
};

} // namespace kavela::desktop
