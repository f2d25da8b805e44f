#pragma once

#include "analysis/section_distribution.h"
#include "desktop/charts/chart.h"
#include "desktop/charts/section_ticker.h"

namespace kavela::desktop {

/// How the times of all runs spread in each section, and where the selected runs stand.
class SectionChart : public Chart {
    Q_OBJECT

public:
    enum class Form { Box, Strip };
    enum class Scale { BehindBest, Time };

    explicit SectionChart(QWidget* parent = nullptr);

    [[nodiscard]] QString name() const override { return tr("Sections"); }
    [[nodiscard]] QString purpose() const override {
        return tr("Distribution of the times of each section");
    }
    [[nodiscard]] QList<QAction*> options() const override;

    void setForm(Form form);
    void setScale(Scale scale);

    /// What the read-out says of a section, and of one run in it; counted from 0.
    [[nodiscard]] QString readOutOf(std::size_t section) const;
    [[nodiscard]] QString readOutOf(std::size_t section, std::size_t run) const;

private:
    /// A run that is drawn on its own, so that it can be pointed at.
    struct Dot {
        QPointF place; ///< in the plot's coordinates
        std::size_t section;
        std::size_t run;
    };

    [[nodiscard]] QString emptyReason() const override;
    void fill() override;
    [[nodiscard]] QString csvText() const override;
    void hoverAt(const QPointF& position) override;
    void clickAt(const QPointF& position) override;
    [[nodiscard]] std::vector<QPointF> stops() const override;

    void makeOptions();
    void addBoxes();
    void addStrips();
    void addMedians();
    void addSelectedRuns();
    void addDots(const std::vector<Dot>& dots, const QCPScatterStyle& style);
    void setLimits();
    [[nodiscard]] double height(std::size_t section, double time) const;
    [[nodiscard]] const Dot* dotAt(const QPointF& position) const;
    [[nodiscard]] QString csvOfSection(std::size_t section) const;

    QSharedPointer<SectionTicker> m_ticker;
    QList<QAction*> m_options;
    Form m_form = Form::Box;
    Scale m_scale = Scale::BehindBest;
    std::vector<SectionDistribution> m_sections;
    std::vector<Dot> m_dots;
};

} // namespace kavela::desktop
