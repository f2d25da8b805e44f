#include "desktop/compose/split_choice.h"

#include "desktop/shell/qt_text.h"

#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

QString numberedSplit(std::size_t split, const std::vector<std::string>& titles) {
    const QString number = QString::number(split);
    const QString title =
        split > 0 && split <= titles.size() ? qtText(titles[split - 1]) : QString();
    return title.isEmpty() || title == number ? number : number + ' ' + title;
}

SplitChoice::SplitChoice(int least, QString start, QWidget* parent)
    : QComboBox(parent), m_least(least), m_start(std::move(start)) {
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    fill(least);
}

void SplitChoice::setSplits(std::size_t count, const std::vector<std::string>& titles) {
    const std::size_t fewer = std::min(count, std::size_t{MostSplits});
    if (fewer == m_count && titles == m_titles)
        return;
    m_count = fewer;
    m_titles = titles;
    fill(split());
}

void SplitChoice::setSplit(int split) {
    const int within = std::clamp(split, m_least, MostSplits);
    if (findData(within) < 0)
        fill(within);
    setCurrentIndex(findData(within));
}

int SplitChoice::split() const {
    return currentIndex() < 0 ? m_least : currentData().toInt();
}

void SplitChoice::fill(int split) {
    const QSignalBlocker silent(this);
    clear();
    const int last = std::max({static_cast<int>(m_count), split, m_least});
    for (int number = m_least; number <= last; ++number)
        addItem(number == 0 ? m_start : numberedSplit(static_cast<std::size_t>(number), m_titles),
                number);
    setCurrentIndex(findData(split));
}

} // namespace kavela::desktop
