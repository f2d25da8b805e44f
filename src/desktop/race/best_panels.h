#pragma once

#include <QWidget>

class QLabel;
class QTableWidget;

namespace kavela::desktop {

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
    RaceDocument& m_document;
    QLabel* m_summary;
    QTableWidget* m_sections;
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
    RaceDocument& m_document;
    QTableWidget* m_athletes;
};

} // namespace kavela::desktop
