#pragma once

#include <QComboBox>
#include <QStringList>

#include <cstddef>
#include <string>
#include <vector>

namespace kavela::desktop {

/// A split with its title, such as "3 upstream 6"; only its number where it has none.
[[nodiscard]] QString numberedSplit(std::size_t split, const std::vector<std::string>& titles);

/// Chooses a split of a comparison by its number and title.
class SplitChoice : public QComboBox {
public:
    /// From `least` on, which is 0 with the start. `start` is what stands for that.
    SplitChoice(int least, QString start, QWidget* parent = nullptr);

    /// The splits that there are, entry 0 the title of split 1. What is chosen stays, and stays in
    /// the list also where there is no such split.
    void setSplits(std::size_t count, const std::vector<std::string>& titles);
    void setSplit(int split);
    [[nodiscard]] int split() const;

    static constexpr int MostSplits = 50;

private:
    void fill(int split);

    int m_least;
    QString m_start;
    std::size_t m_count = 0;
    std::vector<std::string> m_titles;
};

} // namespace kavela::desktop
