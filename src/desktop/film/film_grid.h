#pragma once

#include <QPointer>
#include <QWidget>

#include <vector>

namespace kavela::desktop {

/// The films of a run beside each other, in as many rows as make their pictures largest. A double
/// click shows one alone, and all of them again.
class FilmGrid : public QWidget {
    Q_OBJECT

public:
    explicit FilmGrid(QWidget* parent = nullptr);

    /// Shows films in this order; they belong to the grid.
    void setFilms(const std::vector<QWidget*>& films);

    /// How many films stand in a row where `count` of them are shown in a box: what makes the
    /// largest pictures of 16 by 9.
    [[nodiscard]] static int columnsFor(int count, QSize box);

    bool eventFilter(QObject* watched, QEvent* event) override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {160, 90}; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void place();

    std::vector<QPointer<QWidget>> m_films;
    QPointer<QWidget> m_alone; ///< the film that is shown alone
};

} // namespace kavela::desktop
